// Starts in many kinds of sessions, several starts at once, and signals to a start.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>

#include <QLocalServer>
#include <QTcpServer>
#include <QTcpSocket>

#include "e2e/desktop.h"
#include "unique-fd.h"

namespace {

struct Session {
    const char* name;
    bool shows;  // the window, and the spy can write
    std::function<void(World&)> prepare;
    std::vector<int> closed = {};  // descriptors
    QStringList arguments = {};
    std::string warning = {};  // in the log
    World world = World();
    std::unique_ptr<QProcess> process = nullptr;
};

// A start must not start a bus for the session. The D-Bus library would run this dbus-launch.
void Begin(Session& session) {
    World& world = session.world;
    Spy(world);
    const std::string trap = world.dir / "bin/dbus-launch";
    WriteFile(trap, "#!/bin/sh\necho >\"$HOME/started\"\n");
    fs::permissions(trap, fs::perms::owner_all);
    world.environment.insert("PATH", QString::fromStdString(world.dir / "bin:") + qgetenv("PATH"));
    session.prepare(world);
    world.Offer(1);
    session.process = world.Spawn(
        [&session] {
            fs::current_path(session.world.dir.path());
            signal(SIGCHLD, SIG_IGN);  // as a parent may leave it
            std::for_each(session.closed.begin(), session.closed.end(), close);
        },
        session.arguments);
}

void Check(const Session& session) {
    SCOPED_TRACE(session.name);
    const Outcome run = session.world.Finish(*session.process);
    EXPECT_TRUE(Succeeded(run, session.world, 1));
    EXPECT_EQ(Contains(SpyOutput(run), "on xcb"), session.shows);
    EXPECT_FALSE(Contains(session.world.Log(), "lib path"));
    EXPECT_TRUE(Contains(session.world.Log(), session.warning)) << session.world.Log();
    EXPECT_FALSE(Contains(session.world.Log(), "puts the old copy back"));
    EXPECT_EQ(Contains(run.output, "lib path = '" + session.world.Plugins() + "'\n"), session.closed.empty());
    EXPECT_FALSE(fs::exists(session.world.Home() + "/started"));
}

// Sets DISPLAY, if not empty, and another variable.
std::function<void(World&)> With(const QString& display, const char* variable = "LANG", const QString& value = "C") {
    return [=](World& world) {
        world.environment.remove("QT_QPA_PLATFORM");
        world.environment.insert("DISPLAY", display);
        world.environment.insert(variable, value);
    };
}

// Overwrites `count` bytes of the platform plug-ins with zeros, or removes the plug-ins if `count` is 0.
std::function<void(World&)> WithPlugins(const QString& display, std::size_t at, std::size_t count) {
    return [=](World& world) {
        With(display)(world);
        fs::remove(world.Plugins() + "/platforms");
        fs::create_directory(world.Plugins() + "/platforms");
        for (const std::string name : {"/platforms/libqxcb.so", "/platforms/libqoffscreen.so"}) {
            std::string plugin = ReadFile(QT_PLUGINS + name);
            plugin.replace(at, count, std::min(count, plugin.size() - at), 0);
            if (count > 0) { WriteFile(world.Plugins() + name, plugin); }
        }
    };
}

// Accepts connections as an X display does. Result: the name of the display.
QString ListenAsDisplay(QTcpServer& server) {
    quint16 number = 101;
    while (!server.listen(QHostAddress::LocalHost, 6000 + number)) { ++number; }
    return QString("127.0.0.1:%1").arg(number);
}

}  // namespace

TEST(Launcher, StartsInSessionsOfManyKinds) {
    World waiting;
    waiting.Offer(1);
    const auto deliver_package = DelayPackage(waiting);
    const auto long_run = waiting.Spawn();
    const Desktop desktop;
    const QString display = desktop.Display();
    const TempDir dir;
    const QString silent_bus = QString::fromStdString(dir / "bus");
    QLocalServer bus;
    ASSERT_TRUE(bus.listen(silent_bus));
    QTcpServer server;
    const std::string rest = " before its window was ready; this one has no display\n";
    const std::string hung = ": the previous attempt did not answer" + rest;
    const std::string ended = ": the previous attempt exited with 1" + rest;
    Session slow[] = {
        {"silent display, streams 0 and 1 closed", false, With(ListenAsDisplay(server)), {0, 1}, {}, hung},
        {"silent bus", true, With(display, "DBUS_SESSION_BUS_ADDRESS", "unix:path=" + silent_bus)},
        {"silent session manager", true, With(display, "SESSION_MANAGER", "unix/unix:" + silent_bus)},
    };
    Session quick[] = {
        {"display", true, With(display)},
        {"no display", false, With("")},
        {"nobody's display", false, With(":4242", "QT_QPA_PLATFORM", "xcb")},
        {"Wayland without its plug-in", true, With(display, "QT_QPA_PLATFORM", "wayland")},
        {"exit while Qt starts", false, With(display, "QT_QPA_GENERIC_PLUGINS", "spy:exit"), {}, {}, ended},
        {"arguments that end Qt", false, With(display), {}, {"-platform", "nonsense"}},
        {"streams 0 and 1 closed", true, With(display), {0, 1}},
        {"streams 1 and 2 closed", false, With(display), {1, 2}},
        {"streams 0 to 2 closed", false, With(display), {0, 1, 2}},
        {"no plug-ins", true, WithPlugins(display, 0, 0)},
        {"plug-ins that do not load", false, WithPlugins("", 0, std::string::npos)},
        {"plug-ins with holes", false, WithPlugins("", 4096, 8192)},
        {"relative home", false, With("", "HOME", "home")},
    };
    std::for_each(std::begin(slow), std::end(slow), Begin);
    for (Session& session : quick) {
        Begin(session);
        Check(session);
    }
    std::for_each(std::begin(slow), std::end(slow), Check);
    deliver_package();
    EXPECT_TRUE(Succeeded(waiting.Finish(*long_run), waiting, 1));
    EXPECT_FALSE(Contains(waiting.Log(), "[WARNING]")) << "a run has a limit";
    EXPECT_TRUE(server.waitForNewConnection(0));
    delete server.nextPendingConnection();
    EXPECT_FALSE(server.hasPendingConnections()) << "a second attempt with a silent display";
}

// With a limit of one process, the launcher becomes the client.
TEST(Launcher, StartsWithoutThreadsProcessesOrAHome) {
    if (getuid() != 0) { GTEST_SKIP() << "needs root to become another user"; }
    QTcpServer silent;
    for (const rlim_t limit : {1, 2, 3, 4, 4000}) {
        SCOPED_TRACE(limit);
        const bool has_home = limit != 4000;
        World world;
        // Without a supervisor, nobody ends an attempt that waits for a display.
        if (limit == 1) { With(ListenAsDisplay(silent))(world); }
        // The leak sanitizer needs another process.
        world.environment.insert("ASAN_OPTIONS", "detect_leaks=0");
        fs::permissions(world.dir.path(), fs::perms(0755));
        ASSERT_EQ(chown(world.Home().c_str(), has_home ? kLoner : 0, 0), 0);
        world.Offer(1, Pack(ClientPackage(1, {}, "#!/bin/sh\necho >\"$HOME/.Quillmere/open\"\n")));
        const Outcome run = world.Finish(*world.Spawn([limit] {
            BecomeLoner();
            const rlimit processes = {limit, limit};
            setrlimit(RLIMIT_NPROC, &processes);
        }));
        EXPECT_TRUE(EndedWell(run));
        EXPECT_TRUE(has_home ? WaitFor([&] { return fs::exists(world.User() + "/open"); })
                             : Contains(run.output, ": failed to create folder: '" + world.App()))
            << run.output << world.Log();
    }
}

// While one launcher is upgrading. A killed launcher leaves no lock.
TEST(Launcher, RunsOneAtATime) {
    World world;
    world.LogEverything();
    world.Have(1);
    world.Offer(2);
    const auto as_it_is = fs::copy_options::recursive | fs::copy_options::copy_symlinks;
    fs::copy(world.Bundle(), world.dir / "Other.app", as_it_is);
    const auto deliver_package = DelayPackage(world);
    const auto is_logged = [&world](const char* line, int times) {
        return WaitFor([&] { return QString::fromStdString(world.Log()).count(line) == times; });
    };
    const auto killed = world.Spawn();
    ASSERT_TRUE(is_logged(": extract package: ", 1));
    KillStart(*killed);
    const auto first = world.Spawn([] { signal(SIGINT, SIG_IGN); });  // as a shell does for a background process
    ASSERT_TRUE(is_logged(": extract package: ", 2));
    kill(static_cast<pid_t>(first->processId()), SIGINT);

    // From the same session, from another session, and with another user's lock file in the way.
    EXPECT_TRUE(EndedWell(world.Run()));
    world.environment.remove("XDG_RUNTIME_DIR");
    world.environment.insert("TMPDIR", QString::fromStdString(world.dir.path()));
    EXPECT_TRUE(EndedWell(world.Run()));
    const std::vector<std::string> locks = world.Locks();
    ASSERT_EQ(locks.size(), 1u);
    EXPECT_TRUE(Contains(locks[0], "-" + std::to_string(getuid()) + ".lock"));
    fs::remove(locks[0]);
    WriteFile(locks[0], world.dir.path());
    ASSERT_TRUE(getuid() != 0 || chown(locks[0].c_str(), kLoner, kLoner) == 0);
    const UniqueFd theirs(open(locks[0].c_str(), O_RDWR));
    EXPECT_EQ(flock(theirs.get(), getuid() == 0 ? LOCK_EX : LOCK_UN), 0);
    EXPECT_TRUE(EndedWell(world.Run()));
    EXPECT_TRUE(is_logged(": app has already launched, return\n", 3));

    // A launcher of another bundle waits.
    world.program = world.dir / "Other.app/Contents/MacOS/launcher";
    const auto other = world.Spawn();
    EXPECT_TRUE(WaitFor([&] {
        const std::string waits = "-> FLOCK  ADVISORY  WRITE " + std::to_string(LauncherOf(*other)) + " ";  // proc(5)
        return Contains(ReadFile("/proc/locks"), waits);
    }));
    EXPECT_TRUE(is_logged(": waiting for '", 1));
    deliver_package();
    EXPECT_TRUE(Succeeded(world.Finish(*first), world, 2));
    EXPECT_TRUE(Succeeded(world.Finish(*other), world, 2));
    world.program.clear();
    EXPECT_TRUE(Succeeded(world.Run(), world, 2));
    EXPECT_TRUE(is_logged(": no need to upgrade\n", 2));
    EXPECT_EQ(world.Locks().size(), getuid() == 0 ? 1u : 0u) << "the other user's lock file is gone";
}

// During the upgrade. Without its supervisor, the working process goes on.
TEST(Launcher, EndsWhenItsSupervisorIsAskedTo) {
    for (const int number : {SIGTERM, SIGINT, SIGKILL}) {
        SCOPED_TRACE(number);
        World world;
        world.LogEverything();
        world.Have(1);
        world.Offer(2);
        const auto deliver_package = DelayPackage(world);
        const auto start = world.Spawn();
        ASSERT_TRUE(WaitFor([&] { return Contains(world.Log(), ": extract package: "); }));
        const pid_t launcher = LauncherOf(*start);
        EXPECT_EQ(kill(static_cast<pid_t>(start->processId()), number), 0);
        ASSERT_EQ(world.Finish(*start).exit_code, -1);
        if (number == SIGKILL) {
            deliver_package();
        } else {
            EXPECT_TRUE(WaitFor([&] { return !IsAlive(launcher); }));
            EXPECT_EQ(world.ClientPid(), 0);
            world.Offer(2);
            EXPECT_TRUE(EndedWell(world.Run()));
        }
        EXPECT_NE(world.WaitForClient(), 0);
        EXPECT_EQ(world.Installed(), "2");
        EXPECT_FALSE(fs::exists(world.App() + "_tmp"));
        EXPECT_FALSE(Contains(world.Log(), " [WARNING] ")) << world.Log();
    }
}
