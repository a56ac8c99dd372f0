// Selects one of the product's languages.
#pragma once

#include <QString>
#include <QStringList>

// A language code has three lower-case letters. The resource ":/<code>.qm" has its translation. Ids
// are from 0 ("enu") to 19 ("csy"). Any thread.
namespace OrvaLocale {

// Returns the code for the system's locale, or "enu" if it has no translation. Reads the locale at
// each call and writes its steps to qDebug.
QString getDefaultLanguage();

// The same for a locale such as "pt_BR".
QString getLanguageOf(const QString& locale);

// Whether a translation exists for this code.
bool isLanguageInstalled(const QString& code);

// Returns the 20 codes in the order of their ids.
QStringList getSupportedLanguages();

// Returns the code for locales without a translation: "enu".
QString getStrLanguageFallSafe();

// Returns the code of a language id, or an empty text.
QString getLanguageAbbrByID(int id);

}  // namespace OrvaLocale
