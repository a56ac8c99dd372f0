// A bundle, a home directory and runs of the real launcher, for one test.
#pragma once

#include <signal.h>

#include <QDeadlineTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <functional>

#include "support.h"

// Paths and contents of a package, in order.
using PackageEntries = std::vector<std::pair<std::string, std::string>>;

constexpr char kInfo[] = "Contents/Resources/INFO";

// A client that writes its pid file and exits on SIGTERM, except with --ignore-sigterm.
extern const std::string kLightClient;

// A client, `extra` files, and an INFO with this build number.
PackageEntries ClientPackage(int build, const PackageEntries& extra = {}, const std::string& client = kLightClient);
// Returns the entries as a tar compressed by zstd.
std::string Pack(const PackageEntries& entries);

struct Outcome {
    int exit_code = -1;  // -1 if a signal ended it; -2 if it did not end within a minute
    qint64 milliseconds = 0;
    std::string output;  // standard output and error
};

// Everything is in one temporary directory. The destructor kills the processes that use it.
class World {
  public:
    explicit World(const std::string& home_name = "home");
    ~World();

    // Puts a package with this build number into the bundle.
    void Offer(int build, const std::string& package);
    void Offer(int build) { Offer(build, Pack(ClientPackage(build))); }
    // Installs a copy with this build number, without the launcher.
    void Have(int build) const;
    // Sets log thresholds for all components.
    void LogEverything();

    // `in_child` runs between fork and exec.
    std::unique_ptr<QProcess> Spawn(
        const std::function<void()>& in_child = [] {}, const QStringList& arguments = {}) const;
    Outcome Finish(QProcess& process) const;
    Outcome Run() const { return Finish(*Spawn()); }

    // The process id in the pid file, or 0.
    pid_t ClientPid() const;
    // Waits up to 10 s for a client. Result: its process id, or 0.
    pid_t WaitForClient() const;
    // The bundle's lock files in /tmp.
    std::vector<std::string> Locks() const;

    std::string Home() const { return dir / home_name; }
    std::string User() const { return Home() + "/.Quillmere"; }
    std::string App() const { return User() + "/Quillmere.app"; }
    std::string Client() const { return App() + "/Contents/MacOS/quillmere-ui"; }
    std::string Bundle() const { return dir / "Quillmere Drive.app"; }
    std::string Plugins() const { return Bundle() + "/Contents/Frameworks/plugins"; }
    std::string Package() const { return Bundle() + "/Contents/Resources/package/quillmere.qpk"; }
    std::string LauncherPath() const { return Bundle() + "/Contents/MacOS/launcher"; }
    std::string Log() const { return ReadFile(User() + "/log/launcher.log"); }
    // The build number of the installed copy, or "".
    std::string Installed() const;

    const TempDir dir;
    std::string home_name;
    std::string program;  // argv[0]; the launcher's path if empty
    QProcessEnvironment environment;
};

// Whether the launcher exited with 0.
testing::AssertionResult EndedWell(const Outcome& run);
// Whether it also left this build as the only copy and opened its client.
testing::AssertionResult Succeeded(const Outcome& run, const World& world, int build);
bool Contains(const std::string& text, const std::string& part);

// Polls `condition` until it holds. Result: false if it does not hold within 10 s.
bool WaitFor(const std::function<bool()>& condition);
bool IsAlive(pid_t pid);
// The working process of a start, which is the child of the supervisor; or 0.
pid_t LauncherOf(const QProcess& start);
// Kills both processes of a start.
void KillStart(QProcess& start);
// Kills a process and waits until it is gone.
void Kill(pid_t pid);
