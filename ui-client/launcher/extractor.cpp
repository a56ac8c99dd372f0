// Extracts a package with libarchive.
#include "ui-client/launcher/extractor.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>

#include "log.h"
#include "platform/files/flush.h"
#include "ui-client/launcher/archive-handles.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/str-table.h"

#define LOG_TAG "extractor"

namespace {

constexpr std::size_t kBlockSize = 10240;
constexpr std::size_t kLongestPath =
    PATH_MAX - 8;  // the name of a backup is longer than that of the copy
const ustring kLogComponent("extractor_debug");

// UNLINK replaces an existing file instead of writing into it, and NODOTDOT refuses "..". Owner,
// exact mode and times of the packager's machine do not matter here.
constexpr int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

// Logs the error of the side that failed. Only the reader detects damaged data.
const char* ErrorText(archive* writer, archive* reader) {
    return archive_error_string(writer) == nullptr ? ErrorText(reader) : ErrorText(writer);
}

// Opens the archive. Null on failure, which is logged.
ArchiveReader OpenToLook(const ustring& path) {
    int opened = ARCHIVE_FATAL;
    ArchiveReader reader = OpenArchive(path.c_str(), kBlockSize, opened);
    if (!reader) {
        Logger::LogMsg(LOG_LINE(ERROR, "Allocate archive failed\n"));
        return nullptr;
    }
    if (opened != ARCHIVE_OK) {
        Logger::LogMsg(LOG_LINE(ERROR, "archive_read_open_filename failed: '%s'\n"),
                       ErrorText(reader.get()));
        return nullptr;
    }
    return reader;
}

// Returns the next entry; null at the end or at the first damage.
archive_entry* NextEntry(archive* reader) {
    archive_entry* entry = nullptr;
    return archive_read_next_header(reader, &entry) == ARCHIVE_OK ? entry : nullptr;
}

// The file layer must be able to remove the copy, and refuses some names that libarchive accepts.
bool CanBeRemoved(const ustring& path) {
    return ustring::is_valid(path) && path.length() < kLongestPath;
}

// Calls archive_read_next_header. Also fails if the number of entries has changed since Count(),
// because the package was replaced.
int NextCounted(archive* reader, int number, int total, archive_entry** entry) {
    const int header = archive_read_next_header(reader, entry);
    const bool beyond = number > total;
    if ((header == ARCHIVE_OK && beyond) || (header == ARCHIVE_EOF && !beyond)) {
        archive_set_error(reader, EBUSY, "Changed since its %d entries were counted", total);
        return ARCHIVE_FATAL;
    }
    return header;
}

}  // namespace

bool Extractor::HasPaths() const {
    return m_source != "" && m_dest != "";
}

int Extractor::Extract() {
    if (!HasPaths()) {
        Logger::LogMsg(LOG_LINE(ERROR, "Invalid Argument\n"));
        return -1;
    }
    Logger::LogMsg(LOG_LINE(DEBUG, "decompress from '%s' to '%s'\n"), m_source.c_str(),
                   m_dest.c_str());
    Notify_Adapter::GetInstance()->UpdateDialogText(
        StrTable::LoadStr(StrTable::kEnvironmentPreparing));
    const int total = Count();
    if (total < 1) {
        Logger::LogMsg(LOG_LINE(ERROR, "Failed to calculate total file numbers, ret: %d\n"), total);
        return -1;
    }
    // The reader is destroyed before the writer.
    const ArchiveWriter writer(archive_write_disk_new());
    int opened = ARCHIVE_FATAL;
    const ArchiveReader reader = OpenArchive(m_source.c_str(), kBlockSize, opened);
    if (!reader || !writer) {
        Logger::LogMsg(LOG_LINE(ERROR, "Allocate extractor failed\n"));
        return -1;
    }
    archive_write_disk_set_options(writer.get(), kWriteOptions);
    if (opened != ARCHIVE_OK) {
        Logger::LogMsg(LOG_LINE(ERROR, "Failed to read file '%s' ('%s')\n"), m_source.c_str(),
                       ErrorText(reader.get()));
        return -1;
    }
    return ExtractEntries(total, reader.get(), writer.get());
}

int Extractor::ExtractEntries(int total, archive* reader, archive* writer) {
    const ustring prefix = m_dest + "/";
    for (int number = 1;; ++number) {
        archive_entry* entry = nullptr;
        const int header = NextCounted(reader, number, total, &entry);
        if (header == ARCHIVE_EOF) {
            return 0;
        }
        if (header != ARCHIVE_OK) {
            Logger::LogMsg(LOG_LINE(ERROR, "archive_read_next_header failed: '%s'\n"),
                           ErrorText(reader));
            return -1;
        }
        const char* const path = archive_entry_pathname(entry);
        if (path == nullptr || !CanBeRemoved(prefix + path)) {
            Logger::LogMsg(LOG_LINE(ERROR, "archive_entry_pathname failed"));
            return -1;
        }
        archive_entry_set_pathname(entry, (prefix + path).c_str());
        if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
            Logger::LogMsg(LOG_LINE(ERROR, "archive_read_extract2 failed: '%s'\n"),
                           ErrorText(writer, reader));
            return -1;
        }
        Notify_Adapter::GetInstance()->UpdateProgress(total, number);
        // The last entry has the version, so everything else must be on the disk before it.
        const bool flush = number >= total - 1;
        if (archive_write_finish_entry(writer) != ARCHIVE_OK || (flush && !Flush(writer))) {
            Logger::LogMsg(LOG_LINE(ERROR, "archive_write_finish_entry failed: '%s'\n"),
                           ErrorText(writer));
            return -1;
        }
    }
}

bool Extractor::Flush(archive* writer) const {
    if (FlushTree(m_dest.c_str()) == 0) {
        return true;
    }
    const int error = errno;
    archive_set_error(writer, error, "Flush failed: %s", std::strerror(error));
    return false;
}

int Extractor::Count() {
    if (!HasPaths()) {
        Logger::LogMsg(LOG_LINE(ERROR, "Invalid argument\n"));
        return -1;
    }
    const ArchiveReader reader = OpenToLook(m_source);
    if (!reader) {
        return -1;
    }
    int count = 0;
    while (NextEntry(reader.get()) != nullptr) {
        ++count;
        archive_read_data_skip(reader.get());
    }
    return count;
}

int Extractor::List() {
    if (!HasPaths()) {
        Logger::LogMsg(LOG_LINE(ERROR, "Invalid argument\n"));
        return -1;
    }
    const ArchiveReader reader = OpenToLook(m_source);
    if (!reader) {
        return -1;
    }
    while (archive_entry* const entry = NextEntry(reader.get())) {
        const char* const path = archive_entry_pathname(entry);
        std::printf("%s\n", path == nullptr ? "" : path);
        std::fflush(stdout);
        archive_read_data_skip(reader.get());
    }
    archive_read_close(reader.get());
    return 0;
}

int Extractor::copy_data(archive* ar, archive* aw) {
    if (ar == nullptr || aw == nullptr) {
        Logger::LogMsg(LOG_LINE(ERROR, "Invalid Argument\n"));
        return -1;
    }
    for (;;) {
        const void* buffer = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        const int block = archive_read_data_block(ar, &buffer, &size, &offset);
        if (block == ARCHIVE_EOF) {
            return 0;
        }
        if (block != ARCHIVE_OK) {
            Logger::LogMsg(LOG_LINE(ERROR, "archive_read_data_block failed: '%s'\n"),
                           ErrorText(ar));
            return -1;
        }
        if (archive_write_data_block(aw, buffer, size, offset) != ARCHIVE_OK) {
            Logger::LogMsg(LOG_LINE(ERROR, "archive_write_data_block failed: '%s'\n"),
                           ErrorText(aw));
            return -1;
        }
    }
}
