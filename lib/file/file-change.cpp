// File layer: copies, moves, and changes of single objects.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "lib/file/internal.h"
#include "log.h"
#include "malloc-ptr.h"
#include "tmp_name_gen.h"
#include "unique-fd.h"

#define LOG_TAG "file-op"

namespace {

constexpr int kCopyBuffer = 33554432;

UniqueFd OpenForCopy(ustring const& path, int flags) {
    UniqueFd file(open(path.c_str(), flags | O_CLOEXEC, 0666));
    if (!file.valid()) {
        const int error = errno;
        Logger::LogMsg(LOG_LINE(ERROR, "CopyFile: open(%s): %s (%d)\n"), path.c_str(),
                       std::strerror(error), error);
    }
    return file;
}

bool IsOutOfSpace(int error) {
    return error == ENOSPC || error == EDQUOT;
}

// Result: 0, -1, or -2 if the volume is full.
int WriteAll(int file, char const* bytes, ssize_t size) {
    while (size > 0) {
        const ssize_t written = write(file, bytes, static_cast<std::size_t>(size));
        if (written <= 0) {
            const int error = errno;
            Logger::LogMsg(LOG_LINE(ERROR, "CopyFile: write: %s (%d)\n"), std::strerror(error),
                           error);
            return IsOutOfSpace(error) ? -2 : -1;
        }
        bytes += written;
        size -= written;
    }
    return 0;
}

int CopyBytes(int from, int to) {
    const MallocPtr<char> buffer(static_cast<char*>(std::malloc(kCopyBuffer)));
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

// Result: as WriteAll. A pipe or device cannot be flushed (fsync(2)).
int Flush(int file) {
    if (fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP) {
        return 0;
    }
    return IsOutOfSpace(errno) ? -2 : -1;
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
    const int copied = CopyBytes(source.get(), target.get());
    const int flushed = Flush(target.get());
    source.reset();
    if (copied != 0 || flushed != 0) {
        return copied != 0 ? copied : flushed;
    }
    return remove_source && std::remove(from.c_str()) != 0 ? -1 : 0;
}

namespace {

// Replaces `to` with the object that `make` makes, as rename would, and removes `from`.
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
    // mkfifo applies the umask, but a move keeps the mode.
    return Recreate(from, to, [&] {
        return mkfifo(to.c_str(), 0600) != 0 ? -1 : chmod(to.c_str(), mode & 07777);
    });
}

// Replaces a link or a FIFO at `to`, as rename does. A copy would follow the link, or wait for a
// reader of the FIFO.
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
    // rename(2) treats two mounts of one volume as two volumes. It does nothing to two names of one
    // object.
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
