// The name of the file system type of the volume that holds a path.
#pragma once

struct VolumeInfo {
    // NUL-terminated. "nfs", "smbfs", "afpfs" and "msdos" are the kinds that are told apart; any
    // other name is the system's own word or "unknown".
    char f_fstypename[16];
};

// Fills `info` for the volume that holds the existing object at `path` (a last link is followed).
// Result: 0; -1 with errno set, as statfs does. Safe on any thread.
int StatVolume(const char* path, VolumeInfo* info);

#ifndef __APPLE__
// The name for a file system's magic number, the `f_type` of statfs(2).
const char* VolumeTypeName(unsigned long f_type);
#endif
