// A fixture for the tests of the file layer.
#pragma once

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <regex>
#include <set>

#include "file/file-op.h"
#include "log.h"
#include "tests/hooks.h"
#include "tests/support.h"

const std::string kComposed = "caf\xc3\xa9", kDecomposed = "cafe\xcc\x81", kNotUtf8 = "caf\xe9";

inline struct stat Status(const fs::path& path) {
    struct stat status = {};
    lstat(path.c_str(), &status);
    return status;
}

// Mode and content of a path, as text; "0" if it does not exist.
inline std::string Content(const fs::path& path) {
    const mode_t mode = Status(path).st_mode;
    std::string content = std::to_string(mode);
    if (S_ISREG(mode) || S_ISLNK(mode)) {
        content += S_ISREG(mode) ? ReadFile(path) : fs::read_symlink(path).string();
    } else if (S_ISDIR(mode)) {
        for (const fs::path& child : std::set<fs::path>(fs::directory_iterator(path), {})) {
            content += " {" + child.filename().string() + ": " + Content(child) + "}";
        }
    }
    return content;
}

// For InChild: a mount namespace, so that no mount outlives the process.
inline bool OwnMounts() {
    return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// A working directory with one object of each type, for any user; a log with the default levels.
class FileOp : public testing::Test {
  protected:
    FileOp() {
        LogUpTo(4);
        chmod(at_.path().c_str(), 0755);
        fs::current_path(at_.path());
        WriteFile(at_ / "file", "content");
        WriteFile(at_ / "dir/inner", "inner");
        fs::create_directory("empty");
        fs::create_symlink("dir", "link");
        fs::create_symlink("nowhere", "dangling");
        mkfifo("fifo", 0600);
        mknod("socket", S_IFSOCK | 0600, 0);
        descriptors_ = OpenDescriptors();
    }
    ~FileOp() override {
        hooks::Reset();
        EXPECT_EQ(OpenDescriptors(), descriptors_);
        fs::current_path("/");
        Logger::Destroy();
    }
    void LogUpTo(int level) {
        WriteFile(logs_ / "levels", "file_op_debug=" + std::to_string(level));
        Logger::Initialize(Logger::TYPE_FILE, logs_ / "log", logs_ / "levels", 1);
    }
    // Returns the new lines of the log, without time stamps, tags and line numbers.
    std::string TakeLog() {
        static const std::regex cut("[A-Z][a-z]{2} [ 0-9]{2} [0-9:]{8} |file-op\\([1-9]\\d*\\): ");
        const std::string log = ReadFile(logs_ / "log");
        fs::resize_file(logs_ / "log", 0);
        return std::regex_replace(log, cut, "");
    }

    TempDir logs_, at_;
    long descriptors_ = 0;
};
