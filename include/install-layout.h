// The layout on disk. Relative paths neither start nor end with a slash.
#pragma once

namespace layout {

// In a client's directory, in the package and in the per-user copy. A bundle has kInfo too.
constexpr char kExecutable[] = "Contents/MacOS/quillmere-ui";
constexpr char kInfo[] = "Contents/Resources/INFO";

// In the bundle.
constexpr char kResources[] = "Contents/Resources";
constexpr char kLauncher[] = "Contents/MacOS/launcher";
constexpr char kPlugins[] = "Contents/Frameworks/plugins";
constexpr char kPackage[] = "Contents/Resources/package/quillmere.qpk";
constexpr char kIcon[] = "Contents/Resources/images/ico_72_quillmere.png";
constexpr char kPropertyList[] = "Contents/Info.plist";
constexpr char kLevelFile[] = "log/launcher.debug";

// In the user's home directory.
constexpr char kUserDirectory[] = ".Quillmere";

// In kUserDirectory.
constexpr char kApp[] = "Quillmere.app";   // the per-user copy
constexpr char kAgedApp[] = "app";         // from old versions
constexpr char kData[] = "data";           // of the client
constexpr char kPidFile[] = "ui.pid";      // written by the client
constexpr char kLock[] = "launcher.lock";  // one launcher at a time
constexpr char kLogDirectory[] = "log";
constexpr char kLogFile[] = "log/launcher.log";

// A backup: the path of the per-user copy, the suffix, then nothing or a digit.
constexpr char kBackupSuffix[] = "_tmp";
constexpr int kBackups = 10;

// The lock file of a bundle's instances: the prefix, the bundle's id, "-", the user's id, ".lock".
constexpr char kInstanceLockPrefix[] = "/tmp/quillmere-launcher-";

}  // namespace layout
