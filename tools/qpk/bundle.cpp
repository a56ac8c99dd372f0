// Assembles bundles: the launcher with the client that it installs.
#include "tools/qpk/bundle.h"

#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QXmlStreamWriter>
#include <filesystem>

#include "install-layout.h"
#include "tools/qpk/client-tree.h"
#include "tools/qpk/message.h"

namespace fs = std::filesystem;

namespace {

// The plug-ins that the launcher loads: window systems and "offscreen". It needs no image format
// other than PNG, no input method and no theme.
#ifdef __APPLE__
const std::vector<std::string> kNeededPlugins{"platforms/libqcocoa.dylib",
                                              "platforms/libqoffscreen.dylib"};
#else
const std::vector<std::string> kNeededPlugins{"platforms/libqxcb.so", "platforms/libqoffscreen.so"};
#endif

void WriteFile(const fs::path& path, const QByteArray& content) {
    QSaveFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.commit()) {
        throw Error(path.string(), Message::kCannotWrite, {file.errorString().toStdString()});
    }
}

// A running program keeps its file; only the name changes.
void CopyFile(const fs::path& from, const fs::path& to) {
    const fs::path unfinished = to.string() + ".part";
    fs::remove(unfinished);
    fs::copy_file(from, unfinished);
    fs::permissions(unfinished, fs::perms::owner_write, fs::perm_options::add);
    fs::rename(unfinished, to);
}

// ldd(1), if installed, lists each library that the loader would not find.
void RequireLibraries(const fs::path& plugin) {
    const QString program = QStandardPaths::findExecutable("ldd");
    if (program.isEmpty()) {
        return;
    }
    QProcess ldd;
    ldd.start(program, {QString::fromStdString(plugin.string())});
    if (!ldd.waitForFinished(-1) || ldd.exitStatus() != QProcess::NormalExit) {
        throw Error("ldd", Message::kCannotRun, {ldd.errorString().toStdString()});
    }
    Findings missing;
    for (const QByteArray& line : ldd.readAllStandardOutput().split('\n')) {
        if (line.contains("not found")) {
            missing.push_back(
                {plugin.string(), Message::kLibraryMissing, {line.trimmed().toStdString()}});
        }
    }
    if (!missing.empty()) {
        throw Error(missing);
    }
}

void CopyPlugins(const fs::path& from, const fs::path& to) {
    fs::remove_all(to);
    for (const std::string& name : kNeededPlugins) {
        fs::create_directories((to / name).parent_path());
        CopyFile(from / name, to / name);
        RequireLibraries(to / name);
    }
}

// Only plug-ins for window systems. Qt loads every theme it finds, and GTK takes as long as the
// rest of a start.
void LinkPlugins(const fs::path& from, const fs::path& to) {
    fs::remove_all(to);
    fs::create_directories(to);
    for (const fs::path& kind : fs::directory_iterator(fs::absolute(from))) {
        const std::string name = kind.filename().string();
        if (name == "platforms" || name.rfind("wayland-", 0) == 0) {
            fs::create_directory_symlink(kind, to / name);
        }
    }
}

// Apple's Information Property List, which describes an application to the desktop.
QByteArray PropertyList(const VersionInfo& version) {
    const auto text = [](const std::string& value) { return QString::fromStdString(value); };
    const std::vector<std::pair<QString, QString>> values{
        {"CFBundleDevelopmentRegion", "en"},
        {"CFBundleExecutable", "launcher"},
        {"CFBundleIdentifier", "com.quillmere.drive.launcher"},
        {"CFBundleInfoDictionaryVersion", "6.0"},
        {"CFBundleName", "Quillmere Drive"},
        {"CFBundlePackageType", "APPL"},
        {"CFBundleShortVersionString",
         text(version.major_version) + "." + text(version.minor_version)},
        {"CFBundleVersion", text(version.build_version)},
        {"NSPrincipalClass", "NSApplication"},
    };
    QByteArray content;
    QXmlStreamWriter xml(&content);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeDTD(R"(<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" )"
                 R"("http://www.apple.com/DTDs/PropertyList-1.0.dtd">)");
    xml.writeStartElement("plist");
    xml.writeAttribute("version", "1.0");
    xml.writeStartElement("dict");
    for (const auto& value : values) {
        xml.writeTextElement("key", value.first);
        xml.writeTextElement("string", value.second);
    }
    xml.writeEndDocument();
    return content;
}

std::string Escaped(const std::string& path) {
    std::string escaped;
    for (const char c : path) {
        if (c == ' ' || c == '#') {
            escaped += '\\';
        } else if (c == '$') {
            escaped += '$';
        }
        escaped += c;
    }
    return escaped;
}

// One rule: the version file, which is written last, depends on every file and directory of the
// client. A directory changes when a file is added or removed, or a link changes.
void WriteDepfile(const BundleOptions& options) {
    const std::string client = fs::absolute(options.package.client).string();
    std::string rule =
        Escaped(fs::absolute(options.output) / layout::kInfo) + ": \\\n  " + Escaped(client);
    for (const Entry& entry : ReadClientTree(client)) {
        const bool is_nameable = entry.path.find('\n') == std::string::npos;
        if ((S_ISREG(entry.mode) || S_ISDIR(entry.mode)) && is_nameable) {
            rule += " \\\n  " + Escaped(client + "/" + entry.path);
        }
    }
    WriteFile(options.depfile, QByteArray::fromStdString(rule + "\n"));
}

void Assemble(const BundleOptions& options) {
    const fs::path bundle = options.output;
    for (const char* const path : {layout::kLauncher, layout::kPackage, layout::kIcon}) {
        fs::create_directories((bundle / path).parent_path());
    }
    PackageOptions package = options.package;
    package.package = (bundle / layout::kPackage).string();
    const VersionInfo version = ParseVersion(WritePackage(package));
    CopyFile(options.launcher, bundle / layout::kLauncher);
    CopyFile(options.icon, bundle / layout::kIcon);
    const auto place_plugins = options.copy_plugins ? CopyPlugins : LinkPlugins;
    place_plugins(options.plugins, bundle / layout::kPlugins);
    WriteFile(bundle / layout::kPropertyList, PropertyList(version));
    if (!options.depfile.empty()) {
        WriteDepfile(options);
    }
    WriteFile(bundle / layout::kInfo, QByteArray::fromStdString(ToText(version)));
}

}  // namespace

void WriteBundle(const BundleOptions& options) {
    if (IsInside(options.output, options.package.client)) {
        throw Error(options.output, Message::kInClient);
    }
    try {
        Assemble(options);
    } catch (const fs::filesystem_error& error) {
        const std::string path = error.path1().string();
        const bool writes = IsInside(path, options.output);
        throw Error(path, writes ? Message::kCannotWrite : Message::kCannotRead,
                    {error.code().message()});
    }
}
