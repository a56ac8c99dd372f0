// Reading of packages, made by any tool.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tools/qpk/entry.h"

struct PackageFacts {
    std::string format;                // libarchive's name, such as "POSIX pax interchange format"
    std::vector<std::string> filters;  // likewise, the outermost first; none is an empty list
    bool has_checksum = false;         // damage of a file's content is noticed
    std::int64_t entries = 0;
    std::int64_t packed = 0;    // bytes
    std::int64_t unpacked = 0;  // bytes, of all files
    bool info_is_last = false;
    std::optional<std::string> info;  // the content of INFO, of a large one the beginning
    std::string damage;               // why reading ended before the end, else ""
};

// Reads a package to its end, or to the first damage, and hands each entry to `visit`. Throws Error
// if the file cannot be opened or is not an archive, and passes on what `visit` throws.
PackageFacts ReadPackage(const std::string& path, const std::function<void(const Entry&)>& visit);
