// The window and its signals, the string table, and what the objects promise of themselves.
#include "ui-client/launcher/launcher.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMetaMethod>
#include <QProgressBar>
#include <QPushButton>
#include <QTranslator>
#include <map>
#include <set>

#include "temp_dir.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/processing-progress-dialog.h"
#include "ui-client/launcher/str-table.h"
#include "ui-client/libcommon/OrvaLocale.h"

namespace {

QStringList OwnMethods(const QMetaObject& meta) {
    QStringList methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        methods += meta.method(index).methodSignature();
    }
    return methods;
}

ProcessingProgressDialog* Dialog() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (const auto dialog = qobject_cast<ProcessingProgressDialog*>(widget)) {
            return dialog;
        }
    }
    return nullptr;
}

// Turns one text into another, whatever the id.
class Replacement : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char*, const char*, int) const override {
        return qstrcmp(context, "global") == 0 ? R"(a\nb\tc\xd %1)" : QString();
    }
};

}  // namespace

TEST(MetaObjects, MethodsInTheirOrder) {
    EXPECT_EQ(OwnMethods(Launcher::staticMetaObject),
              QStringList({"sigStart()", "LaunchDone()", "UpdateProgress(int,int)",
                           "SetLabelText(QString)", "ShowMsgBox()"}));
    EXPECT_EQ(OwnMethods(Worker::staticMetaObject),
              QStringList({"sigServiceDone()", "sigShowMsg()", "sigUpdateProgress(int,int)",
                           "sigSetLabelText(QString)", "HandleServicce()"}));
    EXPECT_EQ(OwnMethods(Notify_Adapter::staticMetaObject),
              QStringList({"sigUpdateProgress(int,int)", "sigUpdateDialogText(QString)"}));
    EXPECT_EQ(OwnMethods(HandlerThread::staticMetaObject), QStringList());
}

TEST(Window, LooksAndProgress) {
    Launcher launcher;
    ProcessingProgressDialog* const dialog = Dialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->windowTitle(), "Quillmere Drive");
    EXPECT_EQ(dialog->labelText(), "Quillmere Drive is initializing...");
    EXPECT_EQ(dialog->width(), 400);
    EXPECT_EQ(dialog->windowModality(), Qt::WindowModal);
    EXPECT_FALSE(dialog->windowFlags() & (Qt::WindowCloseButtonHint | Qt::WindowMinMaxButtonsHint));
    EXPECT_EQ(dialog->styleSheet().size(), 77);
    EXPECT_EQ(dialog->findChildren<QPushButton*>().size(), 0);
    // The base class shows itself after that time, when nobody has asked for it.
    EXPECT_GT(dialog->minimumDuration(), 24 * 3600 * 1000);

    const struct {
        int total;
        int steps;
        int value;
    } cases[] = {{3, 1, 33},
                 {3, 2, 66},
                 {1000, 669, 66},
                 {100000000, 99999999, 99},
                 {100000000, 100000000, 100}};
    QMetaObject::invokeMethod(&launcher, "ShowMsgBox", Qt::DirectConnection);
    for (const auto& step : cases) {
        // From another thread, as the extractor reports.
        std::unique_ptr<QThread> other(QThread::create(
            [&] { Notify_Adapter::GetInstance()->UpdateProgress(step.total, step.steps); }));
        other->start();
        other->wait();
        QCoreApplication::processEvents();
        EXPECT_EQ(dialog->value(), step.value);
    }
    EXPECT_TRUE(dialog->isVisible()) << "the full bar neither hides nor resets the window";
    Notify_Adapter::GetInstance()->UpdateDialogText("ready");
    EXPECT_EQ(dialog->labelText(), "ready");
}

TEST(StringTable, HoldsItsFigures) {
    QFile source(STRING_TABLE);
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    int rows = 0;
    std::map<QString, int> texts;
    std::map<QString, int> marks;
    std::set<QString> keys;
    for (const QString& line : QString::fromUtf8(source.readAll()).split('\n')) {
        if (!line.startsWith("STR_ROW(")) {
            continue;
        }
        const QString key = line.section('"', 1, 1);
        const int id = line.mid(8).section(',', 0, 0).toInt();
        EXPECT_EQ(id, rows++);
        EXPECT_EQ(StrTable::LookupStrID(key.toUpper()), id);
        const QString text = StrTable::LoadStr(id);
        EXPECT_FALSE(text.isEmpty());
        EXPECT_EQ(text, text.trimmed());
        EXPECT_LE(text.size(), 230);
        EXPECT_LE(text.count("%1"), 1);
        EXPECT_EQ(text.contains(QChar(0x200B)), id == 307);
        EXPECT_LE(key.size(), 42);
        keys.insert(key.toLower());
        ++texts[text];
        for (const char* const mark :
             {"%1", "[ProductName]", "[DlgTitleFont]", R"({\VerdanaBold13})", R"({\DlgFont8})"}) {
            marks[mark] += text.contains(mark);
        }
    }
    EXPECT_EQ(rows, 526);
    EXPECT_EQ(keys.size(), 526u);
    EXPECT_EQ(texts.size(), 476u);
    EXPECT_EQ(texts["[ProductName] Setup"], 14);
    EXPECT_EQ(texts["Click the Finish button to exit the Setup Wizard."], 4);
    EXPECT_EQ(marks["%1"], 23);
    EXPECT_EQ(marks["[ProductName]"], 36);
    EXPECT_EQ(marks["[DlgTitleFont]"], 10);
    EXPECT_EQ(marks[R"({\VerdanaBold13})"] + marks[R"({\DlgFont8})"], 7);
}

TEST(StringTable, LookUpsAndEscapes) {
    const std::pair<const char*, int> keys[] = {{"app_name", 365},
                                                {"APP_NAME", 365},
                                                {"nsis_not_admin_confirm", 93},
                                                {"manage_setting_no_change", 525},
                                                {"", -1},
                                                {"app_name ", -1}};
    for (const auto& key : keys) {
        EXPECT_EQ(StrTable::LookupStrID(key.first), key.second) << key.first;
    }
    Replacement translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(0), "a\nb\tc\\xd %1");
}

TEST(Languages, CodesAndIds) {
    const QStringList codes = OrvaLocale::getSupportedLanguages();
    EXPECT_EQ(codes.size(), 20);
    EXPECT_EQ(codes[17], "ptg");
    EXPECT_EQ(OrvaLocale::getLanguageAbbrByID(0), "enu");
    EXPECT_EQ(OrvaLocale::getLanguageAbbrByID(19), "csy");
    for (const int none : {-1, 20, 21}) {
        EXPECT_EQ(OrvaLocale::getLanguageAbbrByID(none), "");
    }
    // This program has no translations.
    EXPECT_FALSE(OrvaLocale::isLanguageInstalled("deu"));
    qputenv("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(OrvaLocale::getDefaultLanguage(), OrvaLocale::getStrLanguageFallSafe());
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
