// Tests of the logger: thresholds, the form of a line, rotation, and many writers.
#include "log.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <syslog.h>

#include <atomic>
#include <cstring>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <thread>

#include "tests/temp_dir.h"

struct LoggerTestPeer {
    static int& size() { return *Logger::log_size; }
    static std::uint64_t& rotations() { return *Logger::log_rotated_count_shared; }
    static int descriptor() { return Logger::log_fp == nullptr ? -1 : fileno(Logger::log_fp); }
};

std::time_t g_now = 1700000000;
std::atomic<int> g_locks_made = 0;

extern "C" std::time_t time(std::time_t*) noexcept { return g_now; }

// Takes its time, in which another thread may come here as well.
extern "C" int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t*) noexcept {
    ++g_locks_made;
    for (int i = 0; i < 2000; ++i) { std::this_thread::yield(); }
    const pthread_mutex_t unlocked = PTHREAD_MUTEX_INITIALIZER;
    std::memcpy(mutex, &unlocked, sizeof unlocked);
    return 0;
}

namespace {

namespace fs = std::filesystem;
constexpr int kStamp = 16, kLine = 18;  // bytes of "Nov 18 15:07:08 " and of this with "a\n"

void Log(int level, std::string component, const char* format, ...) {
    va_list args;
    va_start(args, format);
    LogMSG_c(level, component.data(), format, args);
    va_end(args);
}

void Log(const std::string& text) { Log(3, "a", "%s\n", text.c_str()); }

class LoggerTest : public testing::Test {
  protected:
    ~LoggerTest() override {
        Logger::Destroy();
        EXPECT_EQ(OpenDescriptors(), descriptors_);
    }

    int Open(const std::string& path, int rotate_cnt = 50, const std::string& levels = "") {
        return Logger::Initialize(Logger::TYPE_FILE, path, levels, rotate_cnt);
    }
    // Removes the folder's files. Result: each with its text, less time stamps and ends of lines.
    std::string TakeFiles() const {
        static const std::regex cut("[A-Z][a-z]{2} [ 0-9]{2} [0-9:]{8} |\n");
        std::string all;
        for (const fs::path& file : std::set<fs::path>(fs::directory_iterator(dir_.path()), {})) {
            all += file.filename().string() + ":" + std::regex_replace(ReadFile(file), cut, "") + " ";
            fs::remove(file);
        }
        return all;
    }

    const long descriptors_ = OpenDescriptors();
    TempDir dir_;
    const std::string log_ = dir_ / "log";
};

TEST_F(LoggerTest, LevelsPassUpToTheThresholdOfTheirComponent) {
    const std::string levels = dir_ / "levels";
    for (const char* const lines : {"e=7\nmalformed line\n", "default_component=7\na=7\nb=5 #w\nc=2\nd=x\n"}) {
        WriteFile(levels, lines);
        ASSERT_EQ(Open(log_, 50, levels), 0);
    }
    fs::remove(levels);
    for (const std::string component : {"a", "b", "c", "d", "e"}) {
        for (int level = 3; level <= 7; ++level) { Log(level, component, "%s%d\n", component.c_str(), level); }
    }
    EXPECT_EQ(TakeFiles(), "log:a3a4a5a6a7b3b4b5e3e4 ");
}

TEST_F(LoggerTest, ALineIsTheLocalTimeAndTheMessage) {
    ASSERT_EQ(Open(log_), 0);
    setenv("TZ", "TST-9", 1);
    Log("100%");
    ++g_now;
    Log("b");
    setenv("TZ", "TST-8", 1);
    Log("c");
    EXPECT_EQ(ReadFile(log_), "Nov 15 07:13:20 100%\nNov 15 07:13:21 b\nNov 15 06:13:21 c\n");
}

TEST_F(LoggerTest, LongLinesAreWholeAndCountWhenTheyAreWritten) {
    const std::string text(300000, 'x');
    ASSERT_EQ(Open(log_), 0);
    Log(text);
    EXPECT_TRUE(ReadFile(log_).substr(kStamp) == text + "\n");
    EXPECT_EQ(LoggerTestPeer::size(), 300000 + kStamp + 1);
    fs::create_symlink("/dev/full", dir_ / "full");
    ASSERT_EQ(Open(dir_ / "full"), 0);
    Log(text);
    EXPECT_EQ(LoggerTestPeer::size(), 0);
}

// In a process of its own: nobody has called Initialize before the first lines, of two threads.
TEST(LoggerDeathTest, LinesGoToTheStreamOfTheTypeAndToTheFormerOneOnFailure) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto run = [] {
        g_locks_made = 0;
        std::thread other([] { Log(4, "a", "early\n"); });
        Log(4, "a", "early\n");
        other.join();
        Log(g_locks_made == 1 ? "one lock" : "two locks");
        Log(5, "a", "silent\n");
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
                "^.{16}early\n.{16}early\n.{16}one lock\n.{16}failed\n.{16}stdout\ntag: syslog\n.{16}stderr\n$");
}

// While no descriptor is left.
int RotateWithoutDescriptors() {
    rlimit former;
    getrlimit(RLIMIT_NOFILE, &former);
    const rlimit none = {LoggerTestPeer::descriptor() + 1u, former.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    const int result = Logger::Rotate();
    setrlimit(RLIMIT_NOFILE, &former);
    return result;
}

TEST_F(LoggerTest, WhereLinesGoAfterRotationsFailuresAndReopenings) {
    // A small letter is a line, and a digit opens the log with that count.
    const std::map<char, std::function<void()>> steps = {
        {'B', [&] { fs::create_directory(log_), Log("x"), rmdir(log_.c_str()); }},
        {'D', [&] { Logger::Destroy(); }},
        {'F', [&] { EXPECT_EQ(Logger::Rotate(), -1); }},
        {'L', [&] { LoggerTestPeer::size() += 1048576 - 2 * kLine; }},
        {'M', [&] { fs::rename(log_, dir_ / "moved"); }},
        {'N', [&] { EXPECT_EQ(RotateWithoutDescriptors(), 0); }},
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
        {"D9aNb", "log:b log_0:a ", kLine},
        {"9aXb", "log:ab ", -1},
        {"9aDDb9c", "log:ac ", kLine},
        {"9MaObc", "log:bc moved:a ", 2 * kLine},
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

// The longest path that leaves room behind it for the numbers of ten files, and one more byte.
TEST_F(LoggerTest, APathIsTooLongWhenItsNumbersDoNotFit) {
    for (const std::size_t length : {1021u, 1022u}) {
        const std::string path = dir_ / std::string(length - dir_.path().size() - 4, '/') + "log";
        ASSERT_EQ(Open(path, 10), 0);
        LoggerTestPeer::size() = 1048576;
        Log("x");
        EXPECT_EQ(LoggerTestPeer::size(), 0);
        EXPECT_EQ(TakeFiles(), length == 1021 ? "log: log_0:x " : "log:x ");
    }
}

TEST_F(LoggerTest, ThreadsLoseAndMixNoLineWhileTheFileRotates) {
    constexpr int kThreads = 3, kLines = 5000, kRotations = 100;
    ASSERT_EQ(Open(log_, kRotations + 2), 0);
    std::thread threads[kThreads];
    for (int i = 0; i < kThreads; ++i) {
        threads[i] = std::thread([i] {
            for (int n = 0; n < kLines; ++n) { Log(std::to_string(i) + std::to_string(n)); }
        });
    }
    for (int i = 0; i < kRotations; ++i) {
        Logger::Lock();
        EXPECT_EQ(Logger::Rotate(), 0);
        Logger::Unlock();
    }
    for (std::thread& thread : threads) { thread.join(); }
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
