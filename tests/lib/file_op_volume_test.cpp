// Tests of the file layer over several volumes, which they mount for themselves.
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "file/file-op.h"
#include "log.h"
#include "platform/files/volume-type.h"
#include "temp_dir.h"

namespace fs = std::filesystem;

namespace {

constexpr int kSkipped = 77;

bool Exists(const std::string& path) {
    return fs::exists(fs::symlink_status(path));
}

// Works in a directory with two volumes, "a" and the small "b", in a child process that has mounts
// of its own, so that nothing stays mounted whatever happens.
class FileOpVolume : public testing::Test {
  protected:
    FileOpVolume() { Logger::Initialize(Logger::TYPE_FILE, at_ / "log", "", 1); }
    ~FileOpVolume() override { Logger::Destroy(); }

    template <class Body>
    void WithVolumes(Body body) noexcept {
        std::fflush(nullptr);
        const pid_t child = fork();
        if (child == 0) {
            if (!Mount()) {
                std::printf("Cannot mount: %s\n", std::strerror(errno));
                std::fflush(nullptr);
                _exit(kSkipped);
            }
            const auto descriptors = Descriptors();
            body();
            EXPECT_EQ(Descriptors(), descriptors);
            std::fflush(nullptr);
            _exit(HasFailure() ? 1 : IsSkipped() ? kSkipped : 0);
        }
        int status = -1;
        waitpid(child, &status, 0);
        if (WIFEXITED(status) && WEXITSTATUS(status) == kSkipped) {
            GTEST_SKIP() << "see the reason above";
        }
        EXPECT_EQ(status, 0);
    }

    bool Mount() {
        for (const char* name : {"a", "b", "fat"}) {
            fs::create_directory(at_ / name);
        }
        fs::current_path(at_.path());
        return unshare(CLONE_NEWNS) == 0 &&
               mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount("a", "a", "tmpfs", 0, nullptr) == 0 &&
               mount("b", "b", "tmpfs", 0, "size=64k") == 0;
    }

    static long Descriptors() { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); }

    std::string Logged() {
        const std::string log = ReadFile(at_ / "log");
        fs::resize_file(at_ / "log", 0);
        return log;
    }

    TempDir at_;
};

TEST_F(FileOpVolume, CopyToAFullVolume) {
    WithVolumes([&] {
        WriteFile("a/large", std::string(100000, 'x'));
        EXPECT_EQ(FSCopy("a/large", "b/large", true), -2);
        EXPECT_NE(Logged().find("CopyFile: write: No space left on device (28)"),
                  std::string::npos);
        EXPECT_EQ(fs::file_size("a/large"), 100000u);
        EXPECT_EQ(FSRename("a/large", "b/large", false), -3);
        EXPECT_EQ(fs::file_size("a/large"), 100000u);
    });
}

TEST_F(FileOpVolume, RenameAcross) {
    WithVolumes([&] {
        for (const char* name :
             {"a/tree/new", "a/tree/sub/same", "a/file", "b/tree/sub/same", "b/tree/sub/kept"}) {
            WriteFile(name, name);
        }
        fs::create_symlink("../nowhere", "a/tree/link");
        fs::create_symlink("old", "b/tree/link");
        fs::create_directory_symlink("tree", "a/to-dir");
        mkfifo("a/tree/fifo", 0640);
        EXPECT_EQ(FSRename("a/file", "b/moved", false), 0);
        EXPECT_EQ(FSRename("a/to-dir", "b/to-dir", false), 0);
        EXPECT_EQ(FSRename(at_ / "a/tree", "b/tree", true), 0);
        EXPECT_TRUE(fs::is_empty("a"));
        EXPECT_EQ(ReadFile("b/moved"), "a/file");
        EXPECT_EQ(fs::read_symlink("b/to-dir"), "tree");
        EXPECT_EQ(ReadFile("b/tree/new"), "a/tree/new");
        EXPECT_EQ(ReadFile("b/tree/sub/same"), "a/tree/sub/same");
        EXPECT_EQ(ReadFile("b/tree/sub/kept"), "b/tree/sub/kept");
        EXPECT_EQ(fs::read_symlink("b/tree/link"), "../nowhere");
        EXPECT_TRUE(fs::is_fifo("b/tree/fifo"));
        EXPECT_EQ(fs::status("b/tree/fifo").permissions(), fs::perms(0640));
    });
}

TEST_F(FileOpVolume, RenameAcrossRefused) {
    WithVolumes([&] {
        WriteFile("a/tree/x", "x");
        WriteFile("b/file", "file");
        fs::create_directories("b/dir/full");
        fs::create_symlink("x", "a/link");
        mknod("a/socket", S_IFSOCK | 0600, 0);
        EXPECT_EQ(FSRename("a/tree", "b/file", false), -3);
        EXPECT_EQ(FSRename("a/tree/x", "b/dir", false), -3);
        EXPECT_EQ(FSRename("a/link", "b/dir", false), -3);
        EXPECT_EQ(FSRename("a/link", "b/missing/x", false), -3);
        EXPECT_EQ(FSRename("a/socket", "b/socket", false), 0);  // stays
        fs::create_directory("b/empty");
        EXPECT_EQ(FSRename("a/link", "b/empty", false), -3);  // EISDIR within a volume
        EXPECT_TRUE(fs::is_directory("b/empty"));
        EXPECT_EQ(ReadFile("a/tree/x") + ReadFile("b/file"), "xfile");
        EXPECT_TRUE(Exists("a/link") && Exists("a/socket") && Exists("b/dir/full"));
    });
}

// The copy follows a link at the target, a rename replaces it.
TEST_F(FileOpVolume, RenameAcrossOntoALinkToTheSource) {
    WithVolumes([&] {
        WriteFile("a/file", "content");
        fs::create_symlink("../a/file", "b/link");
        const int result = FSRename("a/file", "b/link", false);
        EXPECT_EQ(ReadFile(result == 0 ? "b/link" : "a/file"), "content");
    });
}

TEST_F(FileOpVolume, RenameThatFailsHalfWayLosesNothing) {
    WithVolumes([&] {
        const auto content = [](int i) { return std::string(20000, static_cast<char>('a' + i)); };
        for (int i = 0; i < 6; ++i) {  // the volume has room for three
            WriteFile("a/tree/" + std::to_string(i), content(i));
        }
        EXPECT_EQ(FSRename("a/tree", "b/tree", false), -3);
        int moved = 0;
        for (int i = 0; i < 6; ++i) {
            const std::string name = "/tree/" + std::to_string(i);
            moved += Exists("a" + name) ? 0 : 1;
            EXPECT_TRUE(ReadFile((Exists("a" + name) ? "a" : "b") + name) == content(i)) << i;
        }
        EXPECT_TRUE(moved > 0 && moved < 6) << moved;
    });
}

TEST_F(FileOpVolume, KindsOfVolumes) {
    struct {
        unsigned long magic;
        const char* name;
    } const rows[] = {{0x6969, "nfs"},       {0x517B, "smbfs"},     {0xFF534D42, "smbfs"},
                      {0xFE534D42, "smbfs"}, {0x4D44, "msdos"},     {0x01021994, "tmpfs"},
                      {0, "unknown"},        {0x2011BAB0, "exfat"}, {~0xACB2BDul, "smbfs"}};
    for (const auto& row : rows) {  // the last one is sign-extended
        EXPECT_STREQ(VolumeTypeName(row.magic), row.name) << row.magic;
    }
    WithVolumes([&] {
        VolumeInfo info;
        EXPECT_EQ(StatVolume("a", &info), 0);
        EXPECT_STREQ(info.f_fstypename, "tmpfs");
        for (const char* path : {"a", "b", "/", "/proc"}) {
            EXPECT_FALSE(isMountPoint(path) || IsMSDOS(path)) << path;
        }
        EXPECT_EQ(Logged(), "");
        for (bool (*probe)(ustring const&) : {isMountPoint, IsMSDOS}) {
            EXPECT_FALSE(probe("missing"));
            const std::string log = Logged();
            EXPECT_NE(log.find("[ERROR] file-op("), std::string::npos);
            EXPECT_EQ(log.find('\n'), log.size() - 1);  // one line
        }
    });
}

TEST_F(FileOpVolume, Fat) {
    WithVolumes([&] {
        WriteFile("a/image", "");
        fs::resize_file("a/image", 4 << 20);
        if (std::system("PATH=$PATH:/sbin:/usr/sbin; mkfs.vfat a/image >/dev/null && "
                        "mount -t vfat -o loop a/image fat") != 0) {
            GTEST_SKIP() << "no FAT here: no mkfs.vfat, no loop device or no such file system";
        }
        WriteFile("fat/file", "");
        for (int call = 0; call < 2; ++call) {
            EXPECT_TRUE(IsMSDOS("fat/file"));
            const std::string warning = "): Detect a MSDOS platform for path 'fat/file'.\n";
            EXPECT_NE(Logged().find(warning), std::string::npos);
        }
        EXPECT_FALSE(isMountPoint("fat/file"));
    });
}

}  // namespace
