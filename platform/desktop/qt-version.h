// What differs between Qt 5 and Qt 6.
#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QProcess>
#include <functional>

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

// A process with an action between fork and exec.
class ChildProcess : public QProcess {
  public:
    explicit ChildProcess(std::function<void()> in_child) : in_child_(std::move(in_child)) {}

  protected:
    void setupChildProcess() override { in_child_(); }

  private:
    std::function<void()> in_child_;
};

#else

class ChildProcess : public QProcess {
  public:
    explicit ChildProcess(const std::function<void()>& in_child) {
        setChildProcessModifier(in_child);
    }
};

inline QString QtPluginsDirectory() {
    return QLibraryInfo::path(QLibraryInfo::PluginsPath);
}

// Qt 6 always uses UTF-8, always scales, and has no such fallback.
inline void UseUtf8Codec() {}
inline void EnableHighDpiScaling() {}
template <class Application>
void DisableFallbackSessionManagement() {}

#endif
