// Conversions between QString and ustring.
#pragma once

#include <QString>

#include "ustring/ustring.h"

inline ustring ToUstring(const QString& text) {
    return text.toUtf8().constData();
}

inline QString ToQString(const ustring& text) {
    return QString::fromUtf8(text.c_str());
}
