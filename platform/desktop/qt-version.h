// What differs between Qt 5 and Qt 6.
#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QTextCodec>

inline QString QtPluginsDirectory() {
    return QLibraryInfo::location(QLibraryInfo::PluginsPath);
}

inline void UseUtf8Codec() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

inline void EnableHighDpiScaling() {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
}

// A template, because some programs do not link QtGui.
template <class Application>
void DisableFallbackSessionManagement() {
    Application::setFallbackSessionManagementEnabled(false);
}

#else

inline QString QtPluginsDirectory() {
    return QLibraryInfo::path(QLibraryInfo::PluginsPath);
}

// Qt 6 always uses UTF-8, always scales, and has no such fallback.
inline void UseUtf8Codec() {}
inline void EnableHighDpiScaling() {}
template <class Application>
void DisableFallbackSessionManagement() {}

#endif
