// Kills the launcher, fails its calls and cuts its power at its calls on files, and checks what is left. A point is one
// fault at one call. Tests every 263rd point; all with QUILLMERE_FAULTS=all; all of one fault with its name there.
#include <sys/resource.h>

#include <algorithm>
#include <cstring>
#include <iostream>
#include <set>

#include "e2e/harness.h"
#include "faults/intercepted_run.h"

namespace {

constexpr char kApp[] = "Quillmere.app";

// A truncated package of it has a part of the files.
PackageEntries Client(int build) {
    const std::string script = "#!/bin/sh\necho " + std::to_string(build) + " >\"$HOME/opened\"\n";
    return ClientPackage(build, {{"library", Noise(200000, build)}}, script);
}

const PackageEntries kOld = Client(1), kNew = Client(2), kNoVersion{{"damaged", ""}}, kSomebodys{{"file", "x"}};

using User = std::map<std::string, PackageEntries>;  // directories by name
using Trees = std::map<std::string, Tree>;

const struct Scenario {
    const char* name;
    User start, after;  // of an undisturbed run
    bool damaged = false;
} kScenarios[] = {
    {"FirstInstall", {{"app", kNoVersion}}, {{kApp, kNew}}},
    {"Upgrade", {{kApp, kOld}}, {{kApp, kNew}}},
    {"UpgradeOverLeftovers",
     {{kApp, kNoVersion}, {"Quillmere.app_tmp", kOld}, {"Quillmere.app_tmp7", kSomebodys}},
     {{kApp, kNew}, {"Quillmere.app_tmp7", kSomebodys}}},
    {"CurrentCopy", {{kApp, kNew}, {"Quillmere.app_tmp", kOld}}, {{kApp, kNew}, {"Quillmere.app_tmp", kOld}}},
    {"DamagedPackage", {{kApp, kOld}}, {{kApp, kOld}}, true},
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

void Write(const fs::path& directory, const PackageEntries& files) {
    for (const auto& [path, content] : files) {
        WriteFile(directory / path, content);
        fs::permissions(directory / path, fs::perms(0755));
    }
}

Tree TreeOf(const PackageEntries& files) {
    const TempDir dir;
    Write(dir.path(), files);
    return Look(dir.path());
}

class Faults : public testing::TestWithParam<Scenario> {
  protected:
    Trees Put(const User& user) const {
        fs::remove_all(world_.User());
        Write(world_.User() + "/data", kSomebodys);
        for (const auto& [name, files] : user) { Write(fs::path(world_.User()) / name, files); }
        return Get();
    }

    Trees Get() const {
        Trees trees;
        for (const fs::path& entry : fs::directory_iterator(world_.User())) {
            if (fs::is_directory(entry) && entry.filename() != "log") { trees[entry.filename()] = Look(entry); }
        }
        return trees;
    }

    // One run with the fault at this call. Checks what must hold after every run.
    void Run(const Fault& fault = {}, int at = 0) {
        calls_ = 0;
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
        if (fault.answer == kKillLauncher && !fault.at_later_calls && !damaged_) {
            EXPECT_TRUE(Get() == after_) << world_.Log();
        }
    }

    void LosePower() const {
        for (const std::string& path : unflushed_) {
            if (path != InfoPath() && fs::is_regular_file(path)) { fs::resize_file(path, 0); }
        }
    }

    void CheckCopies(bool opens) const {
        Trees now = Get();
        const auto is_whole = [&](const auto& row) { return row.second == old_ || row.second == new_; };
        EXPECT_TRUE(std::any_of(now.begin(), now.end(), is_whole) ||
                    std::none_of(start_.begin(), start_.end(), is_whole))
            << "no whole copy is left";
        const std::string build = now[kApp] == old_ ? "1\n" : now[kApp] == new_ ? "2\n" : "";
        EXPECT_TRUE(!build.empty() || !Contains(now[kApp][kInfo], "build_version=")) << "torn, with a version";
        EXPECT_TRUE(!opens || build.empty() || ReadFile(world_.Home() + "/opened") == build);
        for (const auto& [name, tree] : start_) { EXPECT_TRUE(tree != somebodys_ || now[name] == tree) << name; }
    }

    // Written files survive a power cut after the next flush. INFO and the removal of a backup come after a flush.
    int Note(const FileCall& call) {
        const bool of_copy = call.path.rfind(world_.App() + "/", 0) == 0;
        const bool of_backup = call.path.rfind(world_.App() + "_tmp", 0) == 0;
        if (call.what == kFlush) {
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

    const Tree old_ = TreeOf(kOld), new_ = TreeOf(kNew), somebodys_ = TreeOf(kSomebodys);
    World world_;
    Trees start_, after_;
    bool damaged_ = GetParam().damaged;
    int calls_ = 0;
    std::set<std::string> unflushed_;
};

}  // namespace

TEST_P(Faults, LoseNothingAndTheNextRunMendsThem) {
    const std::string wanted = qEnvironmentVariable("QUILLMERE_FAULTS").toStdString();
    const int stride = wanted.empty() ? 263 : 1;
    const std::vector<Fault> faults = AllFaults();
    const std::string whole = Pack(kNew), offered = damaged_ ? whole.substr(0, whole.size() * 4 / 5) : whole;
    after_ = Put(GetParam().after);
    start_ = Put(GetParam().start);
    world_.Offer(2, offered);
    Run();
    EXPECT_TRUE(Get() == after_);
    EXPECT_TRUE(start_.count(kApp) == 0 || unflushed_.empty()) << "not on the disk at the end";
    const int calls = calls_;
    int points = 0;
    for (int point = calls % stride; point < calls * static_cast<int>(faults.size()); point += stride) {
        const int at = 1 + point / static_cast<int>(faults.size());
        const Fault& fault = faults[static_cast<std::size_t>(point) % faults.size()];
        if (!wanted.empty() && wanted != "all" && wanted != fault.name) { continue; }
        SCOPED_TRACE(fault.name + " at call " + std::to_string(at));
        ++points;
        Put(GetParam().start);
        Run(fault, at);
        if (fault.in_the_next_run) { Run(fault, 1 + at * 7 % calls); }
        Run();
        if (damaged_) {
            world_.Offer(2, whole);
            Run();
            world_.Offer(2, offered);
        }
        EXPECT_TRUE(Get().at(kApp) == new_);
    }
    EXPECT_GT(points, 0) << "no such fault";
    std::cout << calls << " calls, " << points << " points\n";
}

// Some calls fail, or the working process dies before them. The package may be damaged at the first one.
TEST(Supervisor, LosesNoCopyWhenAttemptsFail) {
    const struct {
        const char* name;
        What what;         // the call
        const char* path;  // after that of the copy
        int skipped_calls, faults, fault;
        bool damaged;
        std::string build;  // at the end
    } cases[] = {
        {"unpacking", kMake, "/Contents/MacOS/", 0, 1, kKillLauncher, true, "1"},
        {"unpacking each time", kMake, "/Contents/MacOS/", 0, 2, kKillLauncher, false, "1"},
        {"version not flushed", kFlush, "", 1, 1, kKillLauncher, false, "2"},
        {"backup without a version", kRemove, "_tmp/", 1, 1, kKillLauncher, true, "2"},
        {"over quota at the last flush", kFlush, "", 1, 1, -EDQUOT, false, "1"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        World world;
        world.Have(1);
        WriteFile(world.Client(), "#!/bin/sh\necho 1 >\"$HOME/opened\"\n");
        world.Offer(2, Pack(kNew));
        int calls = 0, faults = 0;
        const int ended = RunIntercepted(world, {world.App() + row.path}, [&](const FileCall& call) {
            if (call.what != row.what || ++calls <= row.skipped_calls || faults == row.faults) { return int{kGoOn}; }
            if (row.damaged) { WriteFile(world.Package(), "damaged"); }
            ++faults;
            return row.fault;
        });
        EXPECT_EQ(ended, 0);
        EXPECT_EQ(faults, row.faults);
        EXPECT_EQ(world.Installed(), row.build);
        EXPECT_EQ(ReadFile(world.Home() + "/opened"), row.build + "\n");
        EXPECT_FALSE(fs::exists(world.App() + "_tmp"));
        const std::string cause = "was ended by a signal (Killed) during the run; this one has no display and puts";
        EXPECT_EQ(Contains(world.Log(), cause), row.fault == kKillLauncher) << world.Log();
    }
}

TEST(Supervisor, IgnoresALimitOfTheSizeOfAFile) {
    World world;
    world.Offer(1, Pack(kOld));
    EXPECT_EQ(world.Run().exit_code, 0);
    world.Offer(2, Pack(kNew));
    const rlimit limit{100000, 100000};
    const auto start = world.Spawn([&] { setrlimit(RLIMIT_FSIZE, &limit); });
    EXPECT_TRUE(EndedWell(world.Finish(*start)));
    EXPECT_TRUE(Look(world.App()) == TreeOf(kOld));
    EXPECT_FALSE(Contains(world.Log(), "[WARNING]")) << "a signal ended the working process";
}

INSTANTIATE_TEST_SUITE_P(In, Faults, testing::ValuesIn(kScenarios),
                         [](const auto& row) { return std::string(row.param.name); });
