// Which of Qt's platforms a start tries.
#pragma once

#include <QByteArray>
#include <QList>
#include <QProcessEnvironment>

// Returns the platforms for $QT_QPA_PLATFORM, in the order to try. The list ends with "offscreen",
// which needs no display. `environment` is the user's: $QT_QPA_PLATFORM, if set, replaces the
// default list; X11 needs $DISPLAY; Wayland needs $WAYLAND_DISPLAY, and X11 follows it, because a
// bundle may not have a plug-in for Wayland. Any thread.
QList<QByteArray> PlatformsToTry(const QProcessEnvironment& environment);
