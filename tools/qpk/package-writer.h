// Writing of packages.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tools/qpk/version-info.h"

struct PackageOptions {
    std::string client;   // the directory that will be the private copy
    std::string package;  // the file to be written
    // INFO of the package, in place of one that the client's directory has; that one if not set.
    std::optional<VersionInfo> version;
    int level = 9;          // of zstd
    std::int64_t time = 0;  // of all entries, 0 to LatestTime()
};

// The highest time that an entry can have on this system, in seconds since the epoch.
std::int64_t LatestTime();

// Packs a client into a pax tar compressed by zstd. The entries are in path order, but INFO is the
// last: a copy that was cut short has no version and is replaced at the next start.
// The same input gives the same bytes. Result: the content of INFO. Throws Error, with all
// faults of the client before anything is written; the file appears under its name when it is
// whole.
std::string WritePackage(const PackageOptions& options);
