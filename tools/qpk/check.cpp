// Checks that a package can be installed and removed.
#include "tools/qpk/check.h"

#include <QTemporaryDir>

#include "file/file-op.h"
#include "install-layout.h"
#include "log.h"
#include "tools/qpk/message.h"
#include "tools/qpk/package-reader.h"
#include "tools/qpk/progress.h"
#include "tools/qpk/read-file.h"
#include "tools/qpk/rules.h"
#include "tools/qpk/version-info.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/str-table.h"

namespace {

void Append(Findings& findings, const Findings& more) {
    findings.insert(findings.end(), more.begin(), more.end());
}

// The launcher's log lines from here on, without their time stamps.
class LogLines {
  public:
    explicit LogLines(const std::string& path) : path_(path) {
        Logger::Initialize(Logger::TYPE_FILE, path, "", 2);
    }
    ~LogLines() { Logger::Destroy(); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    std::string Last() const {
        const QList<QByteArray> lines =
            QByteArray::fromStdString(ReadFile(path_)).trimmed().split('\n');
        const QByteArray& line = lines.last();
        return line.mid(line.indexOf('[')).toStdString();
    }

  private:
    const std::string path_;
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

// Installs the package and removes the copy, as two upgrades would.
Findings TryOut(const std::string& package) {
    const QTemporaryDir scratch;
    if (!scratch.isValid()) {
        throw Error("temporary directory", Message::kNoTemporaryFile,
                    {scratch.errorString().toStdString()});
    }
    const LogLines log(scratch.filePath("log").toStdString());
    const std::string app = scratch.filePath(layout::kApp).toStdString();
    Findings findings;
    StrTable::InitStrTable();
    if (FSMKDir(app, true) < 0 || Extract(package, app) != 0) {
        findings.push_back({package, Message::kNotInstalled, {log.Last()}});
    }
    if (FSRemove(app, false) != 0 || IsFileExist(app, false)) {
        findings.emplace_back(package, Message::kNotRemoved);
    }
    return findings;
}

Findings CheckVersion(const std::string& info, const std::string& bundle) {
    const VersionInfo version = ParseVersion(info);
    Findings findings = FaultsOf(version);
    if (!findings.empty() || bundle.empty()) {
        return findings;
    }
    const std::string file = bundle + "/" + layout::kInfo;
    const VersionInfo offered = ParseVersion(ReadFile(file));
    const auto bundle_build = ParseNumber(offered.build_version, 0, kHighestBuild);
    if (bundle_build != ParseNumber(version.build_version, 0, kHighestBuild)) {
        findings.push_back(
            {file, Message::kBuildsDiffer, {version.build_version, offered.build_version}});
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
            {package, Message::kDamaged, {std::to_string(facts.entries), facts.damage}});
    }
    if (facts.info) {
        Append(findings, CheckVersion(*facts.info, bundle));
        if (!facts.info_is_last) {
            findings.emplace_back(layout::kInfo, Message::kInfoNotLast);
        }
    }
    if (!facts.has_checksum) {
        findings.emplace_back(package, Message::kNoChecksum);
    }
    return findings.empty() ? TryOut(package) : findings;
}
