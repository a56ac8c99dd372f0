// Tests of what the file layer changes: copies, moves, directories made and trees removed.
#include <fcntl.h>
#include <sys/syscall.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>

#include "file_op_support.h"

namespace {
std::size_t g_most = SIZE_MAX;  // bytes that one call reads, and more than one writes
int g_write_error = 0;
bool g_leave_holes = false;  // where zeros are written
std::int64_t g_synced = 0;
}  // namespace

extern "C" ssize_t read(int file, void* bytes, size_t size) {
    return syscall(SYS_read, file, bytes, std::min(size, g_most));
}

extern "C" ssize_t write(int file, const void* bytes, size_t size) {
    const char* const text = static_cast<const char*>(bytes);
    if (g_leave_holes && std::all_of(text, text + size, [](char c) { return c == 0; })) {
        return lseek(file, static_cast<off_t>(size), SEEK_CUR) < 0 ? -1 : static_cast<ssize_t>(size);
    }
    errno = g_write_error;
    return errno != 0 ? -1 : syscall(SYS_write, file, bytes, std::min(size, g_most / 2));
}

extern "C" int fsync(int file) {
    struct stat status = {};
    g_synced += fstat(file, &status) == 0 ? status.st_size : 0;
    return 0;
}

namespace {

TEST_F(FileOp, Copy) {
    WriteFile(at_ / "longer", "much longer than the content");
    fs::create_symlink("file", "to-file");
    const Rows<std::size_t, int, Text, Text, bool, int> rows = {
        {9999, 0, "file", "longer", false, 0},   {3, 0, "to-file", "2", false, 0},
        {2, 0, "dir", "3", false, -1},           {9, 0, "dangling", "4", true, -1},
        {9, ENOSPC, "file", "longer", true, -2}, {9, EDQUOT, "file", "6", true, -2},
        {9, EIO, "file", "7", true, -1},         {9, 0, "to-file", "8", true, 0}};
    const mode_t former = umask(027);
    for (const auto& [most, error, from, to, remove, result] : rows) {
        SCOPED_TRACE(to);
        g_most = most, g_write_error = error;
        const int copied = FSCopy(from, to, remove);
        g_most = SIZE_MAX, g_write_error = 0;
        EXPECT_EQ(copied, result);
        EXPECT_TRUE(result != 0 || ReadFile(to) == "content");
        EXPECT_EQ(TakeLog().find("[ERROR] CopyFile: write: " + std::string(std::strerror(error)) + " (" +
                                 std::to_string(error) + ")\n"),
                  error != 0 ? 0 : std::string::npos);
    }
    umask(former);
    EXPECT_EQ(g_synced, 3 * 7);  // each when it was complete
    EXPECT_EQ(Status("2").st_mode, 0100640u);
    // The link that was named is gone, not its target.
    EXPECT_TRUE(!fs::is_symlink("to-file") && fs::is_symlink("dangling"));
    EXPECT_EQ(ReadFile("file"), "content");
}

// A move that is refused changes nothing on either side.
void TestRename(const std::string& from, const std::string& to, bool exact, int result) {
    SCOPED_TRACE(from + " to " + to);
    const std::string source = Content(from), target = Content(to);
    EXPECT_EQ(FSRename(from, to, exact), result);
    EXPECT_EQ(Content(from), result == 0 ? "0" : source);
    EXPECT_EQ(Content(to), result == 0 ? source : target);
}

TEST_F(FileOp, RenameWithinAVolume) {
    for (const std::string& name : {"full/x"s, kNotUtf8, kDecomposed}) { WriteFile(at_ / name, name); }
    const Rows<std::string, std::string, bool, int> rows = {{"", "x", false, -1},
                                                            {"file", "", false, -1},
                                                            {"missing", "x", false, -2},
                                                            {kNotUtf8, "x", false, -2},
                                                            {"file", "x", true, -2},
                                                            {"dir", "full", false, -3},
                                                            {"dir", "dir/x", false, -3},
                                                            {"file", "dir", false, -3},
                                                            {"dangling", "link", false, 0},
                                                            {"dir", "empty", false, 0},
                                                            {at_ / kDecomposed, "file", true, 0},
                                                            {"file", std::string(256, 'a'), false, -100}};
    for (const auto& [from, to, exact, result] : rows) { TestRename(from, to, exact, result); }
}

// Above all, nothing is lost when a move is refused, and no link at the target is followed.
TEST_F(FileOp, RenameAcrossVolumes) {
    const auto mount_volumes = [] {
        return fs::create_directory("a") && fs::create_directory("b") && OwnMounts() &&
               !mount("", "a", "tmpfs", 0, nullptr) && !mount("", "b", "tmpfs", 0, "size=80k");
    };
    InChild(mount_volumes, [&] {
        umask(077);  // for the FIFOs, whose mode is not that of a new one
        for (Text name : {"a/1", "a/2", "a/3", "a/4", "a/tree/sub/x", "a/tree/.hidden", "b/old"}) {
            WriteFile(name, name);
        }
        const Rows<Text, Text> links = {{"no", "a/link"},
                                        {"no", "a/tree/link"},
                                        {"no", "b/dangling"},
                                        {"tree", "a/to-dir"},
                                        {"../a/2", "b/to-source"}};
        for (const auto& [text, name] : links) { fs::create_symlink(text, name); }
        fs::create_directory("b/dir");
        for (Text name : {"a/fifo", "a/tree/fifo", "b/hangs"}) {
            mkfifo(name, 0600);
            chmod(name, 0666);
        }
        const Rows<Text, Text, int> rows = {
            {"a/to-dir", "b/new", 0}, {"a/tree", "b/old", -3},  {"a/1", "b/dir", -3},   {"a/link", "b/dir", -3},
            {"a/fifo", "b/dir", -3},  {"a/link", "b/no/x", -3}, {"a/1", "b/old", 0},    {"a/2", "b/to-source", 0},
            {"a/3", "b/dangling", 0}, {"a/link", "b/old", 0},   {"a/fifo", "b/old", 0}, {"a/4", "b/hangs", 0},
            {"a/tree", "b/tree", 0}};
        for (const auto& [from, to, result] : rows) { TestRename(from, to, false, result); }
        EXPECT_EQ(Content("a/no") + Content("b/no"), "00");
        WriteFile("a/tree/sub/x", "new");
        WriteFile("a/tree/sub/y", "y");
        EXPECT_EQ(FSRename(at_ / "a/tree", "b/tree", true), 0);  // the two merge
        EXPECT_EQ(ReadFile("b/tree/sub/x") + ReadFile("b/tree/sub/y"), "newy");
        EXPECT_EQ(Content("a/tree") + Content("b/tree/link"), "041471no");
        // What stays: what is one object by way of two mounts, and a socket.
        mount("a", "b/dir", nullptr, MS_BIND, nullptr);
        WriteFile("a/file", "file");
        fs::create_symlink("file", "a/link");
        mkfifo("a/fifo", 0600);
        fs::create_directory("a/empty");
        mknod("a/socket", S_IFSOCK | 0600, 0);
        const std::string before = Content("a");
        for (const std::string name : {"file", "link", "fifo", "empty"}) {
            EXPECT_EQ(FSRename("a/" + name, "b/dir/" + name, false), 0);
        }
        EXPECT_EQ(FSRename("a/socket", "b/socket", false), 0);
        EXPECT_EQ(Content("a"), before);
        TestRename("a/link", "b/dir/file", false, 0);
        // What the volume has no room for stays, and it has room for three.
        const auto content = [](int i) { return std::string(20000, static_cast<char>('a' + i)); };
        for (int i = 0; i < 6; ++i) { WriteFile("a/full/" + std::to_string(i), content(i)); }
        EXPECT_EQ(FSRename("a/full", "b/full", false), -3);
        EXPECT_FALSE(fs::is_empty("b/full"));
        for (int i = 0; i < 6; ++i) {
            const fs::path name = "full/" + std::to_string(i);
            EXPECT_TRUE(ReadFile((fs::exists("a" / name) ? "a" : "b") / name) == content(i)) << i;
        }
        EXPECT_EQ(OpenDescriptors(), descriptors_);
    });
}

// Sizes, times and inode numbers that take more than 32 bits, whatever the processor has.
TEST_F(FileOp, MovesAndCountsLargeFiles) {
    constexpr std::int64_t kSize = (4LL << 30) + 3, kTime = 5000000000;
    const timespec times[] = {{kTime, 0}, {kTime, 0}};
    const auto mount_volumes = [&] {
        fs::create_directory("a");
        if (!OwnMounts() || mount("", "dir", "tmpfs", 0, nullptr) || mount("", "empty", "tmpfs", 0, nullptr)) {
            return false;
        }
        std::ofstream("dir/large").seekp(kSize - 3) << "end";
        utimensat(AT_FDCWD, "dir/large", times, 0);
        fs::create_directories("empty/upper");
        fs::create_directories("empty/work");
        // The numbers of what is in the lower directory have high bits.
        return !mount("", "a", "overlay", 0, "lowerdir=dir,upperdir=empty/upper,workdir=empty/work,xino=on");
    };
    InChild(mount_volumes, [&] {
        EXPECT_GT(Status("a/large").st_ino, UINT32_MAX);
        _FILE_INFO_tag info;
        EXPECT_EQ(GetFileInfo("a/large", info), 0);
        EXPECT_EQ(info.size, kSize);
        EXPECT_EQ(info.mtime, std::min<std::int64_t>(kTime, LONG_MAX));
        g_leave_holes = true;
        EXPECT_EQ(FSRename("a/large", "empty/large", false), 0);
        std::ifstream file("empty/large");
        std::string end;
        file.seekg(kSize - 3) >> end;
        EXPECT_EQ(end, "end");
        EXPECT_EQ(fs::file_size("empty/large"), kSize);
        EXPECT_EQ(FSRemove("a", false), -3);  // it is mounted, but empty now
        EXPECT_TRUE(fs::is_empty("a"));
    });
}

TEST_F(FileOp, MakeDirectories) {
    EXPECT_EQ(FSMKDir("a/b", false), -2);
    // Without a root it is FSMKDir's.
    const Rows<Text, std::string, int> made = {{"", "", -1},      {"dir", "", 0},
                                               {"a/b/", "", 0},   {"empty/a//c/", "empty", 0},
                                               {"dir", "dir", 0}, {"no/a", "no", -1}};
    for (const auto& [path, root, result] : made) {
        SCOPED_TRACE(path);
        EXPECT_EQ(root.empty() ? FSMKDir(path, true) : FSMKDirFromRoot(path, root), result);
        EXPECT_EQ(fs::is_directory(path), result == 0);
    }
    // The last column is how many bytes lie behind the component that `end` shall point at.
    const Rows<Text, bool, int, int> rows = {
        {"c/d", false, 0, 0},     {"e/f/", false, 0, 1},           {"g//h", false, 0, 0},
        {"/", false, 0, 0},       {"file/x/y", false, ENOTDIR, 4}, {"file", false, EEXIST, 0},
        {"link/x/y", true, 0, 0}, {"dangling/x", true, EEXIST, 2}, {"file/x", true, 0, 0}};
    for (const auto& [path, replace, error, behind] : rows) {
        SCOPED_TRACE(path);
        const ustring text(path);
        char* end = nullptr;
        EXPECT_EQ(FSMKDirP(text, &end, replace, 0xFFFF) == 0 ? 0 : errno, error);
        EXPECT_EQ(end, text.c_str() + text.length() - behind);
        EXPECT_EQ(fs::is_directory(path), error == 0);
    }
    EXPECT_TRUE(fs::is_symlink("link"));
    errno = 0;
    EXPECT_TRUE(FSMKDirP("", nullptr, false, 0xFFFF) == -1 && errno == ENOENT);
    const mode_t former = umask(027);
    EXPECT_EQ(FSMKDir("masked", false) + FSMKDirP("masked/x", nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(FSMKDirP("exact/x", nullptr, false, 0773), 0);
    EXPECT_EQ(FSMKDirP("socket/x", nullptr, false, 0773), -1);
    EXPECT_EQ(umask(former), 027u);
    EXPECT_TRUE(Status("masked").st_mode == 040750 && Status("masked/x").st_mode == 040750);
    EXPECT_TRUE(Status("exact").st_mode == 040773 && Status("exact/x").st_mode == 040773);
}

TEST_F(FileOp, Remove) {
    std::string deep = "empty/tree/.hidden";
    for (int level = 0; level < 200; ++level) { deep += "/deeper"; }
    const Rows<Text, int> rows = {{"", -1},        {"missing", 0}, {"file/x", -1}, {"link", 0},  {"empty/tree/", 0},
                                  {"dangling", 0}, {"fifo", 0},    {"socket", 0},  {"empty", -3}};
    // When all is logged each entry is looked at first.
    for (const int level : {7, 4}) {
        LogUpTo(level);
        for (const std::string& name : {deep, "empty/tree/a/" + kDecomposed, "empty/" + kNotUtf8}) {
            WriteFile(at_ / name, "");
        }
        fs::create_symlink("../../dir", "empty/tree/out");
        fs::create_symlink("..", "empty/tree/a/up");
        for (const auto& [path, result] : rows) {
            EXPECT_EQ(FSRemove(path, true), result) << path;
            EXPECT_TRUE(result != 0 || Content(path) == "0") << path;
        }
        EXPECT_TRUE(fs::exists("dir/inner") && fs::exists("empty/" + kNotUtf8));
        EXPECT_EQ(TakeLog().find("empty/tree/.hidden") != std::string::npos, level == 7);
    }
}

TEST_F(FileOp, TemporaryNames) {
    // The second is the longest that leaves room for the name.
    const mode_t former = umask(077);
    ustring out;
    for (const std::string& dir : {at_ / "empty", "empty" + std::string(4083, '/')}) {
        EXPECT_EQ(FSMktemp(dir, out), 0);
        EXPECT_EQ(FSParentPath(out), dir);
        EXPECT_EQ(Status(out.c_str()).st_mode, S_IFREG | 0644u);
    }
    umask(former);
    EXPECT_EQ(FSMktemp("missing", out), -1);
    EXPECT_EQ(FSCreateTempPath("dir", out), 0);
    EXPECT_EQ(FSParentPath(out), "dir");
    EXPECT_EQ(Content(out.c_str()), "0");
}

}  // namespace
