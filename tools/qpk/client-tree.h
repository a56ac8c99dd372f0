// A client's directory.
#pragma once

#include <string>

#include "tools/qpk/entry.h"

// All that is below `directory`, in path order, links not followed. Of the permission bits only
// the executable ones are kept, so that a package does not depend on its developer's umask: files
// have 0644 or 0755, directories 0755, since a copy must be removable again. Set-id bits of files
// are kept for the rules to see. Throws Error if something cannot be read.
Entries ReadClientTree(const std::string& directory);
