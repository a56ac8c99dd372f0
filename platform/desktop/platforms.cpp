// Selects Qt's platforms.
#include "platform/desktop/platforms.h"

#include <algorithm>

namespace {

bool IsX11(const QByteArray& platform) {
    return platform.startsWith("xcb");
}

QList<QByteArray> UsersPlatforms(const QProcessEnvironment& environment) {
    const QString wanted = environment.value("QT_QPA_PLATFORM");
    if (!wanted.isEmpty()) {
        return wanted.toLocal8Bit().split(';');
    }
    return environment.value("WAYLAND_DISPLAY").isEmpty() ? QList<QByteArray>{"xcb"}
                                                          : QList<QByteArray>{"xcb", "wayland"};
}

}  // namespace

QList<QByteArray> PlatformsToTry(const QProcessEnvironment& environment) {
    QList<QByteArray> platforms = UsersPlatforms(environment);
    if (platforms.first().startsWith("wayland") && !platforms.contains("xcb")) {
        platforms += "xcb";
    }
    if (environment.value("DISPLAY").isEmpty()) {
        platforms.erase(std::remove_if(platforms.begin(), platforms.end(), IsX11), platforms.end());
    }
    if (!platforms.contains("offscreen")) {
        platforms += "offscreen";
    }
    return platforms;
}
