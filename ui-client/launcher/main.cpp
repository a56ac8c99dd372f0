// Start and end of the process.
#include <QDir>
#include <QStringList>
#include <QTranslator>
#include <clocale>
#include <csignal>
#include <cstdio>

#include "log.h"
#include "platform/desktop/gui-environment.h"
#include "platform/desktop/qtsingleapplication.h"
#include "platform/desktop/utf8-names.h"
#include "ui-client/launcher/launcher.h"
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

}  // namespace

int main(int argc, char** argv) {
    const char* const program = argv[0];
    setlocale(LC_ALL, "");
    // Whoever reads this program's standard output may go; the work goes on.
    std::signal(SIGPIPE, SIG_IGN);
    // A write beyond the limit of a file's size fails with EFBIG, and the old copy is put back.
    std::signal(SIGXFSZ, SIG_IGN);
    qInitResources_texts();
    UseUtf8FileNames();
    GuiEnvironment environment(SetLibraryPath(program));
    QtSingleApplication application(argc, argv, true);
    environment.Restore();
    UseUtf8FileNames();
    SetUpLog();
    if (application.isRunning()) {
        Logger::LogMsg(LOG_LINE(DEBUG, "app has already launched, return\n"));
        return 0;
    }
    QTranslator translator(nullptr);
    const QString resource = ":/" + OrvaLocale::getDefaultLanguage() + ".qm";
    SetUpLanguage(translator, resource);
    StrTable::InitStrTable();
    Launcher* const launcher = new Launcher;
    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();
    delete launcher;
    return result;
}
