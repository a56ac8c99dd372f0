// Sides of the rows about trees of files:
//
//     bench-files remove TREE       this program's removal
//     bench-files remove-all TREE   the standard library's
//     bench-files copy FROM TO      the plain copy: read, write and fsync each file
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "file/file-op.h"
#include "unique-fd.h"

namespace {

std::vector<char> buffer(1 << 17);

bool CopyFile(const std::string& from, const std::string& to) {
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
            copied =
                (entry->d_type == DT_DIR ? CopyTree : CopyFile)(from + "/" + name, to + "/" + name);
        }
    }
    if (dir != nullptr) {
        closedir(dir);
    }
    return copied;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string what = argc > 2 ? argv[1] : "";
    if (what == "remove") {
        return FSRemove(argv[2], false) == 0 ? 0 : 1;
    }
    if (what == "remove-all") {
        return std::filesystem::remove_all(argv[2]) > 0 ? 0 : 1;
    }
    if (what == "copy" && argc > 3) {
        return CopyTree(argv[2], argv[3]) ? 0 : 1;
    }
    std::fprintf(stderr, "usage: bench-files remove|remove-all TREE | copy FROM TO\n");
    return 2;
}
