// Tests of Config: valid and malformed lines, and numbers.
#include "config.h"

#include <climits>

#include "tests/support.h"

namespace {

// The result of reading a file into a map with an entry, and the map, as text.
std::string Read(const std::string& path) {
    Config config;
    config["~"] = "former";
    std::string text = std::to_string(config.read(path));
    for (const auto& entry : config) { text += "("s + entry.first.c_str() + ":" + entry.second.c_str() + ")"; }
    return text;
}

TEST(ConfigTest, AcceptsValidLinesAndRejectsFilesWithOthers) {
    const TempDir dir;
    const std::string longest(8189, 'x');  // with "k=", the longest line
    const Rows<std::string, std::string> rows = {{" k = v # w\n", "(k:v)"},
                                                 {"k=\"a b\"\nl=\"\"\n", "(k:a b)(l:)"},
                                                 {"k='a#\"'#\n", "(k:a#\")"},
                                                 {"E-y_1.=v", "(E-y_1.:v)"},
                                                 {"k=b=c#d\n", "(k:b=c#d)"},
                                                 {"k = #c\n", "(k:#c)"},
                                                 {"\n=v\n", "(:v)"},
                                                 {"k=é #é\n", "(k:é)"},
                                                 {"k=1\nk=2\n", "(k:2)"},
                                                 {"k=v\r\nl=''\r\n", "(k:v)(l:)"},
                                                 {"k\v=\f\"'\"\t#\n", "(k:')"},
                                                 {"\n \t\n # a=b\nk#c\nk", ""},
                                                 {"k=a\0b c\n\0[x]\n"s, "(k:a)"},
                                                 {"k=" + longest + "l=2\n", "(k:" + longest + ")(l:2)"}};
    for (const auto& [text, entries] : rows) {
        WriteFile(dir / "file", text);
        EXPECT_EQ(Read(dir / "file"), "0" + entries + "(~:former)") << text;
    }
    const long descriptors = OpenDescriptors();
    for (const char* line :
         {"key\n", "key=\n",      "key=",        "key = a b\n", "key=   # why\n", "key #why\n", "ke y=1\n",
          "k:v\n", "[Version]\n", ";comment\n",  "k=\"abc\n",   "k='abc",         "k=\"a\"b\n", "k='a\"\n",
          "é=1\n", "k='a\tb'\n",  "k='a\x7F'\n", "k=a\x7F\n",   "k=a\x01\n",      "k\nm=2\n"}) {
        WriteFile(dir / "file", "good=1\n"s + line);
        EXPECT_EQ(Read(dir / "file"), "-1") << line;
    }
    EXPECT_EQ(Read("") + Read(dir / "missing"), "-1(~:former)-1(~:former)");
    EXPECT_EQ(Read(dir.path()), "0(~:former)");  // a read error counts as the end
    EXPECT_EQ(OpenDescriptors(), descriptors) << "a file stayed open";
}

TEST(ConfigTest, GetIntReturnsTheLeadingDecimalNumber) {
    Config config;
    const Rows<const char*, int> rows = {
        {"", 0}, {"+7", 7}, {"12abc", 12}, {"010", 10}, {" 4", 4}, {"4294967303", INT_MAX}, {"-4294967303", INT_MIN}};
    for (const auto& [value, number] : rows) {
        config["k"] = value;
        EXPECT_EQ(config.get_int("k"), number) << value;
    }
    EXPECT_EQ(config.get_int("missing"), 0);
    EXPECT_EQ(config.count("missing"), 1u);
}

}  // namespace
