// File references by O_PATH descriptors and /proc; by realpath without /proc.
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

bool Exists(const char* path) {
    struct stat status;
    return lstat(path, &status) == 0;
}

bool IsObject(const char* path, int fd) {
    struct stat named;
    struct stat opened;
    return lstat(path, &named) == 0 && fstat(fd, &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

// proc(5): the kernel appends " (deleted)" to the path of an object that has lost its name. Removes
// that suffix, unless it is part of the name. Result: 0; ENOENT if nothing has the name now.
OSStatus StripDeletedSuffix(int fd, char* path) {
    const std::size_t length = std::strlen(path);
    const std::size_t suffix = sizeof kDeleted - 1;
    if (length < suffix || std::strcmp(path + length - suffix, kDeleted) != 0 ||
        IsObject(path, fd)) {
        return 0;
    }
    path[length - suffix] = 0;
    return Exists(path) ? 0 : ENOENT;
}

// Result: 0; ENOTSUP without /proc; another errno.
OSStatus ReadProcLink(int fd, FSRef* ref) {
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
    return StripDeletedSuffix(fd, ref->path);
}

OSStatus Resolve(const std::string& path, std::string& resolved) {
    const MallocPtr<char> real(realpath(path.c_str(), nullptr));
    if (!real) {
        return errno;
    }
    resolved = real.get();
    return 0;
}

// Resolves the parent and appends the last name. Follows a link with a slash after it, as open(2)
// does.
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
    const OSStatus status = ReadProcLink(object.get(), ref);
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
