// The texts that users see.
#pragma once

#include <QString>

// Each text has an id from 0 to 525, a key, and an English wording, which is also the source text
// of its translations.
namespace StrTable {

// The ids that the launcher shows.
constexpr int kEnvironmentReady = 83;       // desc_qlm_env_preparation_done
constexpr int kEnvironmentPreparing = 341;  // desc_qlm_env_preparing
constexpr int kAppName = 365;               // app_name

// Fills the table. Main thread, before other threads exist. A second call changes nothing.
void InitStrTable();

// Returns the text with this id, from 0 to 525, translated by the installed translator. Replaces
// "\n" by a newline and "\t" by a tab, and keeps placeholders such as %1. Any thread after
// InitStrTable.
QString LoadStr(int id);

// Returns the id of a key, ignoring case, or -1. Any thread after InitStrTable.
int LookupStrID(QString key);

}  // namespace StrTable
