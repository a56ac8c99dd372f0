// ustring, std::string, and ICU's strings for Unicode.
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <map>
#include <string>

#include "bench/micro.h"
#include "ustring/ustring.h"

namespace {

constexpr char kDirectory[] = "/home/user/.Quillmere/Quillmere.app/Contents/Resources";
constexpr char kPath[] = "/home/user/.Quillmere/Quillmere.app/Contents/Resources/INFO";
constexpr char kOther[] = "/home/user/.Quillmere/Quillmere.app/Contents/Resources/INFP";
constexpr char kName[] = "quillmere-ui";
// Decomposed German and French, Japanese, and ASCII.
constexpr char kMixed[] =
    "/home/u\xCC\x88ser/Pre\xCC\x81sentation/\xE8\xB3\x87\xE6\x96\x99/Gro\xCC\x88\xC3\x9F"
    "e/\xE3\x83\x95\xE3\x82\xA1\xE3\x82\xA4\xE3\x83\xAB.txt";

std::string Key(int number) {
    return "/home/user/.Quillmere/Quillmere.app/Contents/" + std::to_string(number * 7919 % 1000);
}

template <class Text>
std::map<Text, int> Map() {
    std::map<Text, int> map;
    for (int i = 0; i < 100; ++i) {
        map[Text(Key(i).c_str())] = i;
    }
    return map;
}

template <class Text>
auto LookUp() {
    return [map = Map<Text>(), key = Text(Key(42).c_str())] { return map.find(key)->second; };
}

template <class Text>
auto Concatenate() {
    return [directory = Text(kDirectory)] { return directory + "/" + kName; };
}

std::string ComposedByIcu(const char* text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const normalizer = icu::Normalizer2::getNFCInstance(status);
    std::string composed;
    return normalizer->normalize(icu::UnicodeString::fromUTF8(text), status).toUTF8String(composed);
}

void RegisterComposing(const std::string& name, const char* text) {
    // A new text each time, without a cached UTF-16 text.
    Row(
        name, [text] { return ustring(text).normalize(ustring::NFC); },
        [text] { return ComposedByIcu(text); });
}

void RegisterConversion(const std::string& name, const char* text) {
    Row(
        name, [text] { return ustring(ustring(text).c_str_utf16()); },
        [text] {
            const icu::UnicodeString wide = icu::UnicodeString::fromUTF8(text);
            std::string back;
            return wide.toUTF8String(back);
        });
}

}  // namespace

void RegisterStringRows() {
    const auto construct = [] { return ustring(kPath); };
    Row("string-construct", construct, [] { return std::string(kPath); });
    Row(
        "string-copy", [text = ustring(kPath)] { return ustring(text); },
        [text = std::string(kPath)] { return std::string(text); });
    Row("string-concatenate", Concatenate<ustring>(), Concatenate<std::string>());
    Row(
        "string-find", [text = ustring(kPath)] { return text.find("/INFO", 0); },
        [text = std::string(kPath)] { return text.find("/INFO", 0); });
    Row(
        "string-rfind", [text = ustring(kPath)] { return text.rfind("/Contents", ustring::npos); },
        [text = std::string(kPath)] { return text.rfind("/Contents", std::string::npos); });
    Row(
        "string-compare", [a = ustring(kPath), b = ustring(kOther)] { return a.compare(b); },
        [a = std::string(kPath), b = std::string(kOther)] { return a.compare(b); });
    Row("string-map", LookUp<ustring>(), LookUp<std::string>());
    RegisterConversion("utf16-ascii", kPath);
    RegisterConversion("utf16-mixed", kMixed);
    RegisterComposing("nfc-ascii", kPath);
    RegisterComposing("nfc-mixed", kMixed);
}
