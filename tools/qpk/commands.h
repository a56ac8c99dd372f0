// The commands: their options and their output.
#pragma once

#include <QStringList>
#include <vector>

struct Command {
    const char* name;
    const char* summary;
    // Runs the command; `arguments` are those after its name.
    // Throws Error.
    void (*run)(const QStringList& arguments);
};

// All commands, in the order of the help text.
const std::vector<Command>& Commands();
