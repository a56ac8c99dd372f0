// Tests of the file layer: probes, directory entries, links, volumes, and messages.

#include <fcntl.h>

#include <cerrno>
#include <cstdlib>
#include <functional>

#include "file_op_support.h"

namespace {

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
    EXPECT_TRUE(FSTimeEqual(5, 5));
    EXPECT_FALSE(FSTimeEqual(5, 6));
    const _FILE_INFO_tag info;
    _FILE_INFO_tag owned, others[6];
    owned.uid = owned.gid = owned.mode = 1;
    owned.dev = 1;
    EXPECT_TRUE(info == owned);
    others[0].path = others[1].name = "x";
    others[2].type = 1;
    others[3].mtime = others[4].size = 1;
    others[5].exists = true;
    for (const _FILE_INFO_tag& other : others) { EXPECT_TRUE(info != other); }
}

// Which paths are found, with which real path and type.
void TestProbes(const TempDir& at) {
    // Names that printf or /proc could misread.
    const std::string in_dir = "dir/" + kComposed, odd = "%n%s\n", gone = "x (deleted)";
    for (const std::string& name : {kDecomposed, in_dir, odd, gone, kNotUtf8}) { WriteFile(at / name, "odd"); }
    fs::resize_file(at / in_dir, 5LL << 30);
    const Rows<std::string, std::string, int> rows = {
        {"file", "file", FS_TYPE_FILE},        {"link/inner", "dir/inner", FS_TYPE_FILE},
        {"link", "link", FS_TYPE_LINK},        {"dangling", "dangling", FS_TYPE_LINK},
        {"link/", "dir", FS_TYPE_DIR},         {"dir/../dir/.", "dir", FS_TYPE_DIR},
        {in_dir, in_dir, FS_TYPE_FILE},        {odd, odd, FS_TYPE_FILE},
        {"socket", "socket", FS_TYPE_SOCKET},  {gone, gone, FS_TYPE_FILE},
        {kDecomposed, kComposed, FS_TYPE_FILE}};
    for (const auto& [path, real, type] : rows) {
        SCOPED_TRACE(path);
        const struct stat status = Status(path);
        const _FILE_INFO_tag expected{at / real, FSBaseName(real), type, status.st_mtime, status.st_size, true, 0, 0, 0,
                                      0};
        _FILE_INFO_tag info;
        info.name = path;
        EXPECT_EQ(FSStat(info.name, info, false), 0);
        EXPECT_TRUE(info == expected) << info.path;
        EXPECT_EQ(std::tie(info.uid, info.gid, info.mode), std::tie(status.st_uid, status.st_gid, status.st_mode));
        EXPECT_EQ(info.dev, static_cast<std::int32_t>(status.st_dev));
        EXPECT_FALSE(IsFileExist(path, true));
        const bool exact = ustring(path).normalize(ustring::NFC) == real;
        EXPECT_EQ(IsFileExist(at / path, true), exact);
        ustring text(path);
        const bool leads_somewhere = fs::exists(path);
        EXPECT_EQ(FSGetRealPath(text), leads_somewhere ? 0 : -1);
        EXPECT_EQ(text, leads_somewhere ? fs::canonical(path).string() : path);
    }
    EXPECT_TRUE(IsFileExist(at / "dir/" + kDecomposed, true));
    EXPECT_TRUE(IsFileExist("/dev", true));
    for (const std::string& path : {"missing"s, "missing\xff"s, ""s, kNotUtf8, std::string(256, 'a')}) {
        SCOPED_TRACE(path);
        _FILE_INFO_tag info{"", "", 99, 0, 0, true};
        EXPECT_EQ(FSStat(path, info, false), path.empty() ? -1 : 0);
        EXPECT_TRUE(info.exists == path.empty() && info.type == 99);
        EXPECT_FALSE(IsFileExist(path, false));
    }
    _FILE_INFO_tag info{"no/missing", "", 99, 1, 1, true, 1, 1, 1, 1};
    EXPECT_EQ(GetFileInfo("file/below", info), -1);
    EXPECT_EQ(info.type, 99);
    EXPECT_EQ(GetFileInfo(info.path, info), 0);
    EXPECT_TRUE(info == (_FILE_INFO_tag{"no/missing", "missing"}));
    EXPECT_EQ(std::tie(info.uid, info.gid, info.mode), std::make_tuple(0u, 0u, 0u));
    EXPECT_EQ(info.dev, 0);
}

TEST_F(FileOp, Probes) {
    TestProbes(at_);
    EXPECT_EQ(hooks::g.inheritable, 0);
}

TEST_F(FileOp, ProbesWithoutProc) {
    const auto hide_proc = [] { return OwnMounts() && !mount("", "/proc", "tmpfs", 0, nullptr); };
    InChild(hide_proc, [&] { TestProbes(at_); });
}

// A file that was removed or replaced while it is looked up.
TEST_F(FileOp, ProbesAnObjectWithoutAName) {
    const std::string object = "/proc/self/fd/" + std::to_string(open("file", O_PATH));
    fs::rename("dir/inner", "file");
    ustring text(object);
    EXPECT_EQ(FSGetRealPath(text), 0);
    EXPECT_EQ(text, at_ / "file");
    fs::rename("file", "file (deleted)");
    EXPECT_EQ(FSGetRealPath(text = object), -1);
    close(std::atoi(object.c_str() + 14));
}

TEST_F(FileOp, WithoutRights) {
    for (Text name : {"closed/file", "secret", "source"}) { WriteFile(at_ / name, name); }
    for (const auto& [name, mode] :
         Rows<Text, mode_t>{{"closed", 0}, {"secret", 0}, {"empty", 0777}, {at_.path().c_str(), 0555}}) {
        chmod(name, mode);
    }
    InChild(BecomeLoner, [] {
        const Rows<Text, int, bool> rows = {{"file", R_OK, false},       {"file", X_OK, true},
                                            {"secret", F_OK, false},     {"secret", W_OK, true},
                                            {"file/below", R_OK, false}, {"closed/file", F_OK, true}};
        for (const auto& [name, mode, locked] : rows) {
            EXPECT_EQ(isFileLocked(name, mode), locked) << name;
            EXPECT_EQ(hasFilePermission(name, mode), !locked) << name;
        }
        _FILE_INFO_tag info;
        EXPECT_EQ(GetFileInfo("closed/file", info), -1);
        EXPECT_EQ(FSRemove("closed", false), 0);  // it cannot be opened, and stays
        EXPECT_EQ(FSRemove("source", false), -3);
        EXPECT_EQ(FSCopy("source", "empty/copy", true), -1);
        EXPECT_EQ(ReadFile("empty/copy"), "source");
    });
    chmod(at_.path().c_str(), 0755);
    chmod("closed", 0700);
    EXPECT_EQ(ReadFile("source") + ReadFile("closed/file"), "sourceclosed/file");
}

TEST_F(FileOp, ReadDirectory) {
    WriteFile(at_ / ".hidden", "12345");
    fs::create_symlink(at_.path(), "dir/way");
    for (const auto& [path, flags] :
         Rows<std::string, int>{{at_.path(), 2}, {at_.path(), 1}, {at_ / "dir/way", 1}, {"/dev", 0}}) {
        DIR_HANDLE handle;
        DIR_ENTRY entry;
        EXPECT_EQ(FSOpenDir(path, flags, handle), 0);
        std::set<ustring> names;
        int result = 0;
        while (errno = EIO, (result = FSReadDir(handle, entry)) > 0) {  // a stale EIO
            const bool real = path == at_.path() && entry.name != "." && entry.name != "..";
            _FILE_INFO_tag info;
            EXPECT_EQ(GetFileInfo(path + "/" + entry.name.c_str(), info), 0);
            EXPECT_EQ(entry.type, info.type) << entry.name;
            EXPECT_EQ(entry.size, flags == 1 && real ? info.size : 0) << entry.name;
            EXPECT_EQ(entry.mtime, flags == 1 && real ? info.mtime : 0) << entry.name;
            names.insert(entry.name);
        }
        EXPECT_EQ(result, 0);
        EXPECT_EQ(names.size(), std::distance(fs::directory_iterator(path), {}) + 2u);
        FSCloseDir(handle);
        EXPECT_TRUE(handle.dirp == nullptr && handle.path.empty());
    }
}

TEST_F(FileOp, LinksTimesAndOwners) {
    const std::string longest(1023, 'x');
    ustring out;
    EXPECT_EQ(FSCreateSymbolicLink(longest, "new"), 0);
    EXPECT_EQ(FSReadSymbolicLink("new", out), 0);
    EXPECT_EQ(out, longest);
    // Only root can change an owner.
    const unsigned uid = geteuid() == 0 ? 65533 : geteuid();
    const unsigned gid = geteuid() == 0 ? 65532 : getegid();
    _FILE_INFO_tag before, after, link;
    EXPECT_EQ(GetFileInfo("dir", before), 0);
    EXPECT_EQ(FSUTime("link", 1000000001, -5), 0);
    EXPECT_EQ(FSChown("link", uid, gid), 0);
    EXPECT_EQ(GetFileInfo("dir", after), 0);
    EXPECT_TRUE(after == before && after.uid == before.uid);
    EXPECT_EQ(Status("link").st_atime, 1000000001);
    EXPECT_EQ(GetFileInfo("link", link), 0);
    EXPECT_EQ(std::tie(link.mtime, link.uid, link.gid), std::make_tuple(-5L, uid, gid));
    EXPECT_EQ(FSUTime("missing", 1, 1), -1);
}

TEST_F(FileOp, KindsOfVolumes) {
    // The last is 0xFF534D42, sign-extended.
    const Rows<unsigned long, bool, bool> rows = {{0x6969, true, false},     {0x517B, true, false},
                                                  {0xFE534D42, true, false}, {0x4D44, false, true},
                                                  {0xEF53, false, false},    {~0xACB2BDul, true, false}};
    for (const auto& [type, network, msdos] : rows) {
        hooks::g.volume_type = type;
        EXPECT_EQ(isMountPoint("."), network) << type;
        EXPECT_EQ(IsMSDOS("."), msdos) << type;
    }
    EXPECT_FALSE(isMountPoint("missing"));
    EXPECT_FALSE(IsMSDOS("missing"));
}

int ReadWithoutDescriptor() {
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    FSOpenDir("dir", 0, handle);
    close(dirfd(handle.dirp));
    const int result = FSReadDir(handle, entry);
    FSCloseDir(handle);
    return result;
}

// A call and its result.
#define CALL(call) [&] { return static_cast<int>(call); }

TEST_F(FileOp, Messages) {
    WriteFile(at_ / kNotUtf8, "");
    fs::create_symlink(std::string(1024, 'x'), "long");
    const std::string dir(4089, 'x');
    ustring text("before");
    _FILE_INFO_tag info;
    DIR_HANDLE handle;
    const Rows<std::function<int()>, int, std::string> rows = {
        {CALL(GetFileInfo(kNotUtf8, info)), -1, "FSPathMakeRef: 2"},
        {CALL(FSCopy("no", "x", false)), -1, "CopyFile: open(no): No such file or directory (2)"},
        {CALL(FSCopy("file", "dir", false)), -1, "CopyFile: open(dir): Is a directory (21)"},
        {CALL(FSCopy("dir", "x", false)), -1, "CopyFile: read: Is a directory (21)"},
        {CALL(FSMKDir("file/x", true)), -1, "FSMKDir: Failed to to file info 'file/x'"},
        {CALL(FSMKDir("link", true)), -1, "FSMKDir: Create a folder but local file system is not directory 'link' (3)"},
        {CALL(FSMKDirFromRoot("roo", "root")), -1, "Giving a root 'root' whose length is larger then target's 'roo'."},
        {CALL(FSMKDirFromRoot("roots/a", "root")), -1, "root 'root' is not a parent folder of target 'roots/a'"},
        {CALL((FSMktemp(dir, text), errno)), ENAMETOOLONG, "mkstemp(" + dir + "): File name too long"},
        {CALL(FSOpenDir("file", 0, handle)), -1, "FSOpenDir: Failed to open directory 'file'. Not a directory"},
        {ReadWithoutDescriptor, -1, "FSOpenDir: Failed to read directory 'dir'. Bad file descriptor"},
        {CALL(isMountPoint("no")), 0, "isMountPoint: Failed to get file system info 'no'. No such file or directory"},
        {CALL(IsMSDOS("no")), 0, "IsSupportLargeFile: Failed to get file system info 'no'. No such file or directory"},
        {CALL(FSCreateSymbolicLink("x", "link")), -1,
         "FSCreateSymbolicLink: Failed to create symbolic link 'x' -> 'link' (code: 17, msg: File exists)"},
        {CALL(FSReadSymbolicLink("file", text)), -1,
         "FSReadSymbolicLink: Failed to read symbolic link 'file' (code: 22, msg: Invalid argument)"},
        {CALL((FSReadSymbolicLink("long", text), errno)), ENAMETOOLONG,
         "FSReadSymbolicLink: Failed to read symbolic link 'long' (code: 36, msg: File name too long)"},
        {CALL(FSChown("no", 1, 1)), -1, "FSChown: Failed to chown 'no' (code: 2, msg: No such file or directory)"}};
    for (const auto& [call, result, message] : rows) {
        EXPECT_EQ(call(), result) << message;
        EXPECT_EQ(TakeLog(), "[ERROR] " + message + "\n");
    }
    EXPECT_EQ(text + info.path, "before" + kNotUtf8);
    EXPECT_EQ(handle.dirp, nullptr);
    hooks::g.volume_type = 0x4D44;
    EXPECT_TRUE(IsMSDOS("."));
    EXPECT_EQ(TakeLog(), "[WARNING] Detect a MSDOS platform for path '.'.\n");
    LogUpTo(7);
    text = "link";
    EXPECT_EQ(FSGetRealPath(text), 0);
    EXPECT_EQ(FSMKDirFromRoot("dir/a/", "dir"), 0);
    EXPECT_EQ(TakeLog(), "[DEBUG]  org path [link]\n[DEBUG]  get full path [" + (at_ / "dir") +
                             "]\n[DEBUG] FSMKDirFromRoot: create /a\n"
                             "[DEBUG] FSMKDirFromRoot: create /a/\n"
                             "[DEBUG] Input file path = [dir/a/].\n"
                             "[DEBUG] FSRefMakePath outTargetPath path = [" +
                             (at_ / "dir/a].\n"));
    LogUpTo(4);
}

}  // namespace
