// Reads packages, made by any tool.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tools/qpk/entry.h"

struct PackageFacts {
    std::string format;                // libarchive's name, such as "POSIX pax interchange format"
    std::vector<std::string> filters;  // likewise, the outermost first
    bool has_checksum = false;         // damage to a file's content is detected
    std::int64_t entries = 0;
    std::int64_t packed = 0;    // bytes
    std::int64_t unpacked = 0;  // bytes, of all files
    bool info_is_last = false;
    std::optional<std::string> info;  // the content of INFO, or its beginning if it is large
    std::string damage;               // why reading stopped before the end, or ""
};

// Reads a package to its end or to the first damage and calls `visit` for each entry. Throws Error
// if the file cannot be opened or is not an archive. Exceptions from `visit` pass through.
PackageFacts ReadPackage(const std::string& path, const std::function<void(const Entry&)>& visit);
