// The one log writer of the process.
#pragma once

// The first arguments of Logger::LogMsg; those that `text` formats follow. `level` is ERROR,
// WARNING, NOTE, INFO or DEBUG. The source file defines LOG_TAG, a string literal, and
// kLogComponent, a ustring.
#define LOG_LINE(level, text) \
    Logger::LEVEL_##level, kLogComponent, "[" #level "] " LOG_TAG "(%d): " text, __LINE__

#include <pthread.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>

#include "ustring/ustring.h"

// Each component has a threshold; a message passes if its level is at most that. Thresholds come
// from a level file with lines `component=number`. The default is 4, which passes errors and
// warnings. A threshold stays until another level file changes it.
//
// A line is the local time as "%b %d %H:%M:%S " and the message. A message begins with its level
// and the source file and line, which LOG_LINE adds:
//
//     Logger::LogMsg(LOG_LINE(DEBUG, "copied %s\n"), path.c_str());
//
// Before Initialize, lines go to standard error. Any thread may log. Initialize and Destroy replace
// the lock, so no other thread may log meanwhile. LogMsg does not report failures.
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

    // Configures the logger. `log_path` and `rotate_cnt` are for TYPE_FILE: rotated files are
    // "<log_path>_<number>" with numbers from 0, the newest, to rotate_cnt - 2. `level_path` may be
    // empty; a file that cannot be read or is malformed changes no threshold. Result: 0; -1 without
    // memory, or if the file cannot be opened. Lines then go to the former stream, without
    // rotation.
    static int Initialize(Type type, const ustring& log_path, const ustring& level_path,
                          int rotate_cnt);

    // Writes one message if it passes. `format` is that of printf.
    static void LogMsg(Level level, const ustring& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    // The same with a va_list.
    static void LogMsg2(Level level, const ustring& component, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));

    // Whether a message of this level passes, for callers with an expensive message.
    static bool Passes(Level level, const ustring& component);

    // Renames "<log_path>" to number 0, each number to the next, and opens a new file. Requires the
    // lock. Result: 0; -1 if the file cannot be renamed or opened, which ends the log; -1 if a
    // number does not fit after the path, and the log continues in the old file.
    static int Rotate();

    // Opens the file of TYPE_FILE again; does nothing with other types. Requires the lock. If the
    // file cannot be opened, the log ends.
    static void ReloadLogFile();

    // Closes the log. Lines are lost until the next Initialize.
    static void Destroy();

    // Creates the lock unless it exists. Without memory there is none, and lines are lost.
    static void InitializeLock();
    // Destroys the lock if it exists. Precondition: no thread holds it.
    static void DestroyLock();
    // Precondition of both: the lock exists. It is not recursive, and LogMsg takes it.
    static void Lock();
    static void Unlock();
    // Creates the data that writers share, unless it exists. Without memory there is none, and
    // lines are lost.
    static void InitializeSharedData();
    // Frees that data if it exists. Precondition: no other thread logs.
    static void DestroySharedData();

  private:
    friend struct LoggerTestPeer;

    static void ReadLevels(const ustring& path);
    static void EnsureReady();
    static bool HasOutput();
    static void FollowRotation();
    static int Write(const char* format, va_list args) __attribute__((format(printf, 1, 0)));
    static void AddToFileSize(int written);
    static int Reopen();
    static int OpenFile(const ustring& path);
    static void CloseFile();
    static void Replace(std::FILE* stream);

    static Type log_type;
    static bool log_initialized;
    static int rotate_cnt;
    static std::FILE* log_fp;  // null in TYPE_SYSLOG, and after the log has ended
    static ustring log_path;   // empty in all modes but TYPE_FILE
    static std::map<ustring, int> log_level;
    static pthread_mutex_t* log_lock;
    // Shared by all writers of a log: the bytes written to the current file since it was opened (-1
    // without a file), and the number of rotations.
    static int* log_size;
    static std::uint64_t* log_rotated_count_shared;
    static std::uint64_t log_rotated_count_private;  // the rotations that this writer has seen
};

// Logger::LogMsg2 for callers without ustring.
void LogMSG_c(int level, char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));
