// Tests of TmpNameGen: names, threads, and the stream of a key.
#include "tmp_name_gen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <thread>

#include "tests/hooks.h"

namespace {

TEST(TmpNameGenTest, NamesDependOnTheClock) {
    hooks::g.now = 42;  // before the first use
    TmpNameGen& gen = *TmpNameGen::getInstance();
    std::string names;
    for (int i = 0; i < 24; ++i) { names += gen.getTmpName().c_str(); }
    EXPECT_EQ(names,
              "tM31ZCUxWNwf7xlFPh5QrOFsksezxPLYsek3DeQPzPEq8WmOeuZHrLe_tfpiMnZeK3FDctCw3BcXAKTIZi-uYKgORPpKwqGx"
              "DXrWbk7tSaSGOshDyOJhNwJUuTaTiDJnZ069mqRw-0F3UVRYWYfDNcx6l-L3fUVsF8hV3l2ViwVWrOQXCGVW7AT-Fu5Nf772");
    EXPECT_EQ(gen.getTmpPath("dir").length(), 12u);
    const auto use = [&gen] {
        for (int n = 0; n < 200000; ++n) { gen.getTmpName(); }
    };
    std::thread other(use);
    use();
    other.join();
    EXPECT_EQ(gen.getTmpName(), "6WHZNTm9") << "a thread disturbed the stream";
    hooks::Reset();
}

TEST(TmpNameGenTest, AKeyGivesAStreamAndAnEmptyKeyIsFilled) {
    TmpNameGen& gen = *TmpNameGen::getInstance();
    unsigned char key[256] = {'4', '2', '-', '7'}, empty[256] = {}, state[256], out[606];
    gen.rc4_init(state, key);
    gen.rc4_randomize(state, out, 6);
    gen.rc4_randomize(state, nullptr, 0);
    gen.rc4_randomize(state, out + 6, 600);
    const unsigned char last[] = {34, 10, 109, 56, 190, 251};
    EXPECT_TRUE(std::equal(last, std::end(last), out + 600));
    hooks::g.now = 42;
    gen.rc4_init(state, empty);
    std::srand(42);
    hooks::Reset();
    EXPECT_TRUE(std::all_of(empty, std::end(empty), [](int byte) { return byte == (std::rand() & 255); }));
}

}  // namespace
