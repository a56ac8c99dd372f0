// A plug-in that Qt loads for QT_QPA_GENERIC_PLUGINS=spy. It writes what the progress window does to
// standard error. "spy:exit" ends the process, as Qt does if the display disappears during the
// construction of the application object.
#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QIcon>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <cstdio>

namespace {

void Report(const QString& line) { std::fprintf(stderr, "window: %s\n", line.toUtf8().constData()); }

// Overwrites label and bar after each report, so that setting the same value again is a change.
void OnShow(const QProgressDialog& dialog) {
    const auto label = dialog.findChild<QLabel*>();
    const auto bar = dialog.findChild<QProgressBar*>();
    Report(dialog.windowTitle() + ", " + label->text());
    Report(QString("%1 pixels on %2, modal: %6, buttons: %7, closable: %8, icon of %3, %4 on %5")
               .arg(qRound(dialog.width() * dialog.devicePixelRatioF() / 10) * 10)
               .arg(QGuiApplication::platformName())
               .arg(dialog.windowIcon().actualSize({500, 500}).width())
               .arg(label->palette().windowText().color().name())
               .arg(bar->palette().base().color().name())
               .arg(dialog.isModal())
               .arg(dialog.findChildren<QAbstractButton*>().size())
               .arg(dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint)));
    label->setText("overwritten");
    QObject::connect(bar, &QProgressBar::valueChanged, [label, bar](int value) {
        Report(QString("%1, %2").arg(value).arg(label->text()));
        const QSignalBlocker blocker(bar);
        bar->setValue(value % 100);
    });
}

class Plugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "spy.json")

    QObject* create(const QString&, const QString& what) override {
        if (what == "exit" && QGuiApplication::platformName() == "xcb") { std::exit(1); }
        qApp->installEventFilter(this);
        return new QObject;
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto dialog = qobject_cast<QProgressDialog*>(object);
        if (dialog != nullptr && event->type() == QEvent::Show) {
            OnShow(*dialog);
        } else if (dialog != nullptr && event->type() == QEvent::Hide) {
            Report("hidden, " + dialog->labelText());
        }
        return false;
    }
};

}  // namespace

#include "spy.moc"
