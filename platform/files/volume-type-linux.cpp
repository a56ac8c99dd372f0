// Volume types by the magic numbers of statfs(2).
#include <sys/vfs.h>

#include <cstdint>
#include <cstdio>

#include "platform/files/volume-type.h"

namespace {

struct NamedType {
    std::uint32_t f_type;
    const char* name;
};

// From linux/magic.h. The kernel has no AFP file system.
constexpr NamedType kTypes[] = {{0x00006969, "nfs"},
                                {0x0000517B, "smbfs"},
                                {0xFF534D42, "smbfs"},
                                {0xFE534D42, "smbfs"},
                                {0x00004D44, "msdos"}};

// `f_type` is signed and sign-extended on some systems.
const char* TypeName(unsigned long f_type) {
    const auto magic = static_cast<std::uint32_t>(f_type);
    for (const NamedType& type : kTypes) {
        if (type.f_type == magic) {
            return type.name;
        }
    }
    return "other";
}

}  // namespace

int StatVolume(const char* path, VolumeInfo* info) {
    struct statfs volume;
    if (statfs(path, &volume) != 0) {
        return -1;
    }
    std::snprintf(info->f_fstypename, sizeof info->f_fstypename, "%s",
                  TypeName(static_cast<unsigned long>(volume.f_type)));
    return 0;
}
