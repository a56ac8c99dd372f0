// The choice among the product's languages.
#pragma once

#include <QString>
#include <QStringList>

// A language code is three lower-case letters of the product's own vocabulary, and the base name of
// the translation resource ":/<code>.qm". Each has an id, from 0 ("enu") to 19 ("csy"). The
// operations share nothing writable; any thread.
namespace OrvaLocale {

// The code to use on this system, by the system's locale and the translations that are there; "enu"
// for want of another. Reads the locale anew at each call and writes its way to qDebug.
QString getDefaultLanguage();

// The same for a locale by its name, such as "pt_BR".
QString getLanguageOf(const QString& locale);

// Whether the translation of this code is there.
bool isLanguageInstalled(const QString& code);

// The 20 codes in the order of their ids.
QStringList getSupportedLanguages();

// The code that is used when a translation is missing: "enu".
QString getStrLanguageFallSafe();

// The code of a language id; empty for a number that is none.
QString getLanguageAbbrByID(int id);

}  // namespace OrvaLocale
