// The file layer: functions over POSIX. Paths are UTF-8 and are passed to system calls unchanged.
// Results are 0 for success and negative for failures, or false for failures of a test. Functions
// marked "(logged)" log failures as "file_op_debug". There is no state: any thread. The only
// exception is std::bad_alloc.
#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <cstdint>

#include "ustring/ustring.h"

enum {
    FS_TYPE_NONE = 0,  // nothing, or a type without a code
    FS_TYPE_FILE = 1,
    FS_TYPE_DIR = 2,
    FS_TYPE_LINK = 3,
    FS_TYPE_DEVICE = 5,  // block or character device
    FS_TYPE_FIFO = 6,
    FS_TYPE_SOCKET = 7,
};

// Information about a path.
struct _FILE_INFO_tag {
    ustring path;  // absolute, composed (NFC) and as the file system spells it, if it exists
    ustring name;  // last component of `path`
    int type = FS_TYPE_NONE;  // FS_TYPE_LINK for a symbolic link with any target
    long mtime = 0;           // seconds since the epoch, or the nearest value of a long
    std::int64_t size = 0;    // st_size, for all types
    bool exists = false;
    std::uint32_t uid = 0;
    std::uint32_t gid = 0;
    std::uint32_t mode = 0;  // the 16 bits of st_mode, type bits included
    std::int64_t dev = 0;    // the low 32 bits of st_dev, sign-extended
};

// Compare `exists`, `size`, `mtime`, `type`, `path` and `name`, but not owner, mode and device.
bool operator==(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b);
bool operator!=(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b);

// Returns the part before the last "/"; "/" if there is no slash, or only at the start. A trailing
// slash counts: the parent of /a/b/ is /a/b.
ustring FSParentPath(ustring const& path);

// Returns the part after the last "/", or the whole path if there is none.
ustring FSBaseName(ustring const& path);

// Fills `info` for the object at `path`, without following a link. For a missing path, `exists` is
// false. Result: 0; -1 with `info` unchanged if lstat(2) fails; -1 without type or real path if the
// object has none (logged).
int GetFileInfo(ustring const& path, _FILE_INFO_tag& info);

// Whether `path`, in any Unicode normal form, exists. With `exact` it must also be the real path as
// the file system spells it. A path that is not UTF-8 does not exist.
bool IsFileExist(ustring const& path, bool exact);

// Calls GetFileInfo if IsFileExist is true; otherwise only sets `info.exists` to false. Result: 0;
// -1 for an empty path; -2 if GetFileInfo fails.
int FSStat(ustring const& path, _FILE_INFO_tag& info, bool exact);

// Whether two times of _FILE_INFO_tag are equal, to the second.
bool FSTimeEqual(long a, long b);

// Whether access(2) with `mode` fails with EACCES or EPERM. False for other errors, such as a
// missing file.
bool isFileLocked(ustring const& path, int mode);

// The opposite of isFileLocked, so true for a missing file.
bool hasFilePermission(ustring const& path, int mode);

// Copies the contents of a file to `to`, which is created or truncated, and flushes them to the
// disk. Follows links. With `remove_source` removes the source after that. Precondition: the files
// are not the same. A failed copy leaves the partial target. Result: 0; -1, also if the flush
// fails; -2 if the volume is full or over quota (logged, except failures of the flush and of the
// removal).
int FSCopy(ustring const& from, ustring const& to, bool remove_source);

// Moves a file or a tree by rename(2). Across volumes copies files, creates symbolic links and
// FIFOs, and merges directories. `exact` is that of IsFileExist, for the source. A failed move may
// leave entries on both sides. Result: 0, also for a device or socket across volumes, which stays;
// -1 empty argument; -2 source not found; -3 failure; -100 name too long.
int FSRename(ustring const& from, ustring const& to, bool exact);

// Creates a directory, and with `parents` its parents, with mode 0777 and the umask. Result: 0,
// also if it exists; -1 for an empty path, or if something else exists or GetFileInfo fails
// (logged); -2 if it cannot be created.
int FSMKDir(ustring const& path, bool parents);

// Creates the directory `path` and its parents. `mode` 0xFFFF means 0777 and the umask; other modes
// are exact, and set the umask of the process to 0 meanwhile. With `replace` removes anything in
// the way that is not a directory. `end`, if not null, receives a pointer into the text of `path`,
// after the last component that was tried. Result: 0; -1 with errno set.
int FSMKDirP(ustring const& path, char** end, bool replace, unsigned short mode);

// Creates the directories of `target` below the existing directory `root`. Result: 0; -1 (logged if
// `root` is not a parent of `target`).
int FSMKDirFromRoot(ustring const& target, ustring const& root);

// Compares texts only: whether `child` is `parent` or below it. A `parent` with a trailing slash
// has nothing below it.
bool FSIsParentFolder(ustring const& parent, ustring const& child);

// Removes a file or a tree of any depth, with a fixed number of descriptors. Does not follow links.
// The bool has no effect. Result: 0, also if nothing exists or the directory cannot be opened; -1
// for an empty path, or if GetFileInfo fails; -3 if something cannot be removed, or has a name that
// is not UTF-8.
int FSRemove(ustring const& path, bool);

// Creates an empty file of mode 0644 in `dir`, which the caller removes. Result: 0 with its path in
// `out`; -1 with `out` unchanged (logged), also if `dir` is longer than 4088 bytes.
int FSMktemp(ustring const& dir, ustring& out);

// Sets the times, in seconds since the epoch, without following a link. Result: 0 or -1.
int FSUTime(ustring const& path, long atime, long mtime);

// An open directory. Only FSCloseDir closes it; the destructor does not.
struct DIR_HANDLE {
    ustring path;
    int flags = 0;
    DIR* dirp = nullptr;  // null before FSOpenDir and after FSCloseDir
};

struct DIR_ENTRY {
    ustring name;             // without the directory
    int type = FS_TYPE_NONE;  // from d_type of readdir(3)
    long mtime = 0;
    std::int64_t size = 0;
};

// Opens the directory at `path`. With bit 0 of `flags`, FSReadDir also returns time and size of
// each entry whose full path is the real path (see IsFileExist), and 0 for others. Precondition:
// `handle` is not open. Result: 0; -1 with `handle` unchanged (logged).
int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle);

// Returns the next entry in `entry`, "." and ".." included, in the order of the file system. One
// thread at a time. Result: 1; 0 at the end; -1 (logged). `entry` changes only with 1.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

// Closes an open handle.
void FSCloseDir(DIR_HANDLE& handle);

// Whether the path is on a network file system. False on failure (logged).
bool isMountPoint(ustring const& path);

// Whether the path is on a FAT file system (logged if so). False on failure (logged).
bool IsMSDOS(ustring const& path);

// Replaces `path` by the real path, following links. Result: 0; -1 with `path` unchanged.
int FSGetRealPath(ustring& path);

// Creates the symbolic link `link` with the text `target`. Result: 0 or -1 (logged).
int FSCreateSymbolicLink(ustring const& target, ustring const& link);

// Returns the text of a link in `out`. Result: 0; -1 with `out` unchanged (logged), also if it has
// more than 1023 bytes.
int FSReadSymbolicLink(ustring const& link, ustring& out);

// Sets the owner, without following a link. Result: 0 or -1 (logged).
int FSChown(ustring const& path, unsigned int uid, unsigned int gid);

// Returns a random path in `dir` for a temporary file, without creating it. Result: 0; -1 if the
// path is empty.
int FSCreateTempPath(ustring const& dir, ustring& out);
