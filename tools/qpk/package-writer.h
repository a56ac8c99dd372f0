// Writes packages.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tools/qpk/version-info.h"

struct PackageOptions {
    std::string client;   // the directory that becomes the per-user copy
    std::string package;  // the file to write
    // The content of INFO; if not set, that of the client's directory.
    std::optional<VersionInfo> version;
    int level = 9;          // of zstd
    std::int64_t time = 0;  // of all entries, 0 to LatestTime()
};

// The latest time that an entry can have on this system, in seconds since the epoch.
std::int64_t LatestTime();

// Packs a client into a pax tar compressed by zstd. The entries are in path order, except that INFO
// is last: an incomplete copy has no version, and the next start replaces it. The same input gives
// the same bytes. The file is replaced atomically. Result: the content of INFO. Throws Error, with
// all faults of the client before anything is written; also if the file would be in the client.
std::string WritePackage(const PackageOptions& options);
