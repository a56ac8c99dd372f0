// Start and end of the process.
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFont>
#include <QSettings>
#include <QStringList>
#include <QStyle>
#include <QStyleFactory>
#include <QTranslator>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <memory>
#include <string>

#include "log.h"
#include "platform/desktop/gui-environment.h"
#include "platform/desktop/process-start.h"
#include "platform/desktop/qtsingleapplication.h"
#include "platform/desktop/run-guard.h"
#include "platform/desktop/utf8-names.h"
#include "platform/files/file-lock.h"
#include "ui-client/launcher/launcher.h"
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

// The bundle's plug-ins replace Qt's own search. Result: the path that was set.
QString SetLibraryPath(const char* program) {
    QString path = QDir::cleanPath(QString::fromUtf8(program) + "/../../Frameworks/plugins");
    QCoreApplication::setLibraryPaths(QStringList(path));
    std::printf("lib path = '%s'\n", path.toUtf8().constData());
    return path;
}

// One level file for the bundle and all who run it, one log for each user.
void SetUpLog() {
    const ustring level_file = Service::GetRootQuillmereInstallPath() + "/log/launcher.debug";
    const ustring directory = Service::GetUserQuillmereInstallPath() + "/log";
    if (QDir(QString()).mkpath(ToQString(directory))) {
        Logger::Initialize(Logger::TYPE_FILE, directory + "/launcher.log", level_file, kRotations);
    }
}

void SetUpLanguage(QTranslator& translator, const QString& resource) {
    translator.load(resource, QString(), QString(), QString());
    if (!translator.isEmpty()) {
        QCoreApplication::installTranslator(&translator);
    }
}

// Neither a window that is closed nor the end of the session ends the run. A session manager waits
// for its clients one by one, and Launcher's last quit() ends all event loops.
void StayUntilTheRunIsOver(const QApplication& application) {
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setFallbackSessionManagementEnabled(false);
    QObject::connect(&application, &QApplication::commitDataRequest, [] { QEventLoop().exec(); });
}

// The window's ground is always light, so its text must be dark in a dark session too.
void UseLightColours() {
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
    QApplication::setPalette(fusion->standardPalette());
}

// The window's font is known to Qt before the window is: looking for the session's font first, to
// no use, takes as long as all the rest of the window but for the list of fonts.
void UseFontOfWindow() {
    QFont font = QApplication::font();
    font.setFamily(kWindowFontFamily);
    QApplication::setFont(font);
}

// An instance is known by its bundle; this lock is one for all bundles, in the directory that they
// would change. It also finds the instance that had to do without the application object's lock.
// Result: false when the same bundle is at work there. Waits for another one.
bool EnterInstallDirectory(FileLock& lock, const std::string& program) {
    if (lock.Take() != FileLock::Result::kHeld) {
        return true;
    }
    const std::string holder = lock.HoldersNote();
    if (holder == program) {
        return false;
    }
    Logger::LogMsg(LOG_LINE(INFO, "waiting for '%s'\n"), holder.c_str());
    lock.Wait();
    return true;
}

// The run, from the first string to the client. Result: that of the event loop.
int Run(GuiEnvironment& environment) {
    QTranslator translator(nullptr);
    const QString resource = ":/" + OrvaLocale::getDefaultLanguage() + ".qm";
    SetUpLanguage(translator, resource);
    StrTable::InitStrTable();
    UseLightColours();
    UseFontOfWindow();
    Launcher* const launcher = new Launcher;
    launcher->Run();
    if (launcher->HasThread()) {
        // Its objects of static storage duration must be older than the guard, and no other class
        // that the run uses has any.
        const QSettings settings(QString(), QSettings::IniFormat);
        RunGuard::RunBegins();
    } else {
        environment.GiveDisplayUp();
    }
    launcher->Start();
    const int result = QApplication::exec();
    delete launcher;
    return result;
}

}  // namespace

int main(int argc, char** argv) {
    OpenStandardStreams();
    KeepOwnersRights();
    MakeHomeAbsolute();
    setlocale(LC_ALL, "");
    // The terminal that the launcher was started from may be closed in the middle of a run.
    std::signal(SIGHUP, SIG_IGN);
    // Writing to a pipe that nobody reads any more fails with EPIPE, and the run goes on.
    std::signal(SIGPIPE, SIG_IGN);
    // A write beyond the limit of a file's size fails with EFBIG, and the old copy is put back.
    std::signal(SIGXFSZ, SIG_IGN);
    qInitResources_texts();
    UseUtf8FileNames();
    GuiEnvironment environment(SetLibraryPath(argv[0]), argv);
    QtSingleApplication application(argc, argv, true);
    environment.Restore();
    UseUtf8FileNames();
    SetUpLog();
    const std::string program = QCoreApplication::applicationFilePath().toStdString();
    FileLock lock((Service::GetUserQuillmereInstallPath() + "/launcher.lock").c_str(), program);
    if (application.isRunning() || !EnterInstallDirectory(lock, program)) {
        Logger::LogMsg(LOG_LINE(DEBUG, "app has already launched, return\n"));
        return 0;
    }
    StayUntilTheRunIsOver(application);
    return Run(environment);
}
