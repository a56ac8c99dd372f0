// Tests of the string type: what each operation leaves in its two views, and its byte operations.
#include "ustring/ustring.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <iostream>
#include <map>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

struct ustring_test_peer {
    static unsigned long units(ustring const& s) { return s.wdata_length; }
    static unsigned long capacity(ustring const& s) { return s.data_capacity; }
    static unsigned long unit_capacity(ustring const& s) { return s.wdata_capacity; }
};

namespace {

using Peer = ustring_test_peer;
constexpr unsigned long kNone = ustring::npos;
constexpr unsigned long kAll = ustring::npos;
const unsigned short kUnits[] = {u'é', u'z', 0};
constexpr unsigned short kUnit = u'é';

// A statement on the ustring `s`, with its own text for the trace.
#define CHANGE(...) #__VA_ARGS__, [](ustring & s) { __VA_ARGS__; }
using Change = void (*)(ustring&);

std::string Text(ustring const& s) {
    EXPECT_EQ(s.length(), std::strlen(s.c_str()));
    return s.c_str();
}

std::u16string Utf16(ustring const& s) {
    unsigned short const* const units = s.c_str_utf16();
    const std::u16string text(units, units + Peer::units(s));
    EXPECT_EQ(units[text.size()], 0);
    return text;
}

// What goes to std::cerr during its life.
class CerrCapture {
  public:
    CerrCapture() : former_(std::cerr.rdbuf(text_.rdbuf())) {}
    ~CerrCapture() { std::cerr.rdbuf(former_); }
    std::string text() const { return text_.str(); }

  private:
    std::ostringstream text_;
    std::streambuf* former_;
};

constexpr char kFromUtf8[] = "Warning: u_strFromUTF8: error code 10 at line 921\n";
constexpr char kToUtf8[] = "Warning: u_strToUTF8: error code 10 at line 888\n";

TEST(UstringStorageTest, ANewTextIsEmptyInBothViews) {
    const ustring s;
    EXPECT_EQ(Text(s), "");
    EXPECT_TRUE(s.empty());
    EXPECT_EQ(Peer::unit_capacity(s), 4u);
    EXPECT_EQ(Utf16(s), u"");
    EXPECT_EQ(Peer::unit_capacity(s), 1u);
}

TEST(UstringStorageTest, BlocksFitExactlyWithSpareRoomOfUpToTheirHalf) {
    static const struct {
        unsigned long length, capacity;
    } kSteps[] = {{3, 4}, {1, 4},     {0, 1},    {9, 10},  {4, 10},
                  {3, 4}, {100, 101}, {49, 101}, {48, 49}, {49, 50}};
    ustring bytes, units;
    for (auto const& step : kSteps) {
        SCOPED_TRACE(step.length);
        bytes.assign('x', step.length);
        units.assign(static_cast<unsigned short>('x'), step.length);
        EXPECT_EQ(Peer::capacity(bytes), step.capacity);
        EXPECT_EQ(Peer::capacity(units), step.capacity);
        EXPECT_EQ(Peer::unit_capacity(units), step.capacity);
        EXPECT_EQ(Text(bytes), std::string(step.length, 'x'));
        EXPECT_EQ(Text(units), Text(bytes));
    }
    bytes.clear();
    EXPECT_EQ(Peer::capacity(bytes), 50u);
}

enum View { kDropped, kBuilt, kKept };

TEST(UstringChangeTest, EachChangeLeavesItsTextAndItsView) {
    static const struct {
        char const* name;
        Change change;
        char const* utf8;
        char16_t const* utf16;
        View view;
    } kRows[] = {
        {CHANGE(s.append("bcd")), "aébcd", u"aébcd", kDropped},
        {CHANGE(s.append("bcd", 2)), "aébc", u"aébc", kDropped},
        {CHANGE(s.append("bcd", 9)), "aébcd", u"aébcd", kDropped},
        {CHANGE(s.append('b', 2)), "aébb", u"aébb", kDropped},
        {CHANGE(s.append(ustring("bcd"), 1, 1)), "aéc", u"aéc", kDropped},
        {CHANGE(s.append(std::string("bcd"), 1, kAll)), "aécd", u"aécd", kDropped},
        {CHANGE(s += std::string("b\0c", 3)), "aéb", u"aéb", kDropped},
        {CHANGE(s += 'b'), "aéb", u"aéb", kDropped},
        {CHANGE(s.append(kUnits)), "aééz", u"aééz", kBuilt},
        {CHANGE(s.append(kUnits, 1)), "aéé", u"aéé", kBuilt},
        {CHANGE(s.append(kUnit, 2)), "aééé", u"aééé", kBuilt},
        {CHANGE(s += kUnits), "aééz", u"aééz", kBuilt},
        {CHANGE(s += kUnit), "aéé", u"aéé", kBuilt},
        {CHANGE(s.assign(ustring("bcd"), 1, 1)), "c", u"c", kDropped},
        {CHANGE(s.assign(std::string("bcd"), 1, 1)), "c", u"c", kDropped},
        {CHANGE(s.assign("bcd", 2)), "bc", u"bc", kDropped},
        {CHANGE(s.assign('b', 2)), "bb", u"bb", kDropped},
        {CHANGE(s.assign(kUnits, 1)), "é", u"é", kBuilt},
        {CHANGE(s.assign(kUnit, 2)), "éé", u"éé", kBuilt},
        {CHANGE(s = ustring(kUnits)), "éz", u"éz", kDropped},
        {CHANGE(s = std::string("b\0c", 3)), "b", u"b", kDropped},
        {CHANGE(s = "bcd"), "bcd", u"bcd", kDropped},
        {CHANGE(s = 'b'), "b", u"b", kDropped},
        {CHANGE(s = kUnits), "éz", u"éz", kBuilt},
        {CHANGE(s = kUnit), "é", u"é", kBuilt},
        // The object as its own source.
        {CHANGE(s.append(s.c_str())), "aéaé", u"aéaé", kDropped},
        {CHANGE(s.append(s.c_str(), 1)), "aéa", u"aéa", kDropped},
        {CHANGE(s.append(s.c_str(), 99)), "aéaé", u"aéaé", kDropped},
        {CHANGE(s.append(s.c_str_utf16())), "aéaé", u"aéaé", kBuilt},
        {CHANGE(s.append(s.c_str_utf16(), 1)), "aéa", u"aéa", kBuilt},
        {CHANGE(s += s), "aéaé", u"aéaé", kDropped},
        {CHANGE(ustring& self = s; s = self), "aé", u"aé", kDropped},
        {CHANGE(s.assign(s, 1, kAll)), "é", u"é", kDropped},
        {CHANGE(s.assign(s.c_str())), "aé", u"aé", kKept},
        {CHANGE(s.assign(s.c_str(), 3)), "aé", u"aé", kKept},
        {CHANGE(s.assign(s.c_str(), 1)), "a", u"a", kDropped},
        {CHANGE(s.assign(s.c_str_utf16())), "aé", u"aé", kBuilt},
        {CHANGE(s.assign(s.c_str_utf16(), 2)), "aé", u"aé", kBuilt},
        {CHANGE(s.assign(s.c_str_utf16(), 1)), "a", u"a", kBuilt},
        {CHANGE(ustring b(kUnits); swap(s, b)), "éz", u"éz", kBuilt},
        {CHANGE(s.clear()), "", u"", kDropped},
    };
    for (const bool built : {false, true}) {
        for (auto const& row : kRows) {
            SCOPED_TRACE(std::string(row.name) + (built ? ", with its view built" : ""));
            ustring s("aé");
            if (built) {
                s.c_str_utf16();
            }
            row.change(s);
            EXPECT_EQ(Text(s), row.utf8);
            EXPECT_EQ(Peer::units(s) != 0, row.view == kBuilt || (row.view == kKept && built));
            EXPECT_EQ(Utf16(s), row.utf16);
        }
    }
}

TEST(UstringChangeTest, ResultsHoldUtf8OnlyAndEndAtTheFirstNul) {
    ustring s(kUnits);
    for (ustring const& result : {ustring(s), s.substr(0, kAll), s + ustring(), s + "", s + '\0',
                                  s + kUnits + "", s + kUnit}) {
        SCOPED_TRACE(result);
        EXPECT_EQ(Text(result).substr(0, 3), "éz");
        EXPECT_EQ(Peer::units(result), 0u);
    }
    EXPECT_EQ(Text(s + ustring("a") + "b" + 'c' + kUnits + kUnit), "ézabcézé");
    ustring nuls;
    nuls.append('\0', 3);
    EXPECT_EQ(nuls.length(), 3u);
    EXPECT_EQ(Text(ustring(nuls)), "");
    EXPECT_EQ(Text(s.substr(2, 1)), "z");
    EXPECT_EQ(Text(s.substr(s.length(), kAll)), "");
}

TEST(UstringChangeTest, ThrowsForAPositionBeyondTheEndAndForACountOutOfMemory) {
    static const struct {
        char const* name;
        Change change;
        char const* what;
        char const* left;
    } kRows[] = {
        {CHANGE(s.substr(4, 1)), "substr", "abc"},
        {CHANGE(s.append(ustring("x"), 2, 1)), "substr", "abc"},
        {CHANGE(s.assign(ustring("x"), 2, 1)), "substr", ""},
        {CHANGE(s.assign(s, 4, 1)), "substr", "abc"},
        {CHANGE(s.append(std::string("x"), 2, 1)), "basic_string::substr", "abc"},
        {CHANGE(s.assign(std::string("x"), 2, 1)), "basic_string::substr", ""},
        {CHANGE(s.append('x', kAll)), "bad_alloc", "abc"},
        {CHANGE(s.append('x', kAll - 3)), "bad_alloc", "abc"},
        {CHANGE(s.append(kUnit, kAll / 2)), "bad_alloc", "abc"},
    };
    for (auto const& row : kRows) {
        SCOPED_TRACE(row.name);
        ustring s("abc");
        std::string what;
        try {
            row.change(s);
        } catch (std::out_of_range const& e) {
            what = e.what();
        } catch (std::bad_alloc const&) {
            what = "bad_alloc";
        }
        EXPECT_EQ(what, row.what);
        EXPECT_EQ(Text(s), row.left);
        EXPECT_EQ(Utf16(s).size(), s.length());
    }
}

TEST(UstringConversionTest, TextThatIsNotUtf8StaysAndHasAnEmptyView) {
    for (char const* text :
         {"\xFF", "a\x80", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        SCOPED_TRACE(testing::PrintToString(text));
        const CerrCapture cerr;
        ustring s(text);
        EXPECT_FALSE(ustring::is_valid(s));
        EXPECT_EQ(cerr.text(), "");
        EXPECT_EQ(Utf16(s), u"");
        EXPECT_EQ(Utf16(s), u"");
        EXPECT_EQ(cerr.text(), std::string(kFromUtf8) + kFromUtf8);  // each request tries again
        EXPECT_EQ(Text(s), text);
        EXPECT_EQ(Text(s.append(kUnit, 1)), "é");  // what has no UTF-16 form is not carried over
    }
}

TEST(UstringConversionTest, ALoneSurrogateEmptiesTheText) {
    const CerrCapture cerr;
    ustring s("abc");
    s += static_cast<unsigned short>(0xD800);
    EXPECT_EQ(Text(s), "");
    EXPECT_EQ(Utf16(s), u"");
    EXPECT_EQ(cerr.text(), kToUtf8);
}

TEST(UstringConversionTest, ValidTextGoesBothWaysWithoutAWord) {
    const CerrCapture cerr;
    const struct {
        char const* utf8;
        std::u16string utf16;
    } kRows[] = {{"", u""},
                 {"a", u"a"},
                 {"é", u"\x00E9"},
                 {"漢", u"漢"},
                 {"😀a",
                  u"\xD83D\xDE00"
                  u"a"},
                 {"e\u0301", u"e\x0301"}};
    for (auto const& row : kRows) {
        SCOPED_TRACE(row.utf8);
        const std::vector<unsigned short> units(row.utf16.c_str(),
                                                row.utf16.c_str() + row.utf16.size() + 1);
        EXPECT_TRUE(ustring::is_valid(row.utf8));
        EXPECT_EQ(Utf16(row.utf8), row.utf16);
        EXPECT_EQ(Text(units.data()), row.utf8);
    }
    EXPECT_EQ(cerr.text(), "");
}

// find, rfind, find_first_of, find_first_not_of, find_last_of, find_last_not_of
using Found = std::array<unsigned long, 6>;

template <class Needle>
Found Search(ustring const& s, Needle const& needle, unsigned long pos) {
    return {s.find(needle, pos),          s.rfind(needle, pos),
            s.find_first_of(needle, pos), s.find_first_not_of(needle, pos),
            s.find_last_of(needle, pos),  s.find_last_not_of(needle, pos)};
}

TEST(UstringSearchTest, EveryFamilyAndEveryKindOfNeedle) {
    static const struct {
        char const* text;
        char const* needle;
        unsigned long pos;
        Found found;
    } kRows[] = {
        {"abcabc", "bc", 0, {1, kNone, 1, 0, kNone, 0}},
        {"abcabc", "bc", 1, {1, 1, 1, 3, 1, 0}},
        {"abcabc", "bc", 2, {4, 1, 2, 3, 2, 0}},
        {"abcabc", "bc", 6, {kNone, 4, kNone, kNone, 5, 3}},
        {"abcabc", "bc", kNone, {kNone, 4, kNone, kNone, 5, 3}},
        {"abc", "abcd", 0, {kNone, kNone, 0, kNone, 0, kNone}},
        {"aaa", "aa", 2, {kNone, 1, 2, kNone, 2, kNone}},
        {"aab", "ab", 0, {1, kNone, 0, kNone, 0, kNone}},
        {"a/b/c", "/", 2, {3, 1, 3, 2, 1, 2}},
        {"/", "/", kNone, {kNone, 0, kNone, kNone, 0, kNone}},
        {"abc", "/", 0, {kNone, kNone, kNone, 0, kNone, 0}},
        {"é", "à", 0, {kNone, kNone, 0, 1, 0, kNone}},  // they share their first byte
        {"", "a", 0, {kNone, kNone, kNone, kNone, kNone, kNone}},
        {"", "", kNone, {kNone, kNone, kNone, kNone, kNone, kNone}},
        {"abc", "", 1, {1, 1, kNone, 1, kNone, 1}},
        {"abc", "", 3, {kNone, 2, kNone, kNone, kNone, 2}},
        {"abc", "", kNone, {kNone, 2, kNone, kNone, kNone, 2}},
    };
    for (auto const& row : kRows) {
        SCOPED_TRACE(testing::Message() << row.needle << " in " << row.text << " from " << row.pos);
        const ustring s(row.text);
        EXPECT_EQ(Search(s, row.needle, row.pos), row.found);
        EXPECT_EQ(Search(s, ustring(row.needle), row.pos), row.found);
        EXPECT_EQ(Search(s, std::string(row.needle) + '\0' + "a", row.pos), row.found);
        if (std::strlen(row.needle) < 2) {
            EXPECT_EQ(Search(s, row.needle[0], row.pos), row.found);
        }
    }
    ustring s("ab-cd");
    s[2] = '\0';
    EXPECT_EQ(s.find('c', 0), kNone);
    EXPECT_EQ(s.find_first_not_of("", 2), kNone);
}

TEST(UstringTrimTest, TakesBytesOfTheSetAndKeepsTheBlock) {
    static const struct {
        char const* text;
        char const* set;
        std::array<char const*, 3> trimmed;  // ltrim, rtrim, trim
    } kRows[] = {
        {"  a b ", " ", {"a b ", "  a b", "a b"}}, {"   ", " ", {"", "", ""}},
        {"xyaxy", "yx", {"axy", "xya", "a"}},      {"a  ", " ", {"a  ", "a", "a"}},
        {"é", "\xA9", {"é", "\xC3", "\xC3"}},      {"a", "b", {"a", "a", "a"}},
        {" a ", "", {" a ", " a ", " a "}},        {"", " ", {"", "", ""}},
    };
    static const struct {
        void (ustring::*by_text)(char const*);
        void (ustring::*by_ustring)(ustring const&);
    } kTrims[] = {{&ustring::ltrim, &ustring::ltrim},
                  {&ustring::rtrim, &ustring::rtrim},
                  {&ustring::trim, &ustring::trim}};
    for (auto const& row : kRows) {
        for (std::size_t i = 0; i < row.trimmed.size(); ++i) {
            SCOPED_TRACE(testing::Message() << "'" << row.text << "' " << i);
            ustring s(row.text), t(row.text);
            const std::size_t units = Utf16(s).size();
            const unsigned long capacity = Peer::capacity(s);
            (s.*kTrims[i].by_text)(row.set);
            (t.*kTrims[i].by_ustring)(row.set);
            EXPECT_EQ(Text(s), row.trimmed[i]);
            EXPECT_EQ(Text(t), row.trimmed[i]);
            EXPECT_EQ(Peer::capacity(s), capacity);
            EXPECT_EQ(Peer::units(s), Text(s) == row.text ? units : 0);
        }
    }
}

TEST(UstringTrimTest, ReplaceDropsTheViewOnlyWhenItChangedAByte) {
    ustring s("banana");
    s.c_str_utf16();
    s.replace('x', 'y');
    s.replace('\0', 'y');
    EXPECT_EQ(Peer::units(s), 6u);
    s.replace('a', '\xFF');
    s.replace('\xFF', 'o');
    EXPECT_EQ(Text(s), "bonono");
    EXPECT_EQ(Utf16(s), u"bonono");
    s.replace('n', '\0');
    EXPECT_EQ(s.length(), 6u);
    EXPECT_EQ(Text(ustring(s)), "bo");
}

TEST(UstringCompareTest, GivesTheDifferenceOfTheFirstBytesThatDiffer) {
    static const struct {
        char const* a;
        char const* b;
        int difference, folded;
    } kRows[] = {
        {"", "", 0, 0},
        {"a", "b", -1, -1},
        {"a", "c", -2, -2},
        {"ab", "a", 98, 98},
        {"ABC", "abd", -32, -1},
        {"ABC", "abc", -32, 0},
        {"é", "É", 32, 32},
        {"@", "`", -32, -32},
        {"[", "{", -32, -32},
        {"AZ", "az", -32, 0},
        {"_", "A", 30, -2},
        {"é", "e\u0301", 94, 94},
        {"\xFF", "\x7F", 128, 128},
    };
    for (auto const& row : kRows) {
        SCOPED_TRACE(testing::Message() << row.a << " and " << row.b);
        const ustring a(row.a), b(row.b);
        const int difference = row.difference;
        EXPECT_EQ(a.compare(b), difference);
        EXPECT_EQ(b.compare(a), -difference);
        EXPECT_EQ(a.compare(b, 0), 0);
        EXPECT_EQ(ustring::compare(a, b, false), difference);
        EXPECT_EQ(ustring::compare(a, b, true), row.folded);
        EXPECT_EQ(
            (std::array<bool, 6>{a == b, a != b, a<b, a> b, a <= b, a >= b}),
            (std::array<bool, 6>{difference == 0, difference != 0, difference<0, difference> 0,
                                 difference <= 0, difference >= 0}));
    }
    EXPECT_EQ(ustring("abc").compare("abd", 2), 0);
    EXPECT_EQ(ustring("abc").compare("abd", 3), -1);
    EXPECT_EQ(ustring("ab").compare("ab", 9), 0);
}

TEST(UstringNormalizeTest, ComposesAndDecomposesWithBothViewsCurrent) {
    static const struct {
        char const* source;
        char const* composed;
        char const* decomposed;
    } kRows[] = {
        {"", "", ""},
        {"abc", "abc", "abc"},
        {"e\u0301", "\u00E9", "e\u0301"},
        {"\u00E9", "\u00E9", "e\u0301"},
        {"\u00E2\u0323", "\u1EAD", "a\u0323\u0302"},  // marks out of order
        {"\uAC01", "\uAC01", "\u1100\u1161\u11A8"},
        {"\uFB01", "\uFB01", "\uFB01"},  // a ligature is no composed form
    };
    for (auto const& row : kRows) {
        SCOPED_TRACE(row.source);
        const ustring source(row.source);
        const ustring composed = source.normalize(ustring::NFC);
        const ustring decomposed = ustring::normalize(source, ustring::NFD);
        EXPECT_EQ(Text(composed), row.composed);
        EXPECT_EQ(Text(decomposed), row.decomposed);
        EXPECT_EQ(Peer::units(composed), Utf16(row.composed).size());
        EXPECT_EQ(Peer::units(decomposed), Utf16(row.decomposed).size());
    }
    const CerrCapture cerr;
    EXPECT_EQ(Text(ustring("\xFF").normalize(ustring::NFC)), "");
    EXPECT_NE(cerr.text().find(kFromUtf8), std::string::npos);
}

TEST(UstringStreamTest, WritesBytesAndReadsTokens) {
    std::stringstream stream;
    ustring s("é \xFF-x");
    s[4] = '\0';
    stream << s << "\n last";
    EXPECT_EQ(stream.str(), "é \xFF\n last");
    std::vector<std::string> read;
    while (stream >> s) {
        read.push_back(Text(s));
    }
    EXPECT_EQ(read, (std::vector<std::string>{"é", "\xFF", "last"}));
    EXPECT_EQ(Text(s), "");
}

TEST(UstringMapTest, KeysAreOrderedByTheirBytes) {
    std::map<ustring, int> map{{"b", 1}, {"é", 2}, {"", 3}, {"ab", 4}, {"a", 5}};
    map[ustring(kUnits).substr(0, 2)] = 6;
    std::string keys;
    for (auto const& entry : map) {
        keys += Text(entry.first) + "=" + std::to_string(entry.second) + " ";
    }
    EXPECT_EQ(keys, "=3 a=5 ab=4 b=1 é=6 ");
}

}  // namespace
