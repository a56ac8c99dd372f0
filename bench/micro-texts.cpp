// The string table, and Qt's translation without it.
#include <QCoreApplication>
#include <QTranslator>

#include "bench/micro.h"
#include "ui-client/launcher/str-table.h"

void RegisterTextRows() {
    static QTranslator translator;
    if (!translator.load(GERMAN_TEXTS)) {
        qFatal("no translation at %s", GERMAN_TEXTS);
    }
    QCoreApplication::installTranslator(&translator);
    StrTable::InitStrTable();
    Row(
        "text", [] { return StrTable::LoadStr(StrTable::kEnvironmentPreparing); },
        [] {
            return QCoreApplication::translate("global", "Quillmere Drive is initializing...",
                                               nullptr, -1);
        });
}
