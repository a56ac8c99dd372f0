// The program.
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFont>
#include <QStringList>
#include <QStyle>
#include <QStyleFactory>
#include <QTranslator>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "install-layout.h"
#include "log.h"
#include "platform/desktop/gui-environment.h"
#include "platform/desktop/qt-version.h"
#include "platform/desktop/qtsingleapplication.h"
#include "platform/files/file-lock.h"
#include "platform/process/process-setup.h"
#include "platform/process/supervisor.h"
#include "platform/process/utf8-names.h"
#include "ui-client/launcher/launcher.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/launcher/processing-progress-dialog.h"
#include "ui-client/launcher/qt-text.h"
#include "ui-client/launcher/quillmere-service.h"
#include "ui-client/launcher/str-table.h"
#include "ui-client/libcommon/OrvaLocale.h"

int qInitResources_texts();

#define LOG_TAG "main"

namespace {

constexpr int kRotations = 50;
const ustring kLogComponent("launcher_debug");

// What is special about an attempt, by its StartMode.
constexpr const char* kDifferences[] = {
    "leaves out nothing", "leaves out the session's bus and manager", "has no display",
    "has no display and puts the old copy back if the new one is incomplete",
    "puts the old copy back if the new one is incomplete, and does not try an upgrade"};

// Makes Qt load plug-ins from the bundle only. Result: their directory.
QString SetLibraryPath(const char* program) {
    QString path = QDir::cleanPath(QString::fromUtf8(program) + "/../../Frameworks/plugins");
    QCoreApplication::setLibraryPaths(QStringList(path));
    std::printf("lib path = '%s'\n", path.toUtf8().constData());
    std::fflush(stdout);
    return path;
}

// The level file belongs to the bundle, the log to the user.
void SetUpLog() {
    const ustring user_directory = Service::GetUserQuillmereInstallPath() + "/";
    if (QDir(QString()).mkpath(ToQString(user_directory + layout::kLogDirectory))) {
        Logger::Initialize(Logger::TYPE_FILE, user_directory + layout::kLogFile,
                           Service::GetRootQuillmereInstallPath() + "/" + layout::kLevelFile,
                           kRotations);
    }
}

void SetUpLanguage(QTranslator& translator, const QString& resource) {
    if (translator.load(resource, QString(), QString(), QString()) && !translator.isEmpty()) {
        QCoreApplication::installTranslator(&translator);
    }
}

// Neither closing the window nor the end of the session ends the run. The event loop keeps a
// session manager waiting; Launcher's quit() ends all event loops.
void StayUntilTheRunIsOver(const QApplication& application) {
    QApplication::setQuitOnLastWindowClosed(false);
    DisableFallbackSessionManagement<QApplication>();
    QObject::connect(&application, &QApplication::commitDataRequest, [] { QEventLoop().exec(); });
}

// The window's background is always light, so its text must be dark, also in a dark session.
void UseLightColours() {
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
    QApplication::setPalette(fusion->standardPalette());
}

// Without this, Qt first looks for the session's font, which takes as long as the rest of the
// window.
void UseFontOfWindow() {
    QFont font = QApplication::font();
    font.setFamily(kWindowFontFamily);
    QApplication::setFont(font);
}

// Logs how the previous attempt ended, if there was one.
void LogCause(const Attempt& attempt) {
    if (!attempt.cause.empty()) {
        Logger::LogMsg(LOG_LINE(WARNING, "the previous attempt %s; this one %s\n"),
                       attempt.cause.c_str(), kDifferences[static_cast<int>(attempt.mode)]);
    }
}

std::string Program() {
    return QCoreApplication::applicationFilePath().toStdString();
}

// All bundles share the lock on the user's directory.
std::string InstallLockPath() {
    return (Service::GetUserQuillmereInstallPath() + "/" + layout::kLock).c_str();
}

// Takes the lock if it is free. Also detects an instance of this bundle that could not take the
// lock of the application object.
bool IsHeldByThisBundle(FileLock& lock) {
    return lock.Take() == FileLock::Result::kHeld && lock.HoldersNote() == Program();
}

void WaitForOtherBundle(FileLock& lock) {
    if (lock.Take() == FileLock::Result::kHeld) {
        Logger::LogMsg(LOG_LINE(INFO, "waiting for '%s'\n"), lock.HoldersNote().c_str());
        lock.Wait();
    }
}

int EndAsSecondInstance() {
    Logger::LogMsg(LOG_LINE(DEBUG, "app has already launched, return\n"));
    return EXIT_SUCCESS;
}

// The run. Result: that of the event loop.
int Run(const Attempt& attempt, FileLock& lock) {
    QTranslator translator(nullptr);
    const QString resource = ":/" + OrvaLocale::getDefaultLanguage() + ".qm";
    SetUpLanguage(translator, resource);
    StrTable::InitStrTable();
    UseLightColours();
    UseFontOfWindow();
    Launcher launcher;
    ReportStage(Stage::kReady);
    WaitForOtherBundle(lock);
    if (attempt.mode >= StartMode::kAfterRepair) {
        Service::Repair(attempt);
    }
    launcher.Run();
    launcher.Start();
    return QApplication::exec();
}

int RunWithWindow(const Attempt& attempt, int argc, char** argv, const QString& library_path) {
    GuiEnvironment environment(attempt.mode, library_path);
    qAddPreRoutine([] { ReportStage(Stage::kConnected); });
    QtSingleApplication application(argc, argv, true);
    environment.Restore();
    UseUtf8FileNames();
    SetUpLog();
    LogCause(attempt);
    FileLock lock(InstallLockPath(), Program());
    if (application.isRunning() || IsHeldByThisBundle(lock)) {
        return EndAsSecondInstance();
    }
    StayUntilTheRunIsOver(application);
    return Run(attempt, lock);
}

// The last attempt needs neither a window nor the package.
int OpenOnly(const Attempt& attempt, int argc, char** argv) {
    ReportStage(Stage::kReady);
    QCoreApplication application(argc, argv);
    UseUtf8FileNames();
    SetUpLog();
    LogCause(attempt);
    FileLock lock(InstallLockPath(), Program());
    if (!IsHeldByThisBundle(lock)) {
        WaitForOtherBundle(lock);
        Service::Repair(attempt);
        MacService().PostUpgrade();
    }
    ReportStage(Stage::kOpened);
    return EXIT_SUCCESS;
}

int Launch(const Attempt& attempt, int argc, char** argv) {
    setlocale(LC_ALL, "");
    qInitResources_texts();
    UseUtf8FileNames();
    const QString library_path = SetLibraryPath(argv[0]);
    if (attempt.mode >= StartMode::kWithoutDisplay) {
        argc = 1;  // an argument may select a platform
    }
    return attempt.mode == StartMode::kOpenOnly ? OpenOnly(attempt, argc, argv)
                                                : RunWithWindow(attempt, argc, argv, library_path);
}

}  // namespace

int main(int argc, char** argv) {
    PrepareProcess();
    return Supervise(Launch, argc, argv);
}
