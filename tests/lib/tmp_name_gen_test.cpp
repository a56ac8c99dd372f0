// Tests of the temporary names: the key, the stream and its encoding, and many callers.
#include "tmp_name_gen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <set>
#include <string>
#include <thread>
#include <vector>

struct TmpNameGenTestPeer {
    static unsigned char* state() { return TmpNameGen::getInstance()->m_state; }
    static unsigned char (&key())[256] { return TmpNameGen::getInstance()->m_key; }
};

namespace {

using Bytes = std::vector<unsigned char>;

TEST(TmpNameGenTest, TheStreamOfAKnownKey) {
    TmpNameGen& gen = *TmpNameGen::getInstance();
    unsigned char key[256] = {'4', '2', '-', '7'}, state[256];
    gen.rc4_init(state, key);
    Bytes drawn(600);
    gen.rc4_randomize(state, drawn.data(), 6);
    gen.rc4_randomize(state, nullptr, -1);
    gen.rc4_randomize(state, drawn.data(), 600);
    EXPECT_EQ(Bytes(drawn.end() - 6, drawn.end()), (Bytes{34, 10, 109, 56, 190, 251}));
    gen.rc4_init(TmpNameGenTestPeer::state(), key);
    for (const char* name : {"tM31ZCUx", "WNwf7xlF"}) {
        EXPECT_STREQ(gen.getTmpName().c_str(), name);
    }
    EXPECT_STREQ(gen.getTmpPath("dir").c_str(), "dir/Ph5QrOFs");
    EXPECT_EQ(gen.getTmpPath("").length(), 9u);
    // An empty key is filled to its end; about one byte stays as it was by chance.
    std::fill(key + 1, std::end(key), 'x');
    key[0] = 0;
    gen.rc4_init(state, key);
    EXPECT_LT(std::count(key, std::end(key), 'x'), 20);
}

TEST(TmpNameGenTest, TheKeyIsTheClockAndZeros) {
    const auto& key = TmpNameGenTestPeer::key();
    unsigned long seconds = 0, microseconds = 0;
    int length = 0;
    std::sscanf(reinterpret_cast<const char*>(key), "%lu-%lu%n", &seconds, &microseconds, &length);
    EXPECT_NEAR(static_cast<double>(seconds), static_cast<double>(std::time(nullptr)), 300);
    EXPECT_LT(microseconds, 1000000u);
    EXPECT_EQ(std::count(key + length, std::end(key), 0), 256 - length);
}

TEST(TmpNameGenTest, NamesOfAllThreadsDifferAndUseTheWholeAlphabet) {
    std::set<std::string> names, drawn[4];
    std::thread threads[4];
    for (int i = 0; i < 4; ++i) {
        threads[i] = std::thread([&mine = drawn[i]] {
            for (int n = 0; n < 5000; ++n) {
                mine.insert(TmpNameGen::getInstance()->getTmpName().c_str());
            }
        });
    }
    std::set<char> characters;
    for (int i = 0; i < 4; ++i) {
        threads[i].join();
        names.merge(drawn[i]);
    }
    for (const std::string& name : names) {
        characters.insert(name.begin(), name.end());
    }
    EXPECT_EQ(names.size(), 20000u);
    EXPECT_EQ(std::string(characters.begin(), characters.end()),
              "-0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz");
}

}  // namespace
