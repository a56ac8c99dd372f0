// The transaction branch by branch, the decision, the recursive copy, and the extractor on hostile
// archives.
#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QObject>
#include <functional>

#include "log.h"
#include "temp_dir.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/package-info.h"
#include "ui-client/launcher/str-table.h"

namespace fs = std::filesystem;

namespace {

constexpr int kNever = 99;
constexpr char kExecutable[] = "/Contents/MacOS/quillmere-ui";

// A home of the test's own, and a log with everything in it.
class ServiceTest : public testing::Test {
  protected:
    ServiceTest() {
        qputenv("HOME", home.path().c_str());
        WriteFile(home / "levels", "service_debug=7\nextractor_debug=7\n");
        Logger::Initialize(Logger::TYPE_FILE, (home / "log").c_str(), (home / "levels").c_str(),
                           50);
    }
    ~ServiceTest() override { Logger::Destroy(); }

    std::string App() const { return home / ".Quillmere/Quillmere.app"; }
    int LogLines(const std::string& part) const {
        const std::string log = ReadFile(home / "log");
        int count = 0;
        for (std::size_t at = log.find(part); at != std::string::npos;
             at = log.find(part, at + 1)) {
            ++count;
        }
        return count;
    }

    const TempDir home;
};

// The failures come from here; all else is real.
class FakeExtraction : public MacService {
  public:
    explicit FakeExtraction(const std::function<int()>& extract) : extract_(extract) {}
    int ExtractPackage() override { return extract_(); }
    void StopService() override { ++stops; }
    bool Decide(const char* source, const char* target) {
        source_version.build_version = source;
        target_version.build_version = target;
        return IsNeedUpgrade();
    }
    int stops = 0;

  private:
    std::function<int()> extract_;
};

using ExtractorTest = ServiceTest;

struct Entry {
    std::string path;
    std::string content;
    mode_t mode = S_IFREG | 0644;
    std::string link{};
};

void MakeArchive(const std::string& path, const std::vector<Entry>& entries) {
    archive* const writer = archive_write_new();
    archive_write_set_format_pax_restricted(writer);
    archive_write_open_filename(writer, path.c_str());
    for (const Entry& entry : entries) {
        archive_entry* const header = archive_entry_new();
        archive_entry_set_pathname(header, entry.path.c_str());
        archive_entry_set_mode(header, entry.mode);
        archive_entry_set_size(header, static_cast<la_int64_t>(entry.content.size()));
        if (!entry.link.empty()) {
            archive_entry_set_symlink(header, entry.link.c_str());
        }
        archive_write_header(writer, header);
        archive_write_data(writer, entry.content.data(), entry.content.size());
        archive_entry_free(header);
    }
    archive_write_close(writer);
    archive_write_free(writer);
}

}  // namespace

TEST_F(ServiceTest, TransactionByItsBranches) {
    const struct {
        bool old_copy;
        int taken;       // backup names 0 to taken - 1 stand full
        int extraction;  // its result; kNever where it must not be tried
        int result;
        int left;          // backups
        const char* copy;  // content of APP/mark
        const char* log;
    } cases[] = {
        {false, 0, 0, 0, 0, "new", "user installation is ready, removing backup app\n"},
        {false, 0, -1, -1, 0, "new",
         "Failed to extract package, and no old installation to rollback\n"},
        {false, 1, 0, 0, 0, "new", "user installation is ready"},
        {true, 0, 0, 0, 0, "new", "user installation is ready"},
        {true, 3, 0, 0, 0, "new", "user installation is ready"},
        {true, 0, 7, -1, 0, "old", "Failed to extract package, rollback to old installation\n"},
        {true, 2, -1, -1, 2, "old", "Failed to extract package, rollback to old installation\n"},
        {true, 10, kNever, -1, 10, "old", "Quillmere.app_tmp9' at max retries, exiting\n"},
    };
    for (const auto& branch : cases) {
        SCOPED_TRACE(std::to_string(&branch - cases) + ": " + branch.log);
        fs::remove_all(home / ".Quillmere");
        fs::resize_file(home / "log", 0);
        if (branch.old_copy) {
            WriteFile(App() + "/mark", "old");
        }
        for (int index = 0; index < branch.taken; ++index) {
            WriteFile(App() + "_tmp" + (index == 0 ? "" : std::to_string(index)) + "/full", "");
        }
        FakeExtraction service([&] {
            EXPECT_NE(branch.extraction, kNever) << "the package was opened";
            EXPECT_FALSE(fs::exists(App() + "/mark")) << "the old copy is written into";
            WriteFile(App() + "/mark", "new");
            return branch.extraction;
        });
        EXPECT_EQ(service.PrepareUserEnv(), branch.result);
        EXPECT_EQ(ReadFile(App() + "/mark"), branch.copy);
        EXPECT_EQ(LogLines("Quillmere.app' -> '"),
                  branch.old_copy ? branch.taken + branch.taken / 10 : 0);
        EXPECT_EQ(LogLines(branch.log), 1);
        const fs::directory_iterator user(home / ".Quillmere");
        EXPECT_EQ(std::distance(begin(user), end(user)), 1 + branch.left);
    }
}

TEST_F(ServiceTest, DecisionAndStop) {
    const struct {
        const char* source;
        const char* target;
        bool present;
        bool upgrade;
    } cases[] = {{"99", "120", true, true}, {"120", "99", true, false}, {"120", "99", false, true},
                 {"7", "7", true, false},   {"7", "7", false, true},    {"", "1", true, true},
                 {"", "", true, false},     {"12a", "12", true, false}, {"a12", "1", true, true},
                 {"-1", "", true, true}};
    for (const auto& row : cases) {
        SCOPED_TRACE(std::string(row.source) + " to " + row.target);
        fs::remove_all(App());
        if (row.present) {
            WriteFile(App() + kExecutable, "");
        }
        FakeExtraction service([] { return 0; });
        EXPECT_EQ(service.Decide(row.source, row.target), row.upgrade);
        EXPECT_EQ(service.HandlePackageUpgrade(), 0);
        EXPECT_EQ(service.stops, row.present ? 1 : 0);
    }
}

TEST_F(ServiceTest, PathsOfTheLayout) {
    const std::string directory = QCoreApplication::applicationDirPath().toStdString();
    const std::string root = fs::path(directory).parent_path().parent_path();
    EXPECT_EQ(Service::GetRootQuillmereInstallPath().c_str(), root);
    EXPECT_EQ(Service::GetRootQuillmereResourceInstallPath().c_str(), root + "/Contents/Resources");
    EXPECT_EQ(Service::GetUserQuillmereAppInstallPath().c_str(), App());
    EXPECT_EQ(Service::GetUserQuillmereDataInstallPath().c_str(), home / ".Quillmere/data");
    EXPECT_EQ(MacService::GetInstace(), MacService::GetInstace());
    EXPECT_EQ(PackageInfo().package_file.c_str(), directory + "/package/quillmere.qpk");
    EXPECT_EQ(PackageInfo().log_dir.c_str(), home / ".Quillmere_log");
}

TEST_F(ServiceTest, CopiesTrees) {
    const std::string from = home / "from";
    WriteFile(from + "/a/b/deep", "deep");
    WriteFile(from + "/with\nnewline", "line");
    fs::create_directory(from + "/empty");
    fs::create_symlink("a/b/deep", from + "/link");
    FakeExtraction service([] { return 0; });
    EXPECT_EQ(service.FSCopyPath(from.c_str(), (home / "to/new").c_str()), 0);
    EXPECT_EQ(ReadFile(home / "to/new/a/b/deep"), "deep");
    EXPECT_EQ(ReadFile(home / "to/new/with\nnewline"), "line");
    EXPECT_TRUE(fs::is_empty(home / "to/new/empty"));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(home / "to/new/link")));
    EXPECT_EQ(service.FSCopyPath((from + "/a/b/deep").c_str(), (home / "plain").c_str()), 0);
    EXPECT_EQ(ReadFile(home / "plain"), "deep");

    // One line on each level of the way up.
    fs::create_symlink("nowhere", from + "/a/b/dangling");
    EXPECT_EQ(service.FSCopyPath(from.c_str(), (home / "broken").c_str()), -1);
    EXPECT_EQ(LogLines("FSCopyPath: failed to copy from"), 3);
    EXPECT_EQ(service.FSCopyPath((home / "none").c_str(), (home / "x").c_str()), -1);
    EXPECT_EQ(LogLines("FSCopyPath: source path '"), 1);
    EXPECT_FALSE(fs::exists(home / "x"));
    EXPECT_EQ(service.FSCopyPath("", (home / "x").c_str()), -1);
    EXPECT_EQ(LogLines("FSCopyPath: failed to stat source ''"), 1);
    EXPECT_EQ(service.FSCopyPath(from.c_str(), (home / "plain").c_str()), -1);
    EXPECT_EQ(LogLines("FSCopyPath: failed to create dest folder"), 1);
}

// A directory that cannot be opened is left empty, and is no failure.
TEST_F(ServiceTest, CopiesWhatCanBeRead) {
    if (getuid() != 0) {
        GTEST_SKIP() << "needs root to become another user";
    }
    WriteFile(home / "from/closed/file", "closed");
    WriteFile(home / "from/open", "open");
    fs::permissions(home / "from/closed", fs::perms::none);
    fs::permissions(home.path(), fs::perms::all);
    const pid_t child = fork();
    if (child == 0) {
        FakeExtraction service([] { return 0; });
        _exit(setuid(65534) != 0
                  ? 1
                  : service.FSCopyPath((home / "from").c_str(), (home / "to").c_str()));
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(ReadFile(home / "to/open"), "open");
    EXPECT_TRUE(fs::is_empty(home / "to/closed"));
    EXPECT_EQ(LogLines("[WARNING] quillmere-service("), 1);
}

TEST_F(ExtractorTest, WritesReportsAndCounts) {
    const std::string outside = home / "outside";
    WriteFile(outside, "outside");
    fs::create_directory(home / "dest");
    fs::create_symlink(outside, home / "dest/replaced");
    MakeArchive(home / "archive", {{"dir/", "", S_IFDIR | 0755},
                                   {"dir/run", "#!", S_IFREG | 0755},
                                   {"no/parents/here", "x"},
                                   {"replaced", "inside"},
                                   {"link", "", S_IFLNK | 0777, "dir/run"}});
    std::vector<std::pair<int, int>> reports;
    QObject receiver;
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                     [&](int total, int current) { reports.emplace_back(total, current); });
    Extractor extractor;
    extractor.m_source = (home / "archive").c_str();
    extractor.m_dest = (home / "dest").c_str();
    EXPECT_EQ(extractor.Count(), 5);
    EXPECT_EQ(extractor.Extract(), 0);
    EXPECT_EQ(reports, (std::vector<std::pair<int, int>>{{5, 1}, {5, 2}, {5, 3}, {5, 4}, {5, 5}}));
    EXPECT_EQ(ReadFile(home / "dest/no/parents/here"), "x");
    EXPECT_EQ(ReadFile(home / "dest/link"), "#!");
    EXPECT_EQ(access((home / "dest/dir/run").c_str(), X_OK), 0);
    EXPECT_EQ(ReadFile(outside), "outside") << "a link was written through";
    EXPECT_EQ(ReadFile(home / "dest/replaced"), "inside");
    testing::internal::CaptureStdout();
    EXPECT_EQ(extractor.List(), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "dir/\ndir/run\nno/parents/here\nreplaced\nlink\n");
}

TEST_F(ExtractorTest, RefusesWhatItMust) {
    MakeArchive(home / "empty", {});
    MakeArchive(home / "climbs", {{"good", "x"}, {"../climbed", "x"}});
    MakeArchive(home / "cut",
                {{"good", std::string(40000, 'x')}, {"lost", std::string(40000, 'y')}});
    fs::resize_file(home / "cut", 60000);
    const struct {
        std::string source;
        std::string dest;
        int count;
        const char* log;
    } cases[] = {
        {"", home / "dest", -1, ": Invalid Argument\n"},
        {home / "empty", "", -1, ": Invalid Argument\n"},
        {home / "none", home / "dest", -1, ": Failed to calculate total file numbers, ret: -1\n"},
        {home / "empty", home / "dest", 0, ": Failed to calculate total file numbers, ret: 0\n"},
        {home / "climbs", home / "dest", 2, ": archive_read_extract2 failed: '"},
        {home / "cut", home / "dest", 2, ": archive_read_extract2 failed: '"},
    };
    for (const auto& bad : cases) {
        SCOPED_TRACE(bad.source);
        fs::remove_all(home / "dest");
        fs::create_directory(home / "dest");
        Extractor extractor;
        extractor.m_source = bad.source.c_str();
        extractor.m_dest = bad.dest.c_str();
        EXPECT_EQ(extractor.Count(), bad.count);
        fs::resize_file(home / "log", 0);
        EXPECT_EQ(extractor.Extract(), -1);
        EXPECT_EQ(LogLines(bad.log), 1) << ReadFile(home / "log");
        EXPECT_FALSE(fs::exists(home / "climbed"));
        // What was written before the failure stays.
        EXPECT_EQ(fs::exists(home / "dest/good"), bad.count == 2);
    }
}

TEST_F(ExtractorTest, PoursOneEntry) {
    MakeArchive(home / "archive", {{"one", std::string(100000, '1')}});
    archive* const reader = archive_read_new();
    archive_read_support_format_all(reader);
    ASSERT_EQ(archive_read_open_filename(reader, (home / "archive").c_str(), 10240), ARCHIVE_OK);
    archive_entry* entry = nullptr;
    ASSERT_EQ(archive_read_next_header(reader, &entry), ARCHIVE_OK);
    archive* const writer = archive_write_disk_new();
    archive_entry_set_pathname(entry, (home / "poured").c_str());
    ASSERT_EQ(archive_write_header(writer, entry), ARCHIVE_OK);
    Extractor extractor;
    EXPECT_EQ(extractor.copy_data(nullptr, writer), -1);
    EXPECT_EQ(extractor.copy_data(reader, nullptr), -1);
    EXPECT_EQ(extractor.copy_data(reader, writer), 0);
    archive_read_free(reader);
    archive_write_free(writer);
    EXPECT_EQ(ReadFile(home / "poured"), std::string(100000, '1'));
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
