// Bundles, homes and runs for the end-to-end tests.
#include "e2e/harness.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <thread>

namespace fs = std::filesystem;

namespace {

std::string Info(int build) {
    return "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=" + std::to_string(build) +
           "\nicon_overlay_version=1\n";
}

class ChildProcess : public QProcess {
  public:
    explicit ChildProcess(const std::function<void()>& in_child) : in_child_(in_child) {}

  protected:
    void setupChildProcess() override {
        if (in_child_) {
            in_child_();
        }
    }

  private:
    std::function<void()> in_child_;
};

void Collect(const fs::path& name, const std::string& content, archive* writer) {
    const bool directory = name.filename().empty();
    archive_entry* const entry = archive_entry_new();
    archive_entry_set_pathname(entry, name.c_str());
    archive_entry_set_mode(entry, directory ? S_IFDIR | 0755 : S_IFREG | 0755);
    archive_entry_set_size(entry, static_cast<la_int64_t>(content.size()));
    archive_write_header(writer, entry);
    archive_write_data(writer, content.data(), content.size());
    archive_entry_free(entry);
}

}  // namespace

PackageEntries ClientPackage(int build, const PackageEntries& extra) {
    PackageEntries entries{{"Contents/MacOS/quillmere-ui", ReadFile(SAMPLE_CLIENT)}};
    entries.insert(entries.end(), extra.begin(), extra.end());
    entries.push_back({"Contents/Resources/INFO", Info(build)});
    return entries;
}

std::string Pack(const PackageEntries& entries) {
    setlocale(LC_CTYPE, "C.UTF-8");
    const TempDir scratch;
    const std::string path = scratch / "package";
    archive* const writer = archive_write_new();
    archive_write_add_filter_program(writer, "zstd -q --check -c");
    archive_write_set_format_pax_restricted(writer);
    archive_write_open_filename(writer, path.c_str());
    for (const auto& entry : entries) {
        Collect(entry.first, entry.second, writer);
    }
    archive_write_close(writer);
    archive_write_free(writer);
    return ReadFile(path);
}

World::World(const std::string& name)
    : home_name(name), environment(QProcessEnvironment::systemEnvironment()) {
    fs::create_directories(Home());
    fs::create_directories(Bundle() + "/Contents/MacOS");
    fs::create_directories(Bundle() + "/Contents/Frameworks");
    fs::copy_file(LAUNCHER, LauncherPath());
    fs::create_directory_symlink(QT_PLUGINS, Bundle() + "/Contents/Frameworks/plugins");
    // A socket's path is short, and so must be this one.
    fs::create_directories(dir / "run");
    fs::permissions(dir / "run", fs::perms::owner_all);
    for (const char* const name_to_clear : {"DISPLAY", "WAYLAND_DISPLAY", "LC_ALL", "LANGUAGE"}) {
        environment.remove(name_to_clear);
    }
    environment.insert("HOME", QString::fromStdString(Home()));
    environment.insert("XDG_RUNTIME_DIR", QString::fromStdString(dir / "run"));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("LANG", "C.UTF-8");
}

World::~World() {
    const pid_t client = ClientPid();
    if (client > 1 && IsAlive(client)) {
        Kill(client);
    }
}

void World::Offer(int build, const std::string& package) {
    WriteFile(Bundle() + "/Contents/Resources/INFO", Info(build));
    WriteFile(Bundle() + "/Contents/Resources/package/quillmere.qpk", package);
}

void World::LogEverything() {
    WriteFile(Bundle() + "/log/launcher.debug",
              "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=7\n");
}

std::unique_ptr<QProcess> World::Start(const std::function<void()>& in_child,
                                       const QStringList& arguments) const {
    std::unique_ptr<QProcess> process(new ChildProcess(in_child));
    process->setProcessEnvironment(environment);
    process->start(QString::fromStdString(program.empty() ? LauncherPath() : program), arguments);
    process->waitForStarted();
    return process;
}

Outcome World::Finish(QProcess& process) const {
    QElapsedTimer timer;
    timer.start();
    Outcome run;
    run.normal = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    run.exit_code = process.exitCode();
    run.milliseconds = timer.elapsed();
    run.out = process.readAllStandardOutput().toStdString();
    run.err = process.readAllStandardError().toStdString();
    return run;
}

pid_t World::ClientPid() const {
    const std::string line = ReadFile(User() + "/ui.pid");
    return line.rfind("pid=", 0) == 0 ? std::atoi(line.c_str() + 4) : 0;
}

pid_t World::WaitForClient(pid_t former) const {
    const auto there = [&] {
        return ClientPid() > 1 && ClientPid() != former && IsAlive(ClientPid());
    };
    return WaitFor(there) ? ClientPid() : 0;
}

pid_t World::StartClient(const QStringList& arguments) const {
    QProcess client;
    client.setProcessEnvironment(environment);
    client.setProgram(QString::fromStdString(App() + "/Contents/MacOS/quillmere-ui"));
    client.setArguments(arguments);
    const pid_t former = ClientPid();
    client.startDetached();
    return WaitForClient(former);
}

std::string World::Installed() const {
    const std::string info = ReadFile(App() + "/Contents/Resources/INFO");
    const std::string key = "build_version=";
    const std::size_t at = info.find(key);
    return at == std::string::npos
               ? ""
               : info.substr(at + key.size(), info.find('\n', at) - at - key.size());
}

bool WaitFor(const std::function<bool()>& condition, int seconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

// A zombie is as good as gone: nobody is left that could run.
bool IsAlive(pid_t pid) {
    const std::string status = ReadFile("/proc/" + std::to_string(pid) + "/stat");
    const std::size_t behind_name = status.rfind(") ");
    return behind_name != std::string::npos && status[behind_name + 2] != 'Z';
}

void Kill(pid_t pid) {
    ASSERT_GT(pid, 1) << "no process";
    kill(pid, SIGKILL);
    WaitFor([pid] { return !IsAlive(pid); });
}
