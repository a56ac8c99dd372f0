// Drives the real launcher with real packages and a real client.
#include <fcntl.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "e2e/harness.h"
#include "unique-fd.h"

namespace fs = std::filesystem;

namespace {

testing::AssertionResult EndedWell(const Outcome& run) {
    if (run.normal && run.exit_code == 0) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "exit code " << run.exit_code << "\n" << run.err;
}

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// The names in USER, without those that a client or the log make.
std::vector<std::string> Copies(const World& world) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(world.User())) {
        const std::string name = entry.path().filename();
        if (name.rfind("Quillmere.app", 0) == 0) {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

const std::vector<std::string> kOneCopy{"Quillmere.app"};

// A home with build 1 and its client running.
pid_t Install(World& world) {
    world.Offer(1);
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "1");
    return world.WaitForClient();
}

}  // namespace

TEST(Launch, InstallsOpensAndLeavesACurrentCopyAlone) {
    World world;
    const pid_t client = Install(world);
    ASSERT_GT(client, 0);
    EXPECT_EQ(Copies(world), kOneCopy);
    const fs::file_time_type installed = fs::last_write_time(world.App());
    world.LogEverything();

    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.ClientPid(), client);
    EXPECT_EQ(fs::last_write_time(world.App()), installed);
    EXPECT_TRUE(Contains(world.Log(), ": no need to upgrade\n"));

    // An older bundle does not replace a newer copy, unless that copy has lost its executable.
    world.Offer(0);
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "1");
    fs::remove(world.App() + "/Contents/MacOS/quillmere-ui");
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "0");
}

TEST(Launch, UpgradeStopsTheClientAndReplacesIt) {
    World world;
    const pid_t old_client = Install(world);
    WriteFile(world.User() + "/data/kept", "kept");
    WriteFile(world.User() + "/app/aged/file", "aged");
    WriteFile(world.App() + "/only in the old copy", "old");
    world.Offer(2);
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_FALSE(IsAlive(old_client));
    EXPECT_GT(world.WaitForClient(old_client), 0);
    EXPECT_EQ(world.Installed(), "2");
    EXPECT_EQ(Copies(world), kOneCopy);
    EXPECT_FALSE(fs::exists(world.App() + "/only in the old copy"));
    EXPECT_FALSE(fs::exists(world.User() + "/app"));
    EXPECT_EQ(ReadFile(world.User() + "/data/kept"), "kept");
}

TEST(Launch, KillsAClientThatIgnoresSigtermAndTurnsASecondInstanceAway) {
    World world;
    world.LogEverything();
    Kill(Install(world));
    const pid_t stubborn = world.StartClient({"--ignore-sigterm"});
    ASSERT_GT(stubborn, 0);
    world.Offer(2);
    const auto first = world.Start();
    ASSERT_TRUE(WaitFor([&] { return Contains(world.Log(), "local appdata exist"); }));

    const Outcome second = world.Launch();
    EXPECT_TRUE(EndedWell(second));
    EXPECT_LT(second.milliseconds, 3000);
    EXPECT_TRUE(Contains(second.out, "lib path = '"));
    EXPECT_TRUE(Contains(world.Log(), ": app has already launched, return\n"));
    EXPECT_TRUE(IsAlive(stubborn));

    const Outcome run = world.Finish(*first);
    EXPECT_TRUE(EndedWell(run));
    EXPECT_GT(run.milliseconds + second.milliseconds, 4000);
    EXPECT_TRUE(WaitFor([&] { return !IsAlive(stubborn); }));
    EXPECT_EQ(world.Installed(), "2");
}

TEST(Launch, BadPackageBringsTheOldCopyBack) {
    const std::string good = Pack(ClientPackage(2, {{"filler", std::string(300000, 'x')}}));
    std::string damaged =
        Pack(ClientPackage(2, {{"filler", [] {
                                    std::string noise(300000, 0);
                                    for (std::size_t i = 0; i < noise.size(); ++i) {
                                        noise[i] = static_cast<char>(rand());
                                    }
                                    return noise;
                                }()}}));
    for (std::size_t i = damaged.size() / 2; i < damaged.size() / 2 + 1000; ++i) {
        damaged[i] = static_cast<char>(~damaged[i]);
    }
    const struct {
        const char* name;
        std::string package;
        const char* log;
    } cases[] = {
        {"damaged half way", damaged, "archive_read_"},
        {"cut short", good.substr(0, good.size() / 2), "archive_read_"},
        {"no archive", "this is no archive", "Failed to calculate total file numbers, ret: -1"},
        {"no entries", Pack({}), "Failed to calculate total file numbers, ret: 0"},
        {"empty file", "", "Failed to calculate total file numbers, ret: 0"},
        {"climbs", Pack({{"a", "a"}, {"../../climbed", "x"}}), "Path contains '..'"},
        {"missing", "remove", "archive_read_open_filename failed"},
    };
    World world;
    pid_t client = Install(world);
    for (const auto& bad : cases) {
        SCOPED_TRACE(bad.name);
        world.Offer(2, bad.package);
        if (bad.package == "remove") {
            fs::remove(world.Bundle() + "/Contents/Resources/package/quillmere.qpk");
        }
        fs::remove(world.User() + "/log/launcher.log");
        EXPECT_TRUE(EndedWell(world.Launch()));
        EXPECT_TRUE(Contains(world.Log(), bad.log)) << world.Log();
        EXPECT_TRUE(
            Contains(world.Log(), ": Failed to extract package, rollback to old installation\n"));
        EXPECT_TRUE(Contains(world.Log(), ": Failed to upgrade package\n"));
        EXPECT_EQ(world.Installed(), "1");
        EXPECT_EQ(Copies(world), kOneCopy);
        EXPECT_FALSE(fs::exists(world.User() + "/climbed"));
        const pid_t opened = world.WaitForClient(client);
        EXPECT_GT(opened, 0);
        client = opened;
    }
}

TEST(Launch, FailedFirstInstallEndsWellAndTheNextRunMendsIt) {
    World world;
    world.Offer(1, "this is no archive");
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_TRUE(Contains(world.Log(), "and no old installation to rollback\n"));
    EXPECT_TRUE(Contains(world.Log(), ": Failed to launch Quillmere UI\n"));
    EXPECT_GT(Install(world), 0);
    EXPECT_EQ(Copies(world), kOneCopy);
}

TEST(Launch, TakenBackupNames) {
    World world;
    pid_t client = Install(world);
    // The first two are taken, and so is one that is not reached; a good extraction clears what it
    // passed.
    for (const char* const name : {"_tmp", "_tmp1", "_tmp7"}) {
        WriteFile(world.App() + name + "/left", "over");
    }
    world.Offer(2);
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "2");
    EXPECT_EQ(Copies(world), (std::vector<std::string>{"Quillmere.app", "Quillmere.app_tmp7"}));
    client = world.WaitForClient(client);

    WriteFile(world.App() + "_tmp/left", "over");
    for (int index = 1; index < 10; ++index) {
        WriteFile(world.App() + "_tmp" + std::to_string(index) + "/left", "over");
    }
    world.Offer(3);
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "2");
    EXPECT_EQ(Copies(world).size(), 11u);
    EXPECT_TRUE(Contains(world.Log(), "Quillmere.app_tmp9' at max retries, exiting\n"));
    EXPECT_GT(world.WaitForClient(client), 0);
}

// As a user who owns nothing else: a signal that goes astray, to a group or to all, must not end
// the machine.
TEST(Launch, PidFileThatNamesNoClientHarmsNobody) {
    if (getuid() != 0) {
        GTEST_SKIP() << "needs root to become another user";
    }
    constexpr uid_t kLoner = 64321;
    const auto become_loner = [] {
        if (setgid(kLoner) != 0 || setuid(kLoner) != 0) {
            _exit(99);
        }
    };
    World world;
    fs::permissions(world.dir.path(), fs::perms(0755));
    for (const std::string& own : {world.Home(), world.dir / "run"}) {
        ASSERT_EQ(chown(own.c_str(), kLoner, kLoner), 0);
    }
    world.program = "sleep";
    const auto bystander = world.Start(become_loner, {"1000"});
    world.program.clear();
    world.Offer(1);
    EXPECT_TRUE(EndedWell(world.Finish(*world.Start(become_loner))));
    const std::string cases[] = {"pid=0\n",
                                 "pid=-1\n",
                                 "pid=1\n",
                                 "pid=none\n",
                                 "pid=99999999\n",
                                 "pid=4294967295\n",
                                 "pid=\n",
                                 "pid\n",
                                 "",
                                 "[pid]\nx",
                                 "other=" + std::to_string(bystander->processId()) + "\n"};
    int build = 2;
    for (const std::string& content : cases) {
        SCOPED_TRACE(content);
        Kill(world.WaitForClient());
        WriteFile(world.User() + "/ui.pid", content);
        world.Offer(build);
        const Outcome run = world.Finish(*world.Start(become_loner));
        EXPECT_TRUE(EndedWell(run));
        EXPECT_LT(run.milliseconds, 4000);
        EXPECT_EQ(world.Installed(), std::to_string(build++));
    }
    EXPECT_EQ(bystander->state(), QProcess::Running);
    Kill(world.WaitForClient());

    // Somebody else's process is waited for and stays, and the upgrade goes on.
    WriteFile(world.User() + "/ui.pid", "pid=" + std::to_string(getpid()) + "\n");
    world.Offer(build);
    const Outcome waited = world.Finish(*world.Start(become_loner));
    EXPECT_TRUE(EndedWell(waited));
    EXPECT_GT(waited.milliseconds, 4000);
    EXPECT_EQ(world.Installed(), std::to_string(build));
    EXPECT_TRUE(Contains(world.Log(), ": kill: Operation not permitted (1)\n"));
    Kill(world.WaitForClient(getpid()));
    bystander->kill();
    bystander->waitForFinished();
}

TEST(Launch, KilledLauncherAndOddLocksDoNotBlock) {
    World world;
    world.LogEverything();
    Kill(Install(world));
    world.StartClient({"--ignore-sigterm"});
    world.Offer(2);
    const auto killed = world.Start();
    ASSERT_TRUE(WaitFor([&] { return Contains(world.Log(), "local appdata exist"); }));
    const std::string lock = world.User() + "/launcher.lock";
    killed->kill();
    killed->waitForFinished();
    EXPECT_TRUE(fs::exists(lock));
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "2");

    // Left by a process that was killed while it wrote, or whose number another one has now.
    for (const std::string& content :
         {std::string(), std::string("garbage"), std::to_string(getpid()) + "\nlauncher\n"}) {
        SCOPED_TRACE(content);
        WriteFile(lock, content);
        fs::remove(world.User() + "/log/launcher.log");
        EXPECT_TRUE(EndedWell(world.Launch()));
        EXPECT_TRUE(Contains(world.Log(), ": no need to upgrade\n"));
    }
}

// Killed at the worst moment, with the old copy aside and the new one in parts.
TEST(Launch, KilledUpgradeIsMendedByTheNextRun) {
    World world;
    Kill(Install(world));
    PackageEntries many;
    for (int number = 0; number < 20000; ++number) {
        many.push_back({"files/" + std::to_string(number), "content"});
    }
    world.Offer(2, Pack(ClientPackage(2, many)));
    const auto killed = world.Start();
    ASSERT_TRUE(WaitFor([&] { return fs::exists(world.App() + "/files/100"); }));
    killed->kill();
    killed->waitForFinished();
    ASSERT_EQ(world.Installed(), "") << "a partial copy has a version";
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "2");
    EXPECT_TRUE(fs::exists(world.App() + "/files/19999"));
    EXPECT_EQ(Copies(world), kOneCopy);
}

TEST(Launch, StartedClientStandsAlone) {
    World world;
    world.Offer(1);
    const auto process = world.Start([] {
        for (const int number : {SIGTERM, SIGHUP, SIGPIPE, SIGUSR1}) {
            signal(number, SIG_IGN);
        }
        sigset_t blocked;
        sigemptyset(&blocked);
        sigaddset(&blocked, SIGTERM);
        sigprocmask(SIG_BLOCK, &blocked, nullptr);
        open("/dev/zero",
             O_RDONLY);  // a descriptor that the launcher inherits and the client must not
    });
    EXPECT_TRUE(EndedWell(world.Finish(*process)));
    const pid_t client = world.WaitForClient();
    ASSERT_GT(client, 0);
    EXPECT_EQ(getsid(client), client);
    const QString proc = "/proc/" + QString::number(client);
    EXPECT_EQ(QFile::symLinkTarget(proc + "/cwd"), "/");
    QFile status(proc + "/status");
    ASSERT_TRUE(status.open(QIODevice::ReadOnly));
    const std::string text = status.readAll().toStdString();
    EXPECT_TRUE(Contains(text, "SigBlk:\t0000000000000000"));
    // All but the two of the thread library (nptl(7)), which no program can set, and SIGPIPE, which
    // Qt ignores in the client itself.
    const std::string mark = "SigIgn:\t";
    const auto ignored = std::stoull(text.substr(text.find(mark) + mark.size(), 16), nullptr, 16);
    EXPECT_EQ(ignored & ~0x180001000ull, 0u) << text;
    for (const QFileInfo& descriptor :
         QDir(proc + "/fd").entryInfoList(QDir::Files | QDir::System)) {
        const QString target = descriptor.symLinkTarget();
        EXPECT_FALSE(target.contains("launcher")) << target.toStdString();
        EXPECT_NE(target, "/dev/zero");
        if (descriptor.fileName().toInt() <= 2) {
            EXPECT_EQ(target, "/dev/null");
        }
    }
    // It ends as a client does.
    kill(client, SIGTERM);
    EXPECT_TRUE(WaitFor([&] { return !IsAlive(client); }));
    EXPECT_FALSE(fs::exists(world.User() + "/ui.pid"));
}

TEST(Launch, HomesAndLocales) {
    const PackageEntries odd_names{{"Contents/Ünïcode 家/naïve.txt", "naïve"},
                                   {"Contents/e\xCC\x81", "nfd"}};
    const std::string decomposed = "e\xCC\x81t\xC3\xA9";
    const std::pair<std::string, const char*> cases[] = {
        {"with blanks", "C"},        {"O'Neil \"quoted\"", "C.UTF-8"},
        {"Zoë 家 домой", "C"},       {"Zoë 家 домой", ""},
        {"Zoë 家 домой", "C.UTF-8"}, {"Zoë 家 домой", "de_DE.ISO-8859-1"},
        {decomposed, "C"},           {std::string(200, 'h'), "C"}};
    for (const auto& [name, locale] : cases) {
        SCOPED_TRACE(name + " under " + locale);
        World world(name);
        world.environment.insert("LANG", locale);
        if (*locale == 0) {
            world.environment.remove("LANG");
        }
        pid_t client = 0;
        for (int build = 1; build <= 2; ++build) {
            world.Offer(build, Pack(ClientPackage(build, odd_names)));
            EXPECT_TRUE(EndedWell(world.Launch()));
            EXPECT_EQ(world.Installed(), std::to_string(build)) << world.Log();
            EXPECT_EQ(ReadFile(world.App() + "/Contents/Ünïcode 家/naïve.txt"), "naïve");
            EXPECT_EQ(Copies(world), kOneCopy);
            const pid_t opened = world.WaitForClient(client);
            EXPECT_GT(opened, 0);
            EXPECT_FALSE(client != 0 && IsAlive(client));
            client = opened;
        }
    }
}

TEST(Launch, NoDisplayAndDisplaysThatDoNotAnswer) {
    // Takes connections, as display number `hung`, and never answers.
    const UniqueFd listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    int hung = 100;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    do {
        address.sin_port = htons(static_cast<std::uint16_t>(6000 + ++hung));
    } while (bind(listener.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0);
    ASSERT_EQ(listen(listener.get(), 8), 0);

    const std::pair<const char*, std::string> cases[] = {
        {nullptr, ""},
        {nullptr, ":4242"},
        {nullptr, "127.0.0.1:" + std::to_string(hung)},
        {"xcb", ":4242"},
        {"xcb", ""}};
    for (const auto& session : cases) {
        SCOPED_TRACE(session.second);
        World world;
        world.environment.remove("QT_QPA_PLATFORM");
        if (session.first != nullptr) {
            world.environment.insert("QT_QPA_PLATFORM", session.first);
        }
        world.environment.insert("DISPLAY", QString::fromStdString(session.second));
        world.Offer(1);
        const Outcome run = world.Launch();
        EXPECT_TRUE(EndedWell(run));
        EXPECT_LT(run.milliseconds, 8000);
        EXPECT_EQ(world.Installed(), "1");
        EXPECT_GT(world.WaitForClient(), 0);
    }
}

TEST(Launch, FindsPlugInsWhateverItIsCalledBy) {
    World world;
    world.Offer(1);
    world.environment.insert("PATH", QString::fromStdString(world.dir / "bin"));
    fs::create_directory(world.dir / "bin");
    fs::create_symlink(world.LauncherPath(), world.dir / "bin/quillmere");
    world.program = world.dir / "bin/quillmere";
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "1");
    fs::remove(world.Bundle() + "/Contents/Frameworks/plugins");
    world.Offer(2);
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_EQ(world.Installed(), "2");
}

TEST(Launch, LevelFileAndRotation) {
    World world;
    world.Offer(1);
    EXPECT_TRUE(EndedWell(world.Launch()));
    // Nothing but errors and warnings without a level file; this system has no lsregister.
    EXPECT_EQ(world.Log().find('['), world.Log().find("[ERROR] mac/mac-service("));
    EXPECT_EQ(world.Log().find("[INFO]"), std::string::npos);

    WriteFile(world.Bundle() + "/log/launcher.debug", "file_op_debug=7\n");
    for (int number = 0; number < 4000; ++number) {
        WriteFile(world.User() + "/app/" + std::string(100, 'f') + std::to_string(number), "");
    }
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_FALSE(fs::exists(world.User() + "/app"));
    const std::string log = world.User() + "/log/launcher.log";
    EXPECT_GT(fs::file_size(log + "_0"), 1048576u);
    EXPECT_LT(fs::file_size(log + "_0"), 1048576u + 1000u);
    EXPECT_EQ(world.Log().find("[DEBUG] file-op("), std::string("Nov 22 20:00:00 ").size());
}

TEST(Launch, FullVolumeLosesNothing) {
    World world;
    if (unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", world.Home().c_str(), "tmpfs", 0, "size=3m") != 0) {
        GTEST_SKIP() << "cannot mount a small volume: " << strerror(errno);
    }
    const pid_t client = Install(world);
    world.Offer(2, Pack(ClientPackage(2, {{"large", std::string(4 << 20, 'x')}})));
    EXPECT_TRUE(EndedWell(world.Launch()));
    EXPECT_TRUE(Contains(world.Log(), "rollback to old installation"));
    EXPECT_TRUE(Contains(world.Log(), ": archive_read_extract2 failed: 'Write failed'\n"));
    EXPECT_EQ(world.Installed(), "1");
    EXPECT_EQ(Copies(world), kOneCopy);
    EXPECT_GT(world.WaitForClient(client), 0);
    Kill(world.ClientPid());
    umount2(world.Home().c_str(), MNT_DETACH);
}

TEST(Launch, HomeThatCannotBeWritten) {
    if (getuid() != 0) {
        GTEST_SKIP() << "needs root to become another user";
    }
    World world;
    world.Offer(1);
    fs::permissions(world.dir.path(), fs::perms::all);
    const auto process = world.Start([] {
        if (setgid(65534) != 0 || setuid(65534) != 0) {
            _exit(99);
        }
    });
    const Outcome run = world.Finish(*process);
    EXPECT_TRUE(EndedWell(run));
    EXPECT_EQ(world.Installed(), "");
    EXPECT_TRUE(Contains(run.err, ": failed to create folder: '" + world.App() + "'\n")) << run.err;
}

TEST(Language, FollowsTheLocale) {
    const struct {
        const char* locale;
        const char* code;
        const char* label;
    } cases[] = {
        {"de_DE.UTF-8", "deu", "Quillmere Drive wird initialisiert ..."},
        {"de_AT.UTF-8", "deu", nullptr},
        {"ja_JP.UTF-8", "jpn", "Quillmere Drive は初期化中です。"},
        {"pt_PT.UTF-8", "ptg", "Quillmere Drive a iniciar..."},
        {"pt_BR.UTF-8", "ptb", "O Quillmere Drive está sendo inicializado..."},
        {"zh_TW.UTF-8", "cht", "Quillmere Drive 準備中..."},
        {"zh_HK.UTF-8", "cht", nullptr},
        {"zh_CN.UTF-8", "chs", "Quillmere Drive 正在初始化..."},
        {"nb_NO.UTF-8", "nor", "Quillmere Drive starter opp..."},
        {"nn_NO.UTF-8", "nor", nullptr},
        {"ko_KR.UTF-8", "krn", nullptr},
        {"fr_CA.UTF-8", "fra", nullptr},
        {"cs_CZ.UTF-8", "csy", nullptr},
        {"en_GB.UTF-8", "enu", nullptr},
        {"fi_FI.UTF-8", "enu", "Quillmere Drive is initializing..."},
        {"C", "enu", "Quillmere Drive is initializing..."},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.locale);
        World world;
        world.Offer(1);
        world.environment.insert("LC_ALL", expected.locale);
        // What the window shows, as a screen reader is told of it.
        world.environment.insert("QT_LOGGING_RULES", "qt.accessibility.cache.debug=true");
        const Outcome run = world.Launch();
        EXPECT_TRUE(EndedWell(run));
        EXPECT_TRUE(Contains(run.err, std::string("qPrintable(qstrDef)=[") + expected.code + "]"))
            << run.err;
        if (expected.label != nullptr) {
            EXPECT_TRUE(
                Contains(run.err, std::string("name=\"") + expected.label + "\" role=StaticText"))
                << run.err;
        }
        EXPECT_GT(world.WaitForClient(), 0);
    }
}
