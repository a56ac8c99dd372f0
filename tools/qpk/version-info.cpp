// The version file INFO of a package and of a bundle.
#include "tools/qpk/version-info.h"

#include <QSettings>
#include <QTemporaryFile>
#include <algorithm>

#include "install-layout.h"
#include "tools/qpk/message.h"

std::string ToText(const VersionInfo& version) {
    return "[Version]\nmajor_version=" + version.major_version +
           "\nminor_version=" + version.minor_version + "\nbuild_version=" + version.build_version +
           "\nicon_overlay_version=" + version.icon_overlay_version + "\n";
}

VersionInfo ParseVersion(const std::string& text) {
    QTemporaryFile file;
    if (!file.open() || file.write(text.data(), static_cast<qint64>(text.size())) < 0 ||
        !file.flush()) {
        throw Error("temporary file", Message::kNoTemporaryFile,
                    {file.errorString().toStdString()});
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

std::optional<std::int64_t> ParseNumber(const std::string& text, std::int64_t lowest,
                                        std::int64_t highest) {
    const bool has_digits_only =
        std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    bool is_number = false;
    const qint64 number = QString::fromStdString(text).toLongLong(&is_number);
    if (!has_digits_only || !is_number || number < lowest || number > highest) {
        return std::nullopt;
    }
    return number;
}

Findings FaultsOf(const VersionInfo& version) {
    const std::string& build = version.build_version;
    if (build.empty()) {
        return {{layout::kInfo, Message::kBuildMissing}};
    }
    if (!ParseNumber(build, 0, kHighestBuild)) {
        return {{layout::kInfo, Message::kBadBuild, {build}}};
    }
    return {};
}
