// Tests of the logger: thresholds, the form of a line, rotation, and many writers.
#include "log.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <syslog.h>
#include <unistd.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <thread>

#include "tests/temp_dir.h"

struct LoggerTestPeer {
    static int& size() { return *Logger::log_size; }
    static std::uint64_t& rotations() { return *Logger::log_rotated_count_shared; }
    static int descriptor() { return Logger::log_fp == nullptr ? -1 : fileno(Logger::log_fp); }
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
    void Move() const { std::filesystem::rename(log_, dir_ / "moved"); }
    // Removes the folder's files. Result: these with their content, less the time stamps and the
    // ends of lines.
    std::string TakeFiles() const {
        static const std::regex left_out("[A-Z][a-z]{2} [ 0-9]{2} [0-9:]{8} |\n");
        std::set<std::string> files;
        for (const auto& file : std::filesystem::directory_iterator(dir_.path())) {
            files.insert(file.path().filename().string());
        }
        std::string all;
        for (const std::string& file : files) {
            all += file + ":" + std::regex_replace(ReadFile(dir_ / file), left_out, "") + " ";
            std::filesystem::remove(dir_ / file);
        }
        return all;
    }

    TempDir dir_, other_;
    const std::string log_ = dir_ / "log";
};

TEST_F(LoggerTest, LevelsPassUpToTheThresholdOfTheirComponent) {
    static const char* const kRows[][2] = {{"", "34"},   {"a=7", "34567"},      {"a=5 #w", "345"},
                                           {"a=2", ""},  {"a=7\nb=3", "34567"}, {"b=7", "34"},
                                           {"a=x", ""}, {"a=7\nb c", "34"}};
    const std::string levels = other_ / "levels";
    for (const auto& row : kRows) {
        Peer::ForgetLevels();
        WriteFile(levels, std::string("default_component=7\n") + row[0]);
        ASSERT_EQ(Open(log_, 50, levels), 0);
        for (const char* level : {"3", "4", "5", "6", "7"}) {
            Log(level, static_cast<Logger::Level>(*level - '0'));
        }
        EXPECT_EQ(TakeFiles(), std::string("log:") + row[1] + " ") << row[0];
    }
}

TEST_F(LoggerTest, ALineIsTheLocalTimeAndTheMessage) {
    setenv("TZ", "TST-9", 1);
    tzset();
    const auto line_now = [] {
        const std::time_t now = std::time(nullptr);
        char line[64];
        std::strftime(line, sizeof line, "%b %d %T [ERROR] launcher(87): 100%%\n", std::localtime(&now));
        return std::string(line);
    };
    ASSERT_EQ(Open(log_), 0);
    const std::string before = line_now();
    Logger::LogMsg(Logger::LEVEL_ERROR, "a", "[ERROR] launcher(%d): %s\n", 87, "100%");
    const std::string line = ReadFile(log_);
    EXPECT_TRUE(line == before || line == line_now()) << line;
}

// In a process of its own, in which nobody has called Initialize.
TEST(LoggerDeathTest, LinesGoToTheStreamOfTheTypeAndToTheFormerOneOnFailure) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto run = [] {
        Log("early", Logger::LEVEL_WARNING);
        Log("silent", Logger::LEVEL_NOTE);
        const bool failed = Logger::Initialize(Logger::TYPE_FILE, "", "", 2) == -1;
        Log(failed ? "failed" : "opened");
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
    EXPECT_EXIT((std::fflush(stdout), dup2(STDERR_FILENO, STDOUT_FILENO), run()), testing::ExitedWithCode(0),
                "^" + stamp + "early\n" + stamp + "failed\n" + stamp + "stdout\ntag: syslog\n" +
                    stamp + "stderr\n$");
}

TEST_F(LoggerTest, WhereLinesGoAfterRotationsFailuresAndReopenings) {
    // With "_10" behind it, the path is one byte too long for the buffer.
    std::string deep = other_ / std::string(200, 'd');
    while (deep.size() < 820) {
        deep += "/" + std::string(200, 'd');
    }
    deep += "/" + std::string(1020 - deep.size(), 'f');
    WriteFile(deep, "");
    const auto log = [](const char* texts) {
        for (; *texts != 0; ++texts) {
            Log(std::string(1, *texts).c_str());
        }
    };
    const auto log_limit = 0;
    const struct {
        const char* name;
        std::function<void()> steps;
        const char* files;
        int size;  // counted at the end
    } kRows[] = {};
}
}
