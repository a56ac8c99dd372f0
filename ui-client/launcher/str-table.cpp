// The string table.
#include "ui-client/launcher/str-table.h"

#include <QCoreApplication>

namespace {

constexpr int kRows = 526;
constexpr char kContext[] = "global";

const char* stab[kRows];  // the English texts
const char* ktab[kRows];  // the keys

}  // namespace

void StrTable::InitStrTable() {
#define STR_ROW(id, key, text) \
    stab[id] = text;           \
    ktab[id] = key;
#include "ui-client/launcher/str-table-rows.inc"
#undef STR_ROW
}

QString StrTable::LoadStr(int id) {
    QString text = QCoreApplication::translate(kContext, stab[id], nullptr, -1);
    // Most texts have no backslash, and one search is cheaper than two replacements.
    if (text.contains(QLatin1Char('\\'))) {
        text.replace(QLatin1String("\\n"), QLatin1String("\n"), Qt::CaseSensitive);
        text.replace(QLatin1String("\\t"), QLatin1String("\t"), Qt::CaseSensitive);
    }
    return text;
}

int StrTable::LookupStrID(QString key) {
    const QByteArray wanted = key.toLocal8Bit();
    for (int id = 0; id < kRows; ++id) {
        if (qstricmp(wanted.constData(), ktab[id]) == 0) {
            return id;
        }
    }
    return -1;
}
