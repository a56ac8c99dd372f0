// Xvfb, openbox and xdotool; delayed packages; the spy plug-in.
#include "e2e/desktop.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

#include "unique-fd.h"

Desktop::Desktop(int resolution) {
    static int argc = 0;
    static const QCoreApplication application(argc, nullptr);  // for sockets
    server_.start("Xvfb", {"-displayfd", "1", "-noreset", "-screen", "0", "1280x800x24"});
    EXPECT_TRUE(WaitFor([&] { return server_.canReadLine() || server_.waitForReadyRead(100); }));
    display_ = ":" + server_.readLine().trimmed();
    // Desktops set this. Some releases of Qt ignore the physical size of the screen.
    QProcess::execute("xprop", {"-display", display_, "-root", "-f", "RESOURCE_MANAGER", "8s", "-set",
                                "RESOURCE_MANAGER", "Xft.dpi:\t" + QString::number(resolution)});
    // Default key bindings, not those of this user.
    manager_.start("env", {"DISPLAY=" + display_, "HOME=" + QDir::tempPath(), "XDG_CONFIG_HOME=", "openbox",
                           "--startup", "echo ready"});
    EXPECT_TRUE(manager_.waitForReadyRead());
}

Desktop::~Desktop() {
    for (QProcess* const process : {&manager_, &server_}) {
        process->kill();
        process->waitForFinished();
    }
}

void Desktop::Show(World& world) const {
    world.environment.remove("QT_QPA_PLATFORM");
    world.environment.insert("DISPLAY", display_);
}

QString Desktop::Do(const QStringList& words) const {
    QProcess process;
    process.start("env", QStringList{"DISPLAY=" + display_, "xdotool"} + words);
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed();
}

QString Desktop::Window(const QProcess& start) const {
    return Do({"search", "--onlyvisible", "--pid", QString::number(LauncherOf(start))});
}

std::function<void()> DelayPackage(const World& world) {
    const std::string path = world.Package(), package = ReadFile(path);
    fs::remove(path);
    EXPECT_EQ(mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
    // A waiting launcher reads the FIFO; later ones read the file.
    return [path, package] {
        UniqueFd fifo;
        EXPECT_TRUE(WaitFor([&] {
            fifo.reset(open(path.c_str(), O_WRONLY | O_NONBLOCK));
            return fifo.valid();
        })) << "no launcher reads the package";
        WriteFile(path + ".new", package);
        fs::rename(path + ".new", path);
        EXPECT_EQ(write(fifo.get(), package.data(), package.size()), static_cast<ssize_t>(package.size()));
    };
}

void Spy(World& world, const char* how) {
    fs::create_directory_symlink(SPY_DIRECTORY, world.Plugins() + "/generic");
    world.environment.insert("QT_QPA_GENERIC_PLUGINS", how);
}

std::string SpyOutput(const Outcome& run) {
    QStringList lines = QString::fromStdString(run.output).split('\n').filter(QRegularExpression("^window: "));
    return lines.replaceInStrings("window: ", "").join('\n').toStdString();
}
