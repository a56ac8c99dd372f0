// Volume types as the system names them.
#include <sys/mount.h>
#include <sys/param.h>

#include <cstdio>

#include "platform/files/volume-type.h"

int StatVolume(const char* path, VolumeInfo* info) {
    struct statfs volume;
    if (statfs(path, &volume) != 0) {
        return -1;
    }
    std::snprintf(info->f_fstypename, sizeof info->f_fstypename, "%s", volume.f_fstypename);
    return 0;
}
