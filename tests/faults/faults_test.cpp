// Kills the launcher, fails its calls and cuts its power at its calls on files, and checks what is left. A point is one
// fault at one call. Tests every 263rd point; all with QUILLMERE_FAULTS=all; all of one fault with its name there.
#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <random>
#include <set>

#include "e2e/harness.h"
#include "faults/intercepted_run.h"

namespace fs = std::filesystem;

namespace {

constexpr char kApp[] = "Quillmere.app";
constexpr char kInfo[] = "Contents/Resources/INFO";
constexpr char kExecutable[] = "Contents/MacOS/quillmere-ui";

// INFO is last. The noise is incompressible, so that a truncated package has a part of the files.
PackageEntries Client(char build) {
    std::minstd_rand random(build);
    std::string noise(200000, 0);
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random() >> 8); });
    const std::string script = "#!/bin/sh\necho " + std::string(1, build) + " >\"$HOME/opened\"\n";
    return {{"Contents/Frameworks/library", noise},
            {kExecutable, script},
            {kInfo, "[Version]\nbuild_version=" + std::string(1, build) + "\n"}};
}

// Complete directories. Others are "torn", or "torn, with a version".
const std::map<std::string, PackageEntries> kKinds{{"old", Client('1')},
                                                   {"new", Client('2')},
                                                   {"no version", {{kExecutable, ""}}},
                                                   {"empty", {}},
                                                   {"somebody's", {{"file", "x"}}}};

using User = std::map<std::string, std::string>;  // kinds of directories by name

// The names of backups, in the order in which an upgrade tries them.
const char* const kBackups[] = {"Quillmere.app_tmp",  "Quillmere.app_tmp1", "Quillmere.app_tmp2", "Quillmere.app_tmp3",
                                "Quillmere.app_tmp4", "Quillmere.app_tmp5", "Quillmere.app_tmp6", "Quillmere.app_tmp7",
                                "Quillmere.app_tmp8", "Quillmere.app_tmp9"};

User TenNames() {
    User user{{kApp, "old"}};
    for (const char* const backup : kBackups) { user[backup] = "somebody's"; }
    return user;
}

enum Package { kGood, kCutShort, kOverQuota };  // a quota that only the last flush reports

const struct Scenario {
    const char* name;
    User start;
    User after;  // an undisturbed run
    Package package = kGood;
} kScenarios[] = {
    {"FirstInstall", {}, {{kApp, "new"}}},
    {"Upgrade", {{kApp, "old"}}, {{kApp, "new"}}},
    {"UpgradeOverLeftovers",
     {{kApp, "no version"}, {kBackups[0], "old"}, {kBackups[7], "somebody's"}},
     {{kApp, "new"}, {kBackups[7], "somebody's"}}},
    {"CurrentCopy", {{kApp, "new"}, {kBackups[0], "old"}}, {{kApp, "new"}, {kBackups[0], "old"}}},
    {"TenNamesTaken", TenNames(), TenNames()},
    {"DamagedPackage", {{kApp, "old"}}, {{kApp, "old"}}, kCutShort},
    {"DamagedAfterAnInterruption",
     {{kApp, "no version"}, {kBackups[0], "old"}},
     {{kApp, "no version"}, {kBackups[0], "old"}},
     kCutShort},
    {"OverQuota", {{kApp, "old"}}, {{kApp, "old"}}, kOverQuota},
};

void PrintTo(const Scenario& row, std::ostream* out) { *out << row.name; }

struct Fault {
    std::string name;
    int answer = kGoOn;
    bool at_later_calls = false;
    bool power_cut = false;        // at the end of the run; only INFO survives without a flush
    bool in_the_next_run = false;  // the same fault again, at another call
};

std::vector<Fault> AllFaults() {
    std::vector<Fault> faults{
        {"killed", kKillBoth},
        {"killed, power cut", kKillBoth, false, true},
        {"killed twice", kKillBoth, false, false, true},
        {"killed twice, power cut", kKillBoth, false, true, true},
        {"launcher killed", kKillLauncher},
        {"each launcher killed", kKillLauncher, true},
        {"interrupted", -EINTR},  // once: libarchive tries again
    };
    for (const int error : {ENOSPC, EIO, EACCES, EMFILE, EDQUOT, ESTALE}) {
        faults.push_back({std::strerror(error), -error});
        faults.push_back({std::strerror(error) + std::string(" from here on"), -error, true});
    }
    return faults;
}

std::string KindOf(const fs::path& directory) {
    PackageEntries files;
    for (const auto& file : fs::recursive_directory_iterator(directory)) {
        if (!file.is_directory()) {
            files.emplace_back(file.path().lexically_relative(directory), ReadFile(file.path()));
        }
    }
    std::sort(files.begin(), files.end());
    const auto kind = std::find_if(kKinds.begin(), kKinds.end(), [&](const auto& row) { return row.second == files; });
    const bool bare = files.empty() && !fs::is_empty(directory);
    const bool version = ReadFile(directory / kInfo).find("build_version=") != std::string::npos;
    return kind != kKinds.end() && !bare ? kind->first : version ? "torn, with a version" : "torn";
}

class Faults : public testing::TestWithParam<Scenario> {
  protected:
    void Offer(Package package) {
        world_.Offer(2, package == kCutShort ? whole_.substr(0, whole_.size() * 4 / 5) : whole_);
        package_ = package;
    }

    void Put(const User& user) const {
        fs::remove_all(world_.User());
        for (const auto& [name, kind] : user) {
            const fs::path directory = fs::path(world_.User()) / name;
            fs::create_directories(directory);
            for (const auto& [path, content] : kKinds.at(kind)) {
                WriteFile(directory / path, content);
                fs::permissions(directory / path, fs::perms(0755));
            }
        }
    }

    User Get() const {
        User user;
        for (const auto& entry : fs::directory_iterator(world_.User())) {
            if (entry.is_directory() && entry.path().filename() != "log") {
                user[entry.path().filename()] = KindOf(entry);
            }
        }
        return user;
    }

    // One run with the fault at this call. Checks what must hold after every run.
    void Run(const Fault& fault = {}, int at = 0) {
        calls_ = flushes_ = 0;
        unflushed_.clear();
        fs::remove(world_.Home() + "/opened");
        const std::string resources = world_.Bundle() + "/Contents/Resources/";
        const std::vector<std::string> places{world_.User(), resources + "INFO", resources + "package",
                                              "/proc/self/fd/"};
        const int ended = RunIntercepted(world_, places, [&](const FileCall& call) {
            ++calls_;
            const bool hit = calls_ == at || (calls_ > at && fault.at_later_calls);
            return hit ? fault.answer : Note(call);
        });
        const bool killed = fault.answer == kKillBoth && calls_ >= at;
        EXPECT_EQ(ended, killed ? -1 : 0);
        if (fault.power_cut) { LosePower(); }
        const bool each_attempt_dies = fault.answer == kKillLauncher && fault.at_later_calls;
        CheckCopies(!killed && !each_attempt_dies);
        // The same start continues after its working process was killed.
        if (fault.answer == kKillLauncher && !fault.at_later_calls && package_ == kGood) { EXPECT_EQ(Get(), after_); }
    }

    void LosePower() const {
        for (const std::string& path : unflushed_) {
            if (path != InfoPath() && fs::is_regular_file(path)) { fs::resize_file(path, 0); }
        }
    }

    void CheckCopies(bool opens) const {
        User now = Get();
        const auto has_whole_copy = [](const User& user) {
            return std::any_of(user.begin(), user.end(),
                               [](auto& row) { return row.second == "old" || row.second == "new"; });
        };
        EXPECT_TRUE(has_whole_copy(now) || !has_whole_copy(start_)) << "no whole copy is left";
        EXPECT_NE(now[kApp], "torn, with a version");
        const std::string opened = ReadFile(world_.Home() + "/opened");
        EXPECT_TRUE(!opens || now[kApp] != "old" || opened == "1\n");
        EXPECT_TRUE(!opens || now[kApp] != "new" || opened == "2\n");
        for (const auto& [name, kind] : start_) { EXPECT_TRUE(kind != "somebody's" || now[name] == kind) << name; }
    }

    // Written files survive a power cut after the next flush. INFO and the removal of a backup come after a flush.
    int Note(const FileCall& call) {
        const bool of_copy = call.path.rfind(world_.App() + "/", 0) == 0;
        const bool of_backup = call.path.rfind(world_.App() + "_tmp", 0) == 0;
        if (call.what == kFlush) {
            if (++flushes_ == 2 && package_ == kOverQuota) { return -EDQUOT; }
            unflushed_.clear();
            return kSuccessWithoutIt;
        }
        if (call.what == kRemove || call.what == kMake) { unflushed_.erase(call.path); }
        if (call.what == kRemove ? of_backup : call.what == kMake && call.path == InfoPath()) {
            EXPECT_EQ(unflushed_, std::set<std::string>()) << "before " << call.path;
        }
        const bool writes = call.what == kMake || call.what == kWrite;
        if (of_copy ? writes : of_backup && call.what == kRename) { unflushed_.insert(call.path); }
        return kGoOn;
    }

    std::string InfoPath() const { return world_.App() + "/" + kInfo; }

    const std::string whole_ = Pack(kKinds.at("new"));
    World world_;
    User start_ = GetParam().start;
    User after_ = GetParam().after;
    Package package_ = kGood;
    int calls_ = 0;
    int flushes_ = 0;
    std::set<std::string> unflushed_;
};

}  // namespace

TEST_P(Faults, LoseNothingAndTheNextRunMendsThem) {
    const std::string wanted = qEnvironmentVariable("QUILLMERE_FAULTS").toStdString();
    const int stride = wanted.empty() ? 263 : 1;
    const std::vector<Fault> faults = AllFaults();
    start_["data"] = after_["data"] = "somebody's";
    Put(start_);
    Offer(GetParam().package);
    Run();
    EXPECT_EQ(Get(), after_);
    EXPECT_TRUE(start_.count(kApp) == 0 || unflushed_.empty()) << "not on the disk at the end";
    const int calls = calls_;
    int points = 0;
    for (int point = calls % stride; point < calls * static_cast<int>(faults.size()); point += stride) {
        const int at = 1 + point / static_cast<int>(faults.size());
        const Fault& fault = faults[static_cast<std::size_t>(point) % faults.size()];
        if (!wanted.empty() && wanted != "all" && wanted != fault.name) { continue; }
        SCOPED_TRACE(fault.name + " at call " + std::to_string(at));
        ++points;
        Put(start_);
        Run(fault, at);
        if (fault.in_the_next_run) { Run(fault, 1 + at * 7 % calls); }
        Run();
        if (GetParam().package != kGood) {
            Offer(kGood);
            Run();
            Offer(GetParam().package);
        }
        EXPECT_EQ(Get().at(kApp), GetParam().package == kGood ? after_.at(kApp) : "new");
    }
    EXPECT_GT(points, 0) << "no such fault";
    std::cout << calls << " calls, " << points << " points\n";
}

// The working process dies before some calls. The package may be damaged after the first death.
TEST(Supervisor, LosesNoCopyWhenAttemptsDie) {
    const struct {
        const char* name;
        What what;         // the call
        const char* path;  // after that of the copy
        int skipped_calls, deaths;
        bool damaged;
        std::string build;  // at the end
    } cases[] = {
        {"unpacking", kMake, "/Contents/MacOS/", 0, 1, true, "1"},
        {"unpacking each time", kMake, "/Contents/MacOS/", 0, 2, false, "1"},
        {"version not flushed", kFlush, "", 1, 1, false, "2"},
        {"backup without a version", kRemove, "_tmp/", 1, 1, true, "2"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        World world;
        world.Have(1);
        WriteFile(world.Client(), "#!/bin/sh\necho 1 >\"$HOME/opened\"\n");
        world.Offer(2, Pack(kKinds.at("new")));
        int calls = 0, deaths = 0;
        const int ended = RunIntercepted(world, {world.App() + row.path}, [&](const FileCall& call) {
            if (call.what != row.what || ++calls <= row.skipped_calls || deaths == row.deaths) { return kGoOn; }
            if (row.damaged) { WriteFile(world.Package(), "damaged"); }
            ++deaths;
            return kKillLauncher;
        });
        EXPECT_EQ(ended, 0);
        EXPECT_EQ(deaths, row.deaths);
        EXPECT_EQ(world.Installed(), row.build);
        EXPECT_EQ(ReadFile(world.Home() + "/opened"), row.build + "\n");
        EXPECT_FALSE(fs::exists(world.App() + "_tmp"));
        const std::string cause = "was ended by a signal (Killed) during the run; this one has no display and puts";
        EXPECT_TRUE(Contains(world.Log(), cause)) << world.Log();
    }
}

TEST(Supervisor, IgnoresALimitOfTheSizeOfAFile) {
    World world;
    world.Offer(1, Pack(kKinds.at("old")));
    EXPECT_EQ(world.Run().exit_code, 0);
    world.Offer(2, Pack(kKinds.at("new")));
    const rlimit limit{100000, 100000};
    const auto start = world.Spawn([&] { setrlimit(RLIMIT_FSIZE, &limit); });
    EXPECT_TRUE(EndedWell(world.Finish(*start)));
    EXPECT_EQ(KindOf(world.App()), "old");
    EXPECT_FALSE(Contains(world.Log(), "[WARNING]")) << "a signal ended the working process";
}

INSTANTIATE_TEST_SUITE_P(In, Faults, testing::ValuesIn(kScenarios),
                         [](const auto& row) { return std::string(row.param.name); });
