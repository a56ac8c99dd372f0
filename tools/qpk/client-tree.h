// A client's directory.
#pragma once

#include <string>

#include "tools/qpk/entry.h"

// Returns everything below `directory` in path order, without following links. Permissions become
// 0644 or 0755 for files and 0755 for directories: a package does not depend on a umask, and its
// copy can be removed. Set-id bits of files stay, for the rules. Throws Error if something cannot
// be read.
Entries ReadClientTree(const std::string& directory);

// Whether `path` is `directory` or in it, with all links resolved. Neither needs to exist.
bool IsInside(const std::string& path, const std::string& directory);
