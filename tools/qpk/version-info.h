// The version file INFO of a package and of a bundle.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tools/qpk/message.h"

// The four fields of the group Version. The launcher compares build numbers and only logs the other
// fields.
struct VersionInfo {
    std::string major_version;
    std::string minor_version;
    std::string build_version;
    std::string icon_overlay_version;
};

constexpr std::int64_t kHighestBuild = 2147483647;  // the launcher compares 32-bit numbers

// Returns the file's content. Precondition: IsPlain holds for all four fields.
std::string ToText(const VersionInfo& version);

// Parses a file's content with QSettings, as the launcher does. Missing fields are empty. Throws
// Error if no temporary file can be written.
VersionInfo ParseVersion(const std::string& text);

// Whether `text` has only letters, digits and ".+-_".
bool IsPlain(const std::string& value);

// Returns the number if `text` has only decimal digits and is in the range. Does not throw.
std::optional<std::int64_t> ParseNumber(const std::string& text, std::int64_t lowest,
                                        std::int64_t highest);

// Returns the fault of INFO's build number, if any.
Findings FaultsOf(const VersionInfo& version);
