// Tests of the file layer on one volume: the probes, the operations and the directory cursor.
#include <fcntl.h>
#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <map>
#include <tuple>
#include <vector>

#include "file/file-op.h"
#include "log.h"
#include "temp_dir.h"

namespace fs = std::filesystem;

namespace {

using Text = const char*;
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

const Text kComposed = "caf\xc3\xa9", kDecomposed = "cafe\xcc\x81", kNotUtf8 = "caf\xe9";

// Runs `body` in a child process without rights; an expectation that fails there fails the test.
template <class Body>
void AsNobody(Body body) noexcept {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && (setgroups(0, nullptr) || setgid(65534) || setuid(65534))) {
            _exit(2);
        }
        body();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

struct stat Status(const std::string& path) {
    struct stat status = {};
    EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
    return status;
}

unsigned Mode(const std::string& path) {
    return Status(path).st_mode & 07777;
}

bool Exists(const std::string& path) {
    return fs::exists(fs::symlink_status(path));
}

long Entries(const std::string& path) {
    return std::distance(fs::directory_iterator(path), {});
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
        descriptors_ = Entries("/proc/self/fd");
    }
    ~FileOp() override {
        EXPECT_EQ(Entries("/proc/self/fd"), descriptors_);  // nothing stays open on any path
        fs::current_path("/");
        Logger::Destroy();
    }
    // How often `text` was logged since the last call.
    int Logged(const std::string& text) {
        const std::string log = ReadFile(logs_ / "log");
        int found = 0;
        for (std::size_t i = log.find(text); i != std::string::npos; i = log.find(text, i + 1)) {
            ++found;
        }
        fs::resize_file(logs_ / "log", 0);
        return found;
    }
    int Errors() { return Logged("[ERROR] file-op("); }
    TempDir logs_, at_;
    long descriptors_ = 0;
};

TEST_F(FileOp, Texts) {
    const Rows<Text, Text, Text> paths = {
        {"", "/", ""},         {"/", "/", ""},           {"a", "/", "a"},       {"/a", "/", "a"},
        {"a/b", "a", "b"},     {"/a/b", "/a", "b"},      {"/a/b/", "/a/b", ""}, {"//a", "/", "a"},
        {"/a//b", "/a/", "b"}, {"\xff/\n", "\xff", "\n"}};
    for (const auto& [path, parent, base] : paths) {
        EXPECT_EQ(FSParentPath(path), parent) << path;
        EXPECT_EQ(FSBaseName(path), base) << path;
    }
    const Rows<Text, Text, bool> folders = {
        {"/a", "/a", true},    {"/a", "/a/b", true},  {"/a", "/a/", true},    {"/a", "/ab", false},
        {"/a", "/b/c", false}, {"/a/b", "/a", false}, {"/a/", "/a/b", false}, {"/", "/a", false},
        {"", "/a", true},      {"", "a", false},      {"", "", true}};
    for (const auto& [parent, child, result] : folders) {
        EXPECT_EQ(FSIsParentFolder(parent, child), result) << parent << " and " << child;
    }
    const _FILE_INFO_tag info{"p", "n", 1, 2, 3, true, 4, 5, 6, 7};
    EXPECT_TRUE(info == (_FILE_INFO_tag{"p", "n", 1, 2, 3, true, 0, 0, 0, 0}));
    std::vector<_FILE_INFO_tag> others(6, info);
    others[0].path = others[1].name = "other";
    others[2].type = others[3].mtime = others[4].size = 0;
    others[5].exists = false;
    for (const _FILE_INFO_tag& other : others) {
        EXPECT_TRUE(info != other && !(info == other));
    }
}

TEST_F(FileOp, InfoOfEveryKind) {
    std::map<std::string, int> kinds = {
        {at_ / "file", FS_TYPE_FILE},  {at_ / "dir", FS_TYPE_DIR},
        {at_ / "link", FS_TYPE_LINK},  {at_ / "dangling", FS_TYPE_LINK},
        {at_ / "fifo", FS_TYPE_FIFO},  {at_ / "socket", FS_TYPE_SOCKET},
        {"/dev/null", FS_TYPE_DEVICE}, {"/", FS_TYPE_DIR}};
    // Names that a shell, a log line, printf or /proc could take for something else.
    for (Text name : {"two\nlines", "'\"\\", "%n%s", " ", "gone (deleted)", kComposed}) {
        WriteFile(at_ / name, "odd");
        kinds[at_ / name] = FS_TYPE_FILE;
    }
    for (const auto& [path, type] : kinds) {
        SCOPED_TRACE(path);
        const struct stat status = Status(path);
        const auto dev = static_cast<std::int32_t>(status.st_dev);
        const _FILE_INFO_tag expected{
            path, FSBaseName(path), type, status.st_mtime, status.st_size, true, 0, 0, 0, 0};
        _FILE_INFO_tag info, again;
        EXPECT_EQ(GetFileInfo(path, info), 0);
        EXPECT_EQ(Logged("[DEBUG] file-op("), 2);
        EXPECT_TRUE(info == expected);
        EXPECT_EQ(std::tie(info.uid, info.gid, info.mode, info.dev),
                  std::tie(status.st_uid, status.st_gid, status.st_mode, dev));
        EXPECT_TRUE(IsFileExist(path, true));
        EXPECT_EQ(FSStat(path, again, true), 0);
        EXPECT_TRUE(info == again);
        EXPECT_EQ(Errors(), 0);
    }
}

TEST_F(FileOp, ProbesOfPathsInOtherForms) {
    WriteFile(at_ / kNotUtf8, "");
    const Rows<Text, Text> found = {{"file", "/file"},
                                    {".", ""},
                                    {"dir/", "/dir"},
                                    {"./dir//../file", "/file"},
                                    {"link/inner", "/dir/inner"},
                                    {"link/", "/dir"}};
    for (const auto& [path, real] : found) {
        SCOPED_TRACE(path);
        _FILE_INFO_tag info;
        EXPECT_EQ(GetFileInfo(path, info), 0);
        EXPECT_EQ(info.path, at_.path() + real);
        EXPECT_TRUE(IsFileExist(path, false));
        EXPECT_FALSE(IsFileExist(path, true));
    }
    const std::string too_long(256, 'a');
    const Rows<Text, int, int> lost = {{"missing", 0, 0}, {"missing\xff", 0, 0},
                                       {"", 0, 0},        {"file/below", -1, 0},
                                       {kNotUtf8, -1, 1}, {too_long.c_str(), -1, 0}};
    for (const auto& [path, result, errors] : lost) {
        SCOPED_TRACE(path);
        _FILE_INFO_tag info{"", "", 99, 0, 0, true, 0, 0, 0, 0}, before = info;
        EXPECT_EQ(FSStat(path, info, false), *path == 0 ? -1 : 0);
        EXPECT_EQ(info.exists, *path == 0);
        EXPECT_EQ(info.type, 99);
        EXPECT_FALSE(IsFileExist(path, false));
        Errors();
        info = before;
        EXPECT_EQ(GetFileInfo(path, info), result);
        EXPECT_EQ(info.path, result == 0 || path == kNotUtf8 ? path : "");
        EXPECT_EQ(Errors(), errors);
    }
}

TEST_F(FileOp, NormalForms) {
    for (Text stored : {kComposed, kDecomposed}) {
        SCOPED_TRACE(stored);
        const std::string path = at_ / "empty/" + stored;
        WriteFile(path, "");
        _FILE_INFO_tag info;
        EXPECT_TRUE(IsFileExist(path, true));
        EXPECT_EQ(FSStat(path, info, true), 0);
        EXPECT_TRUE(info.exists);
        EXPECT_EQ(info.path, at_ / "empty/" + kComposed);
        EXPECT_EQ(info.name, kComposed);
        EXPECT_EQ(FSRename(path, at_ / "empty/moved", true), 0);
        EXPECT_EQ(FSRename(at_ / "empty/moved", path, true), 0);
        EXPECT_EQ(FSRemove(path, false), 0);
        EXPECT_EQ(Entries("empty"), 0);
    }
    WriteFile(at_ / kComposed, "");
    EXPECT_TRUE(IsFileExist(at_ / kDecomposed, true));
}

TEST_F(FileOp, AccessRefused) {
    for (Text name : {"closed/file", "secret"}) {
        WriteFile(at_ / name, "12345");
    }
    chmod("closed", 0);
    chmod("secret", 0);
    AsNobody([&] {
        const Rows<Text, int, bool> rows = {{"file", R_OK, false},   {"file", X_OK, true},
                                            {"secret", F_OK, false}, {"secret", R_OK, true},
                                            {"secret", W_OK, true},  {"missing", R_OK, false},
                                            {"file/x", R_OK, false}, {"closed/file", F_OK, true}};
        for (const auto& [name, mode, locked] : rows) {
            EXPECT_EQ(isFileLocked(at_ / name, mode), locked) << name;
            EXPECT_EQ(hasFilePermission(at_ / name, mode), !locked) << name;
        }
        _FILE_INFO_tag info;
        EXPECT_EQ(FSStat(at_ / "secret", info, true), 0);
        EXPECT_EQ(info.size, 5);
        EXPECT_EQ(GetFileInfo("closed/file", info), -1);
        EXPECT_EQ(FSRemove("closed", false), 0);  // what cannot be opened stays
        EXPECT_TRUE(Exists("closed"));
    });
    chmod("closed", 0700);
}

TEST_F(FileOp, Copy) {
    std::string large((32 << 20) + 4099, '\0');
    for (std::size_t i = 0; i < large.size(); ++i) {
        large[i] = static_cast<char>(i * 2654435761u >> 16);
    }
    WriteFile(at_ / "large", large);
    WriteFile(at_ / "longer", "much longer than the content");
    WriteFile(at_ / "none", "");
    fs::create_symlink("file", "to-file");
    const Rows<Text, Text, int> rows = {
        {"none", "1", 0}, {"large", "2", 0},     {"file", "longer", 0}, {"to-file", "3", 0},
        {"dir", "4", -1}, {"dangling", "5", -1}, {"file", "dir", -1},   {"file", "missing/x", -1}};
    for (const auto& [from, to, result] : rows) {
        SCOPED_TRACE(from);
        EXPECT_EQ(FSCopy(from, to, false), result);
        EXPECT_TRUE(result != 0 || ReadFile(to) == ReadFile(from));
        EXPECT_EQ(Errors(), result == 0 ? 0 : 1);
    }
    EXPECT_TRUE(Exists("4") && !Exists("5"));
    EXPECT_EQ(FSCopy("to-file", "6", true), 0);
    EXPECT_FALSE(Exists("to-file"));  // the link that was named, not its target
    EXPECT_EQ(ReadFile("file") + ReadFile("6"), "contentcontent");
}

TEST_F(FileOp, CopyKeepsTheSourceOnFailure) {
    WriteFile(at_ / "source", std::string(20000, 's'));
    chmod(at_.path().c_str(), 0555);
    chmod("empty", 0777);
    AsNobody([&] {
        EXPECT_EQ(FSCopy("source", "empty/copy", true), -1);
        EXPECT_EQ(ReadFile("empty/copy"), ReadFile("source"));
        EXPECT_EQ(FSRemove("source", false), -3);
        // The limit makes the first write a short one and fails the second.
        const rlimit limit = {10000, 10000};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_EQ(FSCopy("source", "empty/part", true), -1);
        EXPECT_EQ(Status("empty/part").st_size, 10000);
    });
    chmod(at_.path().c_str(), 0755);
    EXPECT_EQ(Status("source").st_size, 20000);
}

TEST_F(FileOp, RenameWithinAVolume) {
    WriteFile(at_ / "full/x", "");
    WriteFile(at_ / "old", "old");
    WriteFile(at_ / kNotUtf8, "");
    const Rows<Text, Text, bool, int> rows = {
        {"", "x", false, -1},          {"file", "", false, -1},    {"missing", "x", false, -2},
        {kNotUtf8, "x", false, -2},    {"file", "x", true, -2},    {"dir", "full", false, -3},
        {"dir", "dir/x", false, -3},   {"file", "dir", false, -3}, {"file", "old", false, 0},
        {"dangling", "new", false, 0}, {"dir", "empty", false, 0}, {"socket", "s", false, 0}};
    for (const auto& [from, to, exact, result] : rows) {
        SCOPED_TRACE(std::string(from) + " to " + to);
        EXPECT_EQ(FSRename(from, to, exact), result);
        EXPECT_TRUE(result != 0 || (!Exists(from) && Exists(to)));
    }
    EXPECT_EQ(FSRename("old", std::string(256, 'a'), false), -100);
    EXPECT_EQ(FSRename(at_ / "old", "renamed", true), 0);
    EXPECT_EQ(ReadFile("renamed") + ReadFile("empty/inner"), "contentinner");
}

TEST_F(FileOp, MakeDirectory) {
    const Rows<Text, bool, int, int> directories = {
        {"", true, -1, 0},      {"dir", false, 0, 0},   {"dir/", true, 0, 0},
        {"file", true, -1, 1},  {"link", true, -1, 1},  {"file/x", true, -1, 1},
        {"a/b", false, -2, 0},  {"a/b/c/", true, 0, 0}, {"dangling/x", true, -2, 0},
        {kNotUtf8, false, 0, 0}};
    for (const auto& [path, parents, result, errors] : directories) {
        SCOPED_TRACE(path);
        EXPECT_EQ(FSMKDir(path, parents), result);
        EXPECT_TRUE(result != 0 || fs::is_directory(path));
        EXPECT_EQ(Errors(), errors);
    }
    const Rows<Text, Text, int, int> targets = {
        {"empty", "empty", 0, 0},        {"empty/a/b", "empty", 0, 0},
        {"empty/a//c/", "empty", 0, 0},  {"emptyx/a", "empty", -1, 1},
        {"empty", "empty/a", -1, 1},     {"empty/x", "empty/", -1, 1},
        {"missing/a", "missing", -1, 0}, {"dir/inner/x", "dir", -1, 1}};
    for (const auto& [target, root, result, errors] : targets) {
        SCOPED_TRACE(target);
        EXPECT_EQ(FSMKDirFromRoot(target, root), result);
        EXPECT_TRUE(result != 0 || fs::is_directory(target));
        EXPECT_EQ(Errors(), errors);
    }
    EXPECT_FALSE(Exists("emptyx") || Exists("empty/x") || Exists("missing"));
}

TEST_F(FileOp, MakeDirectoriesByComponent) {
    // `behind` is how many bytes of the path lie behind the component that `end` shall point at.
    const Rows<Text, int, bool, int> rows = {{"a/b", 0, false, 0},
                                             {"c/d/", 1, false, 0},
                                             {"e//f", 0, false, 0},
                                             {"dir", 0, false, 0},
                                             {"/", 0, false, 0},
                                             {"link/x/y", 0, false, 0},
                                             {"file/x/y", 4, false, ENOTDIR},
                                             {"dir/../file", 0, false, EEXIST},
                                             {"file/", 1, false, EEXIST},
                                             {"dangling/x", 2, true, EEXIST},
                                             {"file/x", 0, true, 0},
                                             {"fifo", 0, true, 0}};
    for (const auto& [path, behind, replace, error] : rows) {
        SCOPED_TRACE(path);
        const ustring text(path);
        char* end = nullptr;
        EXPECT_EQ(FSMKDirP(text, &end, replace, 0xFFFF) == 0 ? 0 : errno, error);
        EXPECT_EQ(end, text.c_str() + text.length() - behind);
        EXPECT_EQ(fs::is_directory(path), error == 0);
    }
    EXPECT_EQ(FSMKDirP("", nullptr, false, 0xFFFF), -1);
    EXPECT_TRUE(fs::is_symlink("link"));
    const mode_t former = umask(027);
    EXPECT_EQ(FSMKDirP("masked/x", nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(FSMKDirP("exact/x", nullptr, false, 0773), 0);
    EXPECT_EQ(FSMKDirP("socket/x", nullptr, false, 0773), -1);
    EXPECT_EQ(umask(former), 027u);
    EXPECT_TRUE(Mode("masked") == 0750 && Mode("masked/x") == 0750);
    EXPECT_TRUE(Mode("exact") == 0773 && Mode("exact/x") == 0773);
}

TEST_F(FileOp, Remove) {
    for (const std::string& name : {std::string("tree/a/b\n"), std::string("tree/") + kDecomposed,
                                    std::string("bad/") + kNotUtf8}) {
        WriteFile(at_ / name, "");
    }
    fs::create_symlink("../dir", "tree/out");
    fs::create_symlink("..", "tree/a/up");
    std::string deep = "deep";
    for (int level = 0; level < 200; ++level, deep += "/d") {
        WriteFile(at_ / deep + "/file", "");
    }
    const Rows<std::string, int> rows = {
        {"", -1},      {"missing", 0}, {"file/x", -1}, {"link", 0},   {"dangling", 0}, {"fifo", 0},
        {"socket", 0}, {"tree", 0},    {"deep", 0},    {"empty/", 0}, {"bad", -3}};
    for (const auto& [path, result] : rows) {
        SCOPED_TRACE(path);
        EXPECT_EQ(FSRemove(path, true), result);
        EXPECT_TRUE(result != 0 || !Exists(path));
    }
    EXPECT_EQ(ReadFile("dir/inner") + ReadFile("file"), "innercontent");  // no link was followed
    EXPECT_EQ(Entries("bad"), 1);
}

TEST_F(FileOp, TemporaryFile) {
    // The longest directory that leaves room for the name, and one byte more.
    const std::string longest = "empty" + std::string(4083, '/');
    const mode_t former = umask(077);
    ustring out("before");
    EXPECT_EQ(FSMktemp(longest + "/", out), -1);
    EXPECT_EQ(FSMktemp(longest + "/XXXXXX", out), -1);  // a template if it were cut
    EXPECT_EQ(FSMktemp("missing", out), -1);
    EXPECT_EQ(out, "before");
    EXPECT_EQ(Errors(), 3);
    for (const std::string& dir : {longest, at_ / "empty"}) {
        EXPECT_EQ(FSMktemp(dir, out), 0);
        EXPECT_EQ(out.substr(0, dir.size() + 1), dir + "/");
        EXPECT_EQ(out.length(), dir.size() + 7);
        EXPECT_EQ(Mode(out.c_str()), 0644u);
        EXPECT_EQ(Status(out.c_str()).st_size, 0);
    }
    umask(former);
    EXPECT_EQ(Entries("empty"), 2);
}

TEST_F(FileOp, TimesAndOwnerOfALink) {
    const struct stat before = Status("dir");
    EXPECT_EQ(FSUTime("link", 1000000001, -5), 0);
    EXPECT_EQ(FSUTime("missing", 1, 1), -1);
    EXPECT_TRUE(Status("link").st_atime == 1000000001 && Status("link").st_mtime == -5);
    EXPECT_EQ(Status("dir").st_mtime, before.st_mtime);
    EXPECT_EQ(FSChown("missing", 1, 1), -1);
    EXPECT_EQ(Errors(), 1);
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root gives a file away";
    }
    EXPECT_EQ(FSChown("link", 65533, 65532), 0);
    EXPECT_TRUE(Status("link").st_uid == 65533 && Status("link").st_gid == 65532);
    EXPECT_EQ(Status("dir").st_uid, before.st_uid);
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
    EXPECT_TRUE(handle.dirp == nullptr && handle.path.empty() && handle.flags == flags);
    return entries;
}

TEST_F(FileOp, ReadDirectory) {
    WriteFile(at_ / kDecomposed, "12345");
    fs::create_symlink(at_.path(), "dir/way");
    const std::map<std::string, int> types = {
        {".", FS_TYPE_DIR},         {"..", FS_TYPE_DIR},        {"file", FS_TYPE_FILE},
        {"dir", FS_TYPE_DIR},       {"empty", FS_TYPE_DIR},     {"link", FS_TYPE_LINK},
        {"fifo", FS_TYPE_FIFO},     {"dangling", FS_TYPE_LINK}, {"socket", FS_TYPE_SOCKET},
        {kDecomposed, FS_TYPE_FILE}};
    const Rows<std::string, int, bool> rows = {{at_.path(), 0, false}, {at_.path(), 2, false},
                                               {at_.path(), 1, true},  {at_.path() + "/", 1, false},
                                               {".", 1, false},        {at_ / "dir/way", 1, false}};
    for (const auto& [path, flags, stats] : rows) {
        SCOPED_TRACE(path + " " + std::to_string(flags));
        const auto entries = ReadAll(path, flags);
        EXPECT_EQ(entries.size(), types.size());
        for (const auto& [name, entry] : entries) {
            const bool has = stats && name[0] != '.';
            EXPECT_EQ(entry.type, types.count(name) == 0 ? -1 : types.at(name)) << name;
            EXPECT_EQ(entry.size, has ? Status(name).st_size : 0) << name;
            EXPECT_EQ(entry.mtime, has ? Status(name).st_mtime : 0) << name;
        }
    }
    EXPECT_EQ(ReadAll("empty", 0).size(), 2u);
    EXPECT_EQ(ReadAll("/dev", 0)["null"].type, FS_TYPE_DEVICE);
}

TEST_F(FileOp, ReadDirectoryFailures) {
    DIR_HANDLE handle;
    EXPECT_EQ(FSOpenDir("file", 1, handle), -1);
    EXPECT_EQ(FSOpenDir("missing", 1, handle), -1);
    EXPECT_EQ(Errors(), 2);
    EXPECT_TRUE(handle.dirp == nullptr && handle.flags == 0 && handle.path.empty());
    // A stream whose descriptor is now a file's fails at the first read.
    EXPECT_EQ(FSOpenDir("dir", 0, handle), 0);
    const int file = open("file", O_RDONLY | O_CLOEXEC);
    dup2(file, dirfd(handle.dirp));
    close(file);
    DIR_ENTRY entry;
    entry.name = "before";
    EXPECT_EQ(FSReadDir(handle, entry), -1);
    EXPECT_EQ(entry.name, "before");
    EXPECT_EQ(Logged("Failed to read directory 'dir'. Not a directory"), 1);
    FSCloseDir(handle);
}

// Processor time, since the machine may be busy with other things.
double TimeToRead(const std::string& path, int count) {
    for (int i = 0; i < count; ++i) {
        mknod((path + "/" + std::to_string(i)).c_str(), S_IFREG | 0600, 0);
    }
    const std::clock_t start = std::clock();
    EXPECT_EQ(ReadAll(path, 0).size(), count + 2u);
    return static_cast<double>(std::clock() - start);
}

TEST_F(FileOp, ReadingALargeDirectoryTakesLinearTime) {
    const double small = TimeToRead("empty", 10000);
    fs::create_directory("large");
    // Ten times the entries: a quadratic walk would take a hundred times as long.
    EXPECT_LT(TimeToRead("large", 100000), 60 * small);
}

TEST_F(FileOp, SymbolicLinks) {
    const std::string longest(1023, 'x');
    ustring out;
    for (const std::string& text : {std::string("../a b"), std::string(kNotUtf8), longest}) {
        EXPECT_EQ(FSCreateSymbolicLink(text, "new"), 0);
        EXPECT_EQ(FSReadSymbolicLink("new", out), 0);
        EXPECT_EQ(out, text);
        fs::remove("new");
    }
    fs::create_symlink(longest + "x", "too-long");
    EXPECT_EQ(FSReadSymbolicLink("too-long", out), -1);
    EXPECT_EQ(FSReadSymbolicLink("file", out), -1);
    EXPECT_EQ(out, longest);
    EXPECT_EQ(Logged("(code: " + std::to_string(EINVAL) + ","), 1);
    EXPECT_EQ(FSCreateSymbolicLink("x", "dangling"), -1);
    EXPECT_EQ(Errors(), 1);
}

TEST_F(FileOp, RealPath) {
    const std::string raw = at_ / kNotUtf8, decomposed = at_ / kDecomposed;
    WriteFile(raw, "");
    WriteFile(decomposed, "");
    // Without a real path the text stays.
    const Rows<std::string, std::string, int> rows = {{"link", at_ / "dir", 0},
                                                      {"./dir/../file", at_ / "file", 0},
                                                      {"link/", at_ / "dir", 0},
                                                      {raw, raw, 0},
                                                      {decomposed, decomposed, 0},
                                                      {"/", "/", 0},
                                                      {"missing", "missing", -1},
                                                      {"dangling", "dangling", -1},
                                                      {"", "", -1}};
    for (const auto& [path, real, result] : rows) {
        ustring text(path);
        EXPECT_EQ(FSGetRealPath(text), result) << path;
        EXPECT_EQ(text, real);
    }
    EXPECT_EQ(Errors(), 0);
}

}  // namespace
