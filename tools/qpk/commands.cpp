// The tool's commands: their options, and what they print.
#include "tools/qpk/commands.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <cstdio>

#include "tools/qpk/bundle.h"
#include "tools/qpk/check.h"
#include "tools/qpk/error.h"
#include "tools/qpk/layout.h"
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
        parser_.addOption({{"h", "help"}, "Show this help."});
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

    // Result: false when the help was asked for, and shown.
    bool Parse(const QStringList& arguments) {
        if (!parser_.parse(arguments)) {
            throw UsageError(parser_.errorText().toStdString());
        }
        if (parser_.isSet("help")) {
            const QString program = QCoreApplication::arguments().constFirst();
            Print(parser_.helpText().replace(program, arguments.constFirst()).toUtf8());
            return false;
        }
        if (parser_.positionalArguments().size() > (operand_.isEmpty() ? 0 : 1)) {
            throw UsageError("too many operands: " +
                             parser_.positionalArguments().join(' ').toStdString());
        }
        return true;
    }

    bool IsSet(const QString& name) const { return parser_.isSet(name); }
    std::string Value(const QString& name) const { return parser_.value(name).toStdString(); }

    // The operand, "" without one.
    std::string Operand() const { return parser_.positionalArguments().value(0).toStdString(); }

    std::string RequiredOperand() const { return Required(Operand(), operand_.toStdString()); }

    std::string RequiredValue(const QString& name) const {
        return Required(Value(name), "--" + name.toStdString());
    }

  private:
    static std::string Required(const std::string& value, const std::string& name) {
        if (value.empty()) {
            throw UsageError(name + " is missing");
        }
        return value;
    }

    QCommandLineParser parser_;
    QString operand_;
};

void AddPackageOptions(Parser& parser) {
    parser
        .Option({"build"},
                "Build number, which decides what is newer; INFO is made from it and the "
                "next three. Without it the client has an INFO of its own.",
                "N")
        .Option({"major"}, "Major version, told in the log.", "TEXT")
        .Option({"minor"}, "Minor version, likewise.", "TEXT")
        .Option({"icon-overlay"}, "Version of the icon overlays, likewise.", "TEXT")
        .Option({"level"}, "Compression from 1 (fast) to 19 (small); 9 by default.", "N");
}

std::optional<VersionInfo> ReadVersion(const Parser& parser) {
    const VersionInfo version{parser.Value("major"), parser.Value("minor"), parser.Value("build"),
                              parser.Value("icon-overlay")};
    const std::string others =
        version.major_version + version.minor_version + version.icon_overlay_version;
    if (!IsPlain(others)) {
        throw UsageError("a version has letters, digits and .+-_ only");
    }
    if (!parser.IsSet("build")) {
        if (!others.empty()) {
            throw UsageError("--build is missing");
        }
        return std::nullopt;
    }
    if (!IsBuildNumber(version.build_version)) {
        throw UsageError("--build is no number from 0 to 2147483647: " + version.build_version);
    }
    return version;
}

// https://reproducible-builds.org/specs/source-date-epoch/
std::time_t SourceDateEpoch() {
    const QByteArray text = qgetenv("SOURCE_DATE_EPOCH");
    bool is_number = true;
    const qlonglong seconds = text.isEmpty() ? 0 : text.toLongLong(&is_number);
    if (!is_number || seconds < 0) {
        throw UsageError("SOURCE_DATE_EPOCH is no number of seconds: " + text.toStdString());
    }
    return static_cast<std::time_t>(seconds);
}

PackageOptions ReadPackageOptions(const Parser& parser) {
    PackageOptions options;
    options.version = ReadVersion(parser);
    options.time = SourceDateEpoch();
    if (parser.IsSet("level")) {
        options.level = std::atoi(parser.Value("level").c_str());
        if (options.level < ZstdFile::kFastest || options.level > ZstdFile::kSmallest) {
            throw UsageError("--level is no number from 1 to 19: " + parser.Value("level"));
        }
    }
    return options;
}

void Make(const QStringList& arguments) {
    Parser parser("Packs a client's directory into a package.");
    parser.Operand("CLIENT_DIR", "The tree of the private copy, with Contents/MacOS/quillmere-ui.")
        .Option({"o", "output"}, "The package to be written.", "FILE");
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
    Parser parser("Assembles a bundle: the launcher, its plug-ins and a client as a package.");
    parser.Option({"o", "output"}, "The bundle to be made or brought up to date.", "DIR.app")
        .Option({"client"}, "The client's directory.", "DIR")
        .Option({"launcher"}, "The launcher's executable; the one that came with this tool.", "EXE")
        .Option({"icon"}, "The window's icon; the one that came with this tool.", "PNG")
        .Option({"plugins"}, "Qt's plug-ins; those of this tool's Qt by default.", "DIR")
        .Option({"copy-plugins"}, "Copy the plug-ins that are needed, do not link to them.")
        .Option({"depfile"}, "Write what the bundle hangs on, as a rule for make.", "FILE");
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
    options.plugins = or_default("plugins", QLibraryInfo::location(QLibraryInfo::PluginsPath));
    options.copy_plugins = parser.IsSet("copy-plugins");
    options.depfile = parser.Value("depfile");
    WriteBundle(options);
}

void Check(const QStringList& arguments) {
    Parser parser("Tells whether a package would install, and could be removed again.");
    parser.Operand("FILE", "The package; the bundle's own by default.")
        .Option({"bundle"}, "The bundle that carries the package, to compare versions.", "DIR");
    if (!parser.Parse(arguments)) {
        return;
    }
    const std::string bundle = parser.Value("bundle");
    if (parser.Operand().empty() && bundle.empty()) {
        throw UsageError("FILE or --bundle is missing");
    }
    const std::string package =
        parser.Operand().empty() ? bundle + "/" + layout::kPackage : parser.Operand();
    const Findings findings = CheckPackage(package, bundle);
    if (!findings.empty()) {
        throw Refused(findings);
    }
    Print(QByteArray::fromStdString(package + ": installs, and can be removed again\n"));
}

// In the manner of ls(1); what a link leads to stands in parentheses.
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
    Parser parser("Lists the entries of a package.");
    parser.Operand("FILE", "The package.")
        .Option({"l", "long"}, "Type, mode and size as well, and where links lead to.");
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
    if (!facts.damage.empty()) {
        throw Refused({{file, "damaged: " + facts.damage}});
    }
}

QJsonObject ToJson(const PackageFacts& facts) {
    const VersionInfo version = ParseVersion(facts.info);
    const auto text = [](const std::string& value) { return QString::fromStdString(value); };
    QJsonArray filters;
    for (const std::string& filter : facts.filters) {
        filters.append(text(filter));
    }
    return {{"form", text(facts.form)},
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
         {"form", "filters", "checksum", "entries", "packed", "unpacked", "info_is_last",
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
    Parser parser("Tells a package's form, sizes and version.");
    parser.Operand("FILE", "The package.").Option({"json"}, "Print a JSON object.");
    if (!parser.Parse(arguments)) {
        return;
    }
    const std::string file = parser.RequiredOperand();
    const PackageFacts facts = ReadPackage(file, [](const Entry&) {});
    const QJsonObject json = ToJson(facts);
    Print(parser.IsSet("json") ? QJsonDocument(json).toJson() : ToLines(json));
    if (!facts.damage.empty()) {
        throw Refused({{file, "damaged: " + facts.damage}});
    }
}

}  // namespace

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands{
        {"make", "packs a client's directory into a package", Make},
        {"check", "tells whether a package would install and could be removed", Check},
        {"list", "lists the entries of a package", List},
        {"info", "tells a package's form, sizes and version", Info},
        {"bundle", "assembles a bundle of launcher and client", Bundle},
    };
    return commands;
}
