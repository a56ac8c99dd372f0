// Where Qt finds its platform plug-ins.
#pragma once

#include <QByteArray>
#include <QStringList>

// The two places of plug-ins that do not depend on how the launcher was called: the bundle of the
// executable (proc(5)), and Qt's own.
QString PluginsOfExecutable();
QString PluginsOfQt();

// Returns the directory of platform plug-ins, for $QT_QPA_PLATFORM_PLUGIN_PATH, below the first of
// `places` that has the plug-in of `platform`; an empty text if none has. Platforms of others,
// whose files are not named after them, count as found. Any thread.
QString FindPlatformPlugins(const QStringList& places, const QByteArray& platform);
