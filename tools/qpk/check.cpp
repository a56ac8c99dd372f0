// Would a package install, and could it be removed again?
#include "tools/qpk/check.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <filesystem>

#include "file/file-op.h"
#include "log.h"
#include "tools/qpk/error.h"
#include "tools/qpk/layout.h"
#include "tools/qpk/links.h"
#include "tools/qpk/package-reader.h"
#include "tools/qpk/progress.h"
#include "tools/qpk/rules.h"
#include "tools/qpk/version-info.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/str-table.h"

namespace fs = std::filesystem;

namespace {

void Append(Findings& findings, const Findings& more) {
    findings.insert(findings.end(), more.begin(), more.end());
}

std::string Content(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Failure(path.toStdString() + ": " + file.errorString().toStdString());
    }
    return file.readAll().toStdString();
}

// The launcher's log lines from here on, without their time stamps.
class LogLines {
  public:
    explicit LogLines(const QString& path) : path_(path) {
        Logger::Initialize(Logger::TYPE_FILE, path.toStdString(), "", 2);
    }
    ~LogLines() { Logger::Destroy(); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    std::string Last() const {
        const QList<QByteArray> lines =
            QByteArray::fromStdString(Content(path_)).trimmed().split('\n');
        const QByteArray& line = lines.last();
        return line.mid(line.indexOf('[')).toStdString();
    }

  private:
    const QString path_;
};

int Extract(const std::string& package, const std::string& destination) {
    Progress progress("unpacking", 100);
    const auto connection = QObject::connect(
        Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress,
        [&progress](int total, int number) { progress.MoveTo(qint64{number} * 100 / total); });
    Extractor extractor;
    extractor.m_source = package;
    extractor.m_dest = destination;
    const int result = extractor.Extract();
    QObject::disconnect(connection);
    return result;
}

// A temporary directory, removed with all it holds: what FSRemove could not remove as well.
class Scratch {
  public:
    Scratch() {
        directory_.setAutoRemove(false);
        if (!directory_.isValid()) {
            throw Failure("no temporary directory: " + directory_.errorString().toStdString());
        }
    }
    ~Scratch() {
        std::error_code ignored;
        const fs::path root = directory_.path().toStdString();
        fs::recursive_directory_iterator entry(root, ignored);
        for (; entry != fs::recursive_directory_iterator(); entry.increment(ignored)) {
            if (entry->symlink_status(ignored).type() == fs::file_type::directory) {
                fs::permissions(*entry, fs::perms::owner_all, ignored);
            }
        }
        fs::remove_all(root, ignored);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    QString Path(const char* name) const { return directory_.filePath(name); }

  private:
    QTemporaryDir directory_;
};

// The way of a package into a user's home, and out of it at the next upgrade.
Findings TryOut(const std::string& package) {
    const Scratch scratch;
    const LogLines log(scratch.Path("log"));
    const std::string app = scratch.Path("Quillmere.app").toStdString();
    Findings findings;
    StrTable::InitStrTable();
    if (FSMKDir(app, true) < 0 || Extract(package, app) != 0) {
        findings.push_back(
            {"", "does not install; the launcher would keep the old copy and log: " + log.Last()});
    }
    if (FSRemove(app, false) != 0 || QFile::exists(QString::fromStdString(app))) {
        findings.push_back({"",
                            "cannot be removed once installed: every upgrade would leave the "
                            "old copy behind, and after ten none is possible"});
    }
    return findings;
}

bool LinksLeave(const Entries& entries) {
    const Links links(entries);
    return std::any_of(entries.begin(), entries.end(), [&links](const Entry& entry) {
        return S_ISLNK(entry.mode) && links.Follow(entry).outcome == Links::kLeaves;
    });
}

Findings CheckVersion(const std::string& info, const std::string& bundle) {
    const VersionInfo version = ParseVersion(info);
    Findings findings = FaultsOf(version);
    if (!findings.empty() || bundle.empty()) {
        return findings;
    }
    const std::string file = bundle + "/" + layout::kInfo;
    const VersionInfo offered = ParseVersion(Content(QString::fromStdString(file)));
    const std::string numbers =
        "build_version is " + version.build_version + " in the package and ";
    if (!IsBuildNumber(offered.build_version)) {
        findings.push_back({layout::kInfo, numbers + "no number in the bundle: it would never "
                                                     "count as newer than an installed copy"});
        return findings;
    }
    const int difference = std::stoi(version.build_version) - std::stoi(offered.build_version);
    if (difference < 0) {
        findings.push_back({layout::kInfo, numbers + offered.build_version +
                                               " in the bundle: every start would be an upgrade"});
    } else if (difference > 0) {
        findings.push_back({layout::kInfo, numbers + offered.build_version +
                                               " in the bundle: who has the build of the bundle "
                                               "would not get this one"});
    }
    return findings;
}

}  // namespace

Findings CheckPackage(const std::string& package, const std::string& bundle) {
    Entries entries;
    const PackageFacts facts =
        ReadPackage(package, [&entries](const Entry& entry) { entries.push_back(entry); });
    Findings findings = FaultsOf(entries);
    if (!facts.damage.empty()) {
        findings.push_back(
            {"", "damaged after " + std::to_string(facts.entries) + " entries: " + facts.damage});
    }
    if (!facts.info.empty()) {
        Append(findings, CheckVersion(facts.info, bundle));
        if (!facts.info_is_last) {
            findings.push_back({layout::kInfo,
                                "is not the last entry: a copy that was cut short "
                                "would look current, and stay"});
        }
    }
    if (!facts.has_checksum) {
        findings.push_back({"", "has no checksum: damage on the way to the user can go unseen"});
    }
    // The launcher follows such links when it unpacks, out of a temporary directory too.
    if (LinksLeave(entries)) {
        findings.push_back({"", "was not unpacked for a test, since links leave the client"});
    } else {
        Append(findings, TryOut(package));
    }
    return findings;
}
