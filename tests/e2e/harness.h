// A bundle, a home and runs of the real launcher, for one test.
#pragma once

#include <signal.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <functional>
#include <map>

#include "temp_dir.h"

// What a package is made of, in this order: paths and contents; "/" ends the path of a directory.
using PackageEntries = std::vector<std::pair<std::string, std::string>>;

// A client that has a pid file, ends on SIGTERM (not with --ignore-sigterm), and does nothing else.
extern const std::string kLightClient;

// A client and an INFO with this build number, and `extra` files between them.
PackageEntries ClientPackage(int build, const PackageEntries& extra = {}, const std::string& client = kLightClient);
// The entries as a tar, compressed by zstd.
std::string Pack(const PackageEntries& entries);

struct Outcome {
    int exit_code = -1;
    bool normal = false;  // it ended by itself and not by a signal
    qint64 milliseconds = 0;
    std::string out;
    std::string err;
};

// Everything lies below one temporary directory; what runs there is ended with it.
class World {
  public:
    explicit World(const std::string& home_name = "home");
    ~World();

    // Puts a package with this build number into the bundle.
    void Offer(int build, const std::string& package);
    void Offer(int build) { Offer(build, Pack(ClientPackage(build))); }
    // Has a copy with this build number installed, without a run.
    void Have(int build) const;
    // Sets log thresholds for all components.
    void LogEverything();

    // `in_child` runs between fork and exec.
    std::unique_ptr<QProcess> Spawn(
        const std::function<void()>& in_child = [] {}, const QStringList& arguments = {}) const;
    Outcome Finish(QProcess& process) const;
    Outcome Run() const { return Finish(*Spawn()); }

    // The process that the pid file names; 0 without one.
    pid_t ClientPid() const;
    // Waits for a client. Result: its process id; 0 after some seconds.
    pid_t WaitForClient() const;
    // The bundle's locks in the directory that all users share.
    std::vector<std::string> Locks() const;

    std::string Home() const { return dir / home_name; }
    std::string User() const { return Home() + "/.Quillmere"; }
    std::string App() const { return User() + "/Quillmere.app"; }
    std::string Client() const { return App() + "/Contents/MacOS/quillmere-ui"; }
    std::string Bundle() const { return dir / "Quillmere Drive.app"; }
    std::string Plugins() const { return Bundle() + "/Contents/Frameworks/plugins"; }
    std::string LauncherPath() const { return Bundle() + "/Contents/MacOS/launcher"; }
    std::string Log() const { return ReadFile(User() + "/log/launcher.log"); }
    // The build number of the installed copy, "" without one.
    std::string Installed() const;

    const TempDir dir;
    std::string home_name;
    std::string program;  // argv[0]; the launcher's path if empty
    QProcessEnvironment environment;
};

// Whether the launcher ended by itself and with 0.
testing::AssertionResult EndedWell(const Outcome& run);
// The same, with this build as the only copy, and its client opened.
testing::AssertionResult Succeeded(const Outcome& run, const World& world, int build);
bool Contains(const std::string& text, const std::string& part);

// Polls `condition` until it holds. Result: false when it does not within `seconds`.
bool WaitFor(const std::function<bool()>& condition, int seconds = 10);
bool IsAlive(pid_t pid);
// The process of a start that does the work: the child of the supervisor. 0 if there is none.
pid_t LauncherOf(const QProcess& start);
// Kills both processes of a start.
void KillStart(QProcess& start);
// Kills a process and waits until it is gone.
void Kill(pid_t pid);

// A user that owns nothing and has no processes. In a child process of root's: becomes it.
extern const uid_t kLoner;
void BecomeLoner();
