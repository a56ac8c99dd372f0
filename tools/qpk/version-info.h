// The version file INFO of a package and of a bundle.
#pragma once

#include <string>

#include "tools/qpk/entry.h"

// The four texts of the group Version. The build number decides what is newer, the others are told
// in the launcher's log.
struct VersionInfo {
    std::string major_version;
    std::string minor_version;
    std::string build_version;
    std::string icon_overlay_version;
};

// The file's content. All four must be letters, digits and ".+-_", as IsPlain says.
std::string ToText(const VersionInfo& version);

// Reads a file's content as the launcher does, by QSettings. What is missing is empty.
VersionInfo ParseVersion(const std::string& text);

bool IsPlain(const std::string& value);

// Whether this is a build number that the launcher compares as it reads: decimal digits alone, at
// most 2147483647.
bool IsBuildNumber(const std::string& value);

// The fault of INFO's build number, if it has one.
Findings FaultsOf(const VersionInfo& version);
