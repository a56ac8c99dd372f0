// The one log writer of the process.
#pragma once

// The head of a message: the arguments of Logger::LogMsg up to the first that `text` itself takes.
// Level and prefix come from one word (ERROR, WARNING, NOTE, INFO or DEBUG), so they always agree.
// A file that uses it names its tag and its component once: LOG_TAG, a string literal, is the
// source file's name without extension, and kLogComponent a ustring.
#define LOG_LINE(level, text) \
    Logger::LEVEL_##level, kLogComponent, "[" #level "] " LOG_TAG "(%d): " text, __LINE__

#include <pthread.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>

#include "ustring/ustring.h"

// A class of static members only. Every message names a component, and each component has a
// threshold: a message passes when its level is at most that. The thresholds come from a level file
// with one `component=number` line for each; a component without one has 4, so that errors and
// warnings pass. A threshold, once read, stays until another file sets it.
//
// A written line is the local time as "%b %d %H:%M:%S " and the message. Messages begin with the
// level in brackets and the writing source file and line, which LOG_LINE puts there:
//
//     Logger::LogMsg(LOG_LINE(DEBUG, "copied %s\n"), path.c_str());
//
// Until Initialize, lines go to standard error. Any thread may log; Initialize and Destroy replace
// the lock and must run while no other thread logs. Nothing here reports a failure to a caller of
// LogMsg.
class Logger {
  public:
    enum Type {
        TYPE_SYSLOG = 1,  // vsyslog, always at LOG_ERR, without a time stamp of our own
        TYPE_STDOUT = 2,
        TYPE_STDERR = 3,
        TYPE_FILE = 4,  // appended to, and rotated after more than 1048576 bytes from this process
    };

    // The numbers of the syslog priorities.
    enum Level {
        LEVEL_ERROR = 3,
        LEVEL_WARNING = 4,
        LEVEL_NOTE = 5,
        LEVEL_INFO = 6,
        LEVEL_DEBUG = 7
    };

    // Configures the logger. `log_path` and `rotate_cnt` count for TYPE_FILE only: of `rotate_cnt`
    // numbers, 0 (the newest) to rotate_cnt - 2 stay behind as "<log_path>_<number>". `level_path`
    // may be empty, and a file that cannot be read or is malformed adds nothing. Result: 0; -1 when
    // memory runs out, or when the file of TYPE_FILE cannot be opened: lines then go on to the
    // former stream, and nothing is counted or rotated.
    static int Initialize(Type type, const ustring& log_path, const ustring& level_path,
                          int rotate_cnt);

    // Writes one message, if its component's threshold lets it. `format` is that of printf.
    static void LogMsg(Level level, const ustring& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    // The same for an argument list already started.
    static void LogMsg2(Level level, const ustring& component, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));

    // Whether the threshold of `component` lets a message of this level pass: for callers to whom
    // it costs something to have a message to write.
    static bool Passes(Level level, const ustring& component);

    // Moves "<log_path>" to number 0, and each number up by one, and opens a new file. To be called
    // with the lock held. Result: 0; -1 when the live file cannot be moved or opened anew, and the
    // log ends; -1 too when a number would not fit behind the path, and the log goes on in the old
    // file.
    static int Rotate();

    // TYPE_FILE: opens the file anew. Else does nothing.
    static void ReloadLogFile();

    // Shuts the logger down: nothing is written until the next Initialize.
    static void Destroy();

    static void InitializeLock();
    static void DestroyLock();
    static void Lock();
    static void Unlock();
    static void InitializeSharedData();
    static void DestroySharedData();

  private:
    friend struct LoggerTestPeer;

    static void ReadLevels(const ustring& path);
    static void EnsureReady();
    static bool HasNowhereToWrite();
    static void FollowRotation();
    static int Write(const char* format, va_list args) __attribute__((format(printf, 1, 0)));
    static void Count(int written);
    static int Reopen();
    static int OpenFile(const ustring& path);
    static void CloseFile();
    static void Replace(std::FILE* stream);

    static Type log_type;
    static bool log_initialized;
    static int rotate_cnt;
    static std::FILE* log_fp;  // null in TYPE_SYSLOG and when a reopening failed
    static ustring log_path;   // empty in all modes but TYPE_FILE
    static std::map<ustring, int> log_level;
    static pthread_mutex_t* log_lock;
    // Shared by all writers of one log: the bytes written to the current file since it was opened
    // (-1 without a file), and the rotations that all of them have seen.
    static int* log_size;
    static std::uint64_t* log_rotated_count_shared;
    static std::uint64_t log_rotated_count_private;  // the rotations that this writer has seen
};

// For callers without ustring: makes one of `component` and calls LogMsg2.
void LogMSG_c(int level, char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));
