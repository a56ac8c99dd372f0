// The version file INFO of a package and of a bundle.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tools/qpk/message.h"

// The four texts of the group Version. The build number decides what is newer; the launcher only
// logs the others.
struct VersionInfo {
    std::string major_version;
    std::string minor_version;
    std::string build_version;
    std::string icon_overlay_version;
};

constexpr std::int64_t kHighestBuild = 2147483647;  // the launcher compares numbers of 32 bits

// The file's content. All four must be plain, as IsPlain says.
std::string ToText(const VersionInfo& version);

// Reads a file's content as the launcher does, by QSettings. What is missing is empty. Throws Error
// if no temporary file can be written.
VersionInfo ParseVersion(const std::string& text);

// Whether there are only letters, digits and ".+-_".
bool IsPlain(const std::string& value);

// The number if the text is decimal digits alone, without a sign or a tail, and in the range.
// Throws nothing.
std::optional<std::int64_t> ParseNumber(const std::string& text, std::int64_t lowest,
                                        std::int64_t highest);

// The fault of INFO's build number, if it has one.
Findings FaultsOf(const VersionInfo& version);
