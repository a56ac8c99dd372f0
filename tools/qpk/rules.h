// What the launcher could not install, or could not remove again.
#pragma once

#include "tools/qpk/entry.h"
#include "tools/qpk/message.h"

// Looks at all entries of a client. Result: its faults, in the order of the entries; empty for a
// client that installs anywhere and can be replaced.
Findings FaultsOf(const Entries& entries);
