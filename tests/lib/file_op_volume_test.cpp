// Tests of the file layer over several volumes, which they mount for themselves.
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <sys/vfs.h>

#include "file_op_support.h"

namespace {
constexpr unsigned long kReal = ~0ul;
unsigned long g_volume_type = kReal;
}  // namespace

// Stands in for the system's call, since network and FAT volumes are seldom at hand.
extern "C" int statfs(const char* path, struct statfs* volume) noexcept {
    if (g_volume_type == kReal) {
        return static_cast<int>(syscall(SYS_statfs, path, volume));
    }
    volume->f_type = static_cast<decltype(volume->f_type)>(g_volume_type);
    return access(path, F_OK);
}

namespace {

using FileOpVolume = FileOp;

// Gives the process two volumes, "a" and the small "b", as mounts of its own, so that nothing stays
// mounted whatever happens.
bool MountVolumes() {
    return mkdir("a", 0700) == 0 && mkdir("b", 0700) == 0 && unshare(CLONE_NEWNS) == 0 &&
           mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("a", "a", "tmpfs", 0, nullptr) == 0 &&
           mount("b", "b", "tmpfs", 0, "size=64k") == 0;
}

// Above all, nothing is lost when a move is refused, and no link at the target is followed.
TEST_F(FileOpVolume, RenameAcross) {
    InChild(MountVolumes, [&] {
        for (Text name : {"a/1", "a/2", "a/3", "a/4", "a/tree/sub/x", "b/old", "b/other"}) {
            WriteFile(name, name);
        }
        for (Text name : {"a/link", "a/tree/link", "b/dangling"}) {
            fs::create_symlink("nowhere", name);
        }
        fs::create_symlink("tree", "a/to-dir");
        fs::create_symlink("other", "b/to-other");
        fs::create_symlink("../a/2", "b/to-source");
        fs::create_directory("b/dir");
        for (Text name : {"a/fifo", "a/tree/fifo"}) {
            mkfifo(name, 0600);
            chmod(name, 0666);  // more than the umask lets through
        }
        const Rows<Text, Text, int> rows = {
            {"a/tree", "b/old", -3},   {"a/1", "b/dir", -3},     {"a/link", "b/dir", -3},
            {"a/fifo", "b/dir", -3},   {"a/link", "b/no/x", -3}, {"a/1", "b/old", 0},
            {"a/2", "b/to-source", 0}, {"a/3", "b/to-other", 0}, {"a/4", "b/dangling", 0},
            {"a/link", "b/old", 0},    {"a/fifo", "b/old", 0},   {"a/to-dir", "b/new", 0},
            {"a/tree", "b/tree", 0}};
        for (const auto& [from, to, result] : rows) {
            TestRename(from, to, false, result);
        }
        mount("a", "b/dir", nullptr, MS_BIND, nullptr);
        WriteFile("a/same", "same");
        EXPECT_EQ(FSRename("a/same", "b/dir/same", false), 0);  // one file by two ways
        EXPECT_EQ(ReadFile("a/same"), "same");
        WriteFile("a/over", "over");
        mkfifo("b/hangs", 0600);
        TestRename("a/over", "b/hangs", false, 0);
        EXPECT_EQ(ReadFile("b/other"), "b/other");
        EXPECT_EQ(Content("a/nowhere") + Content("b/nowhere"), "");
        WriteFile("a/tree/sub/x", "new");
        WriteFile("a/tree/sub/y", "y");
        EXPECT_EQ(FSRename(at_ / "a/tree", "b/tree", true), 0);  // the two merge
        EXPECT_EQ(ReadFile("b/tree/sub/x") + ReadFile("b/tree/sub/y"), "newy");
        EXPECT_EQ(Content("a/tree") + Content("b/tree/link"), "link nowhere");
        mknod("a/socket", S_IFSOCK | 0600, 0);
        EXPECT_EQ(FSRename("a/socket", "b/socket", false), 0);
        EXPECT_NE(Content("a/socket"), "");  // stays
    });
}

TEST_F(FileOpVolume, NothingIsLostWhenAVolumeIsFull) {
    InChild(MountVolumes, [&] {
        WriteFile("a/large", std::string(100000, 'x'));
        EXPECT_EQ(FSCopy("a/large", "b/large", true), -2);
        EXPECT_EQ(Logged("CopyFile: write: No space left on device (28)"), 1);
        EXPECT_EQ(fs::file_size("a/large"), 100000u);
        fs::remove("b/large");
        const auto content = [](int i) { return std::string(20000, static_cast<char>('a' + i)); };
        for (int i = 0; i < 6; ++i) {  // the volume has room for three
            WriteFile("a/tree/" + std::to_string(i), content(i));
        }
        EXPECT_EQ(FSRename("a/tree", "b/tree", false), -3);
        EXPECT_TRUE(fs::exists("a/tree") && Entries("b/tree") > 1);
        for (int i = 0; i < 6; ++i) {
            const fs::path name = "tree/" + std::to_string(i);
            EXPECT_TRUE(ReadFile((fs::exists("a" / name) ? "a" : "b") / name) == content(i)) << i;
        }
    });
}

TEST_F(FileOpVolume, KindsOfVolumes) {
    // The last but one is sign-extended.
    const Rows<unsigned long, bool, bool> rows = {
        {0x6969, true, false},      {0x517B, true, false}, {0xFF534D42, true, false},
        {0xFE534D42, true, false},  {0x4D44, false, true}, {0xEF53, false, false},
        {~0xACB2BDul, true, false}, {0, false, false},     {kReal, false, false}};
    for (const auto& [type, network, msdos] : rows) {
        SCOPED_TRACE(type);
        g_volume_type = type;
        EXPECT_EQ(isMountPoint("."), network);
        EXPECT_EQ(IsMSDOS("."), msdos);
        EXPECT_EQ(Logged("file-op("), msdos ? 1 : 0);
        EXPECT_FALSE(isMountPoint("missing") || IsMSDOS("missing"));
        EXPECT_EQ(Errors(), 2);
    }
}

}  // namespace
