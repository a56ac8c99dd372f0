// The file system type of a volume.
#pragma once

struct VolumeInfo {
    // NUL-terminated: "nfs", "smbfs", "afpfs", "msdos", or another text for other types.
    char f_fstypename[16];
};

// Fills `info` for the volume of the existing object at `path`. Follows a link. Result: 0; -1 with
// errno set by statfs(2). Any thread.
int StatVolume(const char* path, VolumeInfo* info);
