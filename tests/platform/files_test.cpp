// Lock files and flushes.
#include <sys/stat.h>

#include <cerrno>

#include "platform/files/file-lock.h"
#include "platform/files/flush.h"
#include "tests/hooks.h"
#include "tests/support.h"

TEST(FileLock, HasOneHolder) {
    const TempDir dir;
    const std::string path = dir / "lock";
    WriteFile(path, "the long note of a launcher that was killed");
    FileLock lock(path, "note");
    FileLock other(path, "other");
    EXPECT_EQ(other.HoldersNote(), "the long note of a launcher that was killed");
    EXPECT_EQ(lock.Take(), FileLock::Result::kTaken);
    EXPECT_EQ(hooks::InheritableDescriptors(), 0);
    EXPECT_EQ(lock.Take(), FileLock::Result::kTaken) << "by this object";
    EXPECT_EQ(other.Take(), FileLock::Result::kHeld);
    EXPECT_EQ(other.HoldersNote(), "note");
    lock.Release();
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(other.Take(), FileLock::Result::kTaken);
}

// The file that was locked is no longer the one with the name.
TEST(FileLock, LocksTheFileThatHasTheName) {
    const TempDir dir;
    const std::string path = dir / "lock";
    FileLock lock(path, "note");
    FileLock other(path, "other");
    hooks::g.before_flock = [&] { fs::remove(path); };
    EXPECT_EQ(lock.Take(), FileLock::Result::kTaken);
    EXPECT_EQ(other.Take(), FileLock::Result::kHeld);
    fs::remove(path);
    WriteFile(path, "");
    lock.Release();
    EXPECT_TRUE(fs::exists(path)) << "another process's file";
}

TEST(FileLock, RefusesWhatIsNotAFileOfThisUser) {
    const TempDir dir;
    WriteFile(dir / "file", "content");
    fs::create_symlink("file", dir / "link");
    fs::create_symlink("missing", dir / "dangling");
    mkfifo((dir / "fifo").c_str(), 0600);
    fs::create_directory(dir / "directory");
    for (const char* const name : {"link", "dangling", "fifo", "directory", "missing/lock"}) {
        EXPECT_EQ(FileLock(dir / name, "note").Take(), FileLock::Result::kUnusable) << name;
    }
    EXPECT_EQ(ReadFile(dir / "file"), "content");
    EXPECT_FALSE(fs::exists(dir / "missing"));
}

TEST(FlushTree, FlushesTheWholeVolume) {
    const TempDir dir;
    EXPECT_EQ(FlushTree(dir.path().c_str()), 0);
    EXPECT_EQ(hooks::g.syncfs, 1);
    EXPECT_EQ(hooks::g.inheritable, 0);
    EXPECT_EQ(FlushTree((dir / "missing").c_str()), -1);
    EXPECT_EQ(errno, ENOENT);
    hooks::Reset();
}
