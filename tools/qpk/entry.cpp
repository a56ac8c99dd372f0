// A file, directory or link of a client, from its directory or a package.
#include "tools/qpk/entry.h"

#include <cstdio>

std::string Visible(const std::string& name) {
    std::string text;
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F) {
            char escaped[5];
            std::snprintf(escaped, sizeof escaped, "\\x%02X", byte);
            text += escaped;
        } else {
            text += c;
        }
    }
    return text;
}
