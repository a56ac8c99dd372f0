// Tests of the temporary names: the key, the stream and its encoding, and many callers.
#include "tmp_name_gen.h"

#include <gtest/gtest.h>
#include <sys/time.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <set>
#include <string>
#include <thread>

// The clock of the one instance's key.
extern "C" int gettimeofday(struct timeval* now, void*) noexcept {
    *now = {42, 7};
    return 0;
}

namespace {

TEST(TmpNameGenTest, NamesComeFromTheClock) {
    TmpNameGen& gen = *TmpNameGen::getInstance();
    for (const char* name : {"tM31ZCUx", "WNwf7xlF"}) {
        EXPECT_STREQ(gen.getTmpName().c_str(), name);
    }
    EXPECT_STREQ(gen.getTmpPath("dir").c_str(), "dir/Ph5QrOFs");
    unsigned char key[256] = {'4', '2', '-', '7'}, state[256], out[606];
    gen.rc4_init(state, key);
    gen.rc4_randomize(state, out, 6);
    gen.rc4_randomize(state, nullptr, 0);
    gen.rc4_randomize(state, out + 6, 600);
    const unsigned char last[] = {34, 10, 109, 56, 190, 251};
    EXPECT_TRUE(std::equal(last, std::end(last), out + 600));
}

TEST(TmpNameGenTest, AnEmptyKeyIsFilledToItsEnd) {
    unsigned char key[256] = {}, state[256];
    std::time_t now = std::time(nullptr);
    TmpNameGen::getInstance()->rc4_init(state, key);
    const auto is_key = [&](std::time_t seed) {
        std::srand(static_cast<unsigned>(seed));
        return std::all_of(key, std::end(key),
                           [](int byte) { return byte == (std::rand() & 255); });
    };
    EXPECT_TRUE(is_key(now) || is_key(now + 1));
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
