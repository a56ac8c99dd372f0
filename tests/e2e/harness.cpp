// Bundles, homes and runs for the end-to-end tests.
#include "e2e/harness.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QThread>

#include "make_archive.h"
#include "platform/desktop/qt-version.h"

static std::string Info(int build) { return "[Version]\nbuild_version=" + std::to_string(build) + "\n"; }

const std::string kLightClient = R"(#!/bin/sh
[ "$1" != --ignore-sigterm ] || trap "" TERM
echo "pid=$$" >"$HOME/.Quillmere/ui.new" && mv "$HOME/.Quillmere/ui.new" "$HOME/.Quillmere/ui.pid"
exec sleep 1000
)";

PackageEntries ClientPackage(int build, const PackageEntries& extra, const std::string& client) {
    PackageEntries entries{{"Contents/MacOS/quillmere-ui", client}};
    entries.insert(entries.end(), extra.begin(), extra.end());
    entries.push_back({kInfo, Info(build)});
    return entries;
}

std::string Pack(const PackageEntries& entries) {
    const TempDir scratch;
    std::vector<ArchiveMember> members;
    for (const auto& [path, content] : entries) { members.push_back({path, content}); }
    MakeArchive(scratch / "package", members, archive_write_set_format_gnutar, "zstd -q --check -c");
    return ReadFile(scratch / "package");
}

World::World(const std::string& name) : home_name(name), environment(QProcessEnvironment::systemEnvironment()) {
    fs::create_directories(Home());
    fs::create_directories(Bundle() + "/Contents/MacOS");
    fs::create_directories(Plugins());
    fs::copy_file(LAUNCHER, LauncherPath());
    fs::create_directory_symlink(QT_PLUGINS "/platforms", Plugins() + "/platforms");
    fs::create_directory(dir / "run");
    fs::permissions(dir / "run", fs::perms::owner_all);
    for (const char* const variable :
         {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "SESSION_MANAGER", "LC_ALL", "LANGUAGE"}) {
        environment.remove(variable);
    }
    environment.insert("HOME", QString::fromStdString(Home()));
    environment.insert("XDG_RUNTIME_DIR", QString::fromStdString(dir / "run"));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("LANG", "C.UTF-8");
}

// Processes of this test have its directory in their environment (proc(5)).
World::~World() {
    for (const auto& process : fs::directory_iterator("/proc")) {
        const pid_t pid = std::atoi(process.path().filename().c_str());
        if (pid > 1 && Contains(ReadFile(process.path() / "environ"), "=" + dir.path())) { Kill(pid); }
    }
    for (const std::string& lock : Locks()) { fs::remove(lock); }
}

std::vector<std::string> World::Locks() const {
    std::vector<std::string> locks;
    for (const auto& file : fs::directory_iterator("/tmp")) {
        const std::string path = file.path();
        if (Contains(path, "/quillmere-launcher-") && Contains(ReadFile(path), dir.path())) { locks.push_back(path); }
    }
    return locks;
}

void World::Offer(int build, const std::string& package) {
    WriteFile(Bundle() + "/" + kInfo, Info(build));
    fs::remove(Package());
    WriteFile(Package(), package);
}

void World::Have(int build) const {
    WriteFile(Client(), kLightClient);
    fs::permissions(Client(), fs::perms(0755));
    WriteFile(App() + "/" + kInfo, Info(build));
}

void World::LogEverything() {
    WriteFile(Bundle() + "/log/launcher.debug",
              "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=7\n");
}

std::unique_ptr<QProcess> World::Spawn(const std::function<void()>& in_child, const QStringList& arguments) const {
    auto process = std::make_unique<ChildProcess>(in_child);
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->start(QString::fromStdString(program.empty() ? LauncherPath() : program), arguments);
    process->waitForStarted();
    return process;
}

Outcome World::Finish(QProcess& process) const {
    QElapsedTimer timer;
    timer.start();
    const bool ended = process.waitForFinished(60000);
    const int code = !ended ? -2 : process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return {code, timer.elapsed(), process.readAll().toStdString()};
}

pid_t World::ClientPid() const {
    const std::string line = ReadFile(User() + "/ui.pid");
    return line.rfind("pid=", 0) == 0 ? std::atoi(line.c_str() + 4) : 0;
}

pid_t World::WaitForClient() const {
    return WaitFor([this] { return ClientPid() > 1 && IsAlive(ClientPid()); }) ? ClientPid() : 0;
}

std::string World::Installed() const {
    const QRegularExpression build("build_version=(\\d+)");
    return build.match(QString::fromStdString(ReadFile(App() + "/" + kInfo))).captured(1).toStdString();
}

testing::AssertionResult EndedWell(const Outcome& run) {
    return testing::AssertionResult(run.exit_code == 0) << "exit code " << run.exit_code << "\n" << run.output;
}

testing::AssertionResult Succeeded(const Outcome& run, const World& world, int build) {
    std::string copies;
    for (const auto& entry : fs::directory_iterator(world.User())) {
        copies += entry.path().filename().string().rfind("Quillmere.app", 0) == 0 ? entry.path() : "";
    }
    return testing::AssertionResult(EndedWell(run) && copies == world.App() &&
                                    world.Installed() == std::to_string(build) && world.WaitForClient() != 0)
           << EndedWell(run).message() << copies << ", build " << world.Installed() << "\n"
           << world.Log();
}

bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

bool WaitFor(const std::function<bool()>& condition) {
    for (const QDeadlineTimer end(10000); !end.hasExpired(); QThread::msleep(5)) {
        if (condition()) { return true; }
    }
    return condition();
}

// A zombie counts as dead.
bool IsAlive(pid_t pid) {
    const std::string status = ReadFile("/proc/" + std::to_string(pid) + "/stat");
    const std::size_t end_of_name = status.rfind(") ");
    return end_of_name != std::string::npos && status[end_of_name + 2] != 'Z';
}

void Kill(pid_t pid) {
    ASSERT_GT(pid, 1) << "no process";
    kill(pid, SIGKILL);
    WaitFor([pid] { return !IsAlive(pid); });
}

pid_t LauncherOf(const QProcess& start) {
    const std::string pid = std::to_string(start.processId());
    return std::atoi(ReadFile("/proc/" + pid + "/task/" + pid + "/children").c_str());
}

void KillStart(QProcess& start) {
    const pid_t launcher = LauncherOf(start);
    start.kill();
    start.waitForFinished();
    if (launcher > 1) { Kill(launcher); }
}
