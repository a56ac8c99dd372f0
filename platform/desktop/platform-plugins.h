// Finds the platform plug-ins of Qt.
#pragma once

#include <QByteArray>
#include <QStringList>

// The plug-in directories of the executable's bundle (proc(5)) and of Qt. They do not depend on
// argv[0].
QString PluginsOfExecutable();
QString PluginsOfQt();

// Returns the directory of platform plug-ins, for $QT_QPA_PLATFORM_PLUGIN_PATH, in the first of
// `places` that has the plug-in of `platform`; an empty text if none has it. Platforms whose files
// have other names count as found. Any thread.
QString FindPlatformPlugins(const QStringList& places, const QByteArray& platform);
