// The tool's commands: their options, and what they print.
#pragma once

#include <QStringList>
#include <vector>

struct Command {
    const char* name;
    const char* summary;
    // Runs the command; `arguments` are the command's own after its name.
    // Throws Error.
    void (*run)(const QStringList& arguments);
};

// All commands, in the order of the help text.
const std::vector<Command>& Commands();
