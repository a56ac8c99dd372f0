// Reads packages, made by any tool.
#include "tools/qpk/package-reader.h"

#include <QByteArray>
#include <QFileInfo>
#include <algorithm>
#include <new>

#include "install-layout.h"
#include "tools/qpk/message.h"
#include "tools/qpk/progress.h"
#include "tools/qpk/read-file.h"
#include "ui-client/launcher/archive-handles.h"

namespace {

constexpr std::size_t kBlockSize = 1 << 17;
constexpr std::size_t kLargestInfo = 1 << 16;
constexpr std::int64_t kHead = 16;

const char* OrEmpty(const char* text) {
    return text == nullptr ? "" : text;
}

// Removes "." and empty components, except a leading "/".
std::string Normalised(const std::string& path) {
    std::string result = path.rfind('/', 0) == 0 ? "/" : "";
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string name = path.substr(begin, end - begin);
        if (!name.empty() && name != ".") {
            result += (result.empty() || result == "/" ? "" : "/") + name;
        }
        begin = end + 1;
    }
    return result;
}

Entry Describe(archive_entry* header) {
    Entry entry;
    entry.path = Normalised(OrEmpty(archive_entry_pathname(header)));
    entry.mode = archive_entry_mode(header);
    entry.size = archive_entry_size(header);
    entry.link_text = OrEmpty(archive_entry_symlink(header));
    entry.hard_link = OrEmpty(archive_entry_hardlink(header));
    return entry;
}

// Whether the outermost format has a checksum of its content. The flags are where RFC 8878 (zstd)
// and the .xz and LZ4 frame formats have them. gzip, bzip2, lzip, zip and 7-Zip always have one; a
// plain tar has one for its headers only.
bool HasChecksum(const QByteArray& head) {
    const auto bits = [&head](int at) { return at < head.size() ? head.at(at) : 0; };
    if (head.startsWith("\x28\xB5\x2F\xFD")) {
        return (bits(4) & 0x04) != 0;
    }
    if (head.startsWith("\x04\x22\x4D\x18")) {
        return (bits(4) & 0x14) != 0;
    }
    if (head.startsWith(QByteArray("\xFD"
                                   "7zXZ\0",
                                   6))) {
        return bits(7) != 0;
    }
    for (const char* const magic : {"\x1F\x8B", "BZh", "LZIP", "PK\x03\x04", "7z\xBC\xAF"}) {
        if (head.startsWith(magic)) {
            return true;
        }
    }
    return false;
}

class PackageReader {
  public:
    explicit PackageReader(const std::string& path)
        : path_(path), head_(QByteArray::fromStdString(ReadFile(path, kHead))) {
        int opened = ARCHIVE_FATAL;
        reader_ = OpenArchive(path.c_str(), kBlockSize, opened);
        if (!reader_) {
            throw std::bad_alloc();
        }
        if (opened != ARCHIVE_OK) {
            Refuse(ErrorText(reader_.get()));
        }
    }

    PackageFacts Read(const std::function<void(const Entry&)>& visit) {
        facts_.packed = QFileInfo(QString::fromStdString(path_)).size();
        facts_.has_checksum = HasChecksum(head_);
        Progress progress("reading", facts_.packed);
        for (archive_entry* header = nullptr; Next(&header);) {
            const Entry entry = Describe(header);
            if (entry.size < 0) {
                facts_.damage = "Negative size of " + entry.path;
                break;
            }
            visit(entry);
            ++facts_.entries;
            facts_.unpacked += entry.size;
            facts_.info_is_last = entry.path == layout::kInfo;
            if (!Skip()) {
                break;
            }
            progress.MoveTo(archive_filter_bytes(reader_.get(), -1));
        }
        if (facts_.entries == 0 && !facts_.damage.empty()) {
            Refuse(facts_.damage);
        }
        Name();
        return facts_;
    }

  private:
    [[noreturn]] void Refuse(const std::string& why) {
        throw Error(path_, Message::kNotAnArchive, {why});
    }

    bool Next(archive_entry** header) {
        return RecordDamage(archive_read_next_header(reader_.get(), header));
    }

    // Skips the data, except the beginning of INFO.
    bool Skip() {
        if (!facts_.info_is_last) {
            return RecordDamage(archive_read_data_skip(reader_.get()));
        }
        std::string info(kLargestInfo, 0);
        const la_ssize_t size = archive_read_data(reader_.get(), &info[0], info.size());
        info.resize(static_cast<std::size_t>(std::max<la_ssize_t>(size, 0)));
        facts_.info = info;
        return RecordDamage(size < 0 ? static_cast<int>(size) : ARCHIVE_OK);
    }

    // A warning is damage, because the launcher treats it as a failure. Returns whether reading can
    // go on.
    bool RecordDamage(int result) {
        if (result != ARCHIVE_OK && result != ARCHIVE_EOF) {
            facts_.damage = ErrorText(reader_.get());
        }
        return result == ARCHIVE_OK;
    }

    void Name() {
        facts_.format = OrEmpty(archive_format_name(reader_.get()));
        // The last one is libarchive's "none".
        for (int i = archive_filter_count(reader_.get()) - 2; i >= 0; --i) {
            facts_.filters.insert(facts_.filters.begin(),
                                  OrEmpty(archive_filter_name(reader_.get(), i)));
        }
    }

    const std::string path_;
    const QByteArray head_;
    ArchiveReader reader_;
    PackageFacts facts_;
};

}  // namespace

PackageFacts ReadPackage(const std::string& path, const std::function<void(const Entry&)>& visit) {
    return PackageReader(path).Read(visit);
}
