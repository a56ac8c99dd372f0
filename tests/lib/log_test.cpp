// Tests of the logger: thresholds, lines, rotation, threads.
#include "log.h"

#include <sys/resource.h>
#include <syslog.h>

#include <atomic>
#include <functional>
#include <regex>
#include <set>
#include <thread>

#include "tests/hooks.h"
#include "tests/support.h"

struct LoggerTestPeer {
    static int& size() { return *Logger::log_size; }
    static std::uint64_t& rotations() { return *Logger::log_rotated_count_shared; }
    static int descriptor() { return Logger::log_fp == nullptr ? -1 : fileno(Logger::log_fp); }
};

namespace {

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
    LoggerTest() { hooks::g.now = 1700000000; }
    ~LoggerTest() override {
        hooks::Reset();
        Logger::Destroy();
        EXPECT_EQ(OpenDescriptors(), descriptors_);
    }

    int Open(const std::string& path, int rotate_cnt = 50, const std::string& levels = "") {
        return Logger::Initialize(Logger::TYPE_FILE, path, levels, rotate_cnt);
    }
    // Removes all files. Result: their names and texts, without time stamps and line ends.
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

// A threshold stays until another file sets it; a malformed file sets none.
TEST_F(LoggerTest, LevelsPassUpToTheThresholdOfTheirComponent) {
    const std::string levels = dir_ / "levels";
    for (const char* const lines :
         {"e=7\n", "e=3\nmalformed line\n", "default_component=7\na=7\nb=5 #w\nc=2\nd=x\nz=0\n"}) {
        WriteFile(levels, lines);
        ASSERT_EQ(Open(log_, 50, levels), 0);
    }
    fs::remove(levels);
    for (const std::string component : {"a", "b", "c", "d", "e", "f"}) {
        for (int level = 3; level <= 7; ++level) { Log(level, component, "%s%d\n", component.c_str(), level); }
    }
    EXPECT_EQ(TakeFiles(), "log:a3a4a5a6a7b3b4b5e3e4e5e6e7f3f4 ");
}

TEST_F(LoggerTest, ALineIsTheLocalTimeAndTheMessage) {
    ASSERT_EQ(Open(log_), 0);
    setenv("TZ", "TST-1", 1);
    Log("100%");
    ++hooks::g.now;
    Log("b");
    setenv("TZ", "TST-8", 1);
    Log("c");
    EXPECT_EQ(ReadFile(log_), "Nov 14 23:13:20 100%\nNov 14 23:13:21 b\nNov 15 06:13:21 c\n");
}

// Waits until a thread of this process sleeps or is gone (proc(5)).
void WaitWhileItRuns(pid_t thread) {
    const std::string path = "/proc/self/task/" + std::to_string(thread) + "/stat";
    std::string stat = ReadFile(path);
    while (!stat.empty() && stat.find(") S ") == std::string::npos) { stat = ReadFile(path); }
}

// Starts a thread whose first message comes while this thread creates the lock.
void LogFirstInTwoThreads() {
    std::atomic<pid_t> id = 0;
    std::thread other;
    hooks::g.before_mutex_init = [&] {
        other = std::thread([&] {
            id = gettid();
            Log(4, "a", "early\n");
        });
        while (id == 0) {}
        WaitWhileItRuns(id);
    };
    Log(4, "a", "early\n");
    other.join();
    Log(hooks::g.mutex_inits == 1 ? "one lock" : "two locks");
}

// In another process, because nothing may have initialized the logger. Initialize with an error keeps the stream.
TEST(LoggerDeathTest, LinesGoToTheStreamOfTheType) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto run = [] {
        LogFirstInTwoThreads();
        Log(5, "a", "silent\n");
        std::fflush(stdout);
        dup2(STDERR_FILENO, STDOUT_FILENO);
        Log(Logger::Initialize(Logger::TYPE_FILE, "", "", 2) == -1 ? "failed" : "opened");
        Logger::Initialize(Logger::TYPE_STDOUT, "ignored/path", "", 2);
        Log(LoggerTestPeer::descriptor() == STDOUT_FILENO ? "stdout" : "other");
        openlog("tag", LOG_PERROR, LOG_USER);
        setlogmask(LOG_UPTO(LOG_ERR));
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
    using Step = std::function<void()>;
    const auto open = [&](int rotate_cnt) { return Step([=] { ASSERT_EQ(Open(log_, rotate_cnt), 0); }); };
    const auto write = [](const char* text) { return Step([=] { Log(text); }); };
    const Step fail_to_open = [&] {
        EXPECT_EQ(Open(""), -1);
        EXPECT_EQ(Open(dir_.path()), -1);
        EXPECT_EQ(Open(log_ + "s/log"), -1);
    };
    const Step rotate = [] { EXPECT_EQ(Logger::Rotate(), 0); };
    const Step fail_to_rotate = [] { EXPECT_EQ(Logger::Rotate(), -1); };
    const Step rotate_without_descriptors = [] { EXPECT_EQ(RotateWithoutDescriptors(), 0); };
    const Step other_writer_rotates = [] { ++LoggerTestPeer::rotations(); };
    const Step destroy = [] { Logger::Destroy(); };
    const Step nearly_fill = [] { LoggerTestPeer::size() += 1048576 - 2 * kLine; };
    const Step move_away = [&] { fs::rename(log_, dir_ / "moved"); };
    const auto a = write("a"), b = write("b"), c = write("c"), d = write("d"), e = write("e");
    const Rows<const char*, int, std::vector<Step>> rows = {
        // Lines of an earlier process do not count.
        {"log:d log_0:eabc ", kLine, {open(9), e, open(9), a, nearly_fill, b, c, d}},
        {"log: log_0:c log_1:a ", 0, {open(9), a, rotate, b, rotate, open(1), c, rotate}},
        {"log: log_0:e log_1:d log_3:a ", 0, {open(9), a, rotate, b, rotate, c, rotate, d, rotate, open(3), e, rotate}},
        {"log:b log_0:a ", kLine, {destroy, open(9), a, rotate_without_descriptors, b}},
        {"log:b log_0:a ", kLine, {open(9), a, fail_to_open, rotate, b}},
        {"log:ac ", kLine, {open(9), a, destroy, destroy, b, open(9), c}},
        {"log:bc moved:a ", 2 * kLine, {open(9), move_away, a, other_writer_rotates, b, c}},
        // Its own rotation needs no reopening.
        {"log_0:ab moved:c ", kLine, {open(9), a, other_writer_rotates, b, rotate, move_away, c}},
        {"moved:a ", kLine, {open(9), a, move_away, fail_to_rotate, b}},
    };
    for (const auto& [files, size, steps] : rows) {
        for (const Step& step : steps) {
            step();
            EXPECT_EQ(hooks::InheritableDescriptors(), 0);
        }
        EXPECT_EQ(LoggerTestPeer::size(), size) << files;
        EXPECT_EQ(TakeFiles(), files);
    }
}

// The longest path with room for a number after it, and one byte more.
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
    constexpr int kLines = 5000, kRotations = 100;
    ASSERT_EQ(Open(log_, kRotations + 2), 0);
    std::vector<std::thread> threads;
    for (const std::string line : {"a", "b", "c"}) {
        threads.emplace_back([line] {
            for (int n = 0; n < kLines; ++n) { Log(line); }
        });
    }
    for (int i = 0; i < kRotations; ++i) {
        Logger::Lock();
        EXPECT_EQ(Logger::Rotate(), 0);
        Logger::Unlock();
    }
    for (std::thread& thread : threads) { thread.join(); }
    std::map<std::string, int> times;
    for (const fs::path& file : fs::directory_iterator(dir_.path())) {
        std::ifstream lines(file);
        for (std::string line; std::getline(lines, line);) { ++times[line.substr(kStamp)]; }
    }
    EXPECT_EQ(times, (std::map<std::string, int>{{"a", kLines}, {"b", kLines}, {"c", kLines}}));
}

}  // namespace
