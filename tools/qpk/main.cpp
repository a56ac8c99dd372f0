// qpk: packages and bundles for the launcher.
#include <QCoreApplication>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "tools/qpk/commands.h"
#include "tools/qpk/error.h"

namespace {

enum ExitCode { kDone = 0, kRefused = 1, kUsage = 2, kFailed = 3 };

void PrintHelp() {
    std::printf(
        "Usage: qpk COMMAND [OPTION]...\nPackages and bundles for the launcher.\n\nCommands:\n");
    for (const Command& command : Commands()) {
        std::printf("  %-8s%s\n", command.name, command.summary);
    }
    std::printf(
        "\n\"qpk COMMAND --help\" tells the options of a command, \"qpk --version\" the version.\n"
        "Exit code: 0 done, 1 faults were found, 2 wrong arguments, 3 something failed.\n");
}

const Command& Find(const QString& name) {
    const std::vector<Command>& commands = Commands();
    const auto found =
        std::find_if(commands.begin(), commands.end(),
                     [&name](const Command& command) { return name == command.name; });
    if (found == commands.end()) {
        throw UsageError(name.isEmpty() ? "a command is missing"
                                        : "no such command: " + name.toStdString());
    }
    return *found;
}

void Run(QStringList arguments) {
    const QString first = arguments.value(1);
    if (first == "--help" || first == "-h") {
        PrintHelp();
    } else if (first == "--version") {
        std::printf("qpk %s\n", QPK_VERSION);
    } else {
        const Command& command = Find(first);
        arguments.removeAt(1);
        arguments[0] = "qpk " + first;
        command.run(arguments);
    }
}

}  // namespace

int main(int argc, char** argv) {
    // Names of files are UTF-8 whatever the locale, for Qt and for libarchive.
    setenv("LC_ALL", "C.UTF-8", 1);
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_ALL, "C.UTF-8");
    try {
        Run(QCoreApplication::arguments());
        if (std::fflush(stdout) != 0) {
            throw Failure("cannot write to standard output");
        }
        return kDone;
    } catch (const Refused& refused) {
        for (const Finding& finding : refused.findings()) {
            std::fprintf(stderr, "qpk: %s\n", ToString(finding).c_str());
        }
        return kRefused;
    } catch (const UsageError& error) {
        std::fprintf(stderr, "qpk: %s; see qpk --help\n", error.what());
        return kUsage;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "qpk: %s\n", error.what());
        return kFailed;
    }
}
