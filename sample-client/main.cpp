// A small example of a client: a window with its version, a pid file, a clean exit.
//
//     quillmere-ui [--ignore-sigterm]
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLockFile>
#include <QSaveFile>
#include <QSettings>
#include <QSocketNotifier>
#include <QVBoxLayout>
#include <QWidget>
#include <cstdio>

#include "install-layout.h"
#include "platform/desktop/gui-environment.h"
#include "platform/desktop/platform-plugins.h"

namespace {

int signal_pipe[2];

// A signal handler may only write (signal-safety(7)); the event loop does the rest.
void OnTerminate(int) {
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(signal_pipe[1], &byte, 1);
}

void QuitOnSigterm(QApplication& application) {
    if (pipe2(signal_pipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    const auto notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, &QApplication::quit);
    signal(SIGTERM, OnTerminate);
}

QString UserDirectory() {
    return QDir::homePath() + "/" + layout::kUserDirectory;
}

// Exists while the client runs. QSaveFile writes it atomically.
class PidFile {
  public:
    PidFile() : path_(UserDirectory() + "/" + layout::kPidFile) {
        QSaveFile file(path_);
        const QByteArray line = "pid=" + QByteArray::number(getpid()) + "\n";
        if (!file.open(QIODevice::WriteOnly) || file.write(line) != line.size() || !file.commit()) {
            std::fprintf(stderr, "quillmere-ui: no pid file: %s\n", qPrintable(file.errorString()));
        }
    }
    ~PidFile() { QFile::remove(path_); }
    PidFile(const PidFile&) = delete;
    PidFile& operator=(const PidFile&) = delete;

  private:
    QString path_;
};

QString Version() {
    const QString info = QCoreApplication::applicationDirPath() + "/../../" + layout::kInfo;
    QSettings settings(info, QSettings::IniFormat);
    settings.beginGroup("Version");
    return QString("%1.%2 build %3")
        .arg(settings.value("major_version").toString(), settings.value("minor_version").toString(),
             settings.value("build_version").toString());
}

void FillWindow(QWidget& window) {
    const auto name = new QLabel("<h2>Quillmere Drive</h2>", &window);
    const auto version = new QLabel("Version " + Version(), &window);
    const auto state = new QLabel("All your files are up to date.", &window);
    const auto layout = new QVBoxLayout(&window);
    for (QLabel* const label : {name, version, state}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    window.setWindowTitle("Quillmere Drive " + Version());
    window.setFixedSize(360, 160);
}

}  // namespace

int main(int argc, char** argv) {
    GuiEnvironment environment(StartMode::kFull, PluginsOfQt());
    QApplication application(argc, argv);
    environment.Restore();
    QDir().mkpath(UserDirectory());
    QLockFile only_one(UserDirectory() + "/ui.lock");
    only_one.setStaleLockTime(0);
    if (!only_one.tryLock(0)) {
        return 0;
    }
    if (QCoreApplication::arguments().contains("--ignore-sigterm")) {
        signal(SIGTERM, SIG_IGN);
    } else {
        QuitOnSigterm(application);
    }
    const PidFile pid_file;
    QWidget window;
    FillWindow(window);
    window.show();
    return QApplication::exec();
}
