// Paths, versions, and the transaction that replaces the per-user copy.
#include "ui-client/launcher/quillmere-service.h"

#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <cerrno>
#include <cstdio>
#include <tuple>

#include "file/file-op.h"
#include "install-layout.h"
#include "log.h"
#include "platform/files/flush.h"
#include "platform/process/supervisor.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/qt-text.h"

#define LOG_TAG "quillmere-service"

namespace {

const ustring kLogComponent("service_debug");

ustring Below(const ustring& directory, const char* path) {
    return directory + "/" + path;
}

ustring GetAppBackupDir(const ustring& app, int index) {
    const ustring first = app + layout::kBackupSuffix;
    if (index == 0) {
        return first;
    }
    char postfix[8];
    if (std::snprintf(postfix, sizeof postfix, "%d", index) < 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "snprintf failed (continuing without postfix)"));
        return first;
    }
    return first + postfix;
}

void LoadKey(const QSettings& info, const char* key, ustring& field) {
    if (info.contains(key)) {
        field = ToUstring(info.value(key, QVariant()).toString());
    }
}

void LoadVersion(const ustring& path, VerInfo& version) {
    QSettings info(ToQString(path), QSettings::IniFormat, nullptr);
    info.beginGroup("Version");
    LoadKey(info, "major_version", version.major_version);
    LoadKey(info, "minor_version", version.minor_version);
    LoadKey(info, "build_version", version.build_version);
    LoadKey(info, "icon_overlay_version", version.icon_overlay_version);
}

// Closes a handle.
class DirCloser {
  public:
    explicit DirCloser(DIR_HANDLE& handle) : handle_(handle) {}
    ~DirCloser() { FSCloseDir(handle_); }
    DirCloser(const DirCloser&) = delete;
    DirCloser& operator=(const DirCloser&) = delete;

  private:
    DIR_HANDLE& handle_;
};

}  // namespace

Service::Service() {}

Service::~Service() {}

void Service::SetTimeout(int value) {
    timeout = value;
}

ustring Service::GetUserInstallPath() {
    return ToUstring(QDir::homePath());
}

ustring Service::GetRootQuillmereInstallPath() {
    return ToUstring(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" + "../.."));
}

ustring Service::GetRootQuillmereResourceInstallPath() {
    return Below(GetRootQuillmereInstallPath(), layout::kResources);
}

ustring Service::GetUserQuillmereInstallPath() {
    return Below(GetUserInstallPath(), layout::kUserDirectory);
}

ustring Service::GetUserQuillmereAppInstallPath() {
    return Below(GetUserQuillmereInstallPath(), layout::kApp);
}

ustring Service::GetUserQuillmereDataInstallPath() {
    return Below(GetUserQuillmereInstallPath(), layout::kData);
}

void Service::LoadSourceVersion() {
    const ustring path = Below(GetUserQuillmereAppInstallPath(), layout::kInfo);
    if (!IsFileExist(path, false)) {
        Logger::LogMsg(LOG_LINE(INFO, "source does not exist\n"));
        return;
    }
    LoadVersion(path, source_version);
    Logger::LogMsg(LOG_LINE(INFO, "source_version = (%s, %s, %s, %s)\n"),
                   source_version.major_version.c_str(), source_version.minor_version.c_str(),
                   source_version.build_version.c_str(),
                   source_version.icon_overlay_version.c_str());
}

void Service::LoadTargetVersion() {
    LoadVersion(Below(GetRootQuillmereInstallPath(), layout::kInfo), target_version);
    Logger::LogMsg(LOG_LINE(INFO, "target_version = (%s, %s, %s, %s)\n"),
                   target_version.major_version.c_str(), target_version.minor_version.c_str(),
                   target_version.build_version.c_str(),
                   target_version.icon_overlay_version.c_str());
}

namespace {

// Whether `path` certainly does not exist. After another error (EIO, EACCES, EMFILE) it may exist,
// and be the only copy.
bool IsAbsent(const ustring& path) {
    struct stat status;
    return lstat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

// Renames `app` to the first backup name that is possible. Result: 0 with the name and its index;
// -1.
int BackUp(const ustring& app, ustring& backup, int& index) {
    for (index = 0; index < layout::kBackups; ++index) {
        backup = GetAppBackupDir(app, index);
        if (FSRename(app, backup, false) == 0) {
            return 0;
        }
        Logger::LogMsg(LOG_LINE(ERROR, "failed to backup app from '%s' -> '%s'\n"), app.c_str(),
                       backup.c_str());
    }
    Logger::LogMsg(
        LOG_LINE(ERROR, "failed to backup app from '%s' -> '%s' at max retries, exiting\n"),
        app.c_str(), backup.c_str());
    return -1;
}

// Removes the version first, because a partial copy must not have one.
void RemoveCopy(const ustring& copy) {
    FSRemove(Below(copy, layout::kInfo), false);
    FSRemove(copy, false);
}

// Removes the first `backups` names.
void RemoveBackups(const ustring& app, int backups) {
    for (int index = 0; index < backups; ++index) {
        RemoveCopy(GetAppBackupDir(app, index));
    }
}

void RollBack(const ustring& app, const ustring& backup) {
    RemoveCopy(app);
    FSRename(backup, app, false);
    FlushTree(FSParentPath(app).c_str());
}

enum class Version { kPresent, kMissing, kUnknown };

// Whether a copy has a version; kUnknown if it cannot be read.
Version VersionOf(const ustring& copy) {
    const ustring path = Below(copy, layout::kInfo);
    if (IsAbsent(path)) {
        return Version::kMissing;
    }
    QFile file(ToQString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        return Version::kUnknown;
    }
    const bool has_key = file.readAll().contains("build_version=");
    if (has_key) {
        return Version::kPresent;
    }
    return file.error() == QFile::NoError ? Version::kMissing : Version::kUnknown;
}

// rename(2) updates the time of the last status change.
bool IsNewer(const struct stat& one, const struct stat& other) {
    return std::tie(one.st_ctim.tv_sec, one.st_ctim.tv_nsec) >
           std::tie(other.st_ctim.tv_sec, other.st_ctim.tv_nsec);
}

// Returns the backup with a version that was renamed last, or an empty path.
ustring NewestBackup(const ustring& app) {
    ustring newest;
    struct stat newest_status = {};
    for (int index = 0; index < layout::kBackups; ++index) {
        const ustring backup = GetAppBackupDir(app, index);
        struct stat status;
        if (VersionOf(backup) == Version::kPresent && lstat(backup.c_str(), &status) == 0 &&
            IsNewer(status, newest_status)) {
            newest = backup;
            newest_status = status;
        }
    }
    return newest;
}

void PutBack(const ustring& app, const ustring& backup) {
    Logger::LogMsg(LOG_LINE(NOTE, "putting '%s' back\n"), backup.c_str());
    RollBack(app, backup);
}

}  // namespace

void Service::Repair(const Attempt& attempt) {
    const ustring app = GetUserQuillmereAppInstallPath();
    if (attempt.reached == Stage::kInstalled) {
        RemoveBackups(app, attempt.backups);
        return;
    }
    const ustring moved = GetAppBackupDir(app, attempt.backups - 1);
    if (attempt.reached == Stage::kMoved && !IsAbsent(moved)) {
        PutBack(app, moved);
    }
    const ustring newest = VersionOf(app) == Version::kMissing ? NewestBackup(app) : ustring();
    if (!newest.empty()) {
        PutBack(app, newest);
    }
}

int Service::PrepareUserEnv() {
    const ustring app = user_app_path;
    ustring backup;
    int index = 0;
    const bool may_be_there = IsFileExist(app, false) || !IsAbsent(app);
    if (may_be_there && BackUp(app, backup, index) != 0) {
        return -1;
    }
    const char backups = static_cast<char>(index + 1);
    if (may_be_there) {
        ReportStage(Stage::kMoved, backups);
    }
    if (ExtractPackage() == 0) {
        Logger::LogMsg(LOG_LINE(INFO, "user installation is ready, removing backup app\n"));
        ReportStage(Stage::kInstalled, backups);
        RemoveBackups(app, backups);
        return 0;
    }
    if (backup.empty()) {
        Logger::LogMsg(
            LOG_LINE(ERROR, "Failed to extract package, and no old installation to rollback\n"));
        return -1;
    }
    Logger::LogMsg(LOG_LINE(ERROR, "Failed to extract package, rollback to old installation\n"));
    RollBack(app, backup);
    return -1;
}

int Service::ExtractPackage() {
    const ustring package = Below(GetRootQuillmereInstallPath(), layout::kPackage);
    const ustring destination = GetUserQuillmereAppInstallPath();
    if (FSMKDir(destination, true) < 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "failed to create folder: '%s'\n"), destination.c_str());
        return -1;
    }
    Logger::LogMsg(LOG_LINE(INFO, "extract package: '%s' -> '%s'\n"), package.c_str(),
                   destination.c_str());
    Extractor extractor;
    extractor.m_source = package;
    extractor.m_dest = destination;
    return extractor.Extract();
}

void Service::RemoveAgedFolders() {
    const ustring path = Below(GetUserQuillmereInstallPath(), layout::kAgedApp);
    Logger::LogMsg(LOG_LINE(INFO, "removing aged app folder %s\n"), path.c_str());
    FSRemove(path, false);
}

int Service::FSCopyPath(const ustring& src, const ustring& dst) {
    Logger::LogMsg(LOG_LINE(DEBUG, "copy from '%s' to '%s'\n"), src.c_str(), dst.c_str());
    _FILE_INFO_tag info;
    if (FSStat(src, info, false) < 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "FSCopyPath: failed to stat source '%s'\n"), src.c_str());
        return -1;
    }
    if (!info.exists) {
        Logger::LogMsg(LOG_LINE(ERROR, "FSCopyPath: source path '%s' does not exist\n"),
                       src.c_str());
        return -1;
    }
    if (info.type != FS_TYPE_DIR) {
        return FSCopy(src, dst, false) < 0 ? -1 : 0;
    }
    if (FSMKDir(dst, true) < 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "FSCopyPath: failed to create dest folder '%s'\n"),
                       dst.c_str());
        return -1;
    }
    DIR_HANDLE handle;
    if (FSOpenDir(src, 0, handle) < 0) {
        Logger::LogMsg(
            LOG_LINE(WARNING, "FSCopyPath: failed to create handle  for src '%s' failed\n"),
            src.c_str());
        return 0;
    }
    const DirCloser closer(handle);
    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) > 0) {
        if (entry.name == "." || entry.name == "..") {
            continue;
        }
        const ustring from = src + "/" + entry.name;
        const ustring to = dst + "/" + entry.name;
        const int copied =
            entry.type == FS_TYPE_DIR ? FSCopyPath(from, to) : FSCopy(from, to, false);
        if (copied < 0) {
            Logger::LogMsg(LOG_LINE(ERROR, "FSCopyPath: failed to copy from '%s' to '%s'\n"),
                           from.c_str(), to.c_str());
            return -1;
        }
    }
    return 0;
}
