// Tests of ustring: both texts after each operation, searches, comparisons, capacities.
#include "ustring/ustring.h"

#include <algorithm>
#include <cstring>
#include <iostream>

#include "tests/support.h"

struct ustring_test_peer {
    static unsigned long units(ustring const& s) { return s.wdata_length; }
    static unsigned long capacity(ustring const& s) { return s.data_capacity; }
    static unsigned long unit_capacity(ustring const& s) { return s.wdata_capacity; }
};

namespace {

using Peer = ustring_test_peer;
constexpr unsigned long kNone = ustring::npos;
const unsigned short kUnits[] = {u'é', u'z', 0};
constexpr unsigned short kUnit = u'é';

// A statement that changes the ustring `s`, and its source text.
#define CHANGE(...) #__VA_ARGS__, [](auto& s) { __VA_ARGS__; }

std::string Utf8(ustring const& s) {
    EXPECT_EQ(s.length(), std::strlen(s.c_str()));
    EXPECT_LT(s.length(), Peer::capacity(s));
    return s.c_str();
}

std::u16string Utf16(ustring const& s) {
    unsigned short const* const units = s.c_str_utf16();
    std::u16string text(units, units + Peer::units(s));
    EXPECT_EQ(units[text.size()], 0);
    EXPECT_LT(text.size(), Peer::unit_capacity(s));
    return text;
}

// Captures std::cerr in a scope.
struct CerrCapture : std::ostringstream {
    ~CerrCapture() override { std::cerr.rdbuf(former); }
    std::streambuf* const former = std::cerr.rdbuf(rdbuf());
};

TEST(UstringChangeTest, EachChangeUpdatesBothTexts) {
    static const struct {
        char const* name;
        void (*change)(ustring&);
        char const *text, *outcome;  // of the UTF-16 text after the change, or the exception
    } kRows[] = {
        {CHANGE(s.append("b").append("cd", 1).append("e", 9)), "aébce", "dropped"},
        {CHANGE(s.append('f', 1)), "aéf", "dropped"},
        {CHANGE(s += 'c'), "aéc", "dropped"},
        {CHANGE((((s = "e") += "b") += 'c') += std::string("d\0e", 3)), "ebcd", "dropped"},
        {CHANGE(((s += kUnits) += kUnit).append(kUnits, 1).append(kUnit, 2)), "aéézéééé", "built"},
        {CHANGE(s.assign(ustring("bcd"), 1, 1).append(ustring("fgh"), 1, 1)), "cg", "dropped"},
        {CHANGE(s.assign('b', 9).assign(std::string("bcd"), 1, 9)), "cd", "dropped"},
        {CHANGE(s = std::string("b\0c", 3)), "b", "dropped"},
        {CHANGE((s = 'b') += ustring('c')), "bc", "dropped"},
        {CHANGE(s.assign(kUnit, 9) = kUnits), "éz", "built"},
        {CHANGE(s = kUnit), "é", "built"},
        {CHANGE(s.assign("bcd", 2)), "bc", "dropped"},
        {CHANGE(s.assign(kUnits, 1)), "é", "built"},
        {CHANGE(s.append(s.c_str()).append(s.c_str(), 1)), "aéaéa", "dropped"},
        {CHANGE(s.append(s.c_str_utf16()).append(s.c_str_utf16(), 1)), "aéaéa", "built"},
        {CHANGE((s += s).append(s, 4, 9)), "aéaéé", "dropped"},
        {CHANGE(s.assign(s, 1, kNone)), "é", "dropped"},
        {CHANGE(s.assign(s.c_str()).assign(s.c_str(), 3)), "aé", "built"},
        {CHANGE(s.assign(s.c_str(), 1)), "a", "dropped"},
        {CHANGE(s.assign(s.c_str_utf16()).assign(s.c_str_utf16(), 2)), "aé", "built"},
        {CHANGE(s.assign(s.c_str_utf16(), 1)), "a", "built"},
        {CHANGE(ustring other(kUnits + 1); swap(s, other)), "z", "built"},
        {CHANGE(s.trim("b"), s.trim(""), s.replace('b', 'c'), s.replace(0, 'c')), "aé", "built"},
        {CHANGE(s.replace('a', 'a')), "aé", "built"},
        {CHANGE(s.ltrim("a")), "é", "dropped"},
        {CHANGE(s.rtrim(ustring("é"))), "a", "dropped"},
        {CHANGE(s.ltrim(ustring("éa"))), "", "dropped"},
        {CHANGE(s.rtrim("éa")), "", "dropped"},
        {CHANGE(s = "xyaxy", s.trim(ustring("yx"))), "a", "dropped"},
        {CHANGE(s.replace('a', '\xFF'), s.replace('\xFF', 'b')), "bé", "dropped"},
        {CHANGE((s + '\0' + s.substr(1, 9) + "b" + kUnits + kUnit).swap(s)), "aéébézé", "dropped"},
        {CHANGE(std::stringstream(" b\n c") >> s), "b", "dropped"},
        {CHANGE(std::stringstream(" ") >> s), "", "dropped"},
        {CHANGE(std::stringstream out; out << s << ustring("\xFF") << s; s = out.str()), "aé\377aé", "dropped"},
        {CHANGE(s.substr(4, 1)), "aé", "substr"},
        {CHANGE(s.assign(ustring("x"), 2, 1)), "aé", "substr"},
        {CHANGE(s.append(ustring("x"), 2, 1)), "aé", "substr"},
        {CHANGE(s.assign(std::string("x"), 2, 1)), "aé", "basic_string::substr"},
        {CHANGE(s.append(std::string("x"), 2, 1)), "aé", "basic_string::substr"},
        {CHANGE(s.append('x', kNone)), "aé", "std::bad_alloc"},
        {CHANGE(s.append(kUnit, kNone / 2)), "aé", "std::bad_alloc"},
    };
    for (const bool built : {false, true}) {
        for (auto const& row : kRows) {
            SCOPED_TRACE(std::string(row.name) + (built ? ", with its view built" : ""));
            ustring s("aé");
            EXPECT_EQ(built ? Utf16(s) : u"aé", u"aé");
            std::string outcome;
            try {
                row.change(s);
                outcome = Peer::units(s) == 0 ? "dropped" : "built";
            } catch (std::exception const& e) { outcome = e.what(); }
            EXPECT_EQ(Utf8(s), row.text);
            EXPECT_EQ(Utf16(s), Utf16(ustring(row.text)));
            EXPECT_TRUE(outcome == row.outcome || !built) << outcome;
        }
    }
}

TEST(UstringConversionTest, AFailedConversionWarnsAndGivesAnEmptyText) {
    CerrCapture cerr;
    for (char const* text : {"\xFF", "\x80", "a\x80", "\xC3", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        SCOPED_TRACE(testing::PrintToString(text));
        cerr.str("");
        ustring s(text);
        EXPECT_FALSE(ustring::is_valid(s));
        EXPECT_EQ(Utf16(s), u"");
        EXPECT_EQ(cerr.str(), "Warning: u_strFromUTF8: error code 10 at line 921\n");
        EXPECT_EQ(Utf8(s.normalize(ustring::NFC)), "");
        EXPECT_EQ(Utf8(s), text);
        EXPECT_EQ(Utf8(s.append(kUnit, 1)), "é");  // not after the old text
    }
    ustring s("a\U0001F600");
    s.assign(s.c_str_utf16(), 2);  // half of a pair
    EXPECT_EQ(Utf8(s), "");
    EXPECT_EQ(Peer::units(s), 0u);
    EXPECT_NE(cerr.str().find("Warning: u_strToUTF8: error code 10 at line 888\n"), kNone);
}

TEST(UstringConversionTest, ConvertsBothWaysAndNormalizes) {
    const unsigned short units[] = {'a', 0xE9, 0x6F22, 0xD83D, 0xDE00, 0};
    EXPECT_EQ(Utf8(ustring("a") += static_cast<unsigned short>(0x80)), "a\u0080");
    EXPECT_EQ(Utf8(units), "aé漢😀");
    EXPECT_EQ(Utf16("aé漢😀"), u"aé漢😀");
    EXPECT_TRUE(ustring::is_valid("aé漢😀"));
    EXPECT_TRUE(ustring::is_valid(""));
    // Marks in another order, a syllable, and a ligature, which has no composed form.
    const ustring source("e\u0301 \u00E9 \u00E2\u0323 \uAC01 \uFB01");
    const ustring decomposed = source.normalize(ustring::NFD);
    EXPECT_EQ(Utf8(source.normalize(ustring::NFC)), "\u00E9 \u00E9 \u1EAD \uAC01 \uFB01");
    EXPECT_EQ(Utf8(decomposed), "e\u0301 e\u0301 a\u0323\u0302 \u1100\u1161\u11A8 \uFB01");
    EXPECT_EQ(Utf16(decomposed), Utf16(decomposed.c_str()));
}

// All texts of up to `length` bytes of three kinds.
std::vector<std::string> Texts(std::size_t length) {
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; texts[i].size() < length; ++i) {
        for (const char byte : {'a', 'b', '\xFF'}) { texts.push_back(texts[i] + byte); }
    }
    return texts;
}

// `needle` is `set` in another type. From the end of the text on, ustring finds nothing.
template <class Needle>
void TestSearches(std::string const& text, std::string const& set, Needle const& needle, unsigned long pos) {
    SCOPED_TRACE(testing::Message() << "'" << set << "' in '" << text << "' from " << pos);
    const ustring s(text);
    const bool within = pos < text.size();
    const unsigned long last = std::min<unsigned long>(pos, text.size() - 1);
    EXPECT_EQ(s.find(needle, pos), within ? text.find(set, pos) : kNone);
    EXPECT_EQ(s.find_first_of(needle, pos), text.find_first_of(set, pos));
    EXPECT_EQ(s.find_first_not_of(needle, pos), within ? text.find_first_not_of(set, pos) : kNone);
    EXPECT_EQ(s.rfind(needle, pos), text.empty() ? kNone : text.rfind(set, last));
    EXPECT_EQ(s.find_last_of(needle, pos), text.find_last_of(set, pos));
    EXPECT_EQ(s.find_last_not_of(needle, pos), text.find_last_not_of(set, pos));
}

TEST(UstringSearchTest, FindsWhatAStdStringFinds) {
    for (std::string const& text : Texts(4)) {
        for (std::string const& set : Texts(2)) {
            for (const unsigned long pos : {0ul, 1ul, 2ul, 3ul, 4ul, 5ul, kNone}) {
                TestSearches(text, set, set.c_str(), pos);
                TestSearches(text, set, ustring(set), pos);
                TestSearches(text, set, set + '\0' + "a", pos);
                if (set.size() == 1) { TestSearches(text, set, set[0], pos); }
            }
        }
    }
}

// A NUL inside the text hides the rest of it.
TEST(UstringSearchTest, StopsAtANulInsideTheText) {
    ustring s("ab-cd");
    s[2] = '\0';
    EXPECT_EQ(s.find('c', 0), kNone);
    EXPECT_EQ(s.find_first_of('c', 0), kNone);
    EXPECT_EQ(s.rfind('c', kNone), 3u);
    s.append('\0', 3);
    EXPECT_EQ(s.length(), 8u);
    EXPECT_TRUE(s == "ab");
    EXPECT_EQ(s.compare("ab", 9), 0);
    EXPECT_EQ(Utf8(ustring(s)), "ab");
    EXPECT_EQ(Utf16(s), u"ab");
    ustring other("ab");
    other.append('\0', 6).append("hidden");
    EXPECT_EQ((other + s).length(), 4u);
    EXPECT_EQ(ustring("ab").append('\0', 6).append("other").compare(other), 0);
}

TEST(UstringCompareTest, ReturnsTheDifferenceOfTheFirstDifferentBytes) {
    static const Rows<char const*, char const*, int, int> kRows = {
        {"", "", 0, 0},     {"ab", "a", 98, 98},     {"AZ", "az", -32, 0},
        {"a", "c", -2, -2}, {"@", "`", -32, -32},    {"ABC", "abd", -32, -1},
        {"é", "É", 32, 32}, {"[", "{", -32, -32},    {"\xFF", "\x7F", 128, 128},
        {"_", "A", 30, -2}, {"é", "e\u0301", 94, 94}};
    for (auto const& [left, right, difference, folded] : kRows) {
        SCOPED_TRACE(testing::Message() << left << " and " << right);
        const ustring a(left), b(right);
        EXPECT_EQ(a.compare(b), difference);
        EXPECT_EQ(ustring::compare(b, a, false), -difference);
        EXPECT_EQ(ustring::compare(a, b, true), folded);
        EXPECT_EQ(a == b, difference == 0);
        EXPECT_EQ(a != b, difference != 0);
        EXPECT_EQ(a < b, difference < 0);
        EXPECT_EQ(a >= b, difference >= 0);
        EXPECT_EQ(a > b, difference > 0);
        EXPECT_EQ(a <= b, difference <= 0);
    }
    EXPECT_EQ(ustring("abc").compare("abd", 2), 0);
    EXPECT_EQ(ustring("abc").compare("abd", 3), -1);
}

// An exact fit, but a block that is up to twice as large as necessary stays.
TEST(UstringCapacityTest, FollowsTheText) {
    const auto capacities = [](ustring const& s) { return std::pair(Peer::capacity(s), Peer::unit_capacity(s)); };
    ustring s, other;
    EXPECT_EQ(capacities(s), std::pair(4ul, 4ul));
    s.c_str_utf16();
    EXPECT_EQ(capacities(s), std::pair(4ul, 1ul));
    for (const auto& [text, capacity] : std::initializer_list<std::pair<char const*, unsigned long>>{
             {"abcdefghij", 11}, {"abcde", 11}, {"abcd", 11}, {"abc", 4}, {"", 1}, {"abcde", 6}}) {
        s.assign(text);
        EXPECT_EQ(Peer::capacity(s), capacity) << text;
    }
    s.trim("abcde");
    s.swap(other);
    EXPECT_EQ(capacities(s), std::pair(4ul, 4ul));
    EXPECT_EQ(capacities(other), std::pair(6ul, 1ul));
}

}  // namespace
