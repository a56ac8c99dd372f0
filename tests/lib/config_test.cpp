// Tests of the reader of key and value files: which lines it takes, and what a refusal leaves.
#include "config.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <map>
#include <string>

#include "tests/temp_dir.h"

namespace {

using namespace std::string_literals;

std::string Text(const Config& config) {
    std::string text;
    for (const auto& entry : config) {
        text += "("s + entry.first.c_str() + ":" + entry.second.c_str() + ")";
    }
    return text;
}

// What reading these lines gives and makes of a map with an entry.
std::string Read(const std::string& lines) {
    const TempDir dir;
    WriteFile(dir / "file", lines);
    Config config;
    config["~"] = "former";
    const int result = config.read(dir / "file");
    return std::to_string(result) + Text(config);
}

TEST(ConfigTest, TakesTheseLines) {
    static const char* const kRows[][2] = {
        {" k = v # w\n", "(k:v)"},    {"k=\"a b\"\nl=\"\"\n", "(k:a b)(l:)"},
        {"k='a#\"'#\n", "(k:a#\")"},  {"E-y_1.=v", "(E-y_1.:v)"},
        {"k=b=c#d\n", "(k:b=c#d)"},   {"k = #c\n", "(k:#c)"},
        {"\n=v\n", "(:v)"},           {"k=é #é\n", "(k:é)"},
        {"k=1\nk=2\n", "(k:2)"},      {"k=v\r\nl=''\r\n", "(k:v)(l:)"},
        {"k\v=\f\"'\"\t#\n", "(k:')"}};
    for (const auto& row : kRows) {
        EXPECT_EQ(Read(row[0]), "0"s + row[1] + "(~:former)") << row[0];
    }
    for (const char* line : {"", "\n \t\n", " # a=b\n", "k#c\n", "k"}) {
        EXPECT_EQ(Read(line), "0(~:former)") << line;
    }
    EXPECT_EQ(Read("k=a\0b c\n\0[x]\n"s), "0(k:a)(~:former)");
    const std::string longest(8189, 'x');  // with "k=", what one read takes
    EXPECT_EQ(Read("k=" + longest + "l=2\n"), "0(k:" + longest + ")(l:2)(~:former)");
}

TEST(ConfigTest, OneOfTheseLinesRefusesTheWholeFile) {
    const int free_descriptor = dup(0);
    close(free_descriptor);
    for (const char* line :
         {"key\n",      "key=\n",      "key=",       "key = a b\n", "key=   # why\n",
          "key #why\n", "ke y=1\n",    "k:v\n",      "[Version]\n", ";comment\n",
          "k=\"abc\n",  "k='abc",      "k=\"a\"b\n", "k='a\"\n",    "é=1\n",
          "k='a\tb'\n", "k='a\x7F'\n", "k=a\x7F\n",  "k=a\x01\n",   "k\nm=2\n"}) {
        EXPECT_EQ(Read("good=1\n"s + line), "-1") << line;
    }
    EXPECT_EQ(dup(0), free_descriptor) << "a file stayed open";
    close(free_descriptor);
}

TEST(ConfigTest, GetIntTakesTheLeadingNumber) {
    Config config;
    for (const auto& [value, number] :
         std::map<std::string, int>{{"", 0}, {"+7", 7}, {"-3", -3}, {"12abc", 12}, {"abc", 0}}) {
        config["k"] = value;
        EXPECT_EQ(config.get_int("k"), number) << value;
    }
    EXPECT_EQ(config.get_int("missing"), 0);
    EXPECT_EQ(Text(config), "(k:abc)(missing:)");
}

TEST(ConfigTest, AFileThatCannotBeOpenedLeavesTheMap) {
    Config config;
    config["k"] = "v";
    EXPECT_EQ(config.read(""), -1);
    EXPECT_EQ(config.read(TempDir() / "missing"), -1);
    EXPECT_EQ(Text(config), "(k:v)");
}

}  // namespace
