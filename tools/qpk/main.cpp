// qpk: packages and bundles for the launcher.
#include <QCoreApplication>
#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tools/qpk/commands.h"
#include "tools/qpk/message.h"

namespace {

void PrintHelp() {
    std::printf(
        "Usage: qpk COMMAND [OPTION]...\nMake and check packages and bundles for the "
        "launcher.\n\nCommands:\n");
    for (const Command& command : Commands()) {
        std::printf("  %-8s%s\n", command.name, command.summary);
    }
    std::printf(
        "\nRun \"qpk COMMAND --help\" for the options of a command, \"qpk --version\" for the "
        "version.\n"
        "Exit status: 0 success, 1 faults in a client or package, 2 wrong usage, 3 other "
        "errors.\n");
}

const Command& Find(const QString& name) {
    const std::vector<Command>& commands = Commands();
    const auto found =
        std::find_if(commands.begin(), commands.end(),
                     [&name](const Command& command) { return name == command.name; });
    if (found == commands.end()) {
        throw name.isEmpty() ? Error("COMMAND", Message::kArgumentMissing)
                             : Error(name.toStdString(), Message::kUnknownCommand);
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

// Result: the exit code.
int Report(const Error& error) {
    for (const Finding& finding : error.findings()) {
        std::fprintf(stderr, "qpk: %s\n", finding.text().c_str());
    }
    return error.exit_code();
}

}  // namespace

int main(int argc, char** argv) {
    // File names are UTF-8 in any locale, for Qt and for libarchive.
    setenv("LC_ALL", "C.UTF-8", 1);
    const QCoreApplication application(argc, argv);
    std::setlocale(LC_ALL, "C.UTF-8");
    try {
        Run(QCoreApplication::arguments());
        if (std::fflush(stdout) != 0) {
            throw Error("standard output", Message::kCannotWrite, {std::strerror(errno)});
        }
        return 0;
    } catch (const Error& error) {
        return Report(error);
    } catch (const std::exception& error) {
        return Report(Error("qpk", Message::kInternal, {error.what()}));
    }
}
