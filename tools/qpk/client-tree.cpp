// A client's directory.
#include "tools/qpk/client-tree.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <map>
#include <utility>

#include "tools/qpk/message.h"

namespace fs = std::filesystem;

namespace {

mode_t PlainMode(mode_t mode) {
    if (S_ISDIR(mode)) {
        return S_IFDIR | 0755;
    }
    if (S_ISLNK(mode)) {
        return S_IFLNK | 0777;
    }
    const mode_t permissions = (mode & 0111) != 0 ? 0755 : 0644;
    return (mode & (S_IFMT | S_ISUID | S_ISGID)) | permissions;
}

class TreeReader {
  public:
    explicit TreeReader(const std::string& directory) : directory_(directory) {}

    Entries Read() {
        for (const fs::directory_entry& found : fs::recursive_directory_iterator(directory_)) {
            entries_.push_back(Describe(found.path()));
        }
        std::sort(entries_.begin(), entries_.end(),
                  [](const Entry& a, const Entry& b) { return a.path < b.path; });
        NameHardLinks();
        return std::move(entries_);
    }

  private:
    using Identity = std::pair<dev_t, ino_t>;

    Entry Describe(const fs::path& file) {
        struct stat status;
        if (lstat(file.c_str(), &status) != 0) {
            throw Error(file.string(), Message::kCannotRead, {std::strerror(errno)});
        }
        Entry entry;
        entry.path = file.lexically_relative(directory_).string();
        entry.mode = PlainMode(status.st_mode);
        if (S_ISREG(status.st_mode)) {
            entry.size = status.st_size;
            if (status.st_nlink > 1) {
                shared_.emplace(entry.path, Identity(status.st_dev, status.st_ino));
            }
        } else if (S_ISLNK(status.st_mode)) {
            entry.link_text = fs::read_symlink(file).string();
        }
        return entry;
    }

    // A second name within the client. Names outside the client do not matter to a package.
    void NameHardLinks() {
        std::map<Identity, std::string> first_names;
        for (Entry& entry : entries_) {
            const auto shared = shared_.find(entry.path);
            if (shared != shared_.end()) {
                const auto first = first_names.emplace(shared->second, entry.path);
                entry.hard_link = first.second ? "" : first.first->second;
            }
        }
    }

    const fs::path directory_;
    Entries entries_;
    std::map<std::string, Identity> shared_;  // files with more than one name
};

}  // namespace

Entries ReadClientTree(const std::string& directory) {
    try {
        return TreeReader(directory).Read();
    } catch (const fs::filesystem_error& error) {
        throw Error(error.path1().string(), Message::kCannotRead, {error.code().message()});
    }
}

bool IsInside(const std::string& path, const std::string& directory) {
    const auto resolved = [](const std::string& name) {
        return fs::weakly_canonical(fs::absolute(name));
    };
    const fs::path relative = resolved(path).lexically_relative(resolved(directory));
    return !relative.empty() && *relative.begin() != "..";
}
