// Tests of the file layer: copies, moves, new directories, removal.

#include <cerrno>
#include <cstring>

#include "file_op_support.h"

namespace {

TEST_F(FileOp, Copy) {
    WriteFile(at_ / "longer", "much longer than the content");
    fs::create_symlink("file", "to-file");
    const struct {
        const char *from, *to;
        bool remove;
        int result;
        std::size_t most_bytes = SIZE_MAX;
        int write_error = 0, flush_error = 0;
    } rows[] = {
        {"file", "longer", false, 0, 9999},
        {"to-file", "2", false, 0, 3},
        {"dir", "3", false, -1},
        {"dangling", "4", true, -1},
        {"file", "longer", true, -2, 9, ENOSPC},
        {"file", "6", true, -2, 9, EDQUOT},
        {"file", "7", true, -1, 9, EIO},
        {"file", "8", true, -1, 9, 0, EIO},
        {"file", "9", true, -2, 9, 0, EDQUOT},
        {"file", "10", false, 0, 9, 0, EINVAL},  // a device cannot be flushed
        {"to-file", "11", true, 0},
    };
    const mode_t former = umask(007);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.to);
        hooks::g.most_bytes = row.most_bytes;
        hooks::g.write_error = row.write_error;
        hooks::g.fsync_error = row.flush_error;
        hooks::g.before_fsync = [&] {
            EXPECT_TRUE(fs::exists(row.from)) << "removed before the flush";
            EXPECT_EQ(hooks::InheritableDescriptors(), 0);
        };
        const int copied = FSCopy(row.from, row.to, row.remove);
        const int flushes = hooks::g.fsyncs;
        hooks::Reset();
        EXPECT_EQ(copied, row.result);
        EXPECT_EQ(flushes, row.from == "dangling"s ? 0 : 1);
        EXPECT_EQ(fs::exists(row.to), flushes == 1) << "a failed copy stays";
        EXPECT_TRUE(row.result != 0 || ReadFile(row.to) == "content");
        EXPECT_EQ(TakeLog().find("[ERROR] CopyFile: write: " + std::string(std::strerror(row.write_error)) + " (" +
                                 std::to_string(row.write_error) + ")\n"),
                  row.write_error != 0 ? 0 : std::string::npos);
    }
    umask(former);
    EXPECT_EQ(Status("2").st_mode, 0100660u);
    EXPECT_FALSE(fs::is_symlink("to-file")) << "the link is the source that goes";
    EXPECT_TRUE(fs::is_symlink("dangling"));
    EXPECT_EQ(ReadFile("file"), "content");
}

// A failed move changes nothing.
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

// A failed move loses nothing, and no move follows a link at the target.
TEST_F(FileOp, RenameAcrossVolumes) {
    const auto mount_volumes = [] {
        return fs::create_directory("a") && fs::create_directory("b") && OwnMounts() &&
               !mount("", "a", "tmpfs", 0, nullptr) && !mount("", "b", "tmpfs", 0, "size=80k");
    };
    InChild(mount_volumes, [&] {
        umask(077);  // a FIFO keeps its mode
        for (Text name : {"a/1", "a/2", "a/3", "a/4", "a/tree/sub/x", "a/tree/.hidden", "b/old"}) {
            WriteFile(name, name);
        }
        for (Text name : {"a/link", "a/tree/link", "b/dangling"}) { fs::create_symlink("no", name); }
        fs::create_symlink("tree", "a/to-dir");
        fs::create_symlink("../a/2", "b/to-source");
        fs::create_directory("b/dir");
        for (Text name : {"a/fifo", "a/tree/fifo", "b/hangs"}) {
            mkfifo(name, 0600);
            chmod(name, 02666);
        }
        const Rows<Text, Text, int> rows = {
            {"a/to-dir", "b/new", 0}, {"a/tree", "b/old", -3},    {"a/1", "b/dir", -3},     {"a/1", "b/old", 0},
            {"a/link", "b/old", 0},   {"a/2", "b/to-source", 0},  {"a/3", "b/dangling", 0}, {"a/4", "b/hangs", 0},
            {"a/tree", "b/tree", 0},  {"a/fifo", "b/new-fifo", 0}};
        for (const auto& [from, to, result] : rows) { TestRename(from, to, false, result); }
        EXPECT_EQ(Content("b/no"), "0");
        WriteFile("a/tree/sub/x", "new");
        EXPECT_EQ(FSRename(at_ / "a/tree", "b/tree", true), 0);  // the trees merge
        EXPECT_EQ(ReadFile("b/tree/sub/x") + ReadFile("b/tree/.hidden"), "newa/tree/.hidden");
        // One object under two mounts stays, and so does a socket.
        mount("a", "b/dir", nullptr, MS_BIND, nullptr);
        WriteFile("a/empty/file", "file");
        mknod("a/socket", S_IFSOCK | 0600, 0);
        const std::string before = Content("a");
        EXPECT_EQ(FSRename("a/empty", "b/dir/empty", false), 0);
        EXPECT_EQ(FSRename("a/socket", "b/socket", false), 0);
        EXPECT_EQ(Content("a"), before);
        EXPECT_EQ(FSRemove("a", false), -3);  // a mount point
        EXPECT_EQ(OpenDescriptors(), descriptors_);
    });
}

TEST_F(FileOp, MakeDirectories) {
    EXPECT_EQ(FSMKDir("a/b", false), -2);
    // FSMKDir without a root, FSMKDirFromRoot with one.
    const Rows<Text, std::string, int> made = {{"", "", -1},      {"dir", "", 0},
                                               {"a/b/", "", 0},   {"empty/a//c/", "empty", 0},
                                               {"dir", "dir", 0}, {"no/a", "no", -1}};
    for (const auto& [path, root, result] : made) {
        SCOPED_TRACE(path);
        EXPECT_EQ(root.empty() ? FSMKDir(path, true) : FSMKDirFromRoot(path, root), result);
        EXPECT_EQ(fs::is_directory(path), result == 0);
    }
    // The last column is the number of bytes after `end`.
    const Rows<Text, bool, int, int> rows = {
        {"c/d", false, 0, 0},     {"e/f/", false, 0, 1},           {"g//h", false, 0, 0},
        {"/", false, 0, 0},       {"file/x/y", false, ENOTDIR, 4}, {"file", false, EEXIST, 0},
        {"link/x/y", true, 0, 0}, {"dangling/x", true, EEXIST, 2}, {"file/x", true, 0, 0}};
    for (const auto& [path, replace, error, after] : rows) {
        SCOPED_TRACE(path);
        const ustring text(path);
        char* end = nullptr;
        EXPECT_EQ(FSMKDirP(text, &end, replace, 0xFFFF) == 0 ? 0 : errno, error);
        EXPECT_EQ(end, text.c_str() + text.length() - after);
        EXPECT_EQ(fs::is_directory(path), error == 0);
    }
    EXPECT_TRUE(fs::is_symlink("link"));
    const mode_t former = umask(027);
    EXPECT_EQ(FSMKDir("masked", false), 0);
    EXPECT_EQ(FSMKDirP("masked/x", nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(FSMKDirP("exact/x", nullptr, false, 0773), 0);
    EXPECT_EQ(FSMKDirP("socket/x", nullptr, false, 0773), -1);
    EXPECT_EQ(umask(former), 027u);
    for (Text name : {"masked", "masked/x"}) { EXPECT_EQ(Status(name).st_mode, 040750u) << name; }
    for (Text name : {"exact", "exact/x"}) { EXPECT_EQ(Status(name).st_mode, 040773u) << name; }
}

// With and without log lines for each entry.
TEST_F(FileOp, Remove) {
    const Rows<Text, int> rows = {{"", -1},           {"missing", 0},  {"file/x", -1}, {"link", 0},
                                  {"empty/tree/", 0}, {"dangling", 0}, {"empty", -3}};
    for (const int level : {7, 4}) {
        LogUpTo(level);
        for (const std::string& name : {"empty/tree/.hidden"s, "empty/tree/a/" + kDecomposed, "empty/" + kNotUtf8}) {
            WriteFile(at_ / name, "");
        }
        fs::create_symlink("../../dir", "empty/tree/out");
        fs::create_symlink("..", "empty/tree/a/up");
        for (const auto& [path, result] : rows) {
            EXPECT_EQ(FSRemove(path, true), result) << path;
            EXPECT_TRUE(result != 0 || Content(path) == "0") << path;
        }
        EXPECT_TRUE(fs::exists("dir/inner"));
        EXPECT_TRUE(fs::exists("empty/" + kNotUtf8));
        EXPECT_EQ(TakeLog().find("empty/tree/.hidden") != std::string::npos, level == 7);
    }
}

// A tree that is deeper than a process may have open files, with two branches at each level.
TEST_F(FileOp, RemovesATreeOfAnyDepth) {
    InChild([] { return true; },
            [] {
                std::string path = "deep";
                for (int level = 0; level < 1500; ++level, path += "/d") {
                    fs::create_directory(path);
                    fs::create_directory(path + "/e");
                }
                const rlimit files = {32, 32};
                setrlimit(RLIMIT_NOFILE, &files);
                EXPECT_EQ(FSRemove("deep", false), 0);
                EXPECT_FALSE(fs::exists("deep"));
            });
}

// Another process replaces a directory with a link out of the tree during its removal.
TEST_F(FileOp, RemovalDoesNotLeaveTheTree) {
    fs::create_directories("empty/swapped/sub");
    hooks::g.before_openat = [] {
        EXPECT_EQ(hooks::InheritableDescriptors(), 0);
        fs::rename("empty/swapped", "elsewhere");
        fs::create_symlink("../dir", "empty/swapped");
    };
    EXPECT_EQ(FSRemove("empty", false), -3);
    EXPECT_TRUE(fs::exists("dir/inner"));
    EXPECT_TRUE(fs::exists("elsewhere/sub"));
    // Or it moves a directory that is being emptied, so that ".." changes.
    fs::create_directories("tree/a/b/c");
    fs::create_directory("other");
    WriteFile(at_ / "other/b", "");
    hooks::g.openat_calls_before = 3;
    hooks::g.before_openat = [] {
        fs::remove("other/b");
        fs::rename("tree/a/b", "other/b");
    };
    EXPECT_EQ(FSRemove("tree", false), -3);
    EXPECT_TRUE(fs::exists("other/b"));
}

TEST_F(FileOp, TemporaryNames) {
    // The second is the longest possible directory.
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
