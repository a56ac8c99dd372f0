// Packs a client directory into a package: make-package CLIENT_DIR INFO PACKAGE
//
// The package is a zstd-compressed pax tar with a checksum. Its entries are those of CLIENT_DIR in
// path order, and last the file INFO as Contents/Resources/INFO: a copy that was cut short has no
// version and is replaced at the next start. The same input gives the same bytes: owners and times
// are left out.
#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "unique-fd.h"
#include "ustring/ustring.h"

namespace fs = std::filesystem;

namespace {

constexpr char kInfo[] = "Contents/Resources/INFO";
constexpr char kExecutable[] = "Contents/MacOS/quillmere-ui";

struct WriterFreer {
    void operator()(archive* writer) const { archive_write_free(writer); }
};

struct EntryFreer {
    void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};

class Package {
  public:
    explicit Package(const std::string& path) : writer_(archive_write_new()) {
        // The program, since libarchive's own filter writes no checksum: damage in data that do not
        // shrink would go unseen.
        Check(archive_write_add_filter_program(writer_.get(), "zstd -q -9 --check -c"));
        Check(archive_write_set_format_pax_restricted(writer_.get()));
        Check(archive_write_open_filename(writer_.get(), path.c_str()));
    }

    // Adds `file` under the name `path`.
    void Add(const fs::path& file, const std::string& path) {
        struct stat status;
        if (lstat(file.c_str(), &status) != 0) {
            throw fs::filesystem_error("cannot look at", file, LastError());
        }
        if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode) && !S_ISLNK(status.st_mode)) {
            throw std::runtime_error(file.string() + " is no file, directory or symbolic link");
        }
        if (!ustring::is_valid(path.c_str())) {
            throw std::runtime_error(file.string() + " has a name that is not UTF-8");
        }
        const std::unique_ptr<archive_entry, EntryFreer> entry(archive_entry_new());
        archive_entry_set_pathname(entry.get(), path.c_str());
        archive_entry_set_mode(entry.get(), status.st_mode);
        archive_entry_set_mtime(entry.get(), 0, 0);
        archive_entry_set_size(entry.get(), S_ISREG(status.st_mode) ? status.st_size : 0);
        if (S_ISLNK(status.st_mode)) {
            archive_entry_set_symlink(entry.get(), fs::read_symlink(file).c_str());
        }
        Check(archive_write_header(writer_.get(), entry.get()));
        if (S_ISREG(status.st_mode)) {
            Pour(file);
        }
    }

    void Close() { Check(archive_write_close(writer_.get())); }

  private:
    static std::error_code LastError() { return {errno, std::generic_category()}; }

    void Check(int result) {
        if (result != ARCHIVE_OK) {
            throw std::runtime_error(archive_error_string(writer_.get()));
        }
    }

    void Pour(const fs::path& file) {
        const UniqueFd source(open(file.c_str(), O_RDONLY | O_CLOEXEC));
        static char buffer[1 << 17];
        for (;;) {
            const ssize_t size = source.valid() ? read(source.get(), buffer, sizeof buffer) : -1;
            if (size < 0) {
                throw fs::filesystem_error("cannot read", file, LastError());
            }
            if (size == 0) {
                return;
            }
            if (archive_write_data(writer_.get(), buffer, static_cast<std::size_t>(size)) != size) {
                throw std::runtime_error(file.string() + " changed while it was read");
            }
        }
    }

    std::unique_ptr<archive, WriterFreer> writer_;
};

std::vector<std::string> Entries(const fs::path& client) {
    std::vector<std::string> entries;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(client)) {
        const std::string path = entry.path().lexically_relative(client).string();
        if (path != kInfo) {
            entries.push_back(path);
        }
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

void Pack(const fs::path& client, const fs::path& info, const fs::path& target) {
    if (!fs::exists(client / kExecutable)) {
        throw std::runtime_error("no " + std::string(kExecutable) + " in " + client.string());
    }
    // Whoever starts the launcher meanwhile finds the former package or the new one.
    const std::string unfinished = target.string() + ".part";
    Package package(unfinished);
    for (const std::string& path : Entries(client)) {
        package.Add(client / path, path);
    }
    package.Add(info, kInfo);
    package.Close();
    fs::rename(unfinished, target);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: make-package CLIENT_DIR INFO PACKAGE\n");
        return 2;
    }
    // libarchive reads names in the character type of the locale.
    std::setlocale(LC_CTYPE, "C.UTF-8");
    try {
        Pack(argv[1], argv[2], argv[3]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make-package: %s\n", error.what());
        return 1;
    }
    return 0;
}
