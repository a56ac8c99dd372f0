// Temporary directories and files.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

// A directory in $TMPDIR, removed with its contents.
class TempDir {
  public:
    TempDir() {
        std::string name = (std::filesystem::temp_directory_path() / "quillmere-test-XXXXXX").string();
        path_ = std::filesystem::canonical(mkdtemp(name.data())).string();
    }
    ~TempDir() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

inline void WriteFile(const std::string& path, const std::string& content) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

// Returns what can be read; a file in /proc may disappear.
inline std::string ReadFile(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

// Contents by path: "/" for a directory, "->" and the target's name for a link.
using Tree = std::map<std::string, std::string>;

inline Tree Look(const std::string& directory) {
    Tree tree;
    for (const auto& file : std::filesystem::recursive_directory_iterator(directory)) {
        tree[file.path().lexically_relative(directory)] =
            file.is_symlink()        ? "->" + std::filesystem::read_symlink(file).filename().string()
            : file.is_regular_file() ? ReadFile(file.path())
                                     : "/";
    }
    return tree;
}

// proc(5)
inline long OpenDescriptors() { return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}); }
