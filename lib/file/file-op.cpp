// The file layer.
#include "file/file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include "log.h"
#include "malloc-ptr.h"
#include "platform/files/file-reference.h"
#include "platform/files/volume-type.h"
#include "tmp_name_gen.h"
#include "unique-fd.h"

#define LOG_TAG "file-op"

namespace {

constexpr int kPathBuffer = 4096;
constexpr int kLinkBuffer = 1024;
constexpr int kCopyBuffer = 33554432;
constexpr unsigned short kModeByUmask = 0xFFFF;
constexpr int kWithTimeAndSize = 1;
const ustring kLogComponent("file_op_debug");

struct StreamCloser {
    void operator()(DIR* stream) const { closedir(stream); }
};
using DirStream = std::unique_ptr<DIR, StreamCloser>;

// A umask for a while; it is the whole process's.
class UmaskOverride {
  public:
    explicit UmaskOverride(mode_t mask) : former_(umask(mask)) {}
    ~UmaskOverride() { umask(former_); }
    UmaskOverride(const UmaskOverride&) = delete;
    UmaskOverride& operator=(const UmaskOverride&) = delete;

  private:
    mode_t former_;
};

struct TypeCode {
    unsigned system;
    int code;
};

template <std::size_t N>
int FindCode(const TypeCode (&table)[N], unsigned system, int otherwise) {
    for (const TypeCode& row : table) {
        if (row.system == system) {
            return row.code;
        }
    }
    return otherwise;
}

constexpr TypeCode kTypesByMode[] = {{S_IFREG, FS_TYPE_FILE},   {S_IFDIR, FS_TYPE_DIR},
                                     {S_IFLNK, FS_TYPE_LINK},   {S_IFBLK, FS_TYPE_DEVICE},
                                     {S_IFCHR, FS_TYPE_DEVICE}, {S_IFIFO, FS_TYPE_FIFO},
                                     {S_IFSOCK, FS_TYPE_SOCKET}};

constexpr TypeCode kTypesByEntry[] = {{DT_REG, FS_TYPE_FILE},   {DT_DIR, FS_TYPE_DIR},
                                      {DT_LNK, FS_TYPE_LINK},   {DT_BLK, FS_TYPE_DEVICE},
                                      {DT_CHR, FS_TYPE_DEVICE}, {DT_FIFO, FS_TYPE_FIFO},
                                      {DT_SOCK, FS_TYPE_SOCKET}};

bool IsAscii(char const* text, unsigned long length) {
    return std::all_of(text, text + length,
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// ASCII is composed as it stands (Unicode Standard Annex #15), and most paths are ASCII.
ustring Composed(ustring const& path) {
    return IsAscii(path.c_str(), path.length()) ? path : path.normalize(ustring::NFC);
}

UInt8 const* Bytes(ustring const& path) {
    return reinterpret_cast<UInt8 const*>(path.c_str());
}

// A path in composed form names the object on a file system that takes any normal form. Others know
// the object only by the name that it was stored with.
OSStatus MakeReference(ustring const& composed, ustring const& given, FSRef& ref) {
    const OptionBits options = kFSPathMakeRefDoNotFollowLeafSymlink;
    const OSStatus status = FSPathMakeRefWithOptions(Bytes(composed), options, &ref, nullptr);
    if (status == 0 || composed.empty() || composed == given) {
        return status;
    }
    return FSPathMakeRefWithOptions(Bytes(given), options, &ref, nullptr);
}

// Writes the path of the object as the file system spells it. Result: the status of what failed, or
// 0.
OSStatus FindRealPath(ustring const& composed, ustring const& given, UInt8 (&buffer)[kPathBuffer]) {
    FSRef ref;
    const OSStatus status = MakeReference(composed, given, ref);
    return status != 0 ? status : FSRefMakePath(&ref, buffer, sizeof buffer);
}

bool IsDotOrDotDot(char const* name) {
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

ustring Child(ustring const& directory, char const* name) {
    ustring child(directory);
    child += "/";
    child += name;
    return child;
}

// The next entry, or null at the end. Result: 0, or the error number: readdir(3) tells an error
// from the end by errno alone, so a stale one must not be seen. Different streams may be read at
// once.
int ReadEntry(DIR* dir, dirent*& entry) {
    errno = 0;
    entry = readdir(dir);
    return entry == nullptr ? errno : 0;
}

// Runs `action` on every entry but "." and "..". An error ends the walk as the end does. Result:
// false if an action gave other than 0, which ends the walk.
template <class Action>
bool ForEachEntry(DIR* dir, Action action) {
    dirent* entry = nullptr;
    while (ReadEntry(dir, entry) == 0 && entry != nullptr) {
        if (!IsDotOrDotDot(entry->d_name) && action(*entry) != 0) {
            return false;
        }
    }
    return true;
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
        // `path` may be the record's own.
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
    // See MakeReference: the name may be stored in another normal form, the given one, and the
    // composed one may be too long for the file system.
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

namespace {

UniqueFd OpenForCopy(ustring const& path, int flags) {
    UniqueFd file(open(path.c_str(), flags | O_CLOEXEC, 0666));
    if (!file.valid()) {
        const int error = errno;
        Logger::LogMsg(LOG_LINE(ERROR, "CopyFile: open(%s): %s (%d)\n"), path.c_str(),
                       std::strerror(error), error);
    }
    return file;
}

// Result: 0, -1, or -2 when the volume is full.
int WriteAll(int file, char const* bytes, ssize_t size) {
    while (size > 0) {
        const ssize_t written = write(file, bytes, static_cast<std::size_t>(size));
        if (written <= 0) {
            const int error = errno;
            Logger::LogMsg(LOG_LINE(ERROR, "CopyFile: write: %s (%d)\n"), std::strerror(error),
                           error);
            return error == ENOSPC || error == EDQUOT ? -2 : -1;
        }
        bytes += written;
        size -= written;
    }
    return 0;
}

int CopyBytes(int from, int to) {
    // Kept for the thread's next file: to map it anew takes as long as a small file's copy. What no
    // file has filled is not in memory.
    thread_local MallocPtr<char> buffer;
    if (!buffer) {
        buffer.reset(static_cast<char*>(std::malloc(kCopyBuffer)));
    }
    if (!buffer) {
        const int error = errno;
        Logger::LogMsg(LOG_LINE(ERROR, "FSCopy: malloc(%d): %s (%d)\n"), kCopyBuffer,
                       std::strerror(error), error);
        return -1;
    }
    for (;;) {
        const ssize_t size = read(from, buffer.get(), kCopyBuffer);
        if (size < 0) {
            const int error = errno;
            Logger::LogMsg(LOG_LINE(ERROR, "CopyFile: read: %s (%d)\n"), std::strerror(error),
                           error);
            return -1;
        }
        if (size == 0) {
            return 0;
        }
        const int result = WriteAll(to, buffer.get(), size);
        if (result != 0) {
            return result;
        }
    }
}

}  // namespace

int FSCopy(ustring const& from, ustring const& to, bool remove_source) {
    UniqueFd source = OpenForCopy(from, O_RDONLY);
    if (!source.valid()) {
        return -1;
    }
    const UniqueFd target = OpenForCopy(to, O_WRONLY | O_CREAT | O_TRUNC);
    if (!target.valid()) {
        return -1;
    }
    int result = CopyBytes(source.get(), target.get());
    source.reset();
    if (result == 0 && remove_source && std::remove(from.c_str()) != 0) {
        result = -1;
    }
    fsync(target.get());
    return result;
}

namespace {

// Put `make`'s new object in the place of `to`, as rename would, and take `from` away.
template <class Make>
int Recreate(ustring const& from, ustring const& to, Make make) {
    if (make() != 0 && (errno != EEXIST || unlink(to.c_str()) != 0 || make() != 0)) {
        return -3;
    }
    return std::remove(from.c_str()) == 0 ? 0 : -3;
}

int MoveLink(ustring const& from, ustring const& to) {
    char text[kPathBuffer];
    const ssize_t length = readlink(from.c_str(), text, sizeof text);
    if (length < 0 || static_cast<std::size_t>(length) >= sizeof text) {
        return -3;
    }
    text[length] = 0;
    return Recreate(from, to, [&] { return symlink(text, to.c_str()); });
}

int MoveFifo(ustring const& from, ustring const& to, mode_t mode) {
    // mkfifo applies the umask, but a FIFO that moves keeps its mode.
    return Recreate(from, to, [&] {
        return mkfifo(to.c_str(), 0600) != 0 ? -1 : chmod(to.c_str(), mode & 07777);
    });
}

// As rename does, a link or a FIFO at `to` is replaced: a copy would write through the one and hang
// on the other.
int MoveFile(ustring const& from, ustring const& to) {
    struct stat target;
    if (lstat(to.c_str(), &target) == 0 && !S_ISREG(target.st_mode) && !S_ISDIR(target.st_mode) &&
        unlink(to.c_str()) != 0) {
        return -3;
    }
    return FSCopy(from, to, true) < 0 ? -3 : 0;
}

int MoveTree(ustring const& from, ustring const& to, bool exact) {
    if (FSMKDir(to, true) != 0) {
        return -3;
    }
    DirStream dir(opendir(from.c_str()));
    if (!dir) {
        return -3;
    }
    const bool moved = ForEachEntry(dir.get(), [&](dirent const& entry) {
        return FSRename(Child(from, entry.d_name), Child(to, entry.d_name), exact);
    });
    dir.reset();
    return moved && std::remove(from.c_str()) == 0 ? 0 : -3;
}

bool IsSameObject(ustring const& a, ustring const& b) {
    struct stat first;
    struct stat second;
    return lstat(a.c_str(), &first) == 0 && lstat(b.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

int MoveAcrossVolumes(ustring const& from, ustring const& to, _FILE_INFO_tag const& info,
                      bool exact) {
    // One object by way of two mounts is one volume to nobody but rename(2), which leaves two names
    // of one object as they are.
    if (IsSameObject(from, to)) {
        return 0;
    }
    switch (info.type) {
        case FS_TYPE_FILE:
            return MoveFile(from, to);
        case FS_TYPE_DIR:
            return MoveTree(from, to, exact);
        case FS_TYPE_LINK:
            return MoveLink(from, to);
        case FS_TYPE_FIFO:
            return MoveFifo(from, to, info.mode);
        default:
            return 0;
    }
}

}  // namespace

int FSRename(ustring const& from, ustring const& to, bool exact) {
    if (from.empty() || to.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (FSStat(from, info, exact) < 0 || !info.exists) {
        return -2;
    }
    if (rename(from.c_str(), to.c_str()) == 0) {
        return 0;
    }
    switch (errno) {
        case ENAMETOOLONG:
            return -100;
        case EXDEV:
            return MoveAcrossVolumes(from, to, info, exact);
        default:
            return -3;
    }
}

int FSMKDir(ustring const& path, bool parents) {
    if (path.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "FSMKDir: Failed to to file info '%s'\n"), path.c_str());
        return -1;
    }
    if (info.exists) {
        if (info.type == FS_TYPE_DIR) {
            return 0;
        }
        Logger::LogMsg(
            LOG_LINE(ERROR,
                     "FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n"),
            path.c_str(), info.type);
        return -1;
    }
    const int made =
        parents ? FSMKDirP(path, nullptr, false, kModeByUmask) : mkdir(path.c_str(), 0777);
    return made != 0 ? -2 : 0;
}

namespace {

// Makes one directory on the way. Result: 0, or -1 with errno set.
int MakeComponent(char const* path, bool last, bool replace, mode_t mode) {
    struct stat status;
    if (stat(path, &status) == 0) {
        if (S_ISDIR(status.st_mode)) {
            return 0;
        }
        if (!replace) {
            errno = last ? EEXIST : ENOTDIR;
            return -1;
        }
        std::remove(path);
    }
    return mkdir(path, mode) < 0 ? -1 : 0;
}

// Result: 0 or -1; `reached` is where the component ends that was dealt with last.
int MakeComponents(char* path, char*& reached, bool replace, mode_t mode) {
    reached = path + (*path == '/' ? 1 : 0);
    for (bool last = false; !last; ++reached) {
        reached += std::strcspn(reached, "/");
        last = reached[0] == 0 || reached[1] == 0;
        const char separator = std::exchange(*reached, '\0');
        const int result = MakeComponent(path, last, replace, mode);
        *reached = separator;
        if (result != 0 || last) {
            return result;
        }
    }
    return 0;
}

}  // namespace

int FSMKDirP(ustring const& path, char** end, bool replace, unsigned short mode) {
    if (path.empty()) {
        errno = ENOENT;
        return -1;
    }
    const MallocPtr<char> copy(strdup(path.c_str()));
    if (!copy) {
        return -1;
    }
    const bool by_umask = mode == kModeByUmask;
    const std::unique_ptr<UmaskOverride> exactly(by_umask ? nullptr : new UmaskOverride(0));
    char* reached = nullptr;
    const int result =
        MakeComponents(copy.get(), reached, replace, by_umask ? mode_t{0777} : mode_t{mode});
    if (end != nullptr) {
        *end = const_cast<char*>(path.c_str()) + (reached - copy.get());
    }
    return result;
}

int FSMKDirFromRoot(ustring const& target, ustring const& root) {
    if (root.length() > target.length()) {
        Logger::LogMsg(
            LOG_LINE(ERROR, "Giving a root '%s' whose length is larger then target's '%s'.\n"),
            root.c_str(), target.c_str());
        return -1;
    }
    if (!FSIsParentFolder(root, target)) {
        Logger::LogMsg(LOG_LINE(ERROR, "root '%s' is not a parent folder of target '%s'\n"),
                       root.c_str(), target.c_str());
        return -1;
    }
    const ustring rest = target.substr(root.length(), ustring::npos);
    ustring done;
    while (done != rest) {
        done = rest.substr(0, rest.find_first_of('/', done.length() + 1));
        Logger::LogMsg(LOG_LINE(DEBUG, "FSMKDirFromRoot: create %s\n"), done.c_str());
        if (FSMKDir(root + done, false) < 0) {
            return -1;
        }
    }
    return 0;
}

bool FSIsParentFolder(ustring const& parent, ustring const& child) {
    const unsigned long length = parent.length();
    if (child.length() < length || (child[length] != 0 && child[length] != '/')) {
        return false;
    }
    return child.compare(parent, length) == 0;
}

namespace {

bool RemoveEntries(DIR* dir, ustring const& path, long room);

DirStream OpenBelow(DIR* parent, char const* name) {
    UniqueFd file(
        openat(dirfd(parent), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    DirStream dir(fdopendir(file.get()));
    if (dir) {
        file.release();
    }
    return dir;
}

// Removes the directory `name` of `parent`. `path` and `room` are its own: see RemoveEntry. Result:
// 0 or -3; 1 if it cannot be opened.
int RemoveDirectory(DIR* parent, char const* name, ustring const& path, long room) {
    DirStream dir = OpenBelow(parent, name);
    if (!dir) {
        return 1;
    }
    if (!RemoveEntries(dir.get(), path, room)) {
        return -3;
    }
    dir.reset();
    return unlinkat(dirfd(parent), name, AT_REMOVEDIR) == 0 ? 0 : -3;
}

// Removes an entry of `dir`, which lies at `path`. All that FSRemove has to know of it is its type,
// and the directory tells that; GetFileInfo has lines for the log besides, where they are wanted.
// So an entry is looked at only then, or when it does not go at once, or when GetFileInfo may
// refuse it: for a name that is not UTF-8, or a path that is too long, for which there is `room`
// for so many bytes behind `path`. Result: 0, or what FSRemove gives for its path.
int RemoveEntry(DIR* dir, ustring const& path, long room, dirent const& entry) {
    const unsigned long length = std::strlen(entry.d_name);
    room -= static_cast<long>(length) + 1;
    int result = 1;
    if (room > 0 && !Logger::Passes(Logger::LEVEL_DEBUG, kLogComponent) &&
        (IsAscii(entry.d_name, length) || ustring::is_valid(entry.d_name))) {
        if (entry.d_type == DT_DIR) {
            result = RemoveDirectory(dir, entry.d_name, Child(path, entry.d_name), room);
        } else if (entry.d_type != DT_UNKNOWN) {
            result = unlinkat(dirfd(dir), entry.d_name, 0) == 0 ? 0 : 1;
        }
    }
    return result <= 0 ? result : FSRemove(Child(path, entry.d_name), false);
}

bool RemoveEntries(DIR* dir, ustring const& path, long room) {
    return ForEachEntry(dir,
                        [&](dirent const& entry) { return RemoveEntry(dir, path, room, entry); });
}

}  // namespace

int FSRemove(ustring const& path, bool) {
    if (path.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        return -1;
    }
    if (!info.exists) {
        return 0;
    }
    if (info.type == FS_TYPE_DIR) {
        const DirStream dir(opendir(path.c_str()));
        if (!dir) {
            return 0;
        }
        const unsigned long length = std::max(path.length(), info.path.length());
        if (!RemoveEntries(dir.get(), path, kPathBuffer - static_cast<long>(length))) {
            return -3;
        }
    }
    return std::remove(path.c_str()) == 0 ? 0 : -3;
}

namespace {

void LogMktemp(char const* path, int error) {
    Logger::LogMsg(LOG_LINE(ERROR, "mkstemp(%s): %s\n"), path, std::strerror(error));
}

}  // namespace

int FSMktemp(ustring const& dir, ustring& out) {
    char path[kPathBuffer];
    const int length = std::snprintf(path, sizeof path, "%s/XXXXXX", dir.c_str());
    if (length < 0 || length >= kPathBuffer) {
        LogMktemp(dir.c_str(), ENAMETOOLONG);
        errno = ENAMETOOLONG;
        return -1;
    }
    UniqueFd file(mkstemp(path));
    if (!file.valid()) {
        LogMktemp(path, errno);
        return -1;
    }
    file.reset();
    out = path;
    chmod(path, 0644);
    return 0;
}

int FSUTime(ustring const& path, long atime, long mtime) {
    timeval times[2] = {};
    times[0].tv_sec = atime;
    times[1].tv_sec = mtime;
    return lutimes(path.c_str(), times) < 0 ? -1 : 0;
}

int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle) {
    DIR* const dir = opendir(path.c_str());
    if (dir == nullptr) {
        const int error = errno;
        Logger::LogMsg(LOG_LINE(ERROR, "FSOpenDir: Failed to open directory '%s'. %s\n"),
                       path.c_str(), std::strerror(error));
        return -1;
    }
    handle.dirp = dir;
    handle.path = path;
    handle.flags = flags;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
    dirent* next = nullptr;
    const int error = ReadEntry(handle.dirp, next);
    if (error != 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "FSOpenDir: Failed to read directory '%s'. %s\n"),
                       handle.path.c_str(), std::strerror(error));
        return -1;
    }
    if (next == nullptr) {
        return 0;
    }
    _FILE_INFO_tag info;
    if ((handle.flags & kWithTimeAndSize) != 0) {
        const ustring path = Child(handle.path, next->d_name);
        if (FSStat(path, info, true) < 0) {
            Logger::LogMsg(LOG_LINE(ERROR, "FSOpenDir: Failed to get info for '%s'\n"),
                           path.c_str());
            return -1;
        }
    }
    entry.mtime = info.mtime;
    entry.size = info.size;
    entry.name = next->d_name;
    entry.type = FindCode(kTypesByEntry, next->d_type, FS_TYPE_NONE);
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
    closedir(handle.dirp);
    handle.dirp = nullptr;
    handle.path.clear();
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

int FSCreateSymbolicLink(ustring const& target, ustring const& link) {
    if (symlink(target.c_str(), link.c_str()) != 0) {
        const int error = errno;
        Logger::LogMsg(LOG_LINE(ERROR,
                                "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' "
                                "(code: %d, msg: %s)\n"),
                       target.c_str(), link.c_str(), error, std::strerror(error));
        return -1;
    }
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

int FSChown(ustring const& path, unsigned int uid, unsigned int gid) {
    if (lchown(path.c_str(), uid, gid) != 0) {
        const int error = errno;
        Logger::LogMsg(LOG_LINE(ERROR, "FSChown: Failed to chown '%s' (code: %d, msg: %s)\n"),
                       path.c_str(), error, std::strerror(error));
        return -1;
    }
    return 0;
}

int FSCreateTempPath(ustring const& dir, ustring& out) {
    out = TmpNameGen::getInstance()->getTmpPath(dir);
    return out.empty() ? -1 : 0;
}
