// Where the parts of a client and of a bundle lie.
#pragma once

namespace layout {

// In the client's directory, in the package and in the private copy.
constexpr char kExecutable[] = "Contents/MacOS/quillmere-ui";
constexpr char kInfo[] = "Contents/Resources/INFO";

// In the bundle, where INFO has the same place.
constexpr char kLauncher[] = "Contents/MacOS/launcher";
constexpr char kPlugins[] = "Contents/Frameworks/plugins";
constexpr char kPackage[] = "Contents/Resources/package/quillmere.qpk";
constexpr char kIcon[] = "Contents/Resources/images/ico_72_quillmere.png";
constexpr char kPropertyList[] = "Contents/Info.plist";

}  // namespace layout
