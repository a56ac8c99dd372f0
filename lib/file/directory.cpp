// File layer: making, removing and listing directories.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "lib/file/internal.h"
#include "log.h"
#include "malloc-ptr.h"
#include "unique-fd.h"

#define LOG_TAG "file-op"

namespace {

constexpr unsigned short kModeByUmask = 0xFFFF;
constexpr int kWithTimeAndSize = 1;

// Sets the umask of the process, and restores it.
class UmaskOverride {
  public:
    explicit UmaskOverride(mode_t mask) : former_(umask(mask)) {}
    ~UmaskOverride() { umask(former_); }
    UmaskOverride(const UmaskOverride&) = delete;
    UmaskOverride& operator=(const UmaskOverride&) = delete;

  private:
    mode_t former_;
};

constexpr TypeCode kTypesByEntry[] = {{DT_REG, FS_TYPE_FILE},   {DT_DIR, FS_TYPE_DIR},
                                      {DT_LNK, FS_TYPE_LINK},   {DT_BLK, FS_TYPE_DEVICE},
                                      {DT_CHR, FS_TYPE_DEVICE}, {DT_FIFO, FS_TYPE_FIFO},
                                      {DT_SOCK, FS_TYPE_SOCKET}};

}  // namespace

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

// Makes one directory of a path. Result: 0, or -1 with errno set.
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

// Result: 0 or -1. `reached` is the end of the last component that it tried.
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

using Names = std::vector<std::string>;

constexpr int kOpenDirectory = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

// A second descriptor for `dir`, because closedir(3) closes its own.
DirStream OpenStream(int dir) {
    UniqueFd copy(fcntl(dir, F_DUPFD_CLOEXEC, 0));
    DirStream stream(fdopendir(copy.get()));
    if (stream) {
        copy.release();
    }
    return stream;
}

// Removes one entry, or adds it to `directories`. Result: 0 or -3.
int RemoveEntry(int dir, dirent const& entry, Names& directories) {
    if (!ustring::is_valid(entry.d_name)) {
        return -3;
    }
    if (entry.d_type != DT_DIR) {
        if (unlinkat(dir, entry.d_name, 0) == 0 || errno == ENOENT) {
            return 0;
        }
        if (entry.d_type != DT_UNKNOWN || (errno != EISDIR && errno != EPERM)) {
            return -3;
        }
    }
    directories.emplace_back(entry.d_name);
    return 0;
}

// Removes all entries except directories, whose names it returns in `directories`.
bool RemoveFiles(int dir, ustring const& path, Names& directories) {
    const DirStream stream = OpenStream(dir);
    const bool logs = Logger::Passes(Logger::LEVEL_DEBUG, kLogComponent);
    return stream && ForEachEntry(stream.get(), [&](dirent const& entry) {
               if (logs) {
                   _FILE_INFO_tag info;
                   GetFileInfo(Child(path, entry.d_name), info);
               }
               return RemoveEntry(dir, entry, directories);
           });
}

bool RemoveSubdirectories(UniqueFd& dir, ustring const& path, Names const& names);

// Needs no more descriptors in a deeper tree: `parent` is closed meanwhile, and opened again by
// "..", which must still lead to the same directory.
bool RemoveWithParentClosed(UniqueFd& parent, UniqueFd& dir, ustring const& path,
                            Names const& names) {
    struct stat closed;
    if (fstat(parent.get(), &closed) != 0) {
        return false;
    }
    parent.reset();
    const bool removed = RemoveSubdirectories(dir, path, names);
    parent.reset(openat(dir.get(), "..", kOpenDirectory));
    struct stat opened;
    return removed && fstat(parent.get(), &opened) == 0 && opened.st_dev == closed.st_dev &&
           opened.st_ino == closed.st_ino;
}

// A directory that cannot be opened stays, so that removing its parent fails.
bool RemoveSubdirectory(UniqueFd& parent, ustring const& path, char const* name) {
    UniqueFd dir(openat(parent.get(), name, kOpenDirectory));
    if (!dir.valid()) {
        return true;
    }
    Names directories;
    if (!RemoveFiles(dir.get(), path, directories)) {
        return false;
    }
    const bool is_empty =
        directories.empty() || RemoveWithParentClosed(parent, dir, path, directories);
    return is_empty && unlinkat(parent.get(), name, AT_REMOVEDIR) == 0;
}

bool RemoveSubdirectories(UniqueFd& dir, ustring const& path, Names const& names) {
    return std::all_of(names.begin(), names.end(), [&](std::string const& name) {
        return RemoveSubdirectory(dir, Child(path, name.c_str()), name.c_str());
    });
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
        UniqueFd dir(open(path.c_str(), kOpenDirectory));
        if (!dir.valid()) {
            return 0;
        }
        Names directories;
        if (!RemoveFiles(dir.get(), path, directories) ||
            !RemoveSubdirectories(dir, path, directories)) {
            return -3;
        }
    }
    return std::remove(path.c_str()) == 0 ? 0 : -3;
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
