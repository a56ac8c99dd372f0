// Tests of the file layer on one volume: the probes, the operations and the directory cursor.
#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <map>

#include "file/file-op.h"
#include "log.h"
#include "temp_dir.h"

namespace fs = std::filesystem;

namespace {

const char* const kComposed = "caf\xc3\xa9";
const char* const kDecomposed = "cafe\xcc\x81";
const char* const kNotUtf8 = "caf\xe9";

// All that the file layer logs while it lives.
class LogCapture {
  public:
    LogCapture() {
        WriteFile(dir_ / "levels", "file_op_debug=7\n");
        Logger::Initialize(Logger::TYPE_FILE, dir_ / "log", dir_ / "levels", 1);
    }
    ~LogCapture() {
        Logger::Destroy();
        Logger::Initialize(Logger::TYPE_STDERR, "", "", 0);
    }
    int Count(const std::string& text) const {
        const std::string log = ReadFile(dir_ / "log");
        int found = 0;
        for (std::size_t at = 0; (at = log.find(text, at)) != std::string::npos; ++at) {
            ++found;
        }
        return found;
    }

  private:
    TempDir dir_;
};

// Runs `body` in a child process without rights; an expectation that fails there fails the test.
template <class Body>
void AsNobody(Body body) noexcept {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(65534) || setuid(65534))) {
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

bool Exists(const std::string& path) {
    return fs::exists(fs::symlink_status(path));
}

std::string Octal(const std::string& path) {
    char text[8];
    std::snprintf(text, sizeof text, "%o", Status(path).st_mode & 07777);
    return text;
}

// A directory with one object of each kind, that any user may enter. "link" leads to "dir".
class FileOp : public testing::Test {
  protected:
    FileOp() {
        chmod(dir_.path().c_str(), 0755);
        WriteFile(dir_ / "file", "content");
        WriteFile(dir_ / "dir/inner", "inner");
        fs::create_directory(dir_ / "empty");
        fs::create_symlink("dir", dir_ / "link");
        fs::create_symlink("nowhere", dir_ / "dangling");
        mkfifo((dir_ / "fifo").c_str(), 0600);
        mknod((dir_ / "socket").c_str(), S_IFSOCK | 0600, 0);
        fs::current_path(dir_.path());
    }
    ~FileOp() override { fs::current_path("/"); }
    TempDir dir_;
};

TEST(FileOpText, ParentAndBaseName) {
    const struct {
        const char *path, *parent, *base;
    } rows[] = {
        {"", "/", ""},         {"/", "/", ""},           {"a", "/", "a"},       {"/a", "/", "a"},
        {"a/b", "a", "b"},     {"/a/b", "/a", "b"},      {"/a/b/", "/a/b", ""}, {"//a", "/", "a"},
        {"/a//b", "/a/", "b"}, {"\xff/\n", "\xff", "\n"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        EXPECT_EQ(FSParentPath(row.path), row.parent);
        EXPECT_EQ(FSBaseName(row.path), row.base);
    }
}

TEST(FileOpText, IsParentFolder) {
    const struct {
        const char *parent, *child;
        bool result;
    } rows[] = {{"/a", "/a", true},     {"/a", "/a/b", true},  {"/a", "/a/", true},
                {"/a", "/ab", false},   {"/a", "/b/c", false}, {"/a/b", "/a", false},
                {"/a/", "/a/b", false}, {"/", "/a", false},    {"", "/a", true},
                {"", "a", false},       {"", "", true},        {"/a", "/a//b", true}};
    for (const auto& row : rows) {
        EXPECT_EQ(FSIsParentFolder(row.parent, row.child), row.result)
            << row.parent << " and " << row.child;
    }
}

TEST(FileOpText, InfoComparesSixFields) {
    const _FILE_INFO_tag plain;
    const auto equal = [&](auto change) {
        _FILE_INFO_tag other;
        change(other);
        EXPECT_NE(plain == other, plain != other);
        return plain == other;
    };
    EXPECT_TRUE(equal([](auto& i) { i.uid = i.gid = i.mode = 1, i.dev = 1; }));
    EXPECT_FALSE(equal([](auto& i) { i.exists = true; }));
    EXPECT_FALSE(equal([](auto& i) { i.size = 1LL << 32; }));
    EXPECT_FALSE(equal([](auto& i) { i.mtime = 1; }));
    EXPECT_FALSE(equal([](auto& i) { i.type = 1; }));
    EXPECT_FALSE(equal([](auto& i) { i.path = "a"; }));
    EXPECT_FALSE(equal([](auto& i) { i.name = "a"; }));
}

TEST_F(FileOp, InfoOfEveryKind) {
    // Names that a shell, a log line, a printf or /proc could take for something else.
    const char* const odd[] = {"two\nlines", "'\"\\", "%n%s", " ", "gone (deleted)", kComposed};
    std::map<std::string, int> kinds = {
        {dir_ / "file", FS_TYPE_FILE}, {dir_ / "dir", FS_TYPE_DIR},
        {dir_ / "link", FS_TYPE_LINK}, {dir_ / "dangling", FS_TYPE_LINK},
        {dir_ / "fifo", FS_TYPE_FIFO}, {dir_ / "socket", FS_TYPE_SOCKET},
        {"/dev/null", FS_TYPE_DEVICE}, {"/", FS_TYPE_DIR}};
    for (const char* name : odd) {
        WriteFile(dir_ / name, "odd");
        kinds[dir_ / name] = FS_TYPE_FILE;
    }
    const LogCapture log;
    for (const auto& [path, type] : kinds) {
        SCOPED_TRACE(path);
        const struct stat status = Status(path);
        _FILE_INFO_tag info, again;
        EXPECT_EQ(GetFileInfo(path, info), 0);
        EXPECT_TRUE(info.exists);
        EXPECT_EQ(info.type, type);
        EXPECT_EQ(info.path, path);
        EXPECT_EQ(info.name, FSBaseName(path));
        EXPECT_EQ(info.size, status.st_size);
        EXPECT_EQ(info.mtime, status.st_mtime);
        EXPECT_EQ(info.uid, status.st_uid);
        EXPECT_EQ(info.gid, status.st_gid);
        EXPECT_EQ(info.mode, status.st_mode);
        EXPECT_EQ(info.dev, static_cast<std::int32_t>(status.st_dev));
        EXPECT_TRUE(IsFileExist(path, true));
        EXPECT_EQ(FSStat(path, again, true), 0);
        EXPECT_TRUE(info == again);
    }
    // Two lines for each look, and five looks at each object.
    EXPECT_EQ(log.Count("[DEBUG] file-op("), 8 * static_cast<int>(kinds.size()));
    EXPECT_EQ(log.Count("[ERROR]"), 0);
}

TEST_F(FileOp, ProbesOfPathsInOtherForms) {
    WriteFile(dir_ / kNotUtf8, "");
    const std::string at = dir_.path();
    const struct {
        std::string path, real;
        int result;  // of GetFileInfo
        bool exists, exact;
    } rows[] = {{at + "/missing", at + "/missing", 0, false, false},
                {"missing", "missing", 0, false, false},
                {"", "", 0, false, false},
                {"file", at + "/file", 0, true, false},
                {".", at, 0, true, false},
                {at + "/dir/", at + "/dir", 0, true, false},
                {at + "/dir/../file", at + "/file", 0, true, false},
                {at + "//file", at + "/file", 0, true, false},
                {at + "/link/inner", at + "/dir/inner", 0, true, false},
                {at + "/link/", at + "/dir", 0, true, false},
                {at + "/file/below", "untouched", -1, false, false},
                {at + "/" + std::string(256, 'a'), "untouched", -1, false, false},
                {at + "/" + kNotUtf8, at + "/" + kNotUtf8, -1, false, false},
                {at + "/missing\xff", at + "/missing\xff", 0, false, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        _FILE_INFO_tag info, stat;
        info.path = "untouched";
        stat.exists = true;
        stat.type = 99;
        EXPECT_EQ(GetFileInfo(row.path, info), row.result);
        EXPECT_EQ(info.path, row.real);
        EXPECT_EQ(IsFileExist(row.path, false), row.exists);
        EXPECT_EQ(IsFileExist(row.path, true), row.exact);
        EXPECT_EQ(FSStat(row.path, stat, false), row.path.empty() ? -1 : 0);
        EXPECT_EQ(stat.exists, row.exists || row.path.empty());
        EXPECT_EQ(stat.type == 99, !row.exists);  // what does not exist leaves the rest alone
    }
    const LogCapture log;
    _FILE_INFO_tag info;
    GetFileInfo(dir_ / kNotUtf8, info);
    GetFileInfo(dir_ / "file/below", info);
    EXPECT_EQ(log.Count("[ERROR] file-op("), 1);
    EXPECT_EQ(log.Count("FSPathMakeRef: "), 1);
}

TEST_F(FileOp, NormalForms) {
    for (const char* stored : {kComposed, kDecomposed}) {
        SCOPED_TRACE(stored);
        const TempDir own;
        const std::string path = own / stored;
        WriteFile(path, stored);
        _FILE_INFO_tag info;
        EXPECT_TRUE(IsFileExist(path, true));
        EXPECT_EQ(FSStat(path, info, true), 0);
        EXPECT_TRUE(info.exists);
        EXPECT_EQ(info.path, own / kComposed);
        EXPECT_EQ(info.name, kComposed);
        EXPECT_EQ(FSRename(path, own / "moved", true), 0);
        EXPECT_EQ(FSRename(own / "moved", path, true), 0);
        EXPECT_EQ(FSRemove(path, false), 0);
        EXPECT_FALSE(Exists(path));
    }
    WriteFile(dir_ / kComposed, "");
    EXPECT_TRUE(IsFileExist(dir_ / kDecomposed, true));
}

TEST_F(FileOp, AccessRefused) {
    fs::create_directory(dir_ / "closed");
    WriteFile(dir_ / "closed/file", "");
    chmod((dir_ / "closed").c_str(), 0);
    WriteFile(dir_ / "secret", "12345");
    chmod((dir_ / "secret").c_str(), 0);
    AsNobody([&] {
        const struct {
            const char* name;
            int mode;
            bool locked;
        } rows[] = {{"file", R_OK, false},   {"file", X_OK, true},       {"secret", F_OK, false},
                    {"secret", R_OK, true},  {"secret", W_OK, true},     {"missing", R_OK, false},
                    {"file/x", R_OK, false}, {"closed/file", F_OK, true}};
        for (const auto& row : rows) {
            EXPECT_EQ(isFileLocked(dir_ / row.name, row.mode), row.locked) << row.name;
            EXPECT_EQ(hasFilePermission(dir_ / row.name, row.mode), !row.locked) << row.name;
        }
        _FILE_INFO_tag info;
        EXPECT_EQ(FSStat(dir_ / "secret", info, true), 0);  // looking needs no right to read
        EXPECT_EQ(info.size, 5);
        EXPECT_EQ(GetFileInfo(dir_ / "closed/file", info), -1);
        EXPECT_EQ(info.size, 5);
        EXPECT_EQ(FSRemove(dir_ / "closed", false), 0);  // what cannot be opened stays
        EXPECT_TRUE(Exists(dir_ / "closed"));
        EXPECT_EQ(FSRemove(dir_ / "file", false), -3);
    });
    chmod((dir_ / "closed").c_str(), 0700);
}

TEST_F(FileOp, Copy) {
    std::string large((32 << 20) + 4099, '\0');
    for (std::size_t i = 0; i < large.size(); ++i) {
        large[i] = static_cast<char>(i * 2654435761u >> 16);
    }
    WriteFile(dir_ / "large", large);
    WriteFile(dir_ / "longer", "much longer than the content");
    WriteFile(dir_ / "none", "");
    fs::create_symlink("file", dir_ / "to-file");
    const struct {
        const char *from, *to;
        int result;
        const std::string content;
    } rows[] = {
        {"none", "1", 0, ""},           {"large", "2", 0, large}, {"file", "longer", 0, "content"},
        {"to-file", "3", 0, "content"}, {"dir", "4", -1, ""},     {"file", "dir", -1, ""},
        {"file", "missing/x", -1, ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.from);
        const LogCapture log;
        EXPECT_EQ(FSCopy(dir_ / row.from, dir_ / row.to, false), row.result);
        EXPECT_TRUE(ReadFile(dir_ / row.to) ==
                    row.content);  // not EXPECT_EQ: it would print 32 MiB
        EXPECT_EQ(log.Count("[ERROR] file-op("), row.result == 0 ? 0 : 1);
    }
    EXPECT_TRUE(Exists(dir_ / "4"));
    EXPECT_EQ(FSCopy(dir_ / "dangling", dir_ / "5", true), -1);
    EXPECT_FALSE(Exists(dir_ / "5"));
    EXPECT_EQ(FSCopy(dir_ / "to-file", dir_ / "6", true), 0);
    EXPECT_FALSE(Exists(dir_ / "to-file"));  // the link that was named, not its target
    EXPECT_EQ(ReadFile(dir_ / "file") + ReadFile(dir_ / "6"), "contentcontent");
}

TEST_F(FileOp, CopyKeepsTheSourceOnFailure) {
    WriteFile(dir_ / "source", std::string(20000, 's'));
    chmod(dir_.path().c_str(), 0555);
    fs::permissions(dir_ / "empty", fs::perms::all);
    AsNobody([&] {
        EXPECT_EQ(FSCopy(dir_ / "source", dir_ / "empty/copy", true), -1);
        EXPECT_EQ(ReadFile(dir_ / "empty/copy"), ReadFile(dir_ / "source"));
        // The limit makes the first write a short one and fails the second.
        const rlimit limit = {10000, 10000};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_EQ(FSCopy(dir_ / "source", dir_ / "empty/part", true), -1);
        EXPECT_EQ(Status(dir_ / "empty/part").st_size, 10000);
    });
    chmod(dir_.path().c_str(), 0755);
    EXPECT_EQ(Status(dir_ / "source").st_size, 20000);
}

TEST_F(FileOp, RenameWithinAVolume) {
    const std::string at = dir_.path() + "/";
    WriteFile(at + "full/x", "");
    WriteFile(at + "old", "old");
    WriteFile(at + kNotUtf8, "");
    const struct {
        std::string from, to;
        bool exact;
        int result;
    } rows[] = {{"", "x", false, -1},
                {at + "file", "", false, -1},
                {at + "missing", at + "x", false, -2},
                {at + kNotUtf8, at + "x", false, -2},
                {at + "file", at + std::string(256, 'a'), true, -100},
                {at + "dir", at + "full", true, -3},
                {at + "dir", at + "dir/below", true, -3},
                {at + "file", at + "dir", true, -3},
                {"file", "x", true, -2},  // not the real path
                {at + "link/inner", at + "x", true, -2},
                {at + "file", at + "old", true, 0},
                {at + "dangling", at + "moved-link", true, 0},
                {at + "dir", at + "empty", true, 0},
                {"socket", "moved-socket", false, 0}};
    const LogCapture log;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.from + " to " + row.to);
        EXPECT_EQ(FSRename(row.from, row.to, row.exact), row.result);
        if (row.result == 0) {
            EXPECT_FALSE(Exists(row.from));
            EXPECT_TRUE(Exists(row.to));
        }
    }
    EXPECT_EQ(ReadFile(at + "old") + ReadFile(at + "empty/inner"), "contentinner");
    EXPECT_EQ(log.Count("[ERROR]"), 0);
}

TEST_F(FileOp, MakeDirectory) {
    const struct {
        const char* path;
        bool parents;
        int result;
        int errors;
    } rows[] = {{"", true, -1, 0},         {"dir", false, 0, 0},       {"dir/", true, 0, 0},
                {"file", true, -1, 1},     {"link", true, -1, 1},      {"file/x", true, -1, 1},
                {"a/b", false, -2, 0},     {"a/b/c/", true, 0, 0},     {"dangling/x", true, -2, 0},
                {"link/new", false, 0, 0}, {kDecomposed, false, 0, 0}, {kNotUtf8, false, 0, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        const LogCapture log;
        EXPECT_EQ(FSMKDir(row.path, row.parents), row.result);
        EXPECT_EQ(fs::is_directory(row.path), row.result == 0 || *row.path == 'l');
        EXPECT_EQ(log.Count("[ERROR] file-op("), row.errors);
    }
}

TEST(FileOpDirectories, MakeComponentByComponent) {
    const struct {
        const char *path, *rest;  // `rest`: the text at `end`
        bool replace;
        int result, error;
    } rows[] = {{"a/b", "", false, 0, 0},          {"a/b/", "/", false, 0, 0},
                {"a//b", "", false, 0, 0},         {"d", "", false, 0, 0},
                {"l/x/y", "", false, 0, 0},        {"f/x/y", "/x/y", false, -1, ENOTDIR},
                {"d/../f", "", false, -1, EEXIST}, {"f/", "/", false, -1, EEXIST},
                {"f/x", "", true, 0, 0},           {"f", "", true, 0, 0},
                {"n/x", "/x", true, -1, EEXIST},   {"l/x", "", true, 0, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        const TempDir dir;
        fs::create_directory(dir / "d");
        WriteFile(dir / "f", "");
        fs::create_symlink("d", dir / "l");
        fs::create_symlink("nowhere", dir / "n");
        const ustring path(dir / row.path);
        char* end = nullptr;
        errno = 0;
        const int result = FSMKDirP(path, &end, row.replace, 0xFFFF);
        EXPECT_TRUE(result == 0 || errno == row.error) << errno;
        EXPECT_EQ(result, row.result);
        EXPECT_EQ(end, path.c_str() + path.length() - std::string(row.rest).size());
        EXPECT_EQ(fs::is_directory(dir / row.path), result == 0);
        EXPECT_TRUE(fs::is_symlink(dir / "l"));
    }
    EXPECT_EQ(FSMKDirP("", nullptr, false, 0xFFFF), -1);
    EXPECT_EQ(FSMKDirP("/", nullptr, false, 0xFFFF), 0);
}

TEST_F(FileOp, MakeDirectoriesWithMode) {
    const mode_t former = umask(027);
    EXPECT_EQ(FSMKDirP("masked/x", nullptr, false, 0xFFFF), 0);
    EXPECT_EQ(FSMKDirP("exact/x", nullptr, false, 0773), 0);
    EXPECT_EQ(FSMKDirP("file/x", nullptr, false, 0773), -1);
    EXPECT_EQ(FSMKDir("plain", false), 0);
    EXPECT_EQ(umask(former), 027u);
    EXPECT_EQ(Octal("masked") + Octal("masked/x") + Octal("plain"), "750750750");
    EXPECT_EQ(Octal("exact") + Octal("exact/x"), "773773");
}

TEST_F(FileOp, MakeDirectoriesFromRoot) {
    const struct {
        const char *target, *root;
        int result, errors;
    } rows[] = {{"empty", "empty", 0, 0},        {"empty/a/b", "empty", 0, 0},
                {"empty/a//c/", "empty", 0, 0},  {"emptyx/a", "empty", -1, 1},
                {"empty", "empty/a", -1, 1},     {"empty/x", "empty/", -1, 1},
                {"missing/a", "missing", -1, 0}, {"dir/inner/x", "dir", -1, 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.target);
        const LogCapture log;
        EXPECT_EQ(FSMKDirFromRoot(dir_ / row.target, dir_ / row.root), row.result);
        EXPECT_EQ(log.Count("[ERROR] file-op("), row.errors);
        if (row.result == 0) {
            EXPECT_TRUE(fs::is_directory(row.target));
        }
    }
    EXPECT_FALSE(Exists("emptyx") || Exists("empty/x") || Exists("missing"));
}

TEST_F(FileOp, Remove) {
    WriteFile("tree/a/two\nlines", "");
    WriteFile("tree/" + std::string(kDecomposed), "");
    fs::create_symlink("../dir", "tree/out");
    fs::create_symlink("..", "tree/a/up");
    mkfifo("tree/fifo", 0600);
    std::string deep = "deep";
    for (int level = 0; level < 200; ++level) {
        fs::create_directory(deep);
        WriteFile(deep + "/file", "");
        deep += "/d";
    }
    WriteFile(std::string("bad/") + kNotUtf8, "");
    const struct {
        const char* path;
        int result;
    } rows[] = {{"", -1},      {"missing", 0}, {"file/x", -1}, {"link", 0},   {"dangling", 0},
                {"socket", 0}, {"tree", 0},    {"deep", 0},    {"empty/", 0}, {"bad", -3}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        EXPECT_EQ(FSRemove(row.path, true), row.result);
        EXPECT_EQ(*row.path != 0 && Exists(row.path), std::string(row.path) == "bad");
    }
    EXPECT_EQ(ReadFile("dir/inner") + ReadFile("file"), "innercontent");  // no link was followed
}

TEST_F(FileOp, TemporaryFile) {
    const mode_t former = umask(077);
    ustring out("before");
    EXPECT_EQ(FSMktemp(dir_ / "empty", out), 0);
    umask(former);
    EXPECT_EQ(FSParentPath(out), dir_ / "empty");
    EXPECT_EQ(FSBaseName(out).length(), 6u);
    EXPECT_EQ(Octal(out.c_str()), "644");
    EXPECT_EQ(Status(out.c_str()).st_size, 0);
    // The longest directory that leaves room for the name, and one byte more.
    std::string longest = dir_ / "empty";
    longest.append(4088 - longest.size(), '/');
    EXPECT_EQ(FSMktemp(longest, out), 0);
    EXPECT_EQ(out.length(), 4095u);
    const ustring last = out;
    const LogCapture log;
    EXPECT_EQ(FSMktemp(longest + "/", out), -1);
    EXPECT_EQ(FSMktemp(dir_ / "missing", out), -1);
    EXPECT_EQ(out, last);
    EXPECT_EQ(log.Count("[ERROR] file-op("), 2);
    EXPECT_EQ(std::distance(fs::directory_iterator("empty"), {}), 2);
    EXPECT_EQ(FSCreateTempPath(dir_ / "empty", out), 0);
    EXPECT_EQ(FSParentPath(out), dir_ / "empty");
    EXPECT_FALSE(Exists(out.c_str()));
}

TEST_F(FileOp, TimesAndOwnerOfALink) {
    const struct stat before = Status("dir");
    EXPECT_EQ(FSUTime("link", 1000000001, -5), 0);
    EXPECT_EQ(Status("link").st_atime, 1000000001);
    EXPECT_EQ(Status("link").st_mtime, -5);
    EXPECT_EQ(Status("dir").st_mtime, before.st_mtime);
    EXPECT_EQ(FSUTime("missing", 1, 1), -1);
    const LogCapture log;
    EXPECT_EQ(FSChown("missing", 1, 1), -1);
    EXPECT_EQ(log.Count("[ERROR] file-op("), 1);
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root gives a file away";
    }
    EXPECT_EQ(FSChown("link", 65533, 65532), 0);
    EXPECT_EQ(Status("link").st_uid, 65533u);
    EXPECT_EQ(Status("link").st_gid, 65532u);
    EXPECT_EQ(Status("dir").st_uid, before.st_uid);
}

std::map<std::string, DIR_ENTRY> ReadAll(const std::string& path, int flags) {
    std::map<std::string, DIR_ENTRY> entries;
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    EXPECT_EQ(FSOpenDir(path, flags, handle), 0);
    int result;
    while (errno = EIO, (result = FSReadDir(handle, entry)) > 0) {  // EIO is stale
        EXPECT_TRUE(entries.emplace(entry.name.c_str(), entry).second) << entry.name;
    }
    EXPECT_EQ(result, 0);
    FSCloseDir(handle);
    EXPECT_EQ(handle.dirp, nullptr);
    EXPECT_TRUE(handle.path.empty());
    EXPECT_EQ(handle.flags, flags);
    return entries;
}

TEST_F(FileOp, ReadDirectory) {
    WriteFile(kDecomposed, "12345");
    const std::map<std::string, int> types = {
        {".", FS_TYPE_DIR},         {"..", FS_TYPE_DIR},        {"file", FS_TYPE_FILE},
        {"dir", FS_TYPE_DIR},       {"empty", FS_TYPE_DIR},     {"link", FS_TYPE_LINK},
        {"fifo", FS_TYPE_FIFO},     {"dangling", FS_TYPE_LINK}, {"socket", FS_TYPE_SOCKET},
        {kDecomposed, FS_TYPE_FILE}};
    fs::create_symlink(dir_.path(), "dir/way");
    const struct {
        std::string path;
        int flags;
        bool stats;
    } rows[] = {{dir_.path(), 0, false},     {dir_.path(), 2, false},       {dir_.path(), 1, true},
                {dir_.path(), 3, true},      {dir_.path() + "/", 1, false}, {".", 1, false},
                {dir_ / "dir/way", 1, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path + " " + std::to_string(row.flags));
        const auto entries = ReadAll(row.path, row.flags);
        EXPECT_EQ(entries.size(), types.size());
        for (const auto& [name, entry] : entries) {
            const bool stats = row.stats && name[0] != '.';
            EXPECT_EQ(entry.type, types.count(name) == 0 ? -1 : types.at(name)) << name;
            EXPECT_EQ(entry.size, stats ? Status(name).st_size : 0) << name;
            EXPECT_EQ(entry.mtime, stats ? Status(name).st_mtime : 0) << name;
        }
    }
    EXPECT_EQ(ReadAll("empty", 0).size(), 2u);
    EXPECT_EQ(ReadAll("/dev", 0)["null"].type, FS_TYPE_DEVICE);
}

TEST_F(FileOp, ReadDirectoryFailures) {
    const LogCapture log;
    DIR_HANDLE handle;
    handle.path = "before";
    EXPECT_EQ(FSOpenDir("file", 1, handle), -1);
    EXPECT_EQ(FSOpenDir("missing", 1, handle), -1);
    EXPECT_EQ(log.Count("[ERROR] file-op("), 2);
    EXPECT_TRUE(handle.dirp == nullptr && handle.flags == 0 && handle.path == "before");
    // A stream over a descriptor of something else fails at the first read.
    EXPECT_EQ(FSOpenDir("dir", 0, handle), 0);
    const int file = open("file", O_RDONLY | O_CLOEXEC);
    dup2(file, dirfd(handle.dirp));
    close(file);
    DIR_ENTRY entry;
    entry.name = "before";
    EXPECT_EQ(FSReadDir(handle, entry), -1);
    EXPECT_EQ(entry.name, "before");
    EXPECT_EQ(log.Count("Failed to read directory 'dir'. Not a directory"), 1);
    FSCloseDir(handle);
}

// Processor time, since the machine may be busy with other things.
double SecondsToRead(const std::string& path, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        mknod((path + "/" + std::to_string(i)).c_str(), S_IFREG | 0600, 0);
    }
    const std::clock_t start = std::clock();
    EXPECT_EQ(ReadAll(path, 1).size(), count + 2);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST_F(FileOp, ReadingALargeDirectoryTakesLinearTime) {
    const double small = SecondsToRead(dir_ / "empty", 10000);
    // Ten times the entries: a quadratic walk would take a hundred times as long.
    EXPECT_LT(SecondsToRead(dir_.path() + "/dir", 99999), 40 * small);
}

TEST_F(FileOp, SymbolicLinks) {
    const std::string longest(1023, 'x');
    for (const std::string& text : {std::string("../a b"), std::string(kNotUtf8), longest}) {
        ustring out;
        EXPECT_EQ(FSCreateSymbolicLink(text, dir_ / "new"), 0);
        EXPECT_EQ(FSReadSymbolicLink(dir_ / "new", out), 0);
        EXPECT_EQ(out, text);
        fs::remove(dir_ / "new");
    }
    fs::create_symlink(longest + "x", dir_ / "too-long");
    const LogCapture log;
    ustring out("before");
    EXPECT_EQ(FSReadSymbolicLink(dir_ / "too-long", out), -1);
    EXPECT_EQ(FSReadSymbolicLink(dir_ / "file", out), -1);
    EXPECT_EQ(out, "before");
    EXPECT_EQ(FSCreateSymbolicLink("x", dir_ / "dangling"), -1);
    EXPECT_EQ(log.Count("[ERROR] file-op("), 3);
    EXPECT_EQ(log.Count("(code: " + std::to_string(EINVAL) + ","), 1);
}

TEST_F(FileOp, RealPath) {
    const std::string raw = dir_ / kNotUtf8, decomposed = dir_ / kDecomposed;
    WriteFile(raw, "");
    WriteFile(decomposed, "");
    const struct {
        std::string path, real;  // an empty `real`: there is none
    } rows[] = {{"link", dir_ / "dir"},
                {"./dir/../file", dir_ / "file"},
                {dir_ / "link/", dir_ / "dir"},
                {raw, raw},
                {decomposed, decomposed},
                {"/", "/"},
                {"missing", ""},
                {"dangling", ""},
                {"", ""}};
    const LogCapture log;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path);
        ustring path(row.path);
        EXPECT_EQ(FSGetRealPath(path), row.real.empty() ? -1 : 0);
        EXPECT_EQ(path, row.real.empty() ? row.path : row.real);
    }
    EXPECT_EQ(log.Count("[ERROR]"), 0);
}

TEST_F(FileOp, LeavesNoDescriptorOpen) {
    const auto count = [] { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); };
    const auto before = count();
    WriteFile(std::string("bad/") + kNotUtf8, "");
    WriteFile("full/x", "");
    for (const char* path : {"file", "dir", "link", "dangling", "fifo", "socket", "missing", "bad",
                             "file/x", "", "dir/inner", "dangling/x"}) {
        SCOPED_TRACE(path);
        _FILE_INFO_tag info;
        ustring out(path);
        DIR_HANDLE handle;
        DIR_ENTRY entry;
        FSStat(path, info, false);
        IsFileExist(path, true);
        FSGetRealPath(out);
        isMountPoint(path);
        IsMSDOS(path);
        FSReadSymbolicLink(path, out);
        FSMktemp(path, out);
        FSMKDir(path, true);
        if (FSOpenDir(path, 1, handle) == 0) {
            FSReadDir(handle, entry);
            FSCloseDir(handle);
        }
        if (std::string(path) != "fifo" && std::string(path) != "socket") {  // would block
            FSCopy(path, "copy", false);
            FSCopy("dir/inner", path, false);
        }
        FSRename(path, "full", false);
        FSRemove(path, false);
        EXPECT_EQ(count(), before);
    }
}

}  // namespace
