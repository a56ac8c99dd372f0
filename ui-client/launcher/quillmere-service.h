// Upgrades of the per-user copy, and the paths of copy and bundle.
#pragma once

#include "platform/process/supervisor.h"
#include "ustring/ustring.h"

// The four fields of an INFO file.
struct VerInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;  // its leading decimal number decides about an upgrade
    ustring icon_overlay_version;
};

// The operations of an upgrade. The "source" is the per-user copy, the "target" the package in the
// bundle. Created on the main thread, then used by one thread. Operations block until they are done
// and log failures as "service_debug".
//
// The bundle is read only:
//
//     ROOT = two levels above the directory of the executable
//     RES  = ROOT/Contents/Resources       INFO, package/quillmere.qpk, images/
//
// The user's directory:
//
//     USER = <home>/.Quillmere          log/; the client's ui.pid and data; app, from old versions
//     APP  = USER/Quillmere.app         the per-user copy
//     APP_tmp, APP_tmp1 to APP_tmp9     backups: the old copy during an upgrade
class Service {
  public:
    Service();
    virtual ~Service();

    // Stops a running client.
    virtual void StopService() = 0;
    // Stores `timeout`. No operation reads it.
    virtual void SetTimeout(int timeout);
    // Stops the client if it is installed, and runs PrepareUserEnv. Result: that of PrepareUserEnv.
    virtual int HandlePackageUpgrade() = 0;
    // Opens the per-user client.
    virtual void PostUpgrade() = 0;
    // Loads both version records.
    virtual void PreUpgrade() = 0;
    // Whether the target is newer than the source, or the client's executable is missing.
    // Precondition: PreUpgrade was called.
    virtual bool IsNeedUpgrade() = 0;
    // Extracts the package to APP. Result: 0 with everything on the disk; another value on failure,
    // with a partial copy.
    virtual int ExtractPackage();
    // Read an INFO file: the INI syntax of QSettings, group "Version". A missing value leaves its
    // field unchanged.
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();
    // Replaces the per-user copy: renames it to a backup, extracts the package, and removes the
    // backup, or renames it back if the extraction failed. Result: 0 with the new copy; -1 with the
    // old copy, if there was one and it could be renamed. If it is unknown whether there is a copy,
    // changes nothing. At every moment, also after a power cut, APP or a backup is whole, and a
    // partial APP has no version.
    virtual int PrepareUserEnv();

    // Completes or undoes the upgrade of a previous attempt that died. After Stage::kInstalled,
    // removes the backups. After Stage::kMoved, puts the backup of that upgrade back, unless that
    // attempt did it. Then puts the newest backup with a version back if APP has none; not if the
    // version of APP cannot be read. To put a backup back is to remove APP and to rename the
    // backup; both are on the disk at return.
    static void Repair(const Attempt& attempt);

    // Copies the contents of a file or a tree, and the targets of links. A directory that cannot be
    // opened becomes an empty one, with a warning. Result: 0; -1 at the first entry that fails,
    // with a partial copy.
    int FSCopyPath(const ustring& src, const ustring& dst);

    // Removes USER/app, where old versions were installed.
    void RemoveAgedFolders();

    // Paths, in UTF-8. Precondition: the application object exists.
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
