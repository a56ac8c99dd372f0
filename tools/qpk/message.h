// Messages, and the exception that carries them.
#pragma once

#include <exception>
#include <initializer_list>
#include <string>
#include <vector>

// One for each row of messages.inc.
enum class Message {
#define QPK_MESSAGE(name, exit_code, wrong, remedy) name,
#include "tools/qpk/messages.inc"
#undef QPK_MESSAGE
};

// A fault.
class Finding {
  public:
    // `subject` is a file, an entry of a client or package, an option or a command. `values`
    // replace the message's TEXTs in their order.
    Finding(const std::string& subject, Message message,
            std::initializer_list<std::string> values = {});

    int exit_code() const { return exit_code_; }

    // "SUBJECT: what is wrong: what to do", with escaped control characters.
    const std::string& text() const { return text_; }

  private:
    int exit_code_;
    std::string text_;
};

using Findings = std::vector<Finding>;

// An operation failed because of at least one fault.
class Error : public std::exception {
  public:
    // `findings` must not be empty.
    explicit Error(const Findings& findings) : findings_(findings) {}
    explicit Error(const std::string& subject, Message message,
                   std::initializer_list<std::string> values = {})
        : findings_{Finding(subject, message, values)} {}

    const char* what() const noexcept override { return findings_.front().text().c_str(); }
    int exit_code() const { return findings_.front().exit_code(); }
    const Findings& findings() const { return findings_; }

  private:
    Findings findings_;
};
