// The commands: their options and their output.
#include "tools/qpk/commands.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>
#include <limits>
#include <optional>

#include "install-layout.h"
#include "platform/desktop/qt-version.h"
#include "tools/qpk/bundle.h"
#include "tools/qpk/check.h"
#include "tools/qpk/message.h"
#include "tools/qpk/package-reader.h"
#include "tools/qpk/zstd-file.h"

namespace {

void Print(const QByteArray& text) {
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
}

// The options and operands of one command.
class Parser {
  public:
    explicit Parser(const char* description) {
        parser_.setApplicationDescription(description);
        parser_.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
        parser_.addOption({{"h", "help"}, "Print this help."});
    }

    // An option with a value if `value` is given, else a switch.
    Parser& Option(const QStringList& names, const QString& text, const QString& value = "") {
        parser_.addOption(QCommandLineOption(names, text, value));
        return *this;
    }

    Parser& Operand(const QString& name, const QString& text) {
        operand_ = name;
        parser_.addPositionalArgument(name, text);
        return *this;
    }

    // Result: false if the help was requested and shown.
    bool Parse(const QStringList& arguments) {
        if (!parser_.parse(arguments)) {
            throw Error(arguments.constFirst().toStdString(), Message::kBadArguments,
                        {parser_.errorText().remove('.').toStdString()});
        }
        if (parser_.isSet("help")) {
            const QString program = QCoreApplication::arguments().constFirst();
            Print(parser_.helpText().replace(program, arguments.constFirst()).toUtf8());
            return false;
        }
        const int most = operand_.isEmpty() ? 0 : 1;
        if (parser_.positionalArguments().size() > most) {
            throw Error(parser_.positionalArguments().at(most).toStdString(),
                        Message::kTooManyOperands);
        }
        return true;
    }

    bool IsSet(const QString& name) const { return parser_.isSet(name); }
    std::string Value(const QString& name) const { return parser_.value(name).toStdString(); }

    // The operand, or "".
    std::string Operand() const { return parser_.positionalArguments().value(0).toStdString(); }

    std::string RequiredOperand() const { return Required(Operand(), operand_.toStdString()); }

    std::string RequiredValue(const QString& name) const {
        return Required(Value(name), "--" + name.toStdString());
    }

  private:
    static std::string Required(const std::string& value, const std::string& name) {
        if (value.empty()) {
            throw Error(name, Message::kArgumentMissing);
        }
        return value;
    }

    QCommandLineParser parser_;
    QString operand_;
};

void AddPackageOptions(Parser& parser) {
    parser
        .Option({"build"},
                "Build number; the higher one is newer. INFO is made from it and the next three "
                "options. Without it the client must have its own INFO.",
                "N")
        .Option({"major"}, "Major version, for the log only.", "TEXT")
        .Option({"minor"}, "Minor version, for the log only.", "TEXT")
        .Option({"icon-overlay"}, "Icon overlay version, for the log only.", "TEXT")
        .Option({"level"}, "Compression level, from 1 (fast) to 19 (small). Default: 9.", "N");
}

std::string PlainValue(const Parser& parser, const QString& name) {
    std::string value = parser.Value(name);
    if (!IsPlain(value)) {
        throw Error("--" + name.toStdString(), Message::kBadVersion);
    }
    return value;
}

std::int64_t Number(const std::string& subject, const std::string& text, std::int64_t lowest,
                    std::int64_t highest) {
    const std::optional<std::int64_t> number = ParseNumber(text, lowest, highest);
    if (!number) {
        throw Error(subject, Message::kBadNumber,
                    {text, std::to_string(lowest), std::to_string(highest)});
    }
    return *number;
}

std::optional<VersionInfo> ReadVersion(const Parser& parser) {
    VersionInfo version{PlainValue(parser, "major"), PlainValue(parser, "minor"),
                        parser.Value("build"), PlainValue(parser, "icon-overlay")};
    if (parser.IsSet("build")) {
        Number("--build", version.build_version, 0, kHighestBuild);
        return version;
    }
    if (!(version.major_version + version.minor_version + version.icon_overlay_version).empty()) {
        throw Error("--build", Message::kArgumentMissing);
    }
    return std::nullopt;
}

// https://reproducible-builds.org/specs/source-date-epoch/
std::int64_t SourceDateEpoch() {
    const char* const name = "SOURCE_DATE_EPOCH";
    const std::string text = qgetenv(name).toStdString();
    return text.empty() ? 0 : Number(name, text, 0, LatestTime());
}

PackageOptions ReadPackageOptions(const Parser& parser) {
    PackageOptions options;
    options.version = ReadVersion(parser);
    options.time = SourceDateEpoch();
    if (parser.IsSet("level")) {
        options.level = static_cast<int>(
            Number("--level", parser.Value("level"), ZstdFile::kFastest, ZstdFile::kSmallest));
    }
    return options;
}

void Make(const QStringList& arguments) {
    Parser parser("Pack a client's directory into a package.");
    parser.Operand("CLIENT_DIR", "Client's directory, with Contents/MacOS/quillmere-ui in it.")
        .Option({"o", "output"}, "Package to write.", "PATH");
    AddPackageOptions(parser);
    if (!parser.Parse(arguments)) {
        return;
    }
    PackageOptions options = ReadPackageOptions(parser);
    options.client = parser.RequiredOperand();
    options.package = parser.RequiredValue("output");
    WritePackage(options);
}

void Bundle(const QStringList& arguments) {
    const QString data = QCoreApplication::applicationDirPath() + "/../lib/qpk/";
    Parser parser("Assemble a bundle of the launcher, its plug-ins and a client.");
    parser.Option({"o", "output"}, "Bundle to create or update.", "PATH")
        .Option({"client"}, "Client's directory.", "DIR")
        .Option({"launcher"}, "Launcher executable. Default: the one installed with qpk.", "EXE")
        .Option({"icon"}, "Window icon. Default: the one installed with qpk.", "PNG")
        .Option({"plugins"}, "Directory of Qt's plug-ins. Default: that of qpk's own Qt.", "DIR")
        .Option({"copy-plugins"}, "Copy the required plug-ins instead of linking to them.")
        .Option({"depfile"}, "Write the bundle's dependencies as a make rule.", "FILE");
    AddPackageOptions(parser);
    if (!parser.Parse(arguments)) {
        return;
    }
    const auto or_default = [&parser](const char* name, const QString& value) {
        return parser.IsSet(name) ? parser.Value(name) : value.toStdString();
    };
    BundleOptions options;
    options.package = ReadPackageOptions(parser);
    options.package.client = parser.RequiredValue("client");
    options.output = parser.RequiredValue("output");
    options.launcher = or_default("launcher", data + "launcher");
    options.icon = or_default("icon", data + "ico_72_quillmere.png");
    options.plugins = or_default("plugins", QtPluginsDirectory());
    options.copy_plugins = parser.IsSet("copy-plugins");
    options.depfile = parser.Value("depfile");
    WriteBundle(options);
}

void Check(const QStringList& arguments) {
    Parser parser("Check that a package can be installed and removed.");
    parser.Operand("FILE", "Package. Default: the one in the bundle.")
        .Option({"bundle"}, "Bundle of the package, to compare versions.", "DIR");
    if (!parser.Parse(arguments)) {
        return;
    }
    const std::string bundle = parser.Value("bundle");
    if (parser.Operand().empty() && bundle.empty()) {
        throw Error("FILE or --bundle", Message::kArgumentMissing);
    }
    const std::string package =
        parser.Operand().empty() ? bundle + "/" + layout::kPackage : parser.Operand();
    const Findings findings = CheckPackage(package, bundle);
    if (!findings.empty()) {
        throw Error(findings);
    }
    Print(QByteArray::fromStdString(package + ": can be installed and removed\n"));
}

void RefuseDamage(const std::string& file, const PackageFacts& facts) {
    if (!facts.damage.empty()) {
        throw Error(file, Message::kDamaged, {std::to_string(facts.entries), facts.damage});
    }
}

// As ls(1) prints it; the target of a link is in parentheses.
std::string Details(const Entry& entry) {
    const char type = !entry.hard_link.empty() ? 'h'
                      : S_ISDIR(entry.mode)    ? 'd'
                      : S_ISLNK(entry.mode)    ? 'l'
                      : S_ISREG(entry.mode)    ? '-'
                                               : '?';
    const std::string target = entry.link_text + entry.hard_link;
    char text[64];
    std::snprintf(text, sizeof text, "%c %04o %12lld ", type, entry.mode & 07777U,
                  static_cast<long long>(entry.size));
    return text + (target.empty() ? "" : "(" + Visible(target) + ") ");
}

void List(const QStringList& arguments) {
    Parser parser("List the entries of a package.");
    parser.Operand("FILE", "Package.")
        .Option({"l", "long"}, "Also print type, mode, size and the target of links.");
    if (!parser.Parse(arguments)) {
        return;
    }
    const bool in_full = parser.IsSet("long");
    const std::string file = parser.RequiredOperand();
    const PackageFacts facts = ReadPackage(file, [in_full](const Entry& entry) {
        std::string line = Visible(entry.path.empty() ? "." : entry.path) + "\n";
        if (in_full) {
            line = Details(entry) + line;
        }
        Print(QByteArray::fromStdString(line));
    });
    RefuseDamage(file, facts);
}

QJsonObject ToJson(const PackageFacts& facts) {
    const VersionInfo version = ParseVersion(facts.info.value_or(""));
    const auto text = [](const std::string& value) { return QString::fromStdString(value); };
    QJsonArray filters;
    for (const std::string& filter : facts.filters) {
        filters.append(text(filter));
    }
    return {{"format", text(facts.format)},
            {"filters", filters},
            {"checksum", facts.has_checksum},
            {"entries", static_cast<qint64>(facts.entries)},
            {"packed", static_cast<qint64>(facts.packed)},
            {"unpacked", static_cast<qint64>(facts.unpacked)},
            {"info_is_last", facts.info_is_last},
            {"major_version", text(version.major_version)},
            {"minor_version", text(version.minor_version)},
            {"build_version", text(version.build_version)},
            {"icon_overlay_version", text(version.icon_overlay_version)}};
}

// One "key: value" line for each member.
QByteArray ToLines(const QJsonObject& facts) {
    QByteArray lines;
    for (const char* const key :
         {"format", "filters", "checksum", "entries", "packed", "unpacked", "info_is_last",
          "major_version", "minor_version", "build_version", "icon_overlay_version"}) {
        QStringList texts;
        const QJsonValue value = facts[key];
        for (const auto& part : value.isArray() ? value.toArray() : QJsonArray{value}) {
            texts +=
                part.isBool() ? QString(part.toBool() ? "yes" : "no") : part.toVariant().toString();
        }
        lines += QByteArray(key) + ": " + texts.join(", ").toUtf8() + "\n";
    }
    return lines;
}

void Info(const QStringList& arguments) {
    Parser parser("Print a package's format, sizes and version.");
    parser.Operand("FILE", "Package.").Option({"json"}, "Print as a JSON object.");
    if (!parser.Parse(arguments)) {
        return;
    }
    const std::string file = parser.RequiredOperand();
    const PackageFacts facts = ReadPackage(file, [](const Entry&) {});
    const QJsonObject json = ToJson(facts);
    Print(parser.IsSet("json") ? QJsonDocument(json).toJson() : ToLines(json));
    RefuseDamage(file, facts);
}

}  // namespace

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands{
        {"make", "Pack a client's directory into a package.", Make},
        {"check", "Check that a package can be installed and removed.", Check},
        {"list", "List the entries of a package.", List},
        {"info", "Print a package's format, sizes and version.", Info},
        {"bundle", "Assemble a bundle of the launcher, its plug-ins and a client.", Bundle},
    };
    return commands;
}
