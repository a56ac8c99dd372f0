// Tests of the logger: thresholds, the form of a line, rotation, and many writers.
#include "log.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <syslog.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <thread>

#include "tests/temp_dir.h"

struct LoggerTestPeer {
    static int& size() { return *Logger::log_size; }
    static std::uint64_t& rotations() { return *Logger::log_rotated_count_shared; }
    static int descriptor() { return Logger::log_fp == nullptr ? -1 : fileno(Logger::log_fp); }
};

namespace {

constexpr int kStamp = 16, kLine = 18;  // bytes of "Nov 18 15:07:08 " and of this with "a\n"

void Log(const std::string& text, int level = 3, const ustring& component = "a") {
    Logger::LogMsg(static_cast<Logger::Level>(level), component, "%s\n", text.c_str());
}

class LoggerTest : public testing::Test {
  protected:
    ~LoggerTest() override { Logger::Destroy(); }

    int Open(const std::string& path, int rotate_cnt = 50, const std::string& levels = "") {
        return Logger::Initialize(Logger::TYPE_FILE, path, levels, rotate_cnt);
    }
    // Removes the folder's files. Result: each with its text, less time stamps and ends of lines.
    std::string TakeFiles() const {
        static const std::regex cut("[A-Z][a-z]{2} [ 0-9]{2} [0-9:]{8} |\n");
        const std::filesystem::directory_iterator begin(dir_.path()), end;
        std::string all;
        for (const std::filesystem::path& file : std::set<std::filesystem::path>(begin, end)) {
            all +=
                file.filename().string() + ":" + std::regex_replace(ReadFile(file), cut, "") + " ";
            std::filesystem::remove(file);
        }
        return all;
    }

    TempDir dir_;
    const std::string log_ = dir_ / "log";
};

TEST_F(LoggerTest, LevelsPassUpToTheThresholdOfTheirComponent) {
    const std::string levels = dir_ / "levels";
    WriteFile(levels, "default_component=7\na=7\nb=5 #w\nc=2\nd=x\n");
    ASSERT_EQ(Open(log_, 50, levels), 0);
    WriteFile(levels, "e=7\nmalformed line\n");
    ASSERT_EQ(Open(log_, 50, levels), 0);
    for (const std::string component : {"a", "b", "c", "d", "e"}) {
        for (int level = 3; level <= 7; ++level) {
            Log(component + std::to_string(level), level, component);
        }
    }
    EXPECT_EQ(TakeFiles(), "levels:e=7malformed line log:a3a4a5a6a7b3b4b5e3e4 ");
}

TEST_F(LoggerTest, ALineIsTheLocalTimeAndTheMessage) {
    setenv("TZ", "TST-9", 1);
    const auto line_now = [] {
        const std::time_t now = std::time(nullptr);
        char line[64];
        std::strftime(line, sizeof line, "%b %d %T [ERROR] a(87): 100%%\n", std::localtime(&now));
        return std::string(line);
    };
    ASSERT_EQ(Open(log_), 0);
    const std::string before = line_now();
    Logger::LogMsg(Logger::LEVEL_ERROR, "a", "[ERROR] a(%d): %s\n", 87, "100%");
    const std::string line = ReadFile(log_);
    EXPECT_TRUE(line == before || line == line_now()) << line;
}

// In a process of its own, in which nobody has called Initialize.
TEST(LoggerDeathTest, LinesGoToTheStreamOfTheTypeAndToTheFormerOneOnFailure) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto run = [] {
        Log("early", 4);
        Log("silent", 5);
        std::fflush(stdout);
        dup2(STDERR_FILENO, STDOUT_FILENO);
        Log(Logger::Initialize(Logger::TYPE_FILE, "", "", 2) == -1 ? "failed" : "opened");
        Logger::Initialize(Logger::TYPE_STDOUT, "ignored/path", "", 2);
        Log(LoggerTestPeer::descriptor() == STDOUT_FILENO ? "stdout" : "other");
        openlog("tag", LOG_PERROR, LOG_USER);
        Logger::Initialize(Logger::TYPE_SYSLOG, "", "", 2);
        Log("syslog");
        Logger::Initialize(Logger::TYPE_STDERR, "", "", 2);
        Log("stderr");
        Logger::Destroy();
        Log("gone");
        std::exit(0);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0),
                "^.{16}early\n.{16}failed\n.{16}stdout\ntag: syslog\n.{16}stderr\n$");
}

TEST_F(LoggerTest, WhereLinesGoAfterRotationsFailuresAndReopenings) {
    // A small letter is a line, and a digit opens the log with that count.
    const std::map<char, std::function<void()>> steps = {
        {'B', [&] { std::filesystem::create_directory(log_), Log("x"), rmdir(log_.c_str()); }},
        {'D', [&] { Logger::Destroy(); }},
        {'F', [&] { EXPECT_EQ(Logger::Rotate(), -1); }},
        {'L', [&] { LoggerTestPeer::size() += 1048576 - 2 * kLine; }},
        {'M', [&] { std::filesystem::rename(log_, dir_ / "moved"); }},
        {'O', [&] { ++LoggerTestPeer::rotations(); }},  // the other writers'
        {'R', [&] { EXPECT_EQ(Logger::Rotate(), 0); }},
        {'X', [&] { EXPECT_EQ(Open("") + Open(dir_.path()) + Open(log_ + "s/log"), -3); }}};
    const struct {
        const char *steps, *files;
        int size;  // as counted at the end
    } kRows[] = {
        {"9o9aLbcd", "log:d log_0:oabc ", kLine},  // what an earlier run wrote does not count
        {"9aRbR1cR", "log: log_0:c log_1:a ", 0},
        {"9aRbRcRdR3eR", "log: log_0:e log_1:d log_3:a ", 0},
        {"9aXb", "log:ab ", -1},
        {"9aDDb9c", "log:ac ", kLine},
        {"9MaOb", "log:b moved:a ", kLine},
        {"9aObRMc", "log_0:ab moved:c ", kLine},  // its own rotation needs no reopening
        {"9aMOBb", "moved:a ", kLine},
        {"9aMFb", "moved:a ", kLine},
    };
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.steps);
        for (const char step : std::string(row.steps)) {
            if (step >= 'a') {
                Log(std::string(1, step));
            } else if (step <= '9') {
                ASSERT_EQ(Open(log_, step - '0'), 0);
            } else {
                steps.at(step)();
            }
            EXPECT_NE(fcntl(LoggerTestPeer::descriptor(), F_GETFD) & FD_CLOEXEC, 0) << "inherited";
        }
        EXPECT_EQ(LoggerTestPeer::size(), row.size);
        EXPECT_EQ(TakeFiles(), row.files);
    }
}

TEST_F(LoggerTest, ThreadsLoseAndMixNoLineWhileTheFileRotates) {
    constexpr int kThreads = 3, kLines = 5000, kRotations = 100;
    ASSERT_EQ(Open(log_, kRotations + 2), 0);
    std::thread threads[kThreads];
    for (int i = 0; i < kThreads; ++i) {
        threads[i] = std::thread([i] {
            for (int n = 0; n < kLines; ++n) {
                Log(std::to_string(i) + std::to_string(n));
            }
        });
    }
    for (int i = 0; i < kRotations; ++i) {
        Logger::Lock();
        EXPECT_EQ(Logger::Rotate(), 0);
        Logger::Unlock();
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    std::map<char, int> next;
    for (int number = kRotations - 1; number >= -1; --number) {
        std::ifstream file(number < 0 ? log_ : log_ + "_" + std::to_string(number));
        for (std::string line; std::getline(file, line);) {
            ASSERT_EQ(line.substr(kStamp + 1), std::to_string(next[line.at(kStamp)]++)) << line;
        }
    }
    EXPECT_EQ(next['0'] + next['1'] + next['2'], kThreads * kLines);
}

}  // namespace
