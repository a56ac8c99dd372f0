// Copies a tree. Both sides are in one program, so that they start equally fast:
//
//     bench-copy ours FROM TO
//     bench-copy plain FROM TO    read, write and fsync each file
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "ui-client/launcher/mac/mac-service.h"
#include "unique-fd.h"

namespace {

bool CopyFile(const std::string& from, const std::string& to) {
    static std::vector<char> buffer(1 << 17);
    const UniqueFd source(open(from.c_str(), O_RDONLY | O_CLOEXEC));
    const UniqueFd target(open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    ssize_t size = 0;
    while ((size = read(source.get(), buffer.data(), buffer.size())) > 0) {
        if (write(target.get(), buffer.data(), static_cast<std::size_t>(size)) != size) {
            return false;
        }
    }
    return size == 0 && fsync(target.get()) == 0;
}

bool CopyTree(const std::string& from, const std::string& to) {
    DIR* const dir = opendir(from.c_str());
    bool copied = dir != nullptr && mkdir(to.c_str(), 0777) == 0;
    while (const dirent* const entry = copied ? readdir(dir) : nullptr) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            const auto copy = entry->d_type == DT_DIR ? CopyTree : CopyFile;
            copied = copy(from + "/" + name, to + "/" + name);
        }
    }
    if (dir != nullptr) {
        closedir(dir);
    }
    return copied;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        return 2;
    }
    const bool ours = std::string(argv[1]) == "ours";
    return (ours ? MacService().FSCopyPath(argv[2], argv[3]) == 0 : CopyTree(argv[2], argv[3])) ? 0
                                                                                                : 1;
}
