// The progress window on a real display: what it shows, and what can happen to it.
#include <QLocalServer>
#include <QLocalSocket>
#include <list>

#include "e2e/desktop.h"

namespace {

// Messages of a session manager (Inter-Client Exchange Protocol, X Session Management Protocol): ByteOrder,
// ConnectionReply, ProtocolReply and RegisterClientReply; SaveYourself; Ping; Die. The client's SaveYourselfDone,
// InteractRequest and PingReply.
const QByteArray kWelcome = QByteArray::fromHex(
    "0001000000000000 00060000010000000000000000000000 00080001010000000000000000000000"
    "01020000010000000100000078000000");
const QByteArray kSave = QByteArray::fromHex("01030000010000000201020000000000");
const QByteArray kDie = QByteArray::fromHex("0109000000000000");
const QByteArray kSaved = QByteArray::fromHex("0108010000000000");
const QByteArray kAsks = QByteArray::fromHex("0105010000000000");
const QByteArray kPing = QByteArray::fromHex("0009000000000000");
const QByteArray kPingReply = QByteArray::fromHex("000a");  // the first two bytes of eight

// A launcher during an upgrade, with its window on its own desktop.
struct Scene {
    Scene() {
        desktop.Show(world);
        const QString name = QString::fromStdString(world.dir / "session");
        EXPECT_TRUE(manager.listen(name));
        world.environment.insert("SESSION_MANAGER", "unix/unix:" + name);
        // Longer than a std::string stores without allocating.
        world.environment.insert("TZ", "America/Argentina/ComodRivadavia");
        world.LogEverything();
        world.Have(1);
        world.Offer(2);
        deliver_package = DelayPackage(world);
        launcher = world.Spawn();
        EXPECT_TRUE(manager.waitForNewConnection(10000));
        session = manager.nextPendingConnection();
        Say(kWelcome);
        EXPECT_TRUE(WaitFor([this] { return !desktop.Window(*launcher).isEmpty(); }));
    }
    void Say(const QByteArray& words) {
        session->write(words);
        session->flush();
    }
    bool Hears(const QByteArray& words) {
        session->waitForReadyRead(0);
        return (heard += session->readAll()).contains(words);
    }
    void CloseTerminal() const {
        kill(LauncherOf(*launcher), SIGHUP);
        kill(static_cast<pid_t>(launcher->processId()), SIGHUP);
    }
    // After the reply to the ping, all messages have been read.
    void Save() {
        Say(kSave + kPing);
        EXPECT_TRUE(WaitFor([this] { return Hears({}) && heard.right(8).startsWith(kPingReply); }));
    }

    Desktop desktop;
    World world;
    QLocalServer manager;
    QLocalSocket* session;
    QByteArray heard;
    std::function<void()> deliver_package;
    std::unique_ptr<QProcess> launcher;
};

}  // namespace

TEST(ProgressWindow, NothingThatHappensToItStopsTheRun) {
    enum Then { kStays, kGoes };
    const struct {
        const char* name;
        Then then;
        QStringList act = {};  // for xdotool
        std::function<void(Scene&)> happen = [](Scene&) {};
    } cases[] = {
        {"Escape", kGoes, {"windowactivate", "--sync", "WINDOW", "key", "Escape"}},
        {"Alt+F4", kGoes, {"windowactivate", "--sync", "WINDOW", "key", "alt+F4"}},
        {"close", kGoes, {"mousemove", "--window", "WINDOW", "--", "391", "-10", "click", "1"}},
        {"minimised", kGoes, {"windowminimize", "WINDOW"}},
        {"killed by the user", kGoes, {"windowkill", "WINDOW"}},
        {"server killed", kGoes, {}, [](Scene& scene) { scene.desktop.SignalServer(SIGKILL); }},
        {"server frozen", kStays, {}, [](Scene& scene) { scene.desktop.SignalServer(SIGSTOP); }},
        {"log-out", kStays, {}, [](Scene& scene) { scene.Save(); }},
        {"terminal closed", kStays, {}, [](Scene& scene) { scene.CloseTerminal(); }},
        {"end of the session", kGoes, {}, [](Scene& scene) { scene.Say(kDie); }},
    };
    std::list<Scene> scenes;
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        Scene& scene = scenes.emplace_back();
        row.happen(scene);
        // Repeats the action, because the window manager may not be ready for its keys yet.
        EXPECT_TRUE(row.then == kStays || WaitFor([&] {
                        const QString window = scene.desktop.Window(*scene.launcher);
                        scene.desktop.Do(QStringList(row.act).replaceInStrings("WINDOW", window));
                        return window.isEmpty();
                    }));
        EXPECT_FALSE(scene.Hears(kSaved));
        scene.deliver_package();
    }
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        Scene& scene = scenes.front();
        EXPECT_TRUE(Succeeded(scene.world.Finish(*scene.launcher), scene.world, 2));
        EXPECT_EQ(scene.Hears(kSaved), row.name == std::string("log-out"));
        EXPECT_FALSE(scene.Hears(kAsks));
        EXPECT_TRUE(row.name == std::string("server frozen") || scene.world.Locks().empty());
        scenes.pop_front();
    }
}

TEST(ProgressWindow, ShowsTheUpgradeAndNothingElse) {
    constexpr int kWanted = 168;  // the user's setting
    const std::string start = "Quillmere Drive is initializing...";
    const std::string end = "Quillmere Drive is ready.";
    // Each of three entries, the worker, and the end of the run.
    const std::string upgrade = "33, " + start + "\n66, " + start + "\n100, " + start + "\n100, " + start + "\n100, " +
                                end + "\nhidden, " + end;
    const std::string good = Pack(ClientPackage(2, {{"file", ""}}));
    const std::string bad = "this is no archive";
    // Qt ignores the others without the first.
    const std::string dark =
        "[Colors:Button]\nBackgroundNormal=0,0,0\n[Colors:Window]\nForegroundNormal=255,255,255\n"
        "[Colors:View]\nBackgroundNormal=0,0,0\n";
    const struct {
        const char* locale;
        std::string package;
        std::string label;  // at first; empty if no window appears
        std::string rest;   // not checked if empty
        int resolution = 96;
        std::string colours = {};
    } cases[] = {
        {"C", good, start, upgrade},
        {"fi_FI.UTF-8", bad, start, "100, " + start + "\nhidden, " + start},
        {"C", "", "", ""},
        {"C", good, start, upgrade, 96, dark},
        {"C", good, start, upgrade, 144},
        {"C", good, start, upgrade, kWanted},
        {"de_AT.UTF-8", bad, "Quillmere Drive wird initialisiert ...", ""},
    };
    std::map<int, Desktop> desktops;
    for (const auto& row : cases) {
        SCOPED_TRACE(row.locale + row.label);
        World world;
        const int resolution = row.resolution == kWanted ? 96 : row.resolution;
        desktops.try_emplace(resolution, resolution).first->second.Show(world);
        world.environment.insert("QT_FONT_DPI", row.resolution == kWanted ? QString::number(kWanted) : "");
        Spy(world);
        world.environment.insert("LC_ALL", row.locale);
        world.environment.insert("XDG_CURRENT_DESKTOP", "KDE");
        world.environment.insert("KDE_SESSION_VERSION", "5");
        WriteFile(world.Home() + "/.config/kdeglobals", row.colours);
        world.Have(1);
        world.Offer(row.label.empty() ? 1 : 2, row.package);
        fs::create_directory(world.Bundle() + "/Contents/Resources/images");
        fs::copy(ICON, world.Bundle() + "/Contents/Resources/images");
        const Outcome run = world.Run();
        EXPECT_TRUE(Succeeded(run, world, row.package == good ? 2 : 1));
        const std::string shown = "Quillmere Drive, " + row.label + "\n" + std::to_string(400 * row.resolution / 96) +
                                  " pixels on xcb, modal: 1, buttons: 0, closable: 0, icon of 72, #000000 on #ffffff\n";
        const std::string reported = SpyOutput(run);
        EXPECT_EQ(row.rest.empty() ? reported.substr(0, shown.size()) : reported,
                  row.label.empty() ? "" : shown + row.rest);
    }
}
