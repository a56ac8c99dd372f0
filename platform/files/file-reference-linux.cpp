// File references over O_PATH descriptors and /proc, or over realpath where there is no /proc.
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "malloc-ptr.h"
#include "platform/files/file-reference.h"
#include "unique-fd.h"

namespace {

constexpr char kDeleted[] = " (deleted)";

OSStatus Store(const std::string& path, FSRef* ref) {
    if (path.size() >= sizeof ref->path) {
        return ENAMETOOLONG;
    }
    std::memcpy(ref->path, path.c_str(), path.size() + 1);
    return 0;
}

bool IsThere(const char* path) {
    struct stat status;
    return lstat(path, &status) == 0;
}

bool IsObject(const char* path, int fd) {
    struct stat named;
    struct stat opened;
    return lstat(path, &named) == 0 && fstat(fd, &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

// proc(5): the kernel marks the path of an object that has lost this name since it was opened. The
// mark comes off. Result: 0, also where the mark is part of the name, and where another object has
// taken the name, as when a file is replaced by a rename; ENOENT if nothing is there.
OSStatus TakeMark(int fd, char* path) {
    const std::size_t length = std::strlen(path);
    const std::size_t mark = sizeof kDeleted - 1;
    if (length < mark || std::strcmp(path + length - mark, kDeleted) != 0 || IsObject(path, fd)) {
        return 0;
    }
    path[length - mark] = 0;
    return IsThere(path) ? 0 : ENOENT;
}

// Result: 0; ENOTSUP where /proc does not tell; another errno.
OSStatus AskProc(int fd, FSRef* ref) {
    char link[32];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length = readlink(link, ref->path, sizeof ref->path);
    if (length < 0) {
        return errno == ENAMETOOLONG ? ENAMETOOLONG : ENOTSUP;
    }
    if (static_cast<std::size_t>(length) >= sizeof ref->path) {
        return ENAMETOOLONG;
    }
    ref->path[length] = 0;
    return TakeMark(fd, ref->path);
}

OSStatus Resolve(const std::string& path, std::string& resolved) {
    const MallocPtr<char> real(realpath(path.c_str(), nullptr));
    if (!real) {
        return errno;
    }
    resolved = real.get();
    return 0;
}

// The parent resolved, and the last name as it stands. A link with a slash behind it is followed,
// as open(2) does.
OSStatus ResolveParent(const std::string& path, FSRef* ref) {
    const std::size_t slash = path.rfind('/');
    const std::string name = path.substr(slash == std::string::npos ? 0 : slash + 1);
    std::string resolved;
    if (name.empty() || name == "." || name == "..") {
        const OSStatus status = Resolve(path, resolved);
        return status != 0 ? status : Store(resolved, ref);
    }
    const std::string parent = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const OSStatus status = Resolve(parent, resolved);
    if (status != 0) {
        return status;
    }
    return Store(resolved == "/" ? "/" + name : resolved + "/" + name, ref);
}

}  // namespace

OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref, Boolean*) {
    const char* const name = reinterpret_cast<const char*>(path);
    const bool follow = (options & kFSPathMakeRefDoNotFollowLeafSymlink) == 0;
    const UniqueFd object(open(name, O_PATH | O_CLOEXEC | (follow ? 0 : O_NOFOLLOW)));
    if (!object.valid()) {
        return errno;
    }
    const OSStatus status = AskProc(object.get(), ref);
    if (status != ENOTSUP) {
        return status;
    }
    if (!follow) {
        return ResolveParent(name, ref);
    }
    std::string resolved;
    const OSStatus resolving = Resolve(name, resolved);
    return resolving != 0 ? resolving : Store(resolved, ref);
}

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* is_directory) {
    return FSPathMakeRefWithOptions(path, kFSPathMakeRefDefaultOptions, ref, is_directory);
}

OSStatus FSRefMakePath(const FSRef* ref, UInt8* buffer, UInt32 size) {
    const std::size_t length = std::strlen(ref->path);
    if (length >= size) {
        return ENAMETOOLONG;
    }
    std::memcpy(buffer, ref->path, length + 1);
    return 0;
}
