// A bundle, a home and runs of the real launcher, for one test.
#pragma once

#include <signal.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>
#include <functional>
#include <map>
#include <string>

#include "temp_dir.h"

// What a package is made of: paths and contents, in this order. An empty content and a path that
// ends in
// "/" is a directory.
using PackageEntries = std::vector<std::pair<std::string, std::string>>;

// The sample client and an INFO with this build number, and `extra` files between them.
PackageEntries ClientPackage(int build, const PackageEntries& extra = {});
// The entries as a tar, compressed by zstd.
std::string Pack(const PackageEntries& entries);

struct Outcome {
    int exit_code = -1;
    bool normal = false;  // it ended by itself and not by a signal
    qint64 milliseconds = 0;
    std::string out;
    std::string err;
};

// Everything lies below one temporary directory, and the client that was started is ended with it.
class World {
  public:
    explicit World(const std::string& home_name = "home");
    ~World();

    // Puts a package with this build number into the bundle.
    void Offer(int build, const std::string& package);
    void Offer(int build) { Offer(build, Pack(ClientPackage(build))); }
    // Sets log thresholds for all components.
    void LogEverything();

    std::unique_ptr<QProcess> Start(const std::function<void()>& in_child = nullptr,
                                    const QStringList& arguments = {}) const;
    Outcome Finish(QProcess& process) const;
    Outcome Launch() const { return Finish(*Start()); }

    // The process that the pid file names; 0 without one.
    pid_t ClientPid() const;
    // Waits until a client other than `former` is there. Result: its process id; 0 after some
    // seconds.
    pid_t WaitForClient(pid_t former = 0) const;
    // Starts the installed client by hand.
    pid_t StartClient(const QStringList& arguments = {}) const;

    std::string Home() const { return dir / home_name; }
    std::string User() const { return Home() + "/.Quillmere"; }
    std::string App() const { return User() + "/Quillmere.app"; }
    std::string Bundle() const { return dir / "Quillmere Drive.app"; }
    std::string LauncherPath() const { return Bundle() + "/Contents/MacOS/launcher"; }
    std::string Log() const { return ReadFile(User() + "/log/launcher.log"); }
    // The build number of the installed copy, "" without one.
    std::string Installed() const;

    const TempDir dir;
    std::string home_name;
    std::string program;  // argv[0]; the launcher's path if empty
    QProcessEnvironment environment;
};

// Polls `condition` until it holds. Result: false when it does not within `seconds`.
bool WaitFor(const std::function<bool()>& condition, int seconds = 10);
bool IsAlive(pid_t pid);
// Kills a process and waits until it is gone.
void Kill(pid_t pid);
