// Tests of the temporary names: the stream against a plain rendering of it, and its encoding.
#include "tmp_name_gen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <numeric>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "file/file-op.h"
#include "tests/temp_dir.h"

struct TmpNameGenTestPeer {
    static unsigned char (&state())[256] { return TmpNameGen::getInstance()->m_state; }
    static unsigned char (&key())[256] { return TmpNameGen::getInstance()->m_key; }
};

namespace {

using Peer = TmpNameGenTestPeer;
using Bytes = std::array<unsigned char, 256>;

Bytes Schedule(const Bytes& key) {
    Bytes state;
    std::iota(state.begin(), state.end(), 0);
    for (unsigned i = 0, j = 0; i < 256; ++i) {
        j = (j + state[i] + key[i]) % 256;
        std::swap(state[i], state[j]);
    }
    return state;
}

std::vector<unsigned char> Draw(Bytes& state, int count) {
    std::vector<unsigned char> drawn;
    for (unsigned i = 1, j = 0; static_cast<int>(i) <= count; ++i) {
        j = (j + state[i % 256]) % 256;
        std::swap(state[i % 256], state[j]);
        drawn.push_back(state[(state[i % 256] + state[j]) % 256]);
    }
    return drawn;
}

TEST(TmpNameGenTest, StateAndDrawsFollowTheAlgorithm) {
    TmpNameGen& gen = *TmpNameGen::getInstance();
    Bytes key{'4', '2', '-', '7'}, state;
    gen.rc4_init(state.data(), key.data());
    Bytes expected = Schedule(key);
    EXPECT_EQ(state, expected);
    for (const int count : {6, 6, 0, -1, 600}) {
        SCOPED_TRACE(count);
        const std::vector<unsigned char> wanted = Draw(expected, count);
        std::vector<unsigned char> drawn(wanted.size());
        gen.rc4_randomize(state.data(), drawn.data(), count);
        EXPECT_EQ(drawn, wanted);
        EXPECT_EQ(state, expected);
    }
    // An empty key is filled to its end; about one byte stays as it was by chance.
    key.fill('x');
    key[0] = 0;
    gen.rc4_init(state.data(), key.data());
    EXPECT_LT(std::count(key.begin(), key.end(), 'x'), 20);
    EXPECT_EQ(state, Schedule(key));
}

TEST(TmpNameGenTest, TheKeyIsTheClockAndZeros) {
    const auto& key = Peer::key();
    unsigned long seconds = 0, microseconds = 0;
    int length = 0;
    std::sscanf(reinterpret_cast<const char*>(key), "%lu-%lu%n", &seconds, &microseconds, &length);
    EXPECT_NEAR(static_cast<double>(seconds), static_cast<double>(std::time(nullptr)), 300);
    EXPECT_LT(microseconds, 1000000u);
    EXPECT_EQ(std::count(key + length, std::end(key), 0), 256 - length);
}

TEST(TmpNameGenTest, ADrawIsCutIntoGroupsOfSixBits) {
    const struct {
        unsigned char drawn[6];
        const char* name;
    } kRows[] = {{{0x00, 0x10, 0x83, 0x10, 0x51, 0x87}, "01234567"},
                 {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, "________"}};
    for (const auto& row : kRows) {
        // Each of the six steps swaps a pair of places of its own, and points at its byte.
        for (unsigned char k = 0; k < 6; ++k) {
            Peer::state()[1 + k] = 20;
            Peer::state()[20 + 20 * k] = static_cast<unsigned char>(180 + k);
            Peer::state()[200 + k] = row.drawn[k];
        }
        EXPECT_STREQ(TmpNameGen::getInstance()->getTmpName().c_str(), row.name);
    }
}

TEST(TmpNameGenTest, ThreadsShareOneStreamWithoutRepeatingAName) {
    TmpNameGen& gen = *TmpNameGen::getInstance();
    unsigned char key[256] = {'4', '2'};
    gen.rc4_init(Peer::state(), key);
    std::set<std::string> names, drawn[4];
    std::thread threads[4];
    for (int i = 0; i < 4; ++i) {
        threads[i] = std::thread([&gen, &mine = drawn[i]] {
            for (int n = 0; n < 5000; ++n) {
                mine.insert(gen.getTmpName().c_str());
            }
        });
    }
    for (int i = 0; i < 4; ++i) {
        threads[i].join();
        names.merge(drawn[i]);
    }
    EXPECT_EQ(names.size(), 20000u);
    // The same state gives one thread the same names.
    gen.rc4_init(Peer::state(), key);
    for (int n = 0; n < 20000; ++n) {
        names.erase(gen.getTmpName().c_str());
    }
    EXPECT_EQ(names.size(), 0u);
}

TEST(TmpNameGenTest, ATempPathIsTheFolderAndANameAndNothingIsMade) {
    const TempDir dir;
    for (const std::string& folder : {dir.path(), dir.path() + "/", std::string()}) {
        ustring path;
        EXPECT_EQ(FSCreateTempPath(folder, path), 0);
        EXPECT_EQ(path.length(), folder.size() + 9);
        EXPECT_EQ(std::string(path.c_str()).substr(0, folder.size() + 1), folder + "/");
    }
    EXPECT_TRUE(std::filesystem::is_empty(dir.path()));
}

}  // namespace
