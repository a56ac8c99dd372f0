// Selects one of the product's languages.
#include "ui-client/libcommon/OrvaLocale.h"

#include <QFile>
#include <QLocale>
#include <QMap>
#include <QtDebug>

namespace {

constexpr char kFile[] = "../libcommon/OrvaLocale";

const char* const grgszLanguages[] = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra",
                                      "ita", "esn", "ptb", "rus", "dan", "nor", "sve",
                                      "nld", "plk", "hun", "ptg", "trk", "csy", nullptr};
constexpr int kLanguages = sizeof grgszLanguages / sizeof *grgszLanguages - 1;

const QString qstrLanguageFallSafe("enu");

// Whether `name` is in a list that ends with a null string.
bool IsOneOf(const QString& name, const QString* list) {
    for (; !list->isNull(); ++list) {
        if (name == *list) {
            return true;
        }
    }
    return false;
}

}  // namespace

QString OrvaLocale::getDefaultLanguage() {
    return getLanguageOf(QLocale::system().name());
}

QString OrvaLocale::getLanguageOf(const QString& locale) {
    const QString qstrLocaleLower = locale.toLower();
    qDebug("%s:%d %s=[%s\n] ", kFile, __LINE__, "qPrintable(qstrLocaleLower)",
           qPrintable(qstrLocaleLower));
    QString qstrDef;
    qDebug("%s:%d %s=[%s] ", kFile, __LINE__, "qPrintable(qstrLocaleLower)",
           qPrintable(qstrLocaleLower));

    const QString part = qstrLocaleLower.section('_', 0, 0);
    const QMap<QString, QString> codes{{"en", "enu"}, {"zh", "chs"}, {"ja", "jpn"}, {"de", "deu"},
                                       {"ko", "krn"}, {"fr", "fra"}, {"it", "ita"}, {"es", "esn"},
                                       {"pt", "ptb"}, {"ru", "rus"}, {"da", "dan"}, {"no", "nor"},
                                       {"nb", "nor"}, {"nn", "nor"}, {"sv", "sve"}, {"nl", "nld"},
                                       {"pl", "plk"}, {"hu", "hun"}, {"tr", "trk"}, {"cs", "csy"}};
    const QString traditional_chinese[] = {"zh_tw", "zh_hk", "zh_mo", QString()};
    const QString european_portuguese[] = {"pt", "pt_pt", QString()};
    // Full names have precedence over the language part.
    if (IsOneOf(qstrLocaleLower, traditional_chinese)) {
        qstrDef = "cht";
    }
    if (IsOneOf(qstrLocaleLower, european_portuguese)) {
        qstrDef = "ptg";
    }
    if (qstrDef.isEmpty()) {
        qstrDef = codes.value(part, codes.value("en"));
    }
    if (!isLanguageInstalled(qstrDef)) {
        qstrDef = qstrLanguageFallSafe;
    }
    qDebug("%s:%d %s=[%s] ", kFile, __LINE__, "qPrintable(qstrDef)", qPrintable(qstrDef));
    return qstrDef;
}

bool OrvaLocale::isLanguageInstalled(const QString& code) {
    const QString qstrLangFileName = ":/" + code + ".qm";
    const bool installed = QFile(qstrLangFileName).exists();
    if (installed) {
        qDebug("%s:%d %s=[%s] ", kFile, __LINE__, "qPrintable(qstrLangFileName)",
               qPrintable(qstrLangFileName));
    }
    return installed;
}

QStringList OrvaLocale::getSupportedLanguages() {
    QStringList languages;
    for (int id = 0; id < kLanguages; ++id) {
        languages.append(grgszLanguages[id]);
    }
    return languages;
}

QString OrvaLocale::getStrLanguageFallSafe() {
    return qstrLanguageFallSafe;
}

QString OrvaLocale::getLanguageAbbrByID(int id) {
    if (id < 0 || id > kLanguages) {
        return "";
    }
    return QString(grgszLanguages[id]);
}
