// The file layer: plain functions over POSIX. Paths are UTF-8 and pass to the system calls as they
// are. Results are 0 for success and negative numbers for failures; the bool probes report a
// failure as false. Failures are told in the log under "file_op_debug" where a function says so. No
// state is kept, so any thread may call; std::bad_alloc is the one exception that comes out.
#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <cstdint>

#include "ustring/ustring.h"

enum {
    FS_TYPE_NONE = 0,  // nothing there, or a kind of object without a code
    FS_TYPE_FILE = 1,
    FS_TYPE_DIR = 2,
    FS_TYPE_LINK = 3,
    FS_TYPE_DEVICE = 5,  // block or character device
    FS_TYPE_FIFO = 6,
    FS_TYPE_SOCKET = 7,
};

// What is known of a path.
struct _FILE_INFO_tag {
    ustring path;  // absolute, composed (NFC) and as the file system spells it, if it exists
    ustring name;  // last component of `path`
    int type = FS_TYPE_NONE;  // a symbolic link is FS_TYPE_LINK, whatever it leads to
    long mtime = 0;           // seconds since the epoch, or the nearest that a long can hold
    std::int64_t size = 0;    // bytes as the file system gives them, for every type
    bool exists = false;
    std::uint32_t uid = 0;
    std::uint32_t gid = 0;
    std::uint32_t mode = 0;  // the 16 bits of st_mode, type bits included
    std::int64_t dev = 0;    // the low 32 bits of st_dev, sign-extended
};

// Over `exists`, `size`, `mtime`, `type`, `path` and `name`; owner, mode and device take no part.
bool operator==(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b);
bool operator!=(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b);

// The part before the last "/"; "/" when there is no slash or only the first byte is one. A
// trailing slash is a slash like any other: the parent of /a/b/ is /a/b.
ustring FSParentPath(ustring const& path);

// The part behind the last "/": the whole path without one, "" for a path that ends in one.
ustring FSBaseName(ustring const& path);

// Describes the object at `path`; a last symbolic link is described itself. A missing path is a
// success with `exists` false. On -1 `info` is untouched if the object cannot be looked at (nothing
// is logged), and filled but for the real path or the type if the object has no code or no real
// path (logged).
int GetFileInfo(ustring const& path, _FILE_INFO_tag& info);

// Whether `path`, in any Unicode normal form, names something. With `exact` true it must also be
// the absolute path as the file system spells it, no link in it. A path that is not UTF-8 does not
// exist.
bool IsFileExist(ustring const& path, bool exact);

// GetFileInfo for a path that passes IsFileExist; for another one only `info.exists` is set, to
// false. Result: 0; -1 for an empty path; -2 when the information cannot be had.
int FSStat(ustring const& path, _FILE_INFO_tag& info, bool exact);

bool FSTimeEqual(long a, long b);

// Whether access(2) with `mode` is refused, or not refused. A missing file is neither locked nor
// forbidden.
bool isFileLocked(ustring const& path, int mode);
bool hasFilePermission(ustring const& path, int mode);

// Copies the bytes of a file, nothing else of it, over `to`, which is made or emptied first and
// synced to disk at the end. The two must be different files. A link is followed. With
// `remove_source` true the source goes when all is written. A failed copy leaves the partial
// target, and is logged. Result: 0; -1; -2 when the volume is full or over quota.
int FSCopy(ustring const& from, ustring const& to, bool remove_source);

// Moves a file or a tree, with rename(2) where that works and by copying across volumes, where
// symbolic links and FIFOs are made anew and directories merge. `exact` is that of IsFileExist, for
// the source. A move that fails half way leaves entries on both sides. Logs nothing of its own.
// Result: 0 (also for a device or socket across volumes, which stays); -1 empty argument; -2 source
// not found; -3 failure; -100 name too long.
int FSRename(ustring const& from, ustring const& to, bool exact);

// Makes a directory, and its parents if `parents` is true, with mode 0777 under the umask.
// Result: 0, also for one that exists; -1 when something else is there or cannot be looked at
// (logged), or for an empty path; -2 when it cannot be made.
int FSMKDir(ustring const& path, bool parents);

// Makes `path` component by component. `mode` 0xFFFF means 0777 under the umask; any other is used
// exactly, with the process's umask 0 meanwhile. With `replace` true, what stands in the way and is
// no directory is removed. `end`, if not null, receives a pointer into the text of `path`: behind
// the last component dealt with, which is the one that failed if one did. Result: 0; -1 with errno
// set.
int FSMKDirP(ustring const& path, char** end, bool replace, unsigned short mode);

// Makes the directories of `target` below the existing directory `root`. Result: 0 or -1 (logged
// when `root` is no parent of `target`).
int FSMKDirFromRoot(ustring const& target, ustring const& root);

// A test of the texts only: whether `child` is `parent` or lies below it. A `parent` that ends in a
// slash is the parent of nothing below it.
bool FSIsParentFolder(ustring const& parent, ustring const& child);

// Removes a file or a whole tree; links are removed and never followed. Logs nothing of its own.
// The bool has no effect. Result: 0, also if nothing is there and for a directory that cannot be
// opened; -1 for an empty path or one without information; -3 when something cannot be removed.
int FSRemove(ustring const& path, bool);

// Makes a new empty file of mode 0644 in `dir`; removing it is the caller's affair. Result: 0 and
// its path in `out`; -1 with `out` untouched (logged), also for a `dir` of more than 4088 bytes.
int FSMktemp(ustring const& dir, ustring& out);

// Sets the times, in seconds since the epoch, of the object itself, a link included. Result: 0 or
// -1.
int FSUTime(ustring const& path, long atime, long mtime);

// An open directory. Destroying it does not close it: FSCloseDir does.
struct DIR_HANDLE {
    ustring path;
    int flags = 0;
    DIR* dirp = nullptr;  // null before FSOpenDir and after FSCloseDir
};

struct DIR_ENTRY {
    ustring name;             // without the directory
    int type = FS_TYPE_NONE;  // by the d_type of readdir(3), always
    long mtime = 0;
    std::int64_t size = 0;
};

// Opens the directory at `path`. With bit 0 of `flags` set, time and size of each entry are read as
// well: for entries whose full path is the real one (see IsFileExist, `exact`); the others have 0.
// Result: 0; -1 with `handle` untouched (logged).
int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle);

// Delivers the next entry, "." and ".." included, in the order of the file system. A handle is used
// by one thread at a time. Result: 1; 0 at the end; -1 on failure (logged). `entry` changes with 1
// only.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

// Closes a handle that FSOpenDir has opened.
void FSCloseDir(DIR_HANDLE& handle);

// Whether the path lies on a network file system. A failure is false, and logged.
bool isMountPoint(ustring const& path);

// Whether the path lies on an MS-DOS (FAT) file system, which is logged, as is a failure, which is
// false.
bool IsMSDOS(ustring const& path);

// Replaces `path` by the real path of the object, a last link followed. Result: 0; -1 with `path`
// unchanged.
int FSGetRealPath(ustring& path);

// Makes a symbolic link at `link` that holds the text `target`. Result: 0 or -1 (logged).
int FSCreateSymbolicLink(ustring const& target, ustring const& link);

// The text of a link, at most 1023 bytes. Result: 0; -1 with `out` unchanged (logged).
int FSReadSymbolicLink(ustring const& link, ustring& out);

// Sets the owner of the object itself, a link included. Result: 0 or -1 (logged).
int FSChown(ustring const& path, unsigned int uid, unsigned int gid);

// A random path in `dir` for a temporary file; nothing is made. Result: 0, or -1 for an empty
// outcome.
int FSCreateTempPath(ustring const& dir, ustring& out);
