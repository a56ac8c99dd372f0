// The environment of the application object with X11 or Wayland.
#include <QAccessible>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QOpenGLContext>

#include "platform/desktop/gui-environment.h"
#include "platform/desktop/platform-plugins.h"
#include "platform/desktop/platforms.h"
#include "platform/desktop/qt-version.h"

namespace {

constexpr char kPlatforms[] = "QT_QPA_PLATFORM";
constexpr char kPluginPath[] = "QT_QPA_PLATFORM_PLUGIN_PATH";
constexpr char kSessionBus[] = "DBUS_SESSION_BUS_ADDRESS";

}  // namespace

GuiEnvironment::GuiEnvironment(StartMode mode, const QString& library_path) {
    const bool has_bus = !qEnvironmentVariableIsEmpty(kSessionBus) ||
                         QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
    // Without this, the D-Bus library would start a bus.
    if (mode >= StartMode::kWithoutSession || !has_bus) {
        environment_.Set(kSessionBus, "disabled:");
    }
    if (mode >= StartMode::kWithoutSession) {
        environment_.Set("SESSION_MANAGER", QByteArray());
    }
    // Painting on several threads waits forever if there can be no more threads.
    environment_.Set("QT_NO_GUI_THREADPOOL", "1");
    if (mode >= StartMode::kWithoutDisplay) {
        LeaveOutDisplay();
    } else {
        UseDisplay(library_path);
    }
}

// Qt's own plug-ins first, because the bundle's may have ended the previous attempt.
void GuiEnvironment::LeaveOutDisplay() {
    environment_.Set(kPlatforms, "offscreen");
    const QString plugins =
        FindPlatformPlugins({PluginsOfQt(), PluginsOfExecutable()}, "offscreen");
    environment_.Set(kPluginPath, QFile::encodeName(plugins));
    // Qt 6 searches the library paths before kPluginPath.
    QCoreApplication::setLibraryPaths(QStringList(QFileInfo(plugins).path()) +
                                      QCoreApplication::libraryPaths());
}

void GuiEnvironment::UseDisplay(const QString& library_path) {
    const QList<QByteArray> platforms = PlatformsToTry(QProcessEnvironment::systemEnvironment());
    environment_.Set(kPlatforms, platforms.join(';'));
    // OpenGL libraries take long to load, and a progress bar does not need them.
    environment_.Set("QT_XCB_GL_INTEGRATION", "none");
    // Qt 6 asks the portal before the display, and a silent bus would look like a silent display.
    environment_.Set("QT_NO_XDG_DESKTOP_PORTAL", "1");
    const QString plugins = FindPlatformPlugins(
        {library_path, PluginsOfExecutable(), PluginsOfQt()}, platforms.first());
    if (qEnvironmentVariableIsEmpty(kPluginPath) && plugins != library_path + "/platforms") {
        environment_.Set(kPluginPath, QFile::encodeName(plugins));
    }
    EnableHighDpiScaling();
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    fonts_.Start();
}

void GuiEnvironment::Restore() {
    QAccessible::isActive();
    QOpenGLContext::supportsThreadedOpenGL();
    // Qt reads QT_NO_GUI_THREADPOOL here.
    static_cast<void>(QImage(1, 1, QImage::Format_RGB32).convertToFormat(QImage::Format_RGBA64));
    fonts_.Wait();
    environment_.Restore();
}
