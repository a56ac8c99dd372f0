// Compares ustring and the path functions with std::string.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "file/file-op.h"
#include "ustring/ustring.h"

namespace {

void Check(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void CheckSearches(const ustring& text, const std::string& model, const std::string& set,
                   unsigned long pos) {
    // They differ at the end of the text, where ustring finds nothing.
    const bool forward = pos < model.size();
    const unsigned long back = model.empty() ? 0 : std::min(pos, model.size() - 1);
    const auto none = ustring::npos;
    Check(text.find(set, pos) == (forward ? model.find(set, pos) : none));
    Check(text.find_first_of(set, pos) == model.find_first_of(set, pos));
    Check(text.find_first_not_of(set, pos) == (forward ? model.find_first_not_of(set, pos) : none));
    Check(text.rfind(set, pos) == (model.empty() ? none : model.rfind(set, back)));
    Check(text.find_last_of(set, pos) == model.find_last_of(set, pos));
    Check(text.find_last_not_of(set, pos) == model.find_last_not_of(set, pos));
}

void CheckPaths(const std::string& path, const std::string& other) {
    const std::size_t slash = path.rfind('/');
    const bool none = slash == path.npos;
    Check(FSBaseName(path) == (none ? path : path.substr(slash + 1)));
    Check(FSParentPath(path) == (none || slash == 0 ? "/" : path.substr(0, slash)));
    Check(FSIsParentFolder(other, path) == (path == other || path.rfind(other + "/", 0) == 0));
}

// Changes both. Fills the UTF-16 text, so that it must follow the changes.
void Change(ustring& text, std::string& model, int step, unsigned char byte,
            const std::string& other) {
    const char character = static_cast<char>(byte | 1);
    const bool valid = ustring::is_valid(text);
    Check(ustring(text.c_str_utf16()) == (valid ? model : std::string()));
    if (step == 0) {
        text = other;
        model = other;
    } else if (step == 1) {
        text.append(other, 0, byte);
        model.append(other, 0, byte);
    } else if (step == 2) {
        text.append(character, 3);
        model.append(3, character);
    } else if (step == 3) {
        text.trim(other.c_str());
        model.erase(0, std::min(model.size(), model.find_first_not_of(other)));
        model.erase(model.find_last_not_of(other) + 1);
    } else if (step == 4 && !model.empty()) {
        const char first = model[0];
        text.replace(first, character);
        std::replace(model.begin(), model.end(), first, character);
    } else if (step == 5 && byte <= model.size()) {
        text = text.substr(byte, other.size());
        model = model.substr(byte, other.size());
    } else if (step == 6 && valid && ustring::is_valid(other)) {
        text += ustring(other).c_str_utf16();
        model += other;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::cerr.rdbuf(nullptr);  // ignores warnings about texts that are not UTF-8
    FuzzedDataProvider input(data, size);
    ustring text;
    std::string model;
    while (input.remaining_bytes() > 0) {
        const int step = input.ConsumeIntegralInRange(0, 6);
        const auto byte = input.ConsumeIntegral<unsigned char>();
        const std::string other = input.ConsumeRandomLengthString(40).c_str();
        Change(text, model, step, byte, other);
        Check(text.c_str() == model && text.length() == model.size());
        CheckSearches(text, model, other, byte);
        CheckPaths(model, other);
    }
    return 0;
}
