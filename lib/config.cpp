// The strict line parser of Config.
#include "config.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <sstream>

#include "free-by.h"

namespace {

constexpr int kLineBuffer = 0x2000;

using File = std::unique_ptr<std::FILE, FreeBy<std::fclose>>;

// <cctype> depends on the locale; the syntax does not.
bool IsSpace(char c) {
    return (c >= '\t' && c <= '\r') || c == ' ';
}

bool IsKeyCharacter(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
           c == '-' || c == '.';
}

bool IsQuote(char c) {
    return c == '"' || c == '\'';
}

bool IsControl(char c) {
    const unsigned char byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

bool EndsLine(char c) {
    return c == 0 || c == '#';
}

const char* SkipSpace(const char* at) {
    while (IsSpace(*at)) {
        ++at;
    }
    return at;
}

// Both read a value at `at` and move `at` after it. Result: false if the value is malformed.
bool TakeQuoted(const char*& at, ustring& value) {
    const char quote = *at++;
    const char* const start = at;
    while (*at != quote) {
        if (IsControl(*at)) {
            return false;
        }
        ++at;
    }
    value.assign(start, static_cast<unsigned long>(at - start));
    ++at;
    return true;
}

bool TakePlain(const char*& at, ustring& value) {
    const char* const start = at;
    while (!IsControl(*at) && *at != ' ') {
        ++at;
    }
    value.assign(start, static_cast<unsigned long>(at - start));
    return at != start;
}

// Adds lines to a map. Its members save allocations, and searches if the keys are sorted.
class Lines {
  public:
    explicit Lines(Config& config) : config_(config), last_(config.end()) {}

    // Stores the key and value of a line, if any. Result: false if the line is malformed.
    bool Parse(const char* line) {
        const char* at = SkipSpace(line);
        const char* const key = at;
        while (IsKeyCharacter(*at)) {
            ++at;
        }
        if (EndsLine(*at)) {
            return true;
        }
        key_.assign(key, static_cast<unsigned long>(at - key));
        at = SkipSpace(at);
        if (*at != '=') {
            return false;
        }
        at = SkipSpace(at + 1);
        if (!(IsQuote(*at) ? TakeQuoted(at, value_) : TakePlain(at, value_))) {
            return false;
        }
        if (!EndsLine(*SkipSpace(at))) {
            return false;
        }
        last_ = config_.insert_or_assign(last_, key_, value_);
        return true;
    }

  private:
    Config& config_;
    Config::iterator last_;
    ustring key_;
    ustring value_;
};

}  // namespace

int Config::read(const ustring& path) {
    if (path.empty()) {
        return -1;
    }
    const File file(std::fopen(path.c_str(), "r"));
    if (!file) {
        return -1;
    }
    Lines lines(*this);
    char line[kLineBuffer];
    while (std::fgets(line, sizeof line, file.get()) != nullptr) {
        if (!lines.Parse(line)) {
            clear();
            return -1;
        }
    }
    return 0;
}

int Config::get_int(const ustring& key) {
    std::stringstream text;
    text << (*this)[key];
    int number = 0;
    text >> number;
    return number;
}
