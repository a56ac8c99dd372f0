// Tests of the logger: thresholds, the form of a line, rotation, and many writers.
#include "log.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <thread>

#include "tests/temp_dir.h"

struct LoggerTestPeer {
    static int& size() { return *Logger::log_size; }
    static std::uint64_t& rotations() { return *Logger::log_rotated_count_shared; }
    static int descriptor() { return fileno(Logger::log_fp); }
    static void ForgetLevels() { Logger::log_level.clear(); }
};

namespace {

using Peer = LoggerTestPeer;
constexpr int kStamp = 16;  // bytes of "Nov 18 15:07:08 "
constexpr int kLimit = 1048576;

void Log(const char* text, Logger::Level level = Logger::LEVEL_ERROR) {
    Logger::LogMsg(level, "a", "%s\n", text);
}

class LoggerTest : public testing::Test {
  protected:
    ~LoggerTest() override { Logger::Destroy(); }

    int Open(const std::string& path, int rotate_cnt = 50, const std::string& levels = "") {
        return Logger::Initialize(Logger::TYPE_FILE, path, levels, rotate_cnt);
    }
    static int Rotate() {
        Logger::Lock();
        const int result = Logger::Rotate();
        Logger::Unlock();
        return result;
    }
    // The folder's files with their content, less the time stamps and the ends of lines.
    std::string Files() const {
        static const std::regex left_out("[A-Z][a-z]{2} [ 0-9]{2} [0-9:]{8} |\n");
        std::set<std::string> files;
        for (const auto& file : std::filesystem::directory_iterator(dir_.path())) {
            files.insert(file.path().filename().string());
        }
        std::string all;
        for (const std::string& file : files) {
            all += file + ":" + std::regex_replace(ReadFile(dir_ / file), left_out, "") + " ";
        }
        return all;
    }

    TempDir dir_;
    const std::string log_ = dir_ / "log";
};

TEST_F(LoggerTest, LevelsPassUpToTheThresholdOfTheirComponent) {
    static const char* const kRows[][2] = {
        {"", "34"},  {"a=7", "34567"},      {"a=5 #w", "345"}, {"a=3", "3"},      {"a=2", ""},
        {"a=x", ""}, {"a=7\nb=3", "34567"}, {"b=7", "34"},     {"a=7\nb c", "34"}};
    for (const auto& row : kRows) {
        SCOPED_TRACE(row[0]);
        Peer::ForgetLevels();
        WriteFile(dir_ / "levels", std::string("default_component=7\n") + row[0]);
        std::filesystem::remove(log_);
        ASSERT_EQ(Open(log_, 50, dir_ / "levels"), 0);
        for (const char* level : {"3", "4", "5", "6", "7"}) {
            Log(level, static_cast<Logger::Level>(*level - '0'));
        }
        std::filesystem::remove(dir_ / "levels");
        EXPECT_EQ(Files(), std::string("log:") + row[1] + " ");
    }
}

TEST_F(LoggerTest, ALineIsTheLocalTimeAndTheMessage) {
    setenv("TZ", "TST-9", 1);
    tzset();
    ASSERT_EQ(Open(log_), 0);
    const std::time_t before = std::time(nullptr);
    Logger::LogMsg(Logger::LEVEL_ERROR, "a", "[ERROR] launcher(%d): %s\n", 87, "100%");
    const std::string line = ReadFile(log_);
    EXPECT_EQ(line.substr(kStamp), "[ERROR] launcher(87): 100%\n");
    bool found = false;
    for (std::time_t now = before; now <= std::time(nullptr); ++now) {
        char stamp[64];
        std::strftime(stamp, sizeof stamp, "%b %d %H:%M:%S ", std::localtime(&now));
        found |= line.substr(0, kStamp) == stamp;
    }
    EXPECT_TRUE(found) << line;
}

// In a process of its own, in which nobody has called Initialize.
TEST(LoggerDeathTest, LinesGoToTheStreamOfTheTypeAndToTheFormerOneOnFailure) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto run = [] {
        Log("early", Logger::LEVEL_WARNING);
        Log("silent", Logger::LEVEL_NOTE);
        const bool failed = Logger::Initialize(Logger::TYPE_FILE, "", "", 2) == -1;
        Log(failed ? "failed" : "opened");
        std::fflush(stdout);
        dup2(STDERR_FILENO, STDOUT_FILENO);
        Logger::Initialize(Logger::TYPE_STDOUT, "ignored/path", "", 2);
        Log(Peer::descriptor() == STDOUT_FILENO ? "stdout" : "other");
        openlog("tag", LOG_PERROR, LOG_USER);
        Logger::Initialize(Logger::TYPE_SYSLOG, "", "", 2);
        Log("syslog");
        Logger::Initialize(Logger::TYPE_STDERR, "", "", 2);
        Log("stderr");
        Logger::Destroy();
        Log("gone");
        std::exit(0);
    };
    const std::string stamp = "[A-Z][a-z]+ [0-9]+ [0-9:]+ ";
    EXPECT_EXIT(run(), testing::ExitedWithCode(0),
                "^" + stamp + "early\n" + stamp + "failed\n" + stamp + "stdout\ntag: syslog\n" +
                    stamp + "stderr\n$");
}

TEST_F(LoggerTest, RotatesBehindTheMessageThatCrossesTheLimit) {
    WriteFile(log_, "o\n");  // of an earlier run, which does not count
    ASSERT_EQ(Open(log_), 0);
    Log("a");
    EXPECT_EQ(Peer::size(), kStamp + 2);
    Peer::size() = kLimit - kStamp - 2;
    Log("b");
    EXPECT_EQ(Files(), "log:oab ");
    Log("c");
    EXPECT_EQ(Files(), "log: log_0:oabc ");
    EXPECT_EQ(Peer::size(), 0);
    Log("d");
    EXPECT_EQ(Files(), "log:d log_0:oabc ");
}

TEST_F(LoggerTest, RotationKeepsTheNumbersBelowTheCountLessOne) {
    const struct {
        int rotate_cnt;
        const char* files;
    } kRows[] = {{1, "log:4 log_0:3 log_3:o "},
                 {2, "log:4 log_0:3 log_3:o "},
                 {3, "log:4 log_0:3 log_1:2 log_3:o "},
                 {4, "log:4 log_0:3 log_1:2 log_2:1 "},
                 {50, "log:4 log_0:3 log_1:2 log_2:1 log_6:o "}};
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.rotate_cnt);
        for (const auto& file : std::filesystem::directory_iterator(dir_.path())) {
            std::filesystem::remove(file);
        }
        WriteFile(dir_ / "log_3", "o\n");
        ASSERT_EQ(Open(log_, row.rotate_cnt), 0);
        for (const char* text : {"1", "2", "3"}) {
            Log(text);
            EXPECT_EQ(Rotate(), 0);
        }
        Log("4");
        EXPECT_EQ(Files(), row.files);
    }
}

TEST_F(LoggerTest, RotationThatFailsEndsTheLogOrGoesOnInTheOldFile) {
    // With "_10" behind it, the path is one byte too long for the buffer.
    std::string deep = dir_ / "d";
    while (deep.size() < 1021 - 101) {
        deep += "/" + std::string(100, 'd');
    }
    deep += "/" + std::string(1020 - deep.size(), 'f');
    WriteFile(deep, "");
    ASSERT_EQ(Open(deep, 10), 0);
    EXPECT_EQ(Rotate(), -1);
    Log("a");
    EXPECT_EQ(ReadFile(deep).size(), kStamp + 2u);
    ASSERT_EQ(Open(log_), 0);
    std::filesystem::remove(log_);
    EXPECT_EQ(Rotate(), -1);
    Log("b");
    EXPECT_FALSE(std::filesystem::exists(log_));
}

TEST_F(LoggerTest, AfterAFailedInitializeLinesGoOnToTheFormerFileUncounted) {
    for (const std::string& path : {std::string(), dir_.path(), dir_ / "missing/log"}) {
        std::filesystem::remove(log_);
        ASSERT_EQ(Open(log_), 0);
        EXPECT_EQ(Open(path), -1) << path;
        Log("a");
        EXPECT_EQ(Files(), "log:a ") << path;
        EXPECT_EQ(Peer::size(), -1) << path;
    }
}

TEST_F(LoggerTest, FollowsTheRotationOfAnotherWriter) {
    ASSERT_EQ(Open(log_), 0);
    std::filesystem::rename(log_, dir_ / "moved");
    Log("a");
    ++Peer::rotations();
    Log("b");
    EXPECT_EQ(Peer::size(), kStamp + 2);
    EXPECT_EQ(Files(), "log:b moved:a ");
    // It has seen that one now, and its own need no reopening.
    EXPECT_EQ(Rotate(), 0);
    EXPECT_EQ(Peer::rotations(), 2u);
    std::filesystem::rename(log_, dir_ / "away");
    Log("c");
    EXPECT_EQ(Files(), "away:c log_0:b moved:a ");
    ++Peer::rotations();
    std::filesystem::create_directory(log_);
    Log("d");
    std::filesystem::remove(log_);
    Log("e");
    EXPECT_EQ(Files(), "away:c log_0:b moved:a ");
}

TEST_F(LoggerTest, ThreadsLoseAndMixNoLineWhileTheFileRotates) {
    constexpr int kThreads = 3, kLines = 5000, kRotations = 100;
    ASSERT_EQ(Open(log_, kRotations + 2), 0);
    std::thread threads[kThreads];
    for (int i = 0; i < kThreads; ++i) {
        threads[i] = std::thread([i] {
            for (int n = 0; n < kLines; ++n) {
                Logger::LogMsg(Logger::LEVEL_ERROR, "a", "%d %d\n", i, n);
            }
        });
    }
    for (int i = 0; i < kRotations; ++i) {
        EXPECT_EQ(Rotate(), 0);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    int next[kThreads] = {}, lost = 0;
    for (int number = kRotations - 1; number >= -1; --number) {
        std::ifstream file(number < 0 ? log_ : log_ + "_" + std::to_string(number));
        for (std::string line; std::getline(file, line);) {
            int thread = -1, n = -1;
            std::istringstream rest(line.substr(std::min<std::size_t>(kStamp, line.size())));
            ASSERT_TRUE(rest >> thread >> n && rest.eof() && thread < kThreads) << line;
            lost += n - next[thread];
            next[thread] = n + 1;
        }
    }
    for (const int seen : next) {
        lost += kLines - seen;
    }
    EXPECT_EQ(lost, 0);
}

TEST_F(LoggerTest, ProcessesThatAreStartedDoNotHoldTheLog) {
    const auto kept = [] { return (fcntl(Peer::descriptor(), F_GETFD) & FD_CLOEXEC) == 0; };
    ASSERT_EQ(Open(log_), 0);
    EXPECT_FALSE(kept());
    EXPECT_EQ(Rotate(), 0);
    EXPECT_FALSE(kept());
    Logger::ReloadLogFile();
    EXPECT_FALSE(kept());
}

TEST_F(LoggerTest, WritesNothingBetweenDestroyAndInitialize) {
    ASSERT_EQ(Open(log_), 0);
    Log("a");
    Logger::Destroy();
    Logger::Destroy();
    Log("b");
    ASSERT_EQ(Open(log_), 0);
    Log("c");
    EXPECT_EQ(Files(), "log:ac ");
}

}  // namespace
