// File layer: questions about paths.
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <iterator>

#include "lib/file/internal.h"
#include "log.h"
#include "platform/files/file-reference.h"
#include "platform/files/volume-type.h"

#define LOG_TAG "file-op"

namespace {

constexpr int kLinkBuffer = 1024;

constexpr TypeCode kTypesByMode[] = {{S_IFREG, FS_TYPE_FILE},   {S_IFDIR, FS_TYPE_DIR},
                                     {S_IFLNK, FS_TYPE_LINK},   {S_IFBLK, FS_TYPE_DEVICE},
                                     {S_IFCHR, FS_TYPE_DEVICE}, {S_IFIFO, FS_TYPE_FIFO},
                                     {S_IFSOCK, FS_TYPE_SOCKET}};

UInt8 const* Bytes(ustring const& path) {
    return reinterpret_cast<UInt8 const*>(path.c_str());
}

// On a file system that accepts any normal form, the composed path names the object. Other file
// systems accept only the stored name.
OSStatus MakeReference(ustring const& composed, ustring const& given, FSRef& ref) {
    const OptionBits options = kFSPathMakeRefDoNotFollowLeafSymlink;
    const OSStatus status = FSPathMakeRefWithOptions(Bytes(composed), options, &ref, nullptr);
    if (status == 0 || composed.empty() || composed == given) {
        return status;
    }
    return FSPathMakeRefWithOptions(Bytes(given), options, &ref, nullptr);
}

// Writes the path of the object as the file system spells it. Result: 0, or the status of a
// failure.
OSStatus FindRealPath(ustring const& composed, ustring const& given, UInt8 (&buffer)[kPathBuffer]) {
    FSRef ref;
    const OSStatus status = MakeReference(composed, given, ref);
    return status != 0 ? status : FSRefMakePath(&ref, buffer, sizeof buffer);
}

}  // namespace

bool operator==(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b) {
    return a.exists == b.exists && a.size == b.size && a.mtime == b.mtime && a.type == b.type &&
           a.path == b.path && a.name == b.name;
}

bool operator!=(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b) {
    return !(a == b);
}

ustring FSParentPath(ustring const& path) {
    const unsigned long slash = path.rfind("/", ustring::npos);
    if (slash == ustring::npos || slash == 0) {
        return "/";
    }
    return path.substr(0, slash);
}

ustring FSBaseName(ustring const& path) {
    const unsigned long slash = path.rfind("/", ustring::npos);
    if (slash == ustring::npos) {
        return path;
    }
    if (slash + 1 < path.length()) {
        return path.substr(slash + 1, ustring::npos);
    }
    return "";
}

int GetFileInfo(ustring const& path, _FILE_INFO_tag& info) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        if (errno != ENOENT) {
            return -1;
        }
        // `path` may be info.path.
        _FILE_INFO_tag missing;
        missing.path = path;
        missing.name = FSBaseName(path);
        info = missing;
        return 0;
    }
    info.exists = true;
    info.mtime = static_cast<long>(std::clamp<std::int64_t>(status.st_mtime, LONG_MIN, LONG_MAX));
    info.size = status.st_size;
    info.uid = status.st_uid;
    info.gid = status.st_gid;
    info.mode = static_cast<std::uint16_t>(status.st_mode);
    info.dev = static_cast<std::int32_t>(status.st_dev);
    info.path = path;
    info.name = FSBaseName(info.path);
    const int type = FindCode(kTypesByMode, status.st_mode & S_IFMT, -1);
    if (type < 0) {
        return -1;
    }
    info.type = type;

    const ustring composed = Composed(info.path);
    Logger::LogMsg(LOG_LINE(DEBUG, "Input file path = [%s].\n"), composed.c_str());
    UInt8 buffer[kPathBuffer] = {};
    const OSStatus outcome = FindRealPath(composed, info.path, buffer);
    if (outcome != 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "FSPathMakeRef: %d\n"), static_cast<int>(outcome));
        return -1;
    }
    const ustring real = Composed(reinterpret_cast<char const*>(buffer));
    Logger::LogMsg(LOG_LINE(DEBUG, "FSRefMakePath outTargetPath path = [%s].\n"), real.c_str());
    info.path = real;
    info.name = FSBaseName(real);
    return 0;
}

namespace {

bool Find(ustring const& path, _FILE_INFO_tag& info) {
    return GetFileInfo(path, info) == 0 && info.exists;
}

}  // namespace

bool IsFileExist(ustring const& path, bool exact) {
    const ustring composed = Composed(path);
    if (composed.empty()) {
        return false;
    }
    // See MakeReference. The composed path may also be too long for the file system.
    _FILE_INFO_tag info;
    if (!Find(composed, info) && (composed == path || !Find(path, info))) {
        return false;
    }
    return !exact || info.path == composed;
}

int FSStat(ustring const& path, _FILE_INFO_tag& info, bool exact) {
    if (path.empty()) {
        return -1;
    }
    if (!IsFileExist(path, exact)) {
        info.exists = false;
        return 0;
    }
    return GetFileInfo(path, info) < 0 ? -2 : 0;
}

bool FSTimeEqual(long a, long b) {
    return a == b;
}

bool isFileLocked(ustring const& path, int mode) {
    return access(path.c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

bool hasFilePermission(ustring const& path, int mode) {
    return !isFileLocked(path, mode);
}

bool isMountPoint(ustring const& path) {
    VolumeInfo volume;
    if (StatVolume(path.c_str(), &volume) != 0) {
        const int error = errno;
        Logger::LogMsg(LOG_LINE(ERROR, "isMountPoint: Failed to get file system info '%s'. %s\n"),
                       path.c_str(), std::strerror(error));
        return false;
    }
    static constexpr char const* kNetworkTypes[] = {"nfs", "smbfs", "afpfs"};
    return std::any_of(std::begin(kNetworkTypes), std::end(kNetworkTypes), [&](char const* type) {
        return std::strcmp(volume.f_fstypename, type) == 0;
    });
}

bool IsMSDOS(ustring const& path) {
    VolumeInfo volume;
    if (StatVolume(path.c_str(), &volume) != 0) {
        const int error = errno;
        Logger::LogMsg(
            LOG_LINE(ERROR, "IsSupportLargeFile: Failed to get file system info '%s'. %s\n"),
            path.c_str(), std::strerror(error));
        return false;
    }
    if (std::strcmp(volume.f_fstypename, "msdos") != 0) {
        return false;
    }
    Logger::LogMsg(LOG_LINE(WARNING, "Detect a MSDOS platform for path '%s'.\n"), path.c_str());
    return true;
}

int FSGetRealPath(ustring& path) {
    Logger::LogMsg(LOG_LINE(DEBUG, " org path [%s]\n"), path.c_str());
    FSRef ref;
    if (FSPathMakeRef(Bytes(path), &ref, nullptr) != 0) {
        return -1;
    }
    UInt8 buffer[kPathBuffer] = {};
    if (FSRefMakePath(&ref, buffer, sizeof buffer) != 0) {
        return -1;
    }
    path = reinterpret_cast<char const*>(buffer);
    Logger::LogMsg(LOG_LINE(DEBUG, " get full path [%s]\n"), path.c_str());
    return 0;
}

int FSReadSymbolicLink(ustring const& link, ustring& out) {
    char text[kLinkBuffer] = {};
    const ssize_t length = readlink(link.c_str(), text, sizeof text);
    if (length < 0 || length >= kLinkBuffer) {
        const int error = length < 0 ? errno : ENAMETOOLONG;
        Logger::LogMsg(
            LOG_LINE(ERROR,
                     "FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)\n"),
            link.c_str(), error, std::strerror(error));
        errno = error;
        return -1;
    }
    out = text;
    return 0;
}
