// Starting the program over.
#include "platform/desktop/start-over.h"

#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

// In the new start's environment, and taken out of it again before anything else sees it.
constexpr char kMark[] = "QUILLMERE_START_WITHOUT";

// Made beforehand: where StartOver is called, memory may be past use.
struct Start {
    explicit Start(char** given) {
        for (; *given != nullptr; ++given) {
            arguments.push_back(*given);
        }
        arguments.push_back(nullptr);
        for (char** variable = environ; *variable != nullptr; ++variable) {
            texts.emplace_back(*variable);
        }
        texts.push_back(std::string(kMark) + "=0");
        for (std::string& text : texts) {
            variables.push_back(text.data());
        }
        variables.push_back(nullptr);
    }

    std::vector<char*> arguments;
    std::vector<std::string> texts;
    std::vector<char*> variables;
    Without without = Without::kNothing;
};

Start* start;  // never freed: exit handlers use it

}  // namespace

Without PrepareStartOver(char** argv) {
    const char* const mark = std::getenv(kMark);
    const int level = mark == nullptr ? 0 : std::atoi(mark);
    unsetenv(kMark);
    start = new Start(argv);
    if (level == static_cast<int>(Without::kSession)) {
        start->without = Without::kSession;
    } else if (level != 0) {
        start->without = Without::kDisplay;
    }
    return start->without;
}

void StartOver(Without without) {
    if (start == nullptr || without <= start->without) {
        return;
    }
    start->texts.back().back() = static_cast<char>('0' + static_cast<int>(without));
    if (without == Without::kDisplay && start->arguments.size() > 1) {
        start->arguments[1] = nullptr;  // a platform can be asked for by an argument too
    }
    execve("/proc/self/exe", start->arguments.data(), start->variables.data());
}
