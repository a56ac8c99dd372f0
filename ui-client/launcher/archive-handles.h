// Owners of libarchive's objects.
#pragma once

#include <archive.h>
#include <archive_entry.h>

#include <cstddef>
#include <memory>

#include "free-by.h"

using ArchiveReader = std::unique_ptr<archive, FreeBy<archive_read_free>>;
using ArchiveWriter = std::unique_ptr<archive, FreeBy<archive_write_free>>;
using ArchiveEntry = std::unique_ptr<archive_entry, FreeBy<archive_entry_free>>;

// Opens a file in any format and with any filter; reads blocks of `block` bytes. Result: the
// reader, or null without memory. `opened` is the result of archive_read_open_filename.
inline ArchiveReader OpenArchive(const char* path, std::size_t block, int& opened) {
    ArchiveReader reader(archive_read_new());
    if (reader) {
        archive_read_support_filter_all(reader.get());
        archive_read_support_format_all(reader.get());
        opened = archive_read_open_filename(reader.get(), path, block);
    }
    return reader;
}

// Why the last call on `handle` failed, if libarchive knows. The handle owns the text.
inline const char* ErrorText(archive* handle) {
    const char* const text = archive_error_string(handle);
    return text == nullptr ? "unknown error" : text;
}
