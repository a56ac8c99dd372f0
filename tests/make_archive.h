// Writes archives in any format of libarchive.
#pragma once

#include <sys/stat.h>

#include <string>
#include <vector>

#include "ui-client/launcher/archive-handles.h"

struct ArchiveMember {
    std::string path;
    std::string content;  // or the target of a link
    mode_t mode = S_IFREG;
};

constexpr mode_t kHardLink = 0;
using ArchiveFormat = int (*)(archive*);

// `filter` is a program that compresses the archive. All members have the permissions 0755.
inline void MakeArchive(const std::string& path, const std::vector<ArchiveMember>& members,
                        ArchiveFormat format = archive_write_set_format_pax_restricted, const char* filter = "cat") {
    const ArchiveWriter writer(archive_write_new());
    format(writer.get());
    archive_write_add_filter_program(writer.get(), filter);
    archive_write_open_filename(writer.get(), path.c_str());
    for (const auto& [name, content, mode] : members) {
        const ArchiveEntry header(archive_entry_new());
        archive_entry_set_pathname(header.get(), name.c_str());
        archive_entry_set_mode(header.get(), (mode == kHardLink ? S_IFREG : mode) | 0755);
        archive_entry_set_hardlink(header.get(), mode == kHardLink ? content.c_str() : nullptr);
        if (mode == S_IFLNK) { archive_entry_set_symlink(header.get(), content.c_str()); }
        archive_entry_set_size(header.get(), mode == S_IFREG ? static_cast<la_int64_t>(content.size()) : 0);
        archive_write_header(writer.get(), header.get());
        archive_write_data(writer.get(), content.data(), content.size());
    }
}
