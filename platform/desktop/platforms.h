// Selects Qt's platforms.
#pragma once

#include <QByteArray>
#include <QList>
#include <QProcessEnvironment>

// Returns the platforms to try, in this order, for $QT_QPA_PLATFORM. The last one is "offscreen",
// which needs no display. In the user's `environment`, $QT_QPA_PLATFORM replaces the default list,
// which is X11, then Wayland with $WAYLAND_DISPLAY. X11 is left out without $DISPLAY, and added
// after Wayland, because a bundle may not have a plug-in for Wayland. Any thread.
QList<QByteArray> PlatformsToTry(const QProcessEnvironment& environment);
