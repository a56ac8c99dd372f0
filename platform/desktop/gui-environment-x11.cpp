// Displays and plug-ins where the window system is X11 or Wayland.
#include <fontconfig/fontconfig.h>

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QList>
#include <QOpenGLContext>
#include <algorithm>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "platform/desktop/gui-environment.h"
#include "platform/desktop/run-guard.h"
#include "platform/desktop/session-watch.h"
#include "platform/desktop/start-over.h"

namespace {

constexpr char kPlatforms[] = "QT_QPA_PLATFORM";
constexpr char kPlatformPlugins[] = "QT_QPA_PLATFORM_PLUGIN_PATH";
constexpr char kX11[] = "xcb";
constexpr char kWayland[] = "wayland";
constexpr char kOffscreen[] = "offscreen";
constexpr char kSessionBus[] = "DBUS_SESSION_BUS_ADDRESS";

using Platforms = QList<QByteArray>;

bool IsX11(const QByteArray& platform) {
    return platform.startsWith(kX11);
}

bool IsOfTheSession(const QByteArray& platform) {
    return IsX11(platform) || platform.startsWith(kWayland);
}

template <class Predicate>
void RemoveIf(Platforms& platforms, Predicate predicate) {
    platforms.erase(std::remove_if(platforms.begin(), platforms.end(), predicate), platforms.end());
}

// The user's own list, or what the session offers.
Platforms WantedPlatforms() {
    const QByteArray given = qgetenv(kPlatforms);
    Platforms platforms = given.isEmpty() ? Platforms{kX11} : given.split(';');
    if (given.isEmpty() && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        platforms += kWayland;
    }
    // A bundle may have no plug-in for Wayland, and such a session has X11 as well as a rule.
    if (platforms.first().startsWith(kWayland) && !platforms.contains(kX11)) {
        platforms += kX11;
    }
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        RemoveIf(platforms, IsX11);
    }
    return platforms;
}

// In one of the two places where a bus is found. Where there is none, the D-Bus library would start
// one, for a program of which nobody asks anything that way.
bool HasSessionBus() {
    return !qEnvironmentVariableIsEmpty(kSessionBus) ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

// The size of windows, in pixels, follows the resolution, the display's or what the user tells Qt;
// that of text does in any case. Nothing is drawn at odd scales where it is about the usual 96.
void FollowResolution(double resolution) {
    const int wanted = qEnvironmentVariableIntValue("QT_FONT_DPI");
    if ((wanted > 0 ? wanted : resolution) > 1.1 * 96) {
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
            Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    }
}

Platforms PlatformsToTry(SessionWatch& watch) {
    Platforms platforms = WantedPlatforms();
    if (platforms != Platforms{kOffscreen}) {
        const bool wants_x11 = std::any_of(platforms.cbegin(), platforms.cend(), IsX11);
        const SessionWatch::Display display = watch.Begin(wants_x11);
        if (!display.answers) {
            RemoveIf(platforms, IsX11);
        }
        FollowResolution(display.resolution);
        if (!watch.IsOn()) {
            RemoveIf(platforms, IsOfTheSession);
        }
    }
    if (!platforms.contains(kOffscreen)) {
        platforms += kOffscreen;
    }
    return platforms;
}

// Qt's own plug-ins are looked for; the files of others have names that do not follow from theirs.
bool HasPlugIn(const QString& plugins, const QByteArray& platform) {
    return !(IsX11(platform) || platform == kOffscreen) ||
           QFileInfo(plugins + "/platforms/libq" + platform.split(':').first() + ".so").isFile();
}

// Where the executable really lies, whatever it was called by (proc(5)).
QString PluginsOfExecutable() {
    const QString executable = QFile::symLinkTarget("/proc/self/exe");
    return QDir::cleanPath(executable + "/../../Frameworks/plugins");
}

QString PluginsOfQt() {
    return QLibraryInfo::location(QLibraryInfo::PluginsPath);
}

// The first of `places` that has the platform's plug-in. Result: empty if none has.
QString PlatformPlugins(const QStringList& places, const QByteArray& platform) {
    for (const QString& plugins : places) {
        if (HasPlugIn(plugins, platform)) {
            return plugins + "/platforms";
        }
    }
    return QString();
}

// Environment variables, set for a time.
class Variables {
  public:
    ~Variables() { Restore(); }

    void Set(const char* name, const QByteArray& value) {
        Remember(name);
        qputenv(name, value);
    }
    void Unset(const char* name) {
        Remember(name);
        qunsetenv(name);
    }

    void Restore() {
        for (const Variable& variable : former_) {
            if (variable.was_set) {
                qputenv(variable.name, variable.value);
            } else {
                qunsetenv(variable.name);
            }
        }
        former_.clear();
    }

  private:
    struct Variable {
        const char* name;
        QByteArray value;
        bool was_set;
    };

    void Remember(const char* name) {
        former_.push_back({name, qgetenv(name), qEnvironmentVariableIsSet(name)});
    }

    std::vector<Variable> former_;
};

// Has the list of fonts read on another processor. That takes a third of a start's instructions,
// and the first window waits for it.
class FontReader {
  public:
    ~FontReader() { Wait(); }

    void Begin() {
        try {
            thread_ = std::thread(FcInit);
        } catch (const std::system_error&) {
            // No thread is left: the window reads it.
        }
    }

    void Wait() {
        if (thread_.joinable()) {
            thread_.join();
        }
    }

  private:
    std::thread thread_;
};

}  // namespace

struct GuiEnvironment::Parts {
    Variables variables;
    FontReader fonts;
    SessionWatch watch;
};

GuiEnvironment::GuiEnvironment(const QString& library_path, char** argv) : parts_(new Parts) {
    const Without without = PrepareStartOver(argv);
    RunGuard::Arm();
    if (without == Without::kDisplay) {
        // Another one may have been what had to be left out.
        parts_->variables.Set(kPlatforms, kOffscreen);
        parts_->variables.Set(
            kPlatformPlugins,
            QFile::encodeName(PlatformPlugins({PluginsOfQt(), PluginsOfExecutable()}, kOffscreen)));
        return;
    }
    if (without == Without::kSession) {
        parts_->variables.Unset("SESSION_MANAGER");
    }
    if (without == Without::kSession || !HasSessionBus()) {
        parts_->variables.Set(kSessionBus, "disabled:");
    }
    // A progress bar is drawn without OpenGL, whose libraries take long to load.
    parts_->variables.Set("QT_XCB_GL_INTEGRATION", "none");
    const Platforms platforms = PlatformsToTry(parts_->watch);
    parts_->variables.Set(kPlatforms, platforms.join(';'));
    if (qEnvironmentVariableIsEmpty(kPlatformPlugins) &&
        !HasPlugIn(library_path, platforms.first())) {
        parts_->variables.Set(kPlatformPlugins,
                              QFile::encodeName(PlatformPlugins(
                                  {PluginsOfExecutable(), PluginsOfQt()}, platforms.first())));
    }
    parts_->fonts.Begin();
}

GuiEnvironment::~GuiEnvironment() {
    RunGuard::Disarm();
}

void GuiEnvironment::Restore() {
    parts_->watch.ApplicationIsBuilt();
    // Both would come with the first window, when nobody watches and the variable is gone.
    QAccessible::isActive();
    QOpenGLContext::supportsThreadedOpenGL();
    parts_->watch.End();
    parts_->fonts.Wait();
    parts_->variables.Restore();
}

void GuiEnvironment::GiveDisplayUp() {
    StartOver(Without::kDisplay);
}
