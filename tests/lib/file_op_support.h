// What the tests of the file layer share.
#pragma once

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "file/file-op.h"
#include "log.h"
#include "temp_dir.h"

namespace fs = std::filesystem;

using Text = const char*;
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

// Grows with every descriptor that is left open.
inline int NextDescriptor() {
    const int next = dup(STDERR_FILENO);
    close(next);
    return next;
}

inline long Entries(const std::string& path) {
    return std::distance(fs::directory_iterator(path), {});
}

// All there is at a path, as text; empty if there is nothing.
inline std::string Content(const std::string& path) {
    struct stat status = {};
    if (lstat(path.c_str(), &status) != 0) {
        return "";
    }
    if (S_ISREG(status.st_mode) || S_ISLNK(status.st_mode)) {
        return S_ISREG(status.st_mode) ? "file " + ReadFile(path)
                                       : "link " + fs::read_symlink(path).string();
    }
    std::string content = "mode " + std::to_string(status.st_mode);
    if (S_ISDIR(status.st_mode)) {
        for (const fs::path& child : std::set<fs::path>(fs::directory_iterator(path), {})) {
            content += " {" + child.filename().string() + ": " + Content(child) + "}";
        }
    }
    return content;
}

// A move that is refused changes nothing on either side.
inline void TestRename(const std::string& from, const std::string& to, bool exact, int result) {
    SCOPED_TRACE(from + " to " + to);
    const std::string source = Content(from), target = Content(to);
    EXPECT_EQ(FSRename(from, to, exact), result);
    EXPECT_EQ(Content(from), result == 0 ? "" : source);
    EXPECT_EQ(Content(to), result == 0 ? source : target);
}

// Runs `body` in a child process that `prepare` makes ready: what fails there fails the test. It is
// skipped if `prepare` is refused.
template <class Prepare, class Body>
void InChild(Prepare prepare, Body body) noexcept {
    constexpr int kSkipped = 77;
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (!prepare()) {
            std::perror("The child process cannot be made ready");
            _exit(kSkipped);
        }
        const int descriptor = NextDescriptor();
        body();
        EXPECT_EQ(NextDescriptor(), descriptor);
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == kSkipped) {
        GTEST_SKIP() << "see the reason above";
    }
    EXPECT_EQ(status, 0);
}

// Works in a directory that any user may enter, with one object of each kind, and logs everything.
class FileOp : public testing::Test {
  protected:
    FileOp() {
        WriteFile(logs_ / "levels", "file_op_debug=7\n");
        Logger::Initialize(Logger::TYPE_FILE, logs_ / "log", logs_ / "levels", 1);
        chmod(at_.path().c_str(), 0755);
        fs::current_path(at_.path());
        WriteFile(at_ / "file", "content");
        WriteFile(at_ / "dir/inner", "inner");
        fs::create_directory("empty");
        fs::create_symlink("dir", "link");
        fs::create_symlink("nowhere", "dangling");
        mkfifo("fifo", 0600);
        mknod("socket", S_IFSOCK | 0600, 0);
        descriptor_ = NextDescriptor();
    }
    ~FileOp() override {
        EXPECT_EQ(NextDescriptor(), descriptor_);
        fs::current_path("/");
        Logger::Destroy();
    }
    // How many lines with `text` were logged since the last call.
    int Logged(const std::string& text) {
        std::ifstream log(logs_ / "log");
        int found = 0;
        for (std::string line; std::getline(log, line);) {
            found += line.find(text) != std::string::npos ? 1 : 0;
        }
        fs::resize_file(logs_ / "log", 0);
        return found;
    }
    int Errors() { return Logged("[ERROR] file-op("); }

    TempDir logs_, at_;
    int descriptor_ = 0;
};
