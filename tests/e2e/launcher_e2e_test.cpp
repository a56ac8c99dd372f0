// Runs the real launcher with real packages and a real client.
#include <fcntl.h>
#include <sys/stat.h>

#include <QDir>

#include "e2e/harness.h"

TEST(Launcher, UpgradesAndLeavesACurrentCopyAlone) {
    World world;
    world.Have(1);
    world.program = world.Client();
    const auto old_client = world.Spawn();
    ASSERT_NE(world.WaitForClient(), 0);
    world.program.clear();
    WriteFile(world.User() + "/data/kept", "kept");
    WriteFile(world.App() + "/only in the old copy", "old");
    world.Offer(2);
    const Outcome run = world.Run();
    EXPECT_TRUE(Succeeded(run, world, 2));
    EXPECT_LT(run.milliseconds, 5000) << "the client ends at once";
    EXPECT_TRUE(old_client->waitForFinished());
    EXPECT_FALSE(fs::exists(world.App() + "/only in the old copy"));
    EXPECT_EQ(ReadFile(world.User() + "/data/kept"), "kept");

    const fs::file_time_type installed = fs::last_write_time(world.App());
    const auto unread = world.Spawn([] {
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);  // nobody reads what is written
    });
    EXPECT_TRUE(Succeeded(world.Finish(*unread), world, 2));
    EXPECT_EQ(fs::last_write_time(world.App()), installed);
}

// Runs as a user without other processes, because a stray signal to a group or to all processes would
// kill them. Meanwhile another launcher kills a client that ignores SIGTERM.
TEST(Launcher, StopsTheClientAndNobodyElse) {
    if (getuid() != 0) { GTEST_SKIP() << "needs root to become another user"; }
    World stubborn;
    stubborn.Have(1);
    stubborn.Offer(2);
    stubborn.program = stubborn.Client();
    const auto client = stubborn.Spawn([] {}, {"--ignore-sigterm"});
    ASSERT_NE(stubborn.WaitForClient(), 0);
    stubborn.program.clear();
    const auto killing = stubborn.Spawn();

    World world;
    fs::permissions(world.dir.path(), fs::perms(0755));
    ASSERT_EQ(chown(world.Home().c_str(), kLoner, kLoner), 0);
    world.program = "sleep";
    const auto bystander = world.Spawn(BecomeLoner, {"1000"});
    world.program.clear();
    world.Offer(1);
    EXPECT_TRUE(Succeeded(world.Finish(*world.Spawn(BecomeLoner)), world, 1));
    const std::string own = "pid=" + std::to_string(getpid()) + "\n";
    int build = 1;
    for (const std::string& content :
         std::vector<std::string>{"pid=0\n", "pid=-1\n", "pid=1\n", "pid=none\n", "pid=99999999\n", "pid=4294967295\n",
                                  "pid=\n", "", "other=" + std::to_string(bystander->processId()) + "\n", own}) {
        SCOPED_TRACE(content);
        Kill(world.ClientPid());
        WriteFile(world.User() + "/ui.pid", content);
        world.Offer(++build);
        const Outcome run = world.Finish(*world.Spawn(BecomeLoner));
        EXPECT_EQ(run.milliseconds >= 5000, content == own) << "five probes, a second apart";
        EXPECT_TRUE(Succeeded(run, world, build));
    }
    EXPECT_EQ(bystander->state(), QProcess::Running);
    EXPECT_TRUE(Contains(world.Log(), ": kill: Operation not permitted (1)\n"));
    EXPECT_TRUE(Succeeded(stubborn.Finish(*killing), stubborn, 2));
    EXPECT_TRUE(client->waitForFinished());
    bystander->kill();
    bystander->waitForFinished();
}

TEST(Launcher, GivesTheClientACleanProcess) {
    World world;
    for (const char* const variable : {"SESSION_MANAGER", "DBUS_SESSION_BUS_ADDRESS", "QT_XCB_GL_INTEGRATION"}) {
        world.environment.insert(variable, "the user's");
    }
    world.environment.insert("QT_NO_XDG_DESKTOP_PORTAL", "");  // an empty variable is not a missing one
    world.Offer(1, Pack(ClientPackage(1, {}, ReadFile(SAMPLE_CLIENT))));
    const auto process = world.Spawn([] {
        sigset_t blocked;
        sigemptyset(&blocked);
        for (const int number : {SIGTERM, SIGHUP, SIGPIPE, SIGUSR1}) {
            signal(number, SIG_IGN);
            sigaddset(&blocked, number);
        }
        sigprocmask(SIG_BLOCK, &blocked, nullptr);
        umask(0777);
        open("/dev/zero", O_RDONLY);  // inherited by the launcher, and not by the client
    });
    EXPECT_TRUE(Succeeded(world.Finish(*process), world, 1));
    const pid_t client = world.ClientPid();
    EXPECT_EQ(getsid(client), client);
    const QString proc = "/proc/" + QString::number(client);
    EXPECT_EQ(QFile::symLinkTarget(proc + "/cwd"), "/");
    const std::string given = ReadFile((proc + "/environ").toStdString());
    const QStringList users = world.environment.toStringList();
    for (const QString& variable : users) { EXPECT_TRUE(Contains(given, variable.toStdString() + '\0')) << given; }
    EXPECT_EQ(std::count(given.begin(), given.end(), '\0'), users.size()) << given;
    const std::string status = ReadFile((proc + "/status").toStdString());
    EXPECT_TRUE(Contains(status, "SigBlk:\t0000000000000000"));
    // Except two signals of the thread library (nptl(7)), and SIGPIPE, which Qt ignores in the client.
    const std::size_t ignored = status.find("SigIgn:\t") + 8;
    EXPECT_EQ(std::stoull(status.substr(ignored, 16), nullptr, 16) & ~0x180001000ull, 0u) << status;
    for (const QFileInfo& file : QDir(proc + "/fd").entryInfoList(QDir::Files | QDir::System)) {
        EXPECT_FALSE(file.symLinkTarget().contains("launcher"));
        EXPECT_NE(file.symLinkTarget(), "/dev/zero");
        EXPECT_TRUE(file.fileName().toInt() > 2 || file.symLinkTarget() == "/dev/null");
    }
    kill(client, SIGTERM);
    EXPECT_TRUE(WaitFor([&] { return !IsAlive(client); }));
    EXPECT_FALSE(fs::exists(world.User() + "/ui.pid"));
}

TEST(Launcher, AcceptsOddHomesAndLocales) {
    const PackageEntries odd_names{{"Contents/Ünïcode 家/naïve.txt", "naïve"}, {"Contents/e\xCC\x81", "nfd"}};
    const std::pair<std::string, const char*> cases[] = {
        {"with blanks", "C"},        {"O'Neil \"quoted\"", "C.UTF-8"},
        {"Zoë 家 домой", "C"},       {"Zoë 家 домой", "de_DE.ISO-8859-1"},
        {"Zoë 家 домой", "C.UTF-8"}, {"e\xCC\x81t\xC3\xA9", "C"},
        {std::string(200, 'h'), ""}};
    for (const auto& [name, locale] : cases) {
        SCOPED_TRACE(name + " under " + locale);
        World world(name);
        world.environment.insert("LANG", locale);
        world.Have(1);
        world.Offer(2, Pack(ClientPackage(2, odd_names)));
        EXPECT_TRUE(Succeeded(world.Run(), world, 2));
        EXPECT_EQ(ReadFile(world.App() + "/Contents/Ünïcode 家/naïve.txt"), "naïve");
    }
}
