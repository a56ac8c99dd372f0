// Would a package install, and could it be removed again?
#pragma once

#include <string>

#include "tools/qpk/entry.h"
#include "tools/qpk/message.h"

// Looks at the package's entries, and installs and removes it below a temporary directory with the
// launcher's own code. `bundle` is the bundle that will carry the package, "" for none. Result: all
// that is wrong; empty for a package that does what it should. Throws as ReadPackage does.
Findings CheckPackage(const std::string& package, const std::string& bundle);
