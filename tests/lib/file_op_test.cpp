// Tests of the file layer on one volume: the probes, the operations and the directory cursor.
#include <fcntl.h>
#include <grp.h>

#include <cerrno>
#include <map>

#include "file_op_support.h"

namespace {

const std::string kComposed = "caf\xc3\xa9", kDecomposed = "cafe\xcc\x81", kNotUtf8 = "caf\xe9";

struct stat Status(const std::string& path) {
    struct stat status = {};
    EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
    return status;
}

TEST_F(FileOp, TextsAndComparisons) {
    const Rows<Text, Text, Text> paths = {{"", "/", ""},    {"a", "/", "a"},   {"/", "/", ""},
                                          {"/a", "/", "a"}, {"a/b", "a", "b"}, {"/a/", "/a", ""}};
    for (const auto& [path, parent, base] : paths) {
        EXPECT_EQ(FSParentPath(path) + "|" + FSBaseName(path), ustring(parent) + "|" + base);
    }
    for (Text child : {"/a", "/a/b", "/ab", "/b/c", "/"}) {
        EXPECT_EQ(FSIsParentFolder("/a", child), child[1] == 'a' && child[2] != 'b') << child;
    }
    EXPECT_FALSE(FSIsParentFolder("/a/", "/a/b"));
    const _FILE_INFO_tag info{"p", "n", 1, 2, 3, true, 4, 5, 6, 7};
    EXPECT_TRUE(info == (_FILE_INFO_tag{"p", "n", 1, 2, 3, true, 0, 0, 0, 0}));
    EXPECT_TRUE(info != (_FILE_INFO_tag{"p", "n", 1, 2, 0, true, 4, 5, 6, 7}));
    EXPECT_TRUE(info != (_FILE_INFO_tag{"p", "n", 1, 0, 3, true, 4, 5, 6, 7}));
    EXPECT_TRUE(FSTimeEqual(5, 5) && !FSTimeEqual(5, 6));
}

TEST_F(FileOp, ProbesThatFind) {
    // The last two are names that a log line, printf or /proc could take for something else.
    const std::string in_dir = "dir/" + kComposed, odd = "%n%s\n", gone = "x (deleted)";
    for (const std::string& name : {kDecomposed, in_dir, odd, gone}) {
        WriteFile(at_ / name, "odd");
    }
    const Rows<std::string, std::string, int> rows = {
        {"file", "file", FS_TYPE_FILE}, {"./dir//../file", "file", FS_TYPE_FILE},
        {"dir", "dir", FS_TYPE_DIR},    {"link/inner", "dir/inner", FS_TYPE_FILE},
        {"link", "link", FS_TYPE_LINK}, {"dangling", "dangling", FS_TYPE_LINK},
        {"link/", "dir", FS_TYPE_DIR},  {"fifo", "fifo", FS_TYPE_FIFO},
        {in_dir, in_dir, FS_TYPE_FILE}, {"socket", "socket", FS_TYPE_SOCKET},
        {odd, odd, FS_TYPE_FILE},       {kDecomposed, kComposed, FS_TYPE_FILE},
        {gone, gone, FS_TYPE_FILE}};
    for (const auto& [path, real, type] : rows) {
        SCOPED_TRACE(path);
        const struct stat status = Status(path);
        const auto dev = static_cast<std::int32_t>(status.st_dev);
        const _FILE_INFO_tag expected{
            at_ / real, FSBaseName(real), type, status.st_mtime, status.st_size, true, 0, 0, 0, 0};
        _FILE_INFO_tag info;
        EXPECT_EQ(FSStat(path, info, false), 0);
        EXPECT_TRUE(info == expected);
        EXPECT_EQ(std::tie(info.uid, info.gid, info.mode, info.dev),
                  std::tie(status.st_uid, status.st_gid, status.st_mode, dev));
        EXPECT_FALSE(IsFileExist(path, true));
        EXPECT_EQ(IsFileExist(at_ / path, true), path == real || path == kDecomposed);
        EXPECT_EQ(Errors(), 0);
        std::error_code error;
        const std::string followed = fs::canonical(path, error);
        ustring text(path);
        EXPECT_EQ(FSGetRealPath(text), error ? -1 : 0);
        EXPECT_EQ(text, error ? path : followed);  // without a real path the text stays
    }
    EXPECT_TRUE(IsFileExist(at_ / "dir/" + kDecomposed, true));
}

TEST_F(FileOp, ProbesThatFindNothing) {
    WriteFile(at_ / kNotUtf8, "");
    const Rows<std::string, int, int> rows = {{"missing", 0, 0}, {"missing\xff", 0, 0},
                                              {"", 0, 0},        {"file/below", -1, 0},
                                              {kNotUtf8, -1, 1}, {std::string(256, 'a'), -1, 0}};
    for (const auto& [path, result, errors] : rows) {
        SCOPED_TRACE(path);
        _FILE_INFO_tag info{"", "", 99, 0, 0, true, 0, 0, 0, 0}, again = info;
        EXPECT_EQ(FSStat(path, info, false), path.empty() ? -1 : 0);
        EXPECT_EQ(info.exists, path.empty());
        EXPECT_FALSE(IsFileExist(path, false));
        Errors();
        EXPECT_EQ(GetFileInfo(path, again), result);
        EXPECT_EQ(again.path, result == 0 || path == kNotUtf8 ? path : "");
        EXPECT_EQ(Errors(), errors);
    }
}

TEST_F(FileOp, WithoutRights) {
    for (Text name : {"closed/file", "secret", "source"}) {
        WriteFile(at_ / name, std::string(20000, 's'));
    }
    chmod("closed", 0);
    chmod("secret", 0);
    chmod("empty", 0777);
    chmod(at_.path().c_str(), 0555);
    const auto become_nobody = [] {
        return geteuid() != 0 || !(setgroups(0, nullptr) || setgid(65534) || setuid(65534));
    };
    InChild(become_nobody, [] {
        const Rows<Text, int, bool> rows = {{"file", R_OK, false},    {"file", X_OK, true},
                                            {"secret", F_OK, false},  {"secret", W_OK, true},
                                            {"missing", R_OK, false}, {"closed/file", F_OK, true}};
        for (const auto& [name, mode, locked] : rows) {
            EXPECT_EQ(isFileLocked(name, mode), locked) << name;
            EXPECT_EQ(hasFilePermission(name, mode), !locked) << name;
        }
        EXPECT_EQ(FSRemove("closed", false), 0);  // what cannot be opened stays
        EXPECT_EQ(FSRemove("source", false), -3);
        EXPECT_EQ(FSCopy("source", "empty/copy", true), -1);
        EXPECT_TRUE(ReadFile("empty/copy") == ReadFile("source"));
    });
    chmod(at_.path().c_str(), 0755);
    chmod("closed", 0700);
    EXPECT_EQ(Status("source").st_size + Status("closed/file").st_size, 40000);
}

TEST_F(FileOp, Copy) {
    std::string large((32 << 20) + 4099, 'a');  // more than is copied at once
    large[32 << 20] = large.back() = 'b';
    WriteFile(at_ / "large", large);
    WriteFile(at_ / "longer", "much longer than the content");
    fs::create_symlink("file", "to-file");
    const Rows<Text, Text, int> rows = {
        {"large", "2", 0},     {"file", "longer", 0}, {"to-file", "3", 0},      {"dir", "4", -1},
        {"dangling", "5", -1}, {"file", "dir", -1},   {"file", "missing/x", -1}};
    for (const auto& [from, to, result] : rows) {
        SCOPED_TRACE(from);
        EXPECT_EQ(FSCopy(from, to, false), result);
        EXPECT_TRUE(result != 0 || ReadFile(to) == ReadFile(from));
        EXPECT_EQ(Errors(), result == 0 ? 0 : 1);
    }
    EXPECT_EQ(FSCopy("to-file", "6", true), 0);
    // The link that was named goes, not its target.
    EXPECT_EQ(Content("to-file") + ReadFile("file") + ReadFile("6"), "contentcontent");
}

TEST_F(FileOp, RenameWithinAVolume) {
    for (const std::string& name : {std::string("full/x"), kNotUtf8, kDecomposed}) {
        WriteFile(at_ / name, name);
    }
    const std::string real = at_ / kDecomposed;
    const Rows<std::string, std::string, bool, int> rows = {
        {"", "x", false, -1},        {"file", "", false, -1},    {"missing", "x", false, -2},
        {kNotUtf8, "x", false, -2},  {"file", "x", true, -2},    {"dir", "full", false, -3},
        {"dir", "dir/x", false, -3}, {"file", "dir", false, -3}, {"dangling", "link", false, 0},
        {"dir", "empty", false, 0},  {real, "file", true, 0}};
    for (const auto& [from, to, exact, result] : rows) {
        TestRename(from, to, exact, result);
    }
    TestRename("file", std::string(256, 'a'), false, -100);
}

TEST_F(FileOp, MakeDirectory) {
    EXPECT_EQ(FSMKDir("a/b", false), -2);
    // Without a root it is FSMKDir's.
    const Rows<Text, std::string, int, int> rows = {{"", "", -1, 0},
                                                    {"dir", "", 0, 0},
                                                    {"file/x", "", -1, 1},
                                                    {"file", "", -1, 1},
                                                    {"link", "", -1, 1},
                                                    {"a/b/", "", 0, 0},
                                                    {"empty/a//c/", "empty", 0, 0},
                                                    {"emptyx/a", "empty", -1, 1},
                                                    {"empty", "empty/a", -1, 1},
                                                    {"missing/a", "missing", -1, 0}};
    for (const auto& [path, root, result, errors] : rows) {
        SCOPED_TRACE(path);
        EXPECT_EQ(root.empty() ? FSMKDir(path, true) : FSMKDirFromRoot(path, root), result);
        EXPECT_TRUE(result != 0 || fs::is_directory(path));
        EXPECT_EQ(Errors(), errors);
    }
    EXPECT_EQ(Content("emptyx") + Content("missing"), "");
}

TEST_F(FileOp, MakeDirectoriesByComponent) {
    // The last column is how many bytes lie behind the component that `end` shall point at.
    const Rows<Text, bool, int, int> rows = {
        {"a/b", false, 0, 0},     {"c/d/", false, 0, 1},           {"e//f", false, 0, 0},
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
    EXPECT_EQ(FSMKDirP("masked/x", nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(FSMKDirP("exact/x", nullptr, false, 0773), 0);
    EXPECT_EQ(FSMKDirP("socket/x", nullptr, false, 0773), -1);
    EXPECT_EQ(umask(former), 027u);
    EXPECT_TRUE(Status("masked").st_mode == 040750 && Status("masked/x").st_mode == 040750);
    EXPECT_TRUE(Status("exact").st_mode == 040773 && Status("exact/x").st_mode == 040773);
}

TEST_F(FileOp, Remove) {
    for (const std::string& name : {std::string("tree/a/b"), "tree/" + kDecomposed, kNotUtf8}) {
        WriteFile(at_ / "empty/" + name, "");
    }
    std::string deep = "empty/tree";
    for (int level = 0; level < 200; ++level) {
        deep += "/deeper";
    }
    fs::create_directories(deep);
    fs::create_symlink("../../dir", "empty/tree/out");
    fs::create_symlink("..", "empty/tree/a/up");
    const Rows<Text, int> rows = {{"", -1},    {"missing", 0},     {"file/x", -1},
                                  {"link", 0}, {"empty/tree/", 0}, {"dangling", 0},
                                  {"fifo", 0}, {"socket", 0},      {"empty", -3}};
    for (const auto& [path, result] : rows) {
        SCOPED_TRACE(path);
        EXPECT_EQ(FSRemove(path, true), result);
        EXPECT_TRUE(result != 0 || Content(path).empty());
    }
    EXPECT_EQ(ReadFile("dir/inner"), "inner");  // no link was followed
    EXPECT_EQ(Entries("empty"), 1);             // what has no UTF-8 name
}

TEST_F(FileOp, TemporaryNames) {
    // The longest directory that leaves room for the name, and one byte more.
    const std::string longest = "empty" + std::string(4083, '/');
    const mode_t former = umask(077);
    ustring out("before");
    for (const std::string& dir : {longest + "/", longest + "/XXXXXX", std::string("missing")}) {
        EXPECT_EQ(FSMktemp(dir, out), -1);
    }
    EXPECT_EQ(out, "before");
    for (const std::string& dir : {longest, at_ / "empty"}) {
        EXPECT_EQ(FSMktemp(dir, out), 0);
        EXPECT_EQ(FSParentPath(out), dir);
        EXPECT_EQ(Status(out.c_str()).st_mode, S_IFREG | 0644u);
    }
    umask(former);
    EXPECT_EQ(Entries("empty"), 2);
    EXPECT_EQ(FSCreateTempPath("dir", out), 0);
    EXPECT_EQ(FSParentPath(out), "dir");
    EXPECT_EQ(Entries("dir"), 1);
}

std::map<std::string, DIR_ENTRY> ReadAll(const std::string& path, int flags) {
    std::map<std::string, DIR_ENTRY> entries;
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    EXPECT_EQ(FSOpenDir(path, flags, handle), 0);
    int result = 0;
    while (errno = EIO, (result = FSReadDir(handle, entry)) > 0) {  // a stale EIO
        EXPECT_TRUE(entries.emplace(entry.name.c_str(), entry).second) << entry.name;
    }
    EXPECT_EQ(result, 0);
    FSCloseDir(handle);
    EXPECT_EQ(handle.dirp, nullptr);
    return entries;
}

TEST_F(FileOp, ReadDirectory) {
    WriteFile(at_ / kDecomposed, "12345");
    fs::create_symlink(at_.path(), "dir/way");
    const Rows<std::string, int> rows = {{at_.path(), 2}, {at_.path(), 1}, {at_ / "dir/way", 1}};
    for (const auto& [path, flags] : rows) {
        SCOPED_TRACE(path + " " + std::to_string(flags));
        const auto entries = ReadAll(path, flags);
        EXPECT_EQ(entries.size(), Entries(path) + 2u);
        for (const auto& [name, entry] : entries) {
            const bool has = flags == 1 && path == at_.path() && name[0] != '.';
            _FILE_INFO_tag info;
            EXPECT_EQ(GetFileInfo(name, info), 0);
            EXPECT_EQ(entry.type, info.type) << name;
            EXPECT_EQ(entry.size, has ? info.size : 0) << name;
            EXPECT_EQ(entry.mtime, has ? info.mtime : 0) << name;
        }
    }
    EXPECT_EQ(ReadAll("/dev", 0)["null"].type, FS_TYPE_DEVICE);
    Errors();
    DIR_HANDLE handle;
    EXPECT_EQ(FSOpenDir("file", 1, handle), -1);
    EXPECT_EQ(handle.dirp, nullptr);
    EXPECT_EQ(FSOpenDir("dir", 0, handle), 0);
    // A stream whose descriptor is now a file's fails at the first read.
    const int file = open("file", O_RDONLY | O_CLOEXEC);
    dup2(file, dirfd(handle.dirp));
    close(file);
    DIR_ENTRY entry;
    EXPECT_EQ(FSReadDir(handle, entry), -1);
    EXPECT_EQ(Errors(), 2);
    FSCloseDir(handle);
}

TEST_F(FileOp, Links) {
    const std::string longest(1023, 'x');
    ustring out;
    for (const std::string& text : {kNotUtf8, longest, longest + "x"}) {
        const bool fits = text.length() < 1024;
        EXPECT_EQ(FSCreateSymbolicLink(text, "new"), 0);
        EXPECT_EQ(FSReadSymbolicLink("new", out), fits ? 0 : -1);
        EXPECT_EQ(out, fits ? text : longest);
        fs::remove("new");
    }
    EXPECT_EQ(FSReadSymbolicLink("file", out), -1);
    EXPECT_EQ(FSCreateSymbolicLink("x", "dangling"), -1);
    EXPECT_EQ(FSChown("missing", 1, 1), -1);
    EXPECT_EQ(FSUTime("missing", 1, 1), -1);
    EXPECT_EQ(Errors(), 4);
    // Only root gives a file away.
    const unsigned uid = geteuid() == 0 ? 65533 : geteuid();
    const struct stat before = Status("dir");
    EXPECT_EQ(FSUTime("link", 1000000001, -5), 0);
    EXPECT_EQ(FSChown("link", uid, getegid()), 0);
    const struct stat link = Status("link"), after = Status("dir");
    EXPECT_TRUE(link.st_atime == 1000000001 && link.st_mtime == -5);
    EXPECT_TRUE(link.st_uid == uid && link.st_gid == getegid());
    EXPECT_TRUE(after.st_mtime == before.st_mtime && after.st_uid == before.st_uid);
}

}  // namespace
