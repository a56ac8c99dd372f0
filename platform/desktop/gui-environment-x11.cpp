// Displays and plug-ins where the window system is X11 or Wayland.
#include <fontconfig/fontconfig.h>

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QList>
#include <algorithm>

#include "platform/desktop/display-x11.h"
#include "platform/desktop/gui-environment.h"

namespace {

constexpr char kPlatforms[] = "QT_QPA_PLATFORM";
constexpr char kPlatformPlugins[] = "QT_QPA_PLATFORM_PLUGIN_PATH";

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

QByteArray Platforms(UniqueFd& display) {
    QList<QByteArray> platforms = WantedPlatforms();
    const bool wants_x11 = std::any_of(platforms.cbegin(), platforms.cend(), IsX11);
    if (wants_x11 && (qEnvironmentVariableIsEmpty("DISPLAY") || !DisplayAnswers(display))) {
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
    Set(kPlatforms, Platforms(display_));
    if (qEnvironmentVariableIsEmpty(kPlatformPlugins) && !HasPlatformPlugins(library_path)) {
        Set(kPlatformPlugins, QFile::encodeName(PlatformPluginsElsewhere()));
    }
    // The first window waits for the list of fonts, a quarter of the time to the client's start. It
    // is read while the application object connects to its display.
    fonts_ = std::thread([] { FcInit(); });
}

void GuiEnvironment::Set(const char* name, const QByteArray& value) {
    former_.push_back({name, qgetenv(name), qEnvironmentVariableIsSet(name)});
    qputenv(name, value);
}

void GuiEnvironment::Restore() {
    if (fonts_.joinable()) {
        fonts_.join();
    }
    for (const Variable& variable : former_) {
        if (variable.was_set) {
            qputenv(variable.name.constData(), variable.value);
        } else {
            qunsetenv(variable.name.constData());
        }
    }
    former_.clear();
    display_.reset();
}
