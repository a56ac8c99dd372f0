// Messages, and the exception that carries them.
#include "tools/qpk/message.h"

#include "tools/qpk/entry.h"

namespace {

constexpr char kPlaceholder[] = "TEXT";

struct Row {
    int exit_code;
    const char* wrong;
    const char* remedy;
};

constexpr Row kRows[] = {
#define QPK_MESSAGE(name, exit_code, wrong, remedy) {exit_code, wrong, remedy},
#include "tools/qpk/messages.inc"
#undef QPK_MESSAGE
};

const Row& RowOf(Message message) {
    return kRows[static_cast<int>(message)];
}

std::string Filled(std::string text, std::initializer_list<std::string> values) {
    std::size_t at = 0;
    for (const std::string& value : values) {
        at = text.find(kPlaceholder, at);
        text.replace(at, sizeof kPlaceholder - 1, value);
        at += value.size();
    }
    return text;
}

}  // namespace

Finding::Finding(const std::string& subject, Message message,
                 std::initializer_list<std::string> values)
    : exit_code_(RowOf(message).exit_code),
      text_(Visible(subject + ": " + Filled(RowOf(message).wrong, values) + ": " +
                    RowOf(message).remedy)) {}
