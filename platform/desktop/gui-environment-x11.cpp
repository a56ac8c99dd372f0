// Displays and plug-ins where the window system is X11 or Wayland.
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QList>

#include "platform/desktop/gui-environment.h"
#include "platform/files/unique-fd.h"

namespace {

constexpr int kDisplayPatience =
    3000;  // milliseconds; a display across a slow link answers in less
constexpr char kPlatforms[] = "QT_QPA_PLATFORM";
constexpr char kPlatformPlugins[] = "QT_QPA_PLATFORM_PLUGIN_PATH";

[[noreturn]] void ConnectAndTell(int answer) {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const char answered = xcb_connection_has_error(connection) == 0 ? 1 : 0;
    _exit(write(answer, &answered, 1) == 1 ? 0 : 1);
}

bool WaitForAnswer(int answer) {
    pollfd readable = {answer, POLLIN, 0};
    char answered = 0;
    return poll(&readable, 1, kDisplayPatience) == 1 && read(answer, &answered, 1) == 1 &&
           answered == 1;
}

// A connection attempt cannot be given up once it hangs, but a process that makes it can.
bool DisplayAnswers() {
    int ends[2];
    if (pipe(ends) != 0) {
        return true;
    }
    const UniqueFd answer(ends[0]);
    UniqueFd told(ends[1]);
    const pid_t child = fork();
    if (child < 0) {
        return true;
    }
    if (child == 0) {
        ConnectAndTell(told.get());
    }
    told.reset();
    const bool answers = WaitForAnswer(answer.get());
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    return answers;
}

bool IsX11(const QByteArray& platform) {
    return platform.startsWith("xcb");
}

// The user's own list, or what the session offers.
QList<QByteArray> WantedPlatforms() {
    const QByteArray given = qgetenv(kPlatforms);
    if (!given.isEmpty()) {
        return given.split(';');
    }
    QList<QByteArray> platforms;
    if (!qEnvironmentVariableIsEmpty("DISPLAY")) {
        platforms += "xcb";
    }
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        platforms += "wayland";
    }
    return platforms;
}

QByteArray Platforms() {
    QList<QByteArray> platforms = WantedPlatforms();
    const bool wants_x11 = std::any_of(platforms.cbegin(), platforms.cend(), IsX11);
    if (wants_x11 && (qEnvironmentVariableIsEmpty("DISPLAY") || !DisplayAnswers())) {
        platforms.erase(std::remove_if(platforms.begin(), platforms.end(), IsX11), platforms.end());
    }
    if (!platforms.contains("offscreen")) {
        platforms += "offscreen";
    }
    return platforms.join(';');
}

bool HasPlatformPlugins(const QString& plugins) {
    return QDir(plugins + "/platforms").exists();
}

// Where the executable really lies, whatever it was called by (proc(5)).
QString PluginsOfExecutable() {
    const QString executable = QFile::symLinkTarget("/proc/self/exe");
    return QDir::cleanPath(executable + "/../../Frameworks/plugins");
}

QString PlatformPluginsElsewhere() {
    for (const QString& plugins :
         {PluginsOfExecutable(), QLibraryInfo::location(QLibraryInfo::PluginsPath)}) {
        if (HasPlatformPlugins(plugins)) {
            return plugins + "/platforms";
        }
    }
    return QString();
}

}  // namespace

GuiEnvironment::GuiEnvironment(const QString& library_path) {
    Set(kPlatforms, Platforms());
    if (qEnvironmentVariableIsEmpty(kPlatformPlugins) && !HasPlatformPlugins(library_path)) {
        Set(kPlatformPlugins, QFile::encodeName(PlatformPluginsElsewhere()));
    }
}

void GuiEnvironment::Set(const char* name, const QByteArray& value) {
    former_.push_back({name, qgetenv(name), qEnvironmentVariableIsSet(name)});
    qputenv(name, value);
}

void GuiEnvironment::Restore() {
    for (const Variable& variable : former_) {
        if (variable.was_set) {
            qputenv(variable.name.constData(), variable.value);
        } else {
            qunsetenv(variable.name.constData());
        }
    }
    former_.clear();
}
