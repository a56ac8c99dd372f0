// A client's directory.
#pragma once

#include <string>

#include "tools/qpk/entry.h"

// All that lies below `directory`, in path order, links not followed. Of the permission bits only
// the executable ones are kept, so that a package does not hang on its maker's umask: files have
// 0644 or 0755, directories 0755, since a copy must be removable again. Set-id bits of files are
// kept for the rules to see. Throws Failure.
Entries ReadClientTree(const std::string& directory);
