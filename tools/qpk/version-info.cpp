// The version file INFO of a package and of a bundle.
#include "tools/qpk/version-info.h"

#include <QSettings>
#include <QTemporaryFile>
#include <algorithm>

#include "tools/qpk/error.h"
#include "tools/qpk/layout.h"

std::string ToText(const VersionInfo& version) {
    return "[Version]\nmajor_version=" + version.major_version +
           "\nminor_version=" + version.minor_version + "\nbuild_version=" + version.build_version +
           "\nicon_overlay_version=" + version.icon_overlay_version + "\n";
}

VersionInfo ParseVersion(const std::string& text) {
    QTemporaryFile file;
    if (!file.open() || file.write(text.data(), static_cast<qint64>(text.size())) < 0 ||
        !file.flush()) {
        throw Failure("no temporary file: " + file.errorString().toStdString());
    }
    QSettings settings(file.fileName(), QSettings::IniFormat);
    settings.beginGroup("Version");
    const auto value = [&](const char* key) {
        return settings.value(key).toString().toStdString();
    };
    return {value("major_version"), value("minor_version"), value("build_version"),
            value("icon_overlay_version")};
}

bool IsPlain(const std::string& value) {
    return std::all_of(value.begin(), value.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
               std::string(".+-_").find(c) != std::string::npos;
    });
}

bool IsBuildNumber(const std::string& value) {
    bool is_number = false;
    QString::fromStdString(value).toInt(&is_number);
    return is_number &&
           std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; });
}

Findings FaultsOf(const VersionInfo& version) {
    const std::string& build = version.build_version;
    if (build.empty()) {
        return {{layout::kInfo, "has no build_version: every start would be an upgrade"}};
    }
    if (!IsBuildNumber(build)) {
        return {{layout::kInfo, "build_version \"" + build +
                                    "\" is no number from 0 to 2147483647: the launcher would "
                                    "compare something else"}};
    }
    return {};
}
