// The peers of a start of the launcher:
//
//     bench-window bare                         only an application object
//     bench-window same ICON INFO COPY CLIENT   also shows the window, reads both versions and
//                                               starts the client
#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QProcess>
#include <QProgressDialog>
#include <QSettings>

namespace {

void BuildWindow(QProgressDialog& window, const QString& icon) {
    window.setWindowTitle("Quillmere Drive");
    window.setWindowIcon(QIcon(icon));
    window.setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    window.setRange(0, 100);
    window.setLabelText("Quillmere Drive is initializing...");
    window.setFont(QFont("Arial"));
    window.setFixedWidth(400);
    window.setWindowModality(Qt::WindowModal);
    window.setStyleSheet(
        " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ");
    window.setCancelButton(nullptr);
}

int BuildNumber(const QString& info) {
    return QSettings(info, QSettings::IniFormat).value("Version/build_version").toInt();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 6) {
        return 0;
    }
    QProgressDialog window;
    BuildWindow(window, arguments[2]);
    if (BuildNumber(arguments[3]) > BuildNumber(arguments[4])) {
        return 1;
    }
    return QProcess::startDetached(arguments[5], {}) ? 0 : 1;
}
