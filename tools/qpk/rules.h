// Rules for clients that the launcher can install and remove.
#pragma once

#include "tools/qpk/entry.h"
#include "tools/qpk/message.h"

// Checks all entries of a client. Result: its faults, in the order of the entries; empty for a
// client that can be installed and removed.
Findings FaultsOf(const Entries& entries);
