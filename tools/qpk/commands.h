// The tool's commands: their options, and what they print.
#pragma once

#include <QStringList>
#include <stdexcept>
#include <vector>

// Arguments that do not fit the command: exit code 2.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct Command {
    const char* name;
    const char* summary;
    // Runs the command; `arguments` begin with the program and go on behind the command's name.
    // Throws UsageError, Refused or Failure.
    void (*run)(const QStringList& arguments);
};

// All commands, in the order of the help text.
const std::vector<Command>& Commands();
