// Owners of libarchive's objects.
#pragma once

#include <archive.h>
#include <archive_entry.h>

#include <memory>

struct ReaderFreer {
    void operator()(archive* reader) const { archive_read_free(reader); }
};
using ArchiveReader = std::unique_ptr<archive, ReaderFreer>;

struct WriterFreer {
    void operator()(archive* writer) const { archive_write_free(writer); }
};
using ArchiveWriter = std::unique_ptr<archive, WriterFreer>;

struct EntryFreer {
    void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};
using ArchiveEntry = std::unique_ptr<archive_entry, EntryFreer>;

// Why the last call on `handle` failed, where libarchive knows. The text is the handle's.
inline const char* ErrorText(archive* handle) {
    const char* const text = archive_error_string(handle);
    return text == nullptr ? "unknown error" : text;
}
