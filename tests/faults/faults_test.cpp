// Kills the launcher, fails its calls and cuts its power at every call that it makes on its files, and holds what it
// leaves behind against the rules. Walks a spread of these points, or all of them with QUILLMERE_FAULTS=all.
#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <set>

#include "e2e/harness.h"
#include "faults/supervisor.h"

namespace fs = std::filesystem;

namespace {

constexpr char kApp[] = "Quillmere.app";
constexpr char kInfo[] = "Contents/Resources/INFO";
constexpr char kExecutable[] = "Contents/MacOS/quillmere-ui";

// The version comes last. The noise does not shrink, so that a package cut short holds a part.
PackageEntries Client(char build) {
    std::minstd_rand random(build);
    std::string noise(200000, 0);
    std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random() >> 8); });
    const std::string script = "#!/bin/sh\necho " + std::string(1, build) + " >\"$HOME/opened\"\n";
    return {{"Contents/Frameworks/library", noise},
            {kExecutable, script},
            {kInfo, "[Version]\nbuild_version=" + std::string(1, build) + "\n"}};
}

// What may stand in USER; all else is "torn" or, if it could be opened as a client, "a torn client".
const std::map<std::string, PackageEntries> kKinds{{"old", Client('1')},
                                                   {"new", Client('2')},
                                                   {"no version", {{kExecutable, ""}}},
                                                   {"empty", {}},
                                                   {"somebody's", {{"file", "x"}}}};

using User = std::map<std::string, std::string>;  // the kinds by name

std::string Backup(int index) { return std::string(kApp) + "_tmp" + (index == 0 ? "" : std::to_string(index)); }

User TenNames() {
    User user{{kApp, "old"}};
    for (int index = 0; index < 10; ++index) { user[Backup(index)] = "somebody's"; }
    return user;
}

enum Package { kGood, kCutShort, kOverQuota };  // a quota of which only the last flush tells

const struct Scenario {
    const char* name;
    User start;
    Package package;
} kScenarios[] = {
    {"FirstInstall", {}, kGood},
    {"Upgrade", {{kApp, "old"}}, kGood},
    {"UpgradeOverLeftovers", {{kApp, "no version"}, {Backup(0), "old"}, {Backup(7), "somebody's"}}, kGood},
    {"CurrentCopy", {{kApp, "new"}, {Backup(0), "old"}}, kGood},
    {"TenNamesTaken", TenNames(), kGood},
    {"DamagedPackage", {{kApp, "old"}}, kCutShort},
    {"DamagedAfterAnInterruption", {{kApp, "no version"}, {Backup(0), "old"}}, kCutShort},
    {"OverQuota", {{kApp, "old"}}, kOverQuota},
};

void PrintTo(const Scenario& row, std::ostream* out) { *out << row.name; }

enum Power { kStays, kFails, kFailsAfterTheVersion };
enum Event { kNothing, kPackageIsCut, kPackageIsReplaced, kPackageIsRewritten, kHomeIsLost };

struct Fault {
    int answer = kGoOn;
    bool onward = false;     // at all later calls too
    Power power = kStays;    // as the run ends; files that were not flushed are empty then
    int again = 0;           // the next run is killed as well, at this multiple of the call
    Event event = kNothing;  // before the call, which is made
};

// An EINTR without an end is no failure that there is, and libarchive asks again.
std::vector<Fault> AllFaults() {
    std::vector<Fault> faults{{kKillBefore},
                              {kKillBefore, false, kFails},
                              {kKillBefore, false, kFailsAfterTheVersion},
                              {kKillBefore, false, kStays, 7},
                              {kKillBefore, false, kFails, 31},
                              {-EINTR}};
    for (const Event event : {kPackageIsCut, kPackageIsReplaced, kPackageIsRewritten, kHomeIsLost}) {
        faults.push_back({kGoOn, false, kStays, 0, event});
    }
    for (const int answer : {-ENOSPC, -EIO, -EACCES, -EMFILE, -EDQUOT, -ESTALE, +kHalfOfTheWrite}) {
        faults.push_back({answer});
        faults.push_back({answer, true});
    }
    return faults;
}

// What an undisturbed run makes of `user`, by the rules for names that are taken.
User Next(User user, Package package) {
    const bool there = user.count(kApp) != 0;
    int index = 0;
    while (there && index < 10 && user.count(Backup(index)) != 0 && user[Backup(index)] != "empty") { ++index; }
    if (index == 10 || (there && user[kApp] == "new")) { return user; }
    for (int passed = package == kGood ? 0 : index; passed <= index && (there || package == kGood); ++passed) {
        user.erase(Backup(passed));  // after a failure it is the empty one that was taken
    }
    user[kApp] = package == kGood ? "new" : user[kApp];
    return user;
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

    // One run with the fault at the call of this number, and what holds after every run.
    void Run(const Fault& fault = {}, int at = 0) {
        calls_ = flushes_ = 0;
        unflushed_.clear();
        fs::remove(world_.Home() + "/opened");
        const std::string resources = world_.Bundle() + "/Contents/Resources/";
        const std::vector<std::string> places{world_.User(), resources + "INFO", resources + "package",
                                              "/proc/self/fd/"};
        const int ended = RunSupervised(world_, places, [&](const FileCall& call) {
            const bool hit = ++calls_ == at || (calls_ > at && fault.onward);
            const bool fit = fault.answer != kHalfOfTheWrite || call.what == kWrite;
            if (hit) { Happen(fault.event); }
            return hit && fit && fault.answer != kGoOn ? fault.answer : Note(call);
        });
        if (fault.event == kHomeIsLost) {
            fs::remove_all(world_.Home());  // one that the launcher has made
            fs::rename(world_.dir / "lost", world_.Home());
        } else if (fault.event != kNothing) {
            Offer(package_);
        }
        const bool killed = fault.answer == kKillBefore && calls_ >= at;
        EXPECT_EQ(ended, killed ? -1 : 0);
        for (const std::string& path : unflushed_) {
            const bool survives = fault.power == kFailsAfterTheVersion && path == InfoPath();
            if (fault.power != kStays && !survives && fs::is_regular_file(path)) { fs::resize_file(path, 0); }
        }
        User now = Get();
        const auto holds = [](const User& user, const std::string& kind) {
            return std::any_of(user.begin(), user.end(), [&](auto& row) { return row.second == kind; });
        };
        EXPECT_TRUE(holds(now, "old") || holds(now, "new") || !(holds(start_, "old") || holds(start_, "new")))
            << "no whole copy is left";
        EXPECT_NE(now[kApp], "torn, with a version");
        const std::string opened = ReadFile(world_.Home() + "/opened");
        const bool opens = !killed && fault.event != kHomeIsLost;
        EXPECT_TRUE(!opens || now[kApp] != "old" || opened == "1\n");
        EXPECT_TRUE(!opens || now[kApp] != "new" || opened == "2\n");
        for (const auto& [name, kind] : start_) { EXPECT_TRUE(kind != "somebody's" || now[name] == kind) << name; }
    }

    // The package becomes another, whole one, or half of itself.
    void Happen(Event event) const {
        const std::string package = world_.Bundle() + "/Contents/Resources/package/quillmere.qpk";
        if (event == kPackageIsCut) {
            fs::resize_file(package, fs::file_size(package) / 2);
        } else if (event == kPackageIsReplaced || event == kPackageIsRewritten) {
            const std::string path = event == kPackageIsReplaced ? package + ".part" : package;
            WriteFile(path, other_);
            fs::rename(path, package);
        } else if (event == kHomeIsLost) {
            fs::rename(world_.Home(), world_.dir / "lost");
        }
    }

    // What is written lasts from the next flush on. The version and the end of a backup wait for it.
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

    void RunUndisturbed() {
        const User former = Get();
        Run();
        User expected = Next(former, package_);
        if (former.count(kApp) == 0 && package_ != kGood) {
            expected[kApp] = Get()[kApp];  // what a failed extraction writes stays
        }
        EXPECT_EQ(Get(), expected) << "out of " << testing::PrintToString(former);
        EXPECT_TRUE(former.count(kApp) == 0 || unflushed_.empty()) << "not on the disk at the end";
    }

    std::string InfoPath() const { return world_.App() + "/" + kInfo; }

    const std::string whole_ = Pack(kKinds.at("new"));
    const std::string other_ = Pack(kKinds.at("old"));
    World world_;
    User start_ = GetParam().start;
    Package package_ = kGood;
    int calls_ = 0;
    int flushes_ = 0;
    std::set<std::string> unflushed_;
};

}  // namespace

TEST_P(Faults, LoseNothingAndTheNextRunMendsThem) {
    const char* const wish = getenv("QUILLMERE_FAULTS");
    const bool all = wish != nullptr && std::string(wish) == "all";
    const std::vector<Fault> faults = AllFaults();
    start_["data"] = start_["strange"] = "somebody's";
    Put(start_);
    Offer(GetParam().package);
    RunUndisturbed();
    const int calls = calls_;
    int points = 0;
    for (int at = 1; at <= calls; ++at) {
        for (const Fault& fault : faults) {
            const auto number = static_cast<int>(&fault - faults.data());
            const int step = fault.answer == kKillBefore ? 151 : 499;
            if (!all && (at * 19 + number + calls) % step != 0) { continue; }
            SCOPED_TRACE("fault " + std::to_string(number) + " at call " + std::to_string(at));
            ++points;
            Put(start_);
            Run(fault, at);
            if (fault.again != 0) { Run({kKillBefore, false, fault.power}, 1 + at * fault.again % calls); }
            RunUndisturbed();
            if (package_ != kGood) {
                Offer(kGood);
                RunUndisturbed();
                Offer(GetParam().package);
            }
        }
    }
    std::cout << calls << " calls, " << points << " points\n";
}

// Only one of them upgrades, whatever the session says of its directories. At the second time some
// are killed, and a whole copy is left.
TEST(Starts, AtOnceAndKilledAtRandom) {
    World world;
    world.LogEverything();
    std::minstd_rand random(1);
    PackageEntries many;
    for (int number = 0; number < 2000; ++number) { many.push_back({"files/" + std::to_string(number), ""}); }
    for (const int build : {1, 2}) {
        world.Offer(build, Pack(ClientPackage(build, many)));
        std::vector<std::unique_ptr<QProcess>> starts;
        for (int start = 0; start < 30; ++start) {
            world.environment.insert("XDG_RUNTIME_DIR", start % 2 == 0 ? "/nowhere" : "/tmp");
            starts.push_back(world.Start());
            if (build == 2 && random() % 3 == 0) { starts[random() % starts.size()]->kill(); }
        }
        for (const auto& start : starts) {
            start->waitForFinished();
            EXPECT_TRUE(start->exitStatus() == QProcess::CrashExit || start->exitCode() == 0);
        }
        int whole = 0;
        for (const fs::path& copy : fs::directory_iterator(world.User())) {
            whole += fs::exists(copy / "files/1999") && fs::exists(copy / kInfo) ? 1 : 0;
        }
        EXPECT_GE(whole, 1);
        const std::string log = world.Log();
        EXPECT_TRUE(build == 2 || log.find("extract package: ") == log.rfind("extract package: "));
    }
    EXPECT_EQ(world.Launch().exit_code, 0);
    EXPECT_EQ(world.Installed(), "2");
}

TEST(Starts, UnderALimitOfTheSizeOfAFile) {
    World world;
    world.Offer(1, Pack(kKinds.at("old")));
    EXPECT_EQ(world.Launch().exit_code, 0);
    world.Offer(2, Pack(kKinds.at("new")));
    const rlimit limit{100000, 100000};
    const auto start = world.Start([&] { setrlimit(RLIMIT_FSIZE, &limit); });
    EXPECT_TRUE(world.Finish(*start).normal);
    EXPECT_EQ(KindOf(world.App()), "old");
}

INSTANTIATE_TEST_SUITE_P(In, Faults, testing::ValuesIn(kScenarios),
                         [](const auto& row) { return std::string(row.param.name); });
