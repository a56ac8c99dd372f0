// The upgrade of the per-user copy, and the paths of it and of the bundle.
#pragma once

#include "platform/process/supervisor.h"
#include "ustring/ustring.h"

// The four version texts of an INFO file, as read from it.
struct VerInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;  // the one that decides, by its leading decimal number
    ustring icon_overlay_version;
};

// The operations of an upgrade. "Source" is the per-user copy that an upgrade starts from, "target"
// the package in the bundle that it leads to. An object is made on the main thread and used on one
// thread from then on; its operations block as long as they take. What goes wrong is told in the
// log under "service_debug".
//
// The install layout. The bundle is only read:
//
//     ROOT = two levels above the directory of the running executable
//     RES  = ROOT/Contents/Resources       INFO, package/quillmere.qpk, images/
//
// and the per-user tree is the one place that is written to:
//
//     USER = <home>/.Quillmere          log/; the client's ui.pid and data; app, which is aged
//     APP  = USER/Quillmere.app         the per-user copy
//     APP_tmp, APP_tmp1 to APP_tmp9     the old copy during an upgrade
class Service {
  public:
    Service();
    virtual ~Service();

    // Ends a running client.
    virtual void StopService() = 0;
    // Stores `timeout`. No operation reads it.
    virtual void SetTimeout(int timeout);
    // Stops the client if it is installed, and runs PrepareUserEnv. Result: 0 when the new copy is
    // in place; -1 when it is not.
    virtual int HandlePackageUpgrade() = 0;
    // Opens the per-user client.
    virtual void PostUpgrade() = 0;
    // Loads both version records.
    virtual void PreUpgrade() = 0;
    // Whether the target is newer than the source, or the client's executable is missing.
    virtual bool IsNeedUpgrade() = 0;
    // Unpacks the package into APP. Result: 0 with all of it on the disk; any other on failure, and
    // what was written stays.
    virtual int ExtractPackage();
    // Fill a version record from an INFO file: the INI syntax of QSettings, group "Version". What
    // is missing leaves its field as it was.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();
    // Replaces the per-user copy: moves the old one aside, unpacks, and removes the old one, or
    // moves it back when unpacking fails. Result: 0 when the new copy is in place; -1 when it is
    // not, with the old copy under its name again if there was one and it could be moved. Nothing
    // is touched when no look can tell whether there is an old copy. At every moment, also after a
    // power cut, APP or a backup is whole, and a torn APP has no version.
    virtual int PrepareUserEnv();

    // Completes or undoes the upgrade of a previous attempt that died. After Stage::kInstalled,
    // removes the backups. After Stage::kMoved, puts the backup of that upgrade back, unless that
    // attempt did it. Then puts the newest backup with a version back if APP has none; not if the
    // version of APP cannot be read. To put a backup back is to remove APP and to rename the backup;
    // both are on the disk at return.
    static void Repair(const Attempt& attempt);

    // Copies a file or a whole tree, contents only; links are copied as what they lead to. A
    // directory that cannot be opened gives an empty one and a warning. Result: 0; -1 at the first
    // entry that fails, with what was copied until then left in place.
    int FSCopyPath(const ustring& src, const ustring& dst);

    // Removes USER/app, where old versions were installed.
    void RemoveAgedFolders();

    // The places of the layout, in UTF-8. They touch no disk; the application object must exist.
    static ustring GetUserInstallPath();                   // <home>
    static ustring GetRootQuillmereInstallPath();          // ROOT
    static ustring GetRootQuillmereResourceInstallPath();  // RES
    static ustring GetUserQuillmereInstallPath();          // USER
    static ustring GetUserQuillmereAppInstallPath();       // APP
    static ustring GetUserQuillmereDataInstallPath();      // USER/data

  protected:
    int timeout;
    ustring user_app_path;  // APP, for the whole run
    VerInfo target_version;
    VerInfo source_version;
};
