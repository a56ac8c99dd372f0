// Checks that a package can be installed and removed.
#pragma once

#include <string>

#include "tools/qpk/entry.h"
#include "tools/qpk/message.h"

// Checks the package's entries. If they have no fault, installs and removes it in a temporary
// directory with the launcher's own code; an entry with a fault could change other files. `bundle`
// is the bundle of the package, "" for none. Result: the faults; empty for a good package. Throws
// as ReadPackage does.
Findings CheckPackage(const std::string& package, const std::string& bundle);
