// The window's signals, the string table, languages and translations.
#include "ui-client/launcher/launcher.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLabel>
#include <QResource>
#include <QTranslator>
#include <cstring>

#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/processing-progress-dialog.h"
#include "ui-client/launcher/str-table.h"
#include "ui-client/libcommon/OrvaLocale.h"

int qInitResources_texts();
int qCleanupResources_texts();

namespace {

struct Row {
    int id;
    const char *key, *text;
};

const Row kRows[] = {
#define STR_ROW(id, key, text) {id, key, text},
#include "ui-client/launcher/str-table-rows.inc"
};

// Translates every text to the same text.
class Replacement : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char*, const char*, int) const override {
        return qstrcmp(context, "global") == 0 ? R"(a\nb\tc\xd %1)" : QString();
    }
};

// What main sets up before Launcher.
class LauncherTest : public testing::Test {
  protected:
    LauncherTest() {
        qInitResources_texts();
        StrTable::InitStrTable();
    }
    const bool offscreen_ = qputenv("QT_QPA_PLATFORM", "offscreen");
    int argc_ = 0;
    QApplication application_{argc_, nullptr};
};

}  // namespace

TEST_F(LauncherTest, ShowsTheProgress) {
    Launcher launcher;
    auto* const dialog = qobject_cast<ProcessingProgressDialog*>(QApplication::topLevelWidgets().value(0));
    ASSERT_NE(dialog, nullptr);
    // The base class shows itself after that time.
    EXPECT_GT(dialog->minimumDuration(), 24 * 3600 * 1000);
    const int kSteps[][3] = {{3, 1, 33}, {3, 2, 66}, {100000000, 99999999, 99}, {7, 7, 100}};
    for (const auto& [total, steps, value] : kSteps) {
        Notify_Adapter::GetInstance()->UpdateProgress(total, steps);
        EXPECT_EQ(dialog->value(), value);
    }
}

TEST_F(LauncherTest, RowsOfTheStringTableKeepTheirPlaces) {
    QCryptographicHash keys(QCryptographicHash::Md5);
    for (int id = 0; id < 526; ++id) {
        const Row& row = kRows[id];
        keys.addData(QByteArray(row.key, static_cast<int>(std::strlen(row.key)) + 1));
        EXPECT_EQ(row.id, id);
        EXPECT_EQ(StrTable::LookupStrID(QString(row.key).toUpper()), id);
        EXPECT_EQ(StrTable::LoadStr(id), QString(row.text).replace("\\n", "\n"));
    }
    EXPECT_EQ(std::size(kRows), 526u);
    EXPECT_EQ(keys.result().toHex().toStdString(), "4d94a9092bfe5911f92d0e429922b665");
    EXPECT_EQ(StrTable::LookupStrID("app_nam"), -1);
    Replacement translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(0), "a\nb\tc\\xd %1");
}

TEST_F(LauncherTest, EachLocaleHasItsLanguage) {
    const char* const kCodes[][2] = {
        {"en_GB", "enu"}, {"zh_TW", "cht"}, {"zh_HK", "cht"}, {"zh_MO", "cht"}, {"zh_SG", "chs"}, {"ja_JP", "jpn"},
        {"de_AT", "deu"}, {"ko_KR", "krn"}, {"fr_CA", "fra"}, {"it_CH", "ita"}, {"es_MX", "esn"}, {"pt_BR", "ptb"},
        {"pt_AO", "ptb"}, {"ru_RU", "rus"}, {"da_DK", "dan"}, {"no_NO", "nor"}, {"nb_NO", "nor"}, {"nn_NO", "nor"},
        {"sv_FI", "sve"}, {"nl_BE", "nld"}, {"pl_PL", "plk"}, {"hu_HU", "hun"}, {"pt_PT", "ptg"}, {"pt", "ptg"},
        {"tr_TR", "trk"}, {"cs_CZ", "csy"}, {"fi_FI", "enu"}, {"C", "enu"},     {"", "enu"},      {"zh", "chs"}};
    for (const auto& [locale, code] : kCodes) { EXPECT_EQ(OrvaLocale::getLanguageOf(locale), code) << locale; }
    EXPECT_EQ(OrvaLocale::getDefaultLanguage(), OrvaLocale::getLanguageOf(QLocale::system().name()));
    qCleanupResources_texts();
    EXPECT_EQ(OrvaLocale::getLanguageOf("de_DE"), "enu");
    qInitResources_texts();
    for (const int none : {-1, 20, 21}) { EXPECT_EQ(OrvaLocale::getLanguageAbbrByID(none), ""); }
}

TEST_F(LauncherTest, EachLanguageHasEachTextAndThoseOfTheWindowFit) {
    ProcessingProgressDialog dialog;
    dialog.show();
    const auto label = dialog.findChild<QLabel*>();
    const QStringList codes = OrvaLocale::getSupportedLanguages();
    EXPECT_EQ(codes.join(' '), "enu cht chs jpn deu krn fra ita esn ptb rus dan nor sve nld plk hun ptg trk csy");
    EXPECT_EQ(QDir(":/").entryList({"*.qm"}).size(), 20);
    for (const QString& code : codes) {
        SCOPED_TRACE(code.toStdString());
        EXPECT_EQ(OrvaLocale::getLanguageAbbrByID(codes.indexOf(code)), code);
        EXPECT_EQ(QResource(":/" + code + ".qm").compressionAlgorithm() == QResource::ZlibCompression,
                  !QString("chs cht jpn krn").contains(code));
        QTranslator translator;
        ASSERT_TRUE(translator.load(":/" + code + ".qm", QString(), QString(), QString()));
        for (const Row& row : kRows) {
            const QString text = translator.translate("global", row.text, nullptr, -1);
            EXPECT_TRUE(code == "enu" ? text == row.text : !text.isEmpty()) << row.id;
            const bool shown = row.id == StrTable::kEnvironmentPreparing || row.id == StrTable::kEnvironmentReady;
            EXPECT_TRUE(!shown || label->fontMetrics().horizontalAdvance(text) <= label->width()) << row.id;
        }
    }
}
