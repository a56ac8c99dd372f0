// Writes packages.
#include "tools/qpk/package-writer.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <ctime>
#include <exception>
#include <limits>
#include <vector>

#include "install-layout.h"
#include "tools/qpk/client-tree.h"
#include "tools/qpk/message.h"
#include "tools/qpk/progress.h"
#include "tools/qpk/read-file.h"
#include "tools/qpk/rules.h"
#include "tools/qpk/zstd-file.h"
#include "ui-client/launcher/archive-handles.h"

namespace {

// libarchive writes the tar, and ZstdFile compresses it.
class PackageWriter {
  public:
    PackageWriter(const PackageOptions& options, std::int64_t total)
        : options_(options),
          file_(options.package, options.level),
          progress_("packing", total),
          writer_(archive_write_new()) {
        Check(archive_write_set_format_pax_restricted(writer_.get()));
        Check(archive_write_open(writer_.get(), this, nullptr, Write, nullptr));
    }

    void AddText(const std::string& path, const std::string& text) {
        Entry entry;
        entry.path = path;
        entry.mode = S_IFREG | 0644;
        entry.size = static_cast<std::int64_t>(text.size());
        AddHeader(entry);
        AddData(path, text.data(), static_cast<qint64>(text.size()));
    }

    void Add(const Entry& entry) {
        if (!S_ISREG(entry.mode)) {
            AddHeader(entry);
            return;
        }
        const std::string path = options_.client + "/" + entry.path;
        QFile source(QString::fromStdString(path));
        if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            throw Error(path, Message::kCannotRead, {source.errorString().toStdString()});
        }
        AddHeader(entry);
        std::int64_t left = entry.size;
        for (qint64 size = 0; (size = source.read(buffer_.data(), kBufferSize)) != 0;
             left -= size) {
            if (size < 0) {
                throw Error(path, Message::kCannotRead, {source.errorString().toStdString()});
            }
            AddData(path, buffer_.data(), size);
        }
        if (left != 0) {
            throw Error(path, Message::kChanged);
        }
    }

    void Close() {
        Check(archive_write_close(writer_.get()));
        file_.Commit();
    }

  private:
    static constexpr qint64 kBufferSize = 1 << 17;

    // Exceptions must not pass through libarchive. Fail throws them again.
    static la_ssize_t Write(archive* writer, void* self, const void* data, std::size_t size) {
        const auto package = static_cast<PackageWriter*>(self);
        try {
            package->file_.Write(data, size);
            return static_cast<la_ssize_t>(size);
        } catch (...) {
            package->failure_ = std::current_exception();
            archive_set_error(writer, EIO, "Write failed");
            return -1;
        }
    }

    void Check(int result) {
        if (result != ARCHIVE_OK) {
            Fail();
        }
    }

    [[noreturn]] void Fail() {
        if (failure_) {
            std::rethrow_exception(failure_);
        }
        throw Error(options_.package, Message::kCannotWrite, {ErrorText(writer_.get())});
    }

    void AddHeader(const Entry& entry) {
        const ArchiveEntry header(archive_entry_new());
        archive_entry_set_pathname(header.get(), entry.path.c_str());
        archive_entry_set_mode(header.get(), entry.mode);
        archive_entry_set_mtime(header.get(), static_cast<std::time_t>(options_.time), 0);
        archive_entry_set_size(header.get(), entry.size);
        if (S_ISLNK(entry.mode)) {
            archive_entry_set_symlink(header.get(), entry.link_text.c_str());
        }
        Check(archive_write_header(writer_.get(), header.get()));
    }

    void AddData(const std::string& path, const char* data, qint64 size) {
        const la_ssize_t written =
            archive_write_data(writer_.get(), data, static_cast<std::size_t>(size));
        if (written < 0) {
            Fail();
        }
        if (written != size) {  // the file has grown
            throw Error(path, Message::kChanged);
        }
        progress_.Advance(size);
    }

    const PackageOptions& options_;
    ZstdFile file_;
    Progress progress_;
    const ArchiveWriter writer_;
    std::exception_ptr failure_;  // of ZstdFile
    std::vector<char> buffer_ = std::vector<char>(kBufferSize);
};

bool IsInfo(const Entry& entry) {
    return entry.path == layout::kInfo;
}

// Moves INFO to the end of `entries` and adds its faults to `findings`. Result: its content.
std::string TakeInfo(const PackageOptions& options, Entries& entries, Findings& findings) {
    const auto own = std::find_if(entries.begin(), entries.end(), IsInfo);
    if (!options.version && own == entries.end()) {
        return "";
    }
    std::string text =
        options.version ? ToText(*options.version) : ReadFile(options.client + "/" + layout::kInfo);
    const Findings faults = FaultsOf(ParseVersion(text));
    findings.insert(findings.end(), faults.begin(), faults.end());
    Entry info;
    info.path = layout::kInfo;
    info.mode = S_IFREG | 0644;
    if (own != entries.end()) {
        entries.erase(own);
    }
    entries.push_back(info);
    return text;
}

}  // namespace

std::int64_t LatestTime() {
    return std::numeric_limits<std::time_t>::max();
}

std::string WritePackage(const PackageOptions& options) {
    if (IsInside(options.package, options.client)) {
        throw Error(options.package, Message::kInClient);
    }
    Entries entries = ReadClientTree(options.client);
    Findings version_faults;
    std::string info = TakeInfo(options, entries, version_faults);
    Findings findings = FaultsOf(entries);
    findings.insert(findings.end(), version_faults.begin(), version_faults.end());
    if (!findings.empty()) {
        throw Error(findings);
    }
    std::int64_t total = 0;
    for (const Entry& entry : entries) {
        total += entry.size;
    }
    PackageWriter writer(options, total);
    for (const Entry& entry : entries) {
        if (!IsInfo(entry)) {
            writer.Add(entry);
        }
    }
    writer.AddText(layout::kInfo, info);
    writer.Close();
    return info;
}
