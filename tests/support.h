// What many tests need: tables, temporary directories and files, child processes.
#pragma once

#include <grp.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

namespace fs = std::filesystem;
using namespace std::string_literals;

using Text = const char*;

// A table. A loop names the columns: for (const auto& [name, size] : rows).
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

// A directory in $TMPDIR, removed with its contents.
class TempDir {
  public:
    TempDir() {
        std::string name = fs::temp_directory_path() / "quillmere-test-XXXXXX";
        path_ = fs::canonical(mkdtemp(name.data()));
    }
    ~TempDir() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

inline void WriteFile(const fs::path& path, const std::string& content) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

// Returns what can be read; a file in /proc may disappear.
inline std::string ReadFile(const fs::path& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

// Returns bytes that cannot be compressed.
inline std::string Noise(std::size_t size, int seed) {
    std::minstd_rand random(static_cast<unsigned>(seed));
    std::string noise(size, 0);
    for (char& byte : noise) { byte = static_cast<char>(random() >> 8); }
    return noise;
}

// Contents by path: "/" for a directory, "->" and the target's name for a link.
using Tree = std::map<std::string, std::string>;

inline Tree Look(const fs::path& directory) {
    Tree tree;
    for (const auto& file : fs::recursive_directory_iterator(directory)) {
        std::string& content = tree[file.path().lexically_relative(directory)] = "/";
        if (file.is_regular_file()) { content = ReadFile(file); }
        if (file.is_symlink()) { content = "->" + fs::read_symlink(file).filename().string(); }
    }
    return tree;
}

// proc(5)
inline long OpenDescriptors() { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); }

// Runs `prepare` and `body` in a child process; a failure there fails the test. Skips the test if
// `prepare` returns false.
template <class Prepare, class Body>
void InChild(Prepare prepare, Body body) noexcept {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const bool ready = prepare();
        ready ? body() : void();
        std::fflush(nullptr);
        _exit(ready ? testing::Test::HasFailure() : 77);
    }
    int status = -1;
    waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 77) {
        GTEST_SKIP() << "needs the right to mount or to become another user";
    }
    EXPECT_EQ(status, 0);
}

// A user without files and processes. A child process of root becomes that user.
inline const uid_t kLoner = 100000 + static_cast<uid_t>(getpid());
inline bool BecomeLoner() { return geteuid() != 0 || !(setgroups(0, nullptr) || setgid(kLoner) || setuid(kLoner)); }
