// Finds the platform plug-ins of Qt.
#include "platform/desktop/platform-plugins.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/desktop/qt-version.h"

namespace {

bool HasPlugin(const QString& plugins, const QByteArray& platform) {
    const QByteArray name = platform.split(':').first();
    if (name != "xcb" && name != "offscreen") {
        return true;
    }
    return QFileInfo(plugins + "/platforms/libq" + name + ".so").isFile();
}

}  // namespace

QString PluginsOfExecutable() {
    return QDir::cleanPath(QFile::symLinkTarget("/proc/self/exe") + "/../../Frameworks/plugins");
}

QString PluginsOfQt() {
    return QtPluginsDirectory();
}

QString FindPlatformPlugins(const QStringList& places, const QByteArray& platform) {
    for (const QString& plugins : places) {
        if (HasPlugin(plugins, platform)) {
            return plugins + "/platforms";
        }
    }
    return QString();
}
