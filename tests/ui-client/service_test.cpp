// The upgrade decision, stopping the client, a whole run, missing permissions, and the recursive copy.
#include <QDeadlineTimer>
#include <algorithm>
#include <functional>
#include <regex>

#include "install-layout.h"
#include "support.h"
#include "ui-client/launcher/launcher.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/service_fixture.h"

namespace {

const std::string kExecutable = std::string("/") + layout::kExecutable;
const std::string kInfo = std::string("/") + layout::kInfo;

std::string App() { return Service::GetUserQuillmereAppInstallPath().c_str(); }

// Replaces the extraction; everything else is real.
class FakeExtraction : public MacService {
  public:
    explicit FakeExtraction(const std::function<int()>& extract) : extract_(extract) {}
    int ExtractPackage() override { return extract_(); }
    void StopService() override { stops += fs::exists(App() + kExecutable) ? 1 : 100; }
    bool Decide(const char* source, const char* target) {
        source_version.build_version = source;
        target_version.build_version = target;
        return IsNeedUpgrade();
    }
    int stops = 0;  // while the copy existed

  private:
    std::function<int()> extract_;
};

}  // namespace

TEST_F(ServiceTest, DecidesAndStopsTheClient) {
    const Rows<Text, Text, bool, bool> cases = {
        {"99", "120", true, true}, {"120", "99", true, false}, {"120", "99", false, true}, {"7", "7", true, false},
        {"7", "7", false, true},   {"", "1", true, true},      {"", "", true, false},      {"12a", "12", true, false},
        {"a12", "1", true, true},  {"-1", "", true, true}};
    for (const auto& [source, target, present, upgrade] : cases) {
        SCOPED_TRACE(testing::Message() << source << " to " << target);
        fs::remove_all(App());
        if (present) { WriteFile(App() + kExecutable, ""); }
        FakeExtraction service([] { return 0; });
        EXPECT_EQ(service.Decide(source, target), upgrade);
        EXPECT_EQ(service.HandlePackageUpgrade(), 0);
        EXPECT_FALSE(fs::exists(App() + layout::kBackupSuffix));
        EXPECT_EQ(service.stops, present ? 1 : 0);
    }
    EXPECT_EQ(LogLines(": user installation is ready, removing backup app\n"), 10);
}

// A home that is a symbolic link, a copy without its executable, a bundle without a package.
TEST_F(ServiceTest, LogsTheStepsOfARun) {
    fs::create_directory(home / "home");
    fs::create_directory_symlink(home / "home", home / "link");
    qputenv("HOME", (home / "link").c_str());
    WriteFile(App() + kInfo, "[Version]\nmajor_version=1\nminor_version=2\nbuild_version=3\nicon_overlay_version=4\n");
    WriteFile((home / "link/.Quillmere/app/aged"), "");
    {
        Worker worker;
        worker.StartThread();
        QMetaObject::invokeMethod(&worker, "HandleServicce", Qt::QueuedConnection);
    }  // waits for the run
    const std::string log = std::regex_replace(ReadFile(LogPath()), std::regex("\\([0-9]+\\)"), "");
    std::size_t at = 0;
    for (const char* const line :
         {"[DEBUG] launcher: running\n", "[INFO] quillmere-service: target_version = (, , , )\n",
          "[INFO] quillmere-service: source_version = (1, 2, 3, 4)\n",
          "[DEBUG] mac/mac-service: Source version: ('3', '4')\n",
          "[DEBUG] mac/mac-service: Target version: ('', '')\n",
          "[DEBUG] mac/mac-service: source version = 3, target version = 0\n",
          "[INFO] quillmere-service: extract package: '", "[DEBUG] extractor: decompress from '",
          "[ERROR] extractor: archive_read_open_filename failed: '",
          "[ERROR] extractor: Failed to calculate total file numbers, ret: -1\n",
          "[ERROR] quillmere-service: Failed to extract package, rollback to old",
          "[ERROR] launcher: Failed to upgrade package\n", "[INFO] quillmere-service: removing aged app folder ",
          "[ERROR] mac/mac-service: Cannot unregister bundle, ",
          "[ERROR] mac/mac-service: Failed to launch Quillmere UI\n", "[DEBUG] launcher: done\n"}) {
        const std::size_t found = log.find(line, at);
        EXPECT_NE(found, std::string::npos) << line << "does not follow " << log.substr(0, at);
        at = std::min(found, log.size());
    }
    EXPECT_TRUE(fs::exists(App() + kInfo));
    EXPECT_FALSE(fs::exists(home / "link/.Quillmere/app"));
}

TEST_F(ServiceTest, DoesNotStopItself) {
    WriteFile(home / ".Quillmere/ui.pid", "pid=" + std::to_string(getpid()) + "\n");
    const QDeadlineTimer soon(3000);
    MacService().StopService();
    EXPECT_FALSE(soon.hasExpired());
}

TEST_F(ServiceTest, CopiesTrees) {
    MacService service;
    const auto copy = [&](const char* from, const char* to) {
        return service.FSCopyPath((home / from).c_str(), (home / to).c_str());
    };
    WriteFile(home / "from/a/b/deep", "deep");
    WriteFile(home / "from/with\nnewline", "line");
    fs::create_directory(home / "from/empty");
    fs::create_symlink("a/b/deep", home / "from/link");
    EXPECT_EQ(copy("from", "to/new"), 0);
    EXPECT_EQ(copy("from/a/b/deep", "to/plain"), 0);
    Tree tree = Look(home / "from");
    tree["link"] = "deep";
    EXPECT_EQ(Look(home / "to/new"), tree);
    EXPECT_EQ(ReadFile(home / "to/plain"), "deep");
    fs::create_symlink("nowhere", home / "from/a/b/dangling");
    EXPECT_EQ(copy("from", "broken"), -1);
    EXPECT_EQ(copy("none", "x"), -1);
    EXPECT_EQ(copy("from", "to/plain"), -1);
    EXPECT_EQ(service.FSCopyPath("", "x"), -1);
    EXPECT_EQ(LogLines(": FSCopyPath: failed to copy from"), 3);  // one for each level
    EXPECT_EQ(LogLines(": FSCopyPath: source path '"), 1);
    EXPECT_EQ(LogLines(": FSCopyPath: failed to create dest folder"), 1);
    EXPECT_EQ(LogLines(": FSCopyPath: failed to stat source ''"), 1);
}

// Copies are contents of INFO by the suffix of the copy's name. Later ones of `before` were moved later.
TEST_F(ServiceTest, RepairsWhatADeadAttemptLeft) {
    using Copies = std::map<std::string, std::string>;
    const std::string v1 = "build_version=1", v2 = "build_version=2";
    const Rows<Stage, int, std::vector<Copies::value_type>, Copies> cases = {
        {Stage::kInstalled, 2, {{"", v2}, {"_tmp", v1}, {"_tmp1", v1}, {"_tmp2", v1}}, {{"", v2}, {"_tmp2", v1}}},
        {Stage::kMoved, 1, {{"", v2}, {"_tmp", v1}}, {{"", v1}}},
        {Stage::kMoved, 2, {{"", v2}, {"_tmp", v1}}, {{"", v2}, {"_tmp", v1}}},
        {Stage::kMoved, 2, {{"_tmp", v1}, {"_tmp1", ""}}, {{"", v1}}},
        {Stage::kStarted, 0, {{"", v2}, {"_tmp", v1}}, {{"", v2}, {"_tmp", v1}}},
        {Stage::kStarted, 0, {{"_tmp", v1}, {"_tmp9", v2}, {"_tmp3", "x"}}, {{"", v2}, {"_tmp", v1}, {"_tmp3", "x"}}},
        {Stage::kStarted, 0, {{"", ""}, {"_tmp9", v1}, {"_tmp", v2}}, {{"", v2}, {"_tmp9", v1}}},
        {Stage::kStarted, 0, {{"", ""}, {"_tmp", ""}}, {{"", ""}, {"_tmp", ""}}},
    };
    for (const auto& [reached, backups, before, after] : cases) {
        fs::remove_all(home / ".Quillmere");
        struct stat former = {}, status = {};
        for (const auto& [suffix, info] : before) {
            const std::string copy = App() + suffix;
            WriteFile(copy + kInfo, info);
            do {
                fs::permissions(copy, fs::perms::owner_all);
                stat(copy.c_str(), &status);
            } while (status.st_ctim.tv_nsec == former.st_ctim.tv_nsec);
            former = status;
        }
        Service::Repair({StartMode::kAfterRepair, "", reached, backups});
        Copies left;
        for (const fs::path& copy : fs::directory_iterator(home / ".Quillmere")) {
            left[copy.string().substr(App().size())] = ReadFile(copy.string() + kInfo);
        }
        EXPECT_EQ(left, after) << testing::PrintToString(before);
    }
    EXPECT_EQ(LogLines(": putting '"), 5);
}

TEST_F(ServiceTest, ReportsAFileInPlaceOfTheUserDirectory) {
    WriteFile(home / ".Quillmere", "");
    MacService service;
    service.PreUpgrade();
    EXPECT_EQ(service.PrepareUserEnv(), -1);
    EXPECT_EQ(LogLines(": source does not exist\n"), 1);
    EXPECT_EQ(LogLines(": failed to create folder: '"), 1);
    EXPECT_EQ(LogLines(": Failed to extract package, and no old installation to rollback\n"), 1);
}

TEST_F(ServiceTest, KeepsCopiesWithoutPermission) {
    MacService service;
    WriteFile(home / "from/closed/file", "closed");
    WriteFile(home / "from/open", "open");
    fs::permissions(home / "from/closed", fs::perms::none);
    fs::permissions(home.path(), fs::perms::all);
    // A directory that cannot be opened stays empty, without a failure.
    InChild(BecomeLoner, [&] { EXPECT_EQ(service.FSCopyPath((home / "from").c_str(), (home / "to").c_str()), 0); });
    EXPECT_EQ(ReadFile(home / "to/open"), "open");
    EXPECT_TRUE(fs::is_empty(home / "to/closed"));
    EXPECT_EQ(LogLines(" [WARNING] quillmere-service("), 1);
    // A copy that a rollback cannot remove loses its version at least.
    WriteFile(App() + "/mark", "old");
    fs::permissions(home / ".Quillmere", fs::perms::all);
    FakeExtraction stuck([] {
        WriteFile(App() + kInfo, "");
        for (int number = 0; number < 20; ++number) { WriteFile(App() + "/Contents/" + std::to_string(number), ""); }
        fs::permissions(App() + "/Contents", fs::perms::owner_read | fs::perms::owner_exec);
        return -1;
    });
    InChild(BecomeLoner, [&] { EXPECT_EQ(stuck.PrepareUserEnv(), -1); });
    EXPECT_EQ(ReadFile(App() + "_tmp/mark"), "old");
    EXPECT_TRUE(fs::exists(App() + "/Contents/Resources"));
    EXPECT_FALSE(fs::exists(App() + kInfo));
    // A copy may exist where nothing can be read, and it may be complete.
    WriteFile(App() + "_tmp" + kInfo, "build_version=1");
    WriteFile(App() + kInfo, "");
    fs::permissions(App() + kInfo, fs::perms::none);
    for (const std::string directory : {"", "/Contents", "/Contents/Resources"}) {
        fs::permissions(App() + directory, fs::perms::all);  // so that it could be replaced
    }
    InChild(BecomeLoner, [] { Service::Repair({}); });
    fs::remove(App() + kInfo);
    fs::create_symlink("/proc/self/mem", App() + kInfo);  // opens, but cannot be read
    Service::Repair({});
    EXPECT_EQ(ReadFile(App() + "_tmp/mark"), "old");
    fs::permissions(home / ".Quillmere", fs::perms::none);
    InChild(BecomeLoner, [&] { EXPECT_EQ(service.PrepareUserEnv(), -1); });
    EXPECT_EQ(LogLines(": failed to backup app from '"), 11);
    EXPECT_EQ(LogLines("Quillmere.app_tmp9' at max retries, exiting\n"), 1);
}
