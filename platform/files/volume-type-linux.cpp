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

// From linux/magic.h and the file systems' own headers; some have none that can be included. AFP
// has no file system in the kernel, so nothing here is "afpfs".
constexpr NamedType kTypes[] = {
    {0x00006969, "nfs"},   {0x0000517B, "smbfs"},   {0xFF534D42, "smbfs"},  {0xFE534D42, "smbfs"},
    {0x00004D44, "msdos"}, {0x2011BAB0, "exfat"},   {0x0000EF53, "ext"},    {0x58465342, "xfs"},
    {0x9123683E, "btrfs"}, {0x2FC12FC1, "zfs"},     {0x01021994, "tmpfs"},  {0x794C7630, "overlay"},
    {0x65735546, "fuse"},  {0x00009FA0, "proc"},    {0x62656572, "sysfs"},  {0x5346544E, "ntfs"},
    {0x7366746E, "ntfs3"}, {0x00009660, "iso9660"}, {0x73717368, "squash"}, {0xF2F52010, "f2fs"},
    {0x01021997, "9p"},    {0x00C36400, "ceph"},    {0x6B414653, "afs"},
};

}  // namespace

const char* VolumeTypeName(unsigned long f_type) {
    // Signed and 32 bits wide on some systems: the numbers are compared as what they were written
    // as.
    const auto magic = static_cast<std::uint32_t>(f_type);
    for (const NamedType& type : kTypes) {
        if (type.f_type == magic) {
            return type.name;
        }
    }
    return "unknown";
}

int StatVolume(const char* path, VolumeInfo* info) {
    struct statfs volume;
    if (statfs(path, &volume) != 0) {
        return -1;
    }
    std::snprintf(info->f_fstypename, sizeof info->f_fstypename, "%s",
                  VolumeTypeName(static_cast<unsigned long>(volume.f_type)));
    return 0;
}
