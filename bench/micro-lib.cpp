// Logger, Config and the file layer, and their peers.
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QMap>
#include <QSettings>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "bench/micro.h"
#include "config.h"
#include "file/file-op.h"
#include "log.h"

namespace {

namespace fs = std::filesystem;

constexpr int kLogSize = 1048576;
constexpr int kLogFiles = 49;
constexpr int kSettings = 5000;
// More files than QSettings caches.
constexpr int kSettingsFiles = 64;

const ustring log_component("file_op_debug");

// The default levels.
void SetUpOurLog() {
    std::ofstream("levels") << "launcher_debug=4\nservice_debug=4\nextractor_debug=4\n"
                               "file_op_debug=4\n";
    Logger::Initialize(Logger::TYPE_FILE, "ours.log", "levels", kLogFiles + 1);
}

// The same line, flush and rotation.
std::shared_ptr<spdlog::logger> PeersLog() {
    static const auto log = [] {
        const auto made = spdlog::rotating_logger_mt("peer", "peer.log", kLogSize, kLogFiles);
        made->set_pattern("%b %d %H:%M:%S %v");
        made->flush_on(spdlog::level::trace);
        made->set_level(spdlog::level::info);
        return made;
    }();
    return log;
}

int Line(Logger::Level level) {
    Logger::LogMsg(level, log_component, "[DEBUG] file-op(%d): Input file path = [%s].\n", __LINE__,
                   "/home/user/.Quillmere/Quillmere.app");
    return 0;
}

int PeersLine(spdlog::level::level_enum level) {
    static spdlog::logger& log = *PeersLog();
    log.log(level, "[DEBUG] file-op({}): Input file path = [{}].", __LINE__,
            "/home/user/.Quillmere/Quillmere.app");
    return 0;
}

void RegisterLog() {
    SetUpOurLog();
    PeersLog();
    for (const int threads : {1, 2, 4}) {
        const std::string suffix = "-" + std::to_string(threads);
        Row(
            "log-line" + suffix, [] { return Line(Logger::LEVEL_WARNING); },
            [] { return PeersLine(spdlog::level::info); }, threads);
        Row(
            "log-stopped" + suffix, [] { return Line(Logger::LEVEL_DEBUG); },
            [] { return PeersLine(spdlog::level::debug); }, threads);
    }
}

std::string SettingsFile(int number) {
    return "settings" + std::to_string(number);
}

void RegisterConfig() {
    for (int file = 0; file < kSettingsFiles; ++file) {
        std::ofstream out(SettingsFile(file));
        for (int line = 0; line < kSettings; ++line) {
            out << "key_" << line << "=value-" << line * 31 << "\n";
        }
    }
    // Both produce a map of all values.
    Row(
        "config",
        [file = 0]() mutable {
            Config config;
            config.read(SettingsFile(file++ % kSettingsFiles));
            return config.size();
        },
        [file = 0]() mutable {
            const QSettings settings(QString::fromStdString(SettingsFile(file++ % kSettingsFiles)),
                                     QSettings::IniFormat);
            QMap<QString, QString> map;
            for (const QString& key : settings.allKeys()) {
                map[key] = settings.value(key).toString();
            }
            return map.size();
        });
}

// An existing path with this number of components.
std::string PathOfDepth(int depth) {
    fs::path path;
    for (const fs::path& component : fs::current_path()) {
        path /= component;
        if (component != "/" && --depth == 0) {
            return path.string();
        }
    }
    for (; depth > 0; --depth) {
        path /= "directory";
    }
    fs::create_directories(path);
    return path.string();
}

void RegisterFileInfo() {
    for (const int depth : {2, 8, 32}) {
        const std::string path = PathOfDepth(depth);
        Row(
            "file-info-" + std::to_string(depth),
            [path = ustring(path)] {
                _FILE_INFO_tag info;
                GetFileInfo(path, info);
                return info.size;
            },
            [path] {
                struct stat status;
                lstat(path.c_str(), &status);
                char* const real = realpath(path.c_str(), nullptr);
                std::free(real);
                return status.st_size;
            });
    }
}

// Renames a tree with this number of files, and back.
auto Moving(int files) {
    const std::string name = "tree" + std::to_string(files);
    fs::create_directories(name);
    for (int file = 0; file < files; ++file) {
        std::ofstream(name + "/" + std::to_string(file)) << file;
    }
    return [from = ustring(name), to = ustring(name) + "-moved"]() mutable {
        from.swap(to);
        return FSRename(to, from, false);
    };
}

void RegisterRename() {
    Row("rename", Moving(10000), Moving(10));
}

}  // namespace

void RegisterLibraryRows() {
    RegisterLog();
    RegisterConfig();
    RegisterFileInfo();
    RegisterRename();
}
