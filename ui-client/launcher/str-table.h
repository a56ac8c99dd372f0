// The catalogue of the product's user-visible texts.
#pragma once

#include <QString>

// Each text has an id, its position from 0 to 525, and a key, a symbolic name. The English wording
// is both the default text and the source under which a translation is found.
namespace StrTable {

// The ids that the launcher shows.
constexpr int kEnvironmentReady = 83;       // desc_qlm_env_preparation_done
constexpr int kEnvironmentPreparing = 341;  // desc_qlm_env_preparing
constexpr int kAppName = 365;               // app_name

// Fills the table. Main thread, before any other thread exists; a second call changes nothing.
void InitStrTable();

// The text of row `id`, which must be from 0 to 525, in the language of the installed translator,
// or in English; the two characters backslash and n, or t, in it become a newline, or a tab. Marks
// such as %1 come back as they are. Any thread after InitStrTable.
QString LoadStr(int id);

// The id of the row with this key, ignoring case; -1 if there is none. Any thread after
// InitStrTable.
int LookupStrID(QString key);

}  // namespace StrTable
