// The logger.
#include "log.h"

#include <fcntl.h>
#include <syslog.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <string>
#include <string_view>

#include "config.h"
#include "mutex-guard.h"

namespace {

constexpr int kDefaultThreshold = 4;
constexpr int kRotationLimit = 1048576;
constexpr int kSyslogPriority = 3;
constexpr char kTimeFormat[] = "%b %d %H:%M:%S ";

// The highest threshold of any component so far.
int g_highest_threshold = kDefaultThreshold;

// Protects the creation of the logger's own lock.
pthread_mutex_t g_first_use = PTHREAD_MUTEX_INITIALIZER;

// For members that are read without the lock. The acquired pointer points to initialized memory.
template <class T>
T LoadAcquire(const T& member) {
    T value;
    __atomic_load(&member, &value, __ATOMIC_ACQUIRE);
    return value;
}

template <class T, class U>
void StoreRelease(T& member, U value) {
    T converted = value;
    __atomic_store(&member, &converted, __ATOMIC_RELEASE);
}

template <class T>
T* Allocate() {
    return static_cast<T*>(std::malloc(sizeof(T)));
}

template <class T>
void Free(T*& block) {
    std::free(block);
    StoreRelease(block, nullptr);
}

// The name of a rotated file.
class RotatedName {
  public:
    RotatedName(const ustring& path, int number)
        : length_(std::snprintf(name_, sizeof name_, "%s_%d", path.c_str(), number)) {}
    bool fits() const { return length_ >= 0 && static_cast<std::size_t>(length_) < sizeof name_; }
    const char* c_str() const { return name_; }

  private:
    char name_[1024];
    int length_;
};

// Returns the time stamp of a line; empty on failure. Caches it while second, zone and locale stay
// the same, because localtime(3) takes longer than the rest of a line. Requires the lock.
const char* TimeStamp() {
    static std::time_t second = -1;
    // Never destroyed: a thread may log while the process exits.
    static std::string& zone = *new std::string;
    static std::string& locale = *new std::string;
    static char stamp[512];
    const std::time_t now = std::time(nullptr);
    const char* const variable = std::getenv("TZ");
    const std::string_view present_zone = variable == nullptr ? "" : variable;
    const std::string_view present_locale = std::setlocale(LC_TIME, nullptr);
    if (now != second || zone != present_zone || locale != present_locale) {
        const std::tm* const local = std::localtime(&now);
        stamp[local == nullptr ? 0 : std::strftime(stamp, sizeof stamp, kTimeFormat, local)] = 0;
        second = now;
        zone = present_zone;
        locale = present_locale;
    }
    return stamp;
}

}  // namespace

Logger::Type Logger::log_type = Logger::TYPE_STDOUT;
bool Logger::log_initialized = true;
int Logger::rotate_cnt = 50;
std::FILE* Logger::log_fp = stderr;
ustring Logger::log_path;
std::map<ustring, int> Logger::log_level;
pthread_mutex_t* Logger::log_lock = nullptr;
int* Logger::log_size = nullptr;
std::uint64_t* Logger::log_rotated_count_shared = nullptr;
std::uint64_t Logger::log_rotated_count_private = 0;

int Logger::Initialize(Type type, const ustring& path, const ustring& level_path, int rotate) {
    DestroySharedData();
    DestroyLock();
    InitializeLock();
    InitializeSharedData();
    if (log_lock == nullptr || log_size == nullptr) {
        return -1;
    }
    ReadLevels(level_path);
    StoreRelease(log_type, type);
    *log_rotated_count_shared = 0;
    log_rotated_count_private = 0;
    // Without an open file, lines go to the former stream and are not counted.
    *log_size = -1;
    if (type == TYPE_FILE) {
        if (path.empty() || OpenFile(path) != 0) {
            return -1;
        }
        log_path = path;
        rotate_cnt = rotate;
    } else {
        Replace(type == TYPE_STDOUT ? stdout : type == TYPE_STDERR ? stderr : nullptr);
        log_path.clear();
    }
    StoreRelease(log_initialized, true);
    return 0;
}

void Logger::ReadLevels(const ustring& path) {
    log_level["default_component"] = kDefaultThreshold;
    if (path.empty()) {
        return;
    }
    Config levels;
    levels.read(path);
    for (const auto& level : levels) {
        const int threshold = levels.get_int(level.first);
        log_level[level.first] = threshold;
        g_highest_threshold = std::max(g_highest_threshold, threshold);
    }
}

void Logger::LogMsg(Level level, const ustring& component, const char* format, ...) {
    va_list args;
    va_start(args, format);
    LogMsg2(level, component, format, args);
    va_end(args);
}

void Logger::LogMsg2(Level level, const ustring& component, const char* format, va_list args) {
    if (!Passes(level, component) || !LoadAcquire(log_initialized)) {
        return;
    }
    EnsureReady();
    if (!HasOutput()) {
        return;
    }
    const MutexGuard guard(log_lock);
    FollowRotation();
    AddToFileSize(Write(format, args));
}

// Without Initialize, the first message of any thread creates the lock and the shared data.
void Logger::EnsureReady() {
    if (LoadAcquire(log_lock) != nullptr && LoadAcquire(log_size) != nullptr &&
        LoadAcquire(log_rotated_count_shared) != nullptr) {
        return;
    }
    const MutexGuard guard(&g_first_use);
    InitializeLock();
    InitializeSharedData();
}

bool Logger::HasOutput() {
    return LoadAcquire(log_lock) != nullptr && LoadAcquire(log_size) != nullptr &&
           (LoadAcquire(log_type) == TYPE_SYSLOG || LoadAcquire(log_fp) != nullptr);
}

// Opens the new file if another writer has rotated the log.
void Logger::FollowRotation() {
    if (log_rotated_count_private == *log_rotated_count_shared) {
        return;
    }
    ReloadLogFile();
    log_rotated_count_private = *log_rotated_count_shared;
}

// Needs no lock: only Initialize changes the thresholds, and no other thread logs meanwhile.
bool Logger::Passes(Level level, const ustring& component) {
    if (level > g_highest_threshold) {
        return false;
    }
    const auto found = log_level.find(component);
    const int threshold = found == log_level.end() ? kDefaultThreshold : found->second;
    return level <= threshold;
}

// Result: the number of bytes, or negative on failure.
int Logger::Write(const char* format, va_list args) {
    if (log_type == TYPE_SYSLOG) {
        vsyslog(kSyslogPriority, format, args);
        return 0;
    }
    if (log_fp == nullptr) {
        return 0;
    }
    const int stamp = std::fprintf(log_fp, "%s", TimeStamp());
    const int text = std::vfprintf(log_fp, format, args);
    std::fflush(log_fp);
    return stamp < 0 || text < 0 ? -1 : stamp + text;
}

void Logger::AddToFileSize(int written) {
    if (log_type != TYPE_FILE || *log_size < 0 || written < 0) {
        return;
    }
    *log_size += written;
    if (*log_size > kRotationLimit) {
        Rotate();
        *log_size = 0;
    }
}

int Logger::Rotate() {
    const RotatedName last(log_path, rotate_cnt - 1);
    if (!last.fits()) {
        return -1;
    }
    for (int i = rotate_cnt - 2; i >= 0; --i) {
        std::rename(RotatedName(log_path, i).c_str(), RotatedName(log_path, i + 1).c_str());
    }
    std::remove(last.c_str());
    if (std::rename(log_path.c_str(), RotatedName(log_path, 0).c_str()) != 0) {
        CloseFile();
        return -1;
    }
    if (Reopen() != 0) {
        return -1;
    }
    ++*log_rotated_count_shared;
    ++log_rotated_count_private;
    return 0;
}

void Logger::ReloadLogFile() {
    if (log_type == TYPE_FILE) {
        Reopen();
    }
}

// Result: 0; -1 if the file cannot be opened. The log then ends.
int Logger::Reopen() {
    if (OpenFile(log_path) == 0) {
        return 0;
    }
    // The former stream may hold the last descriptor. Use standard error meanwhile: see OpenFile.
    Replace(stderr);
    if (OpenFile(log_path) == 0) {
        return 0;
    }
    CloseFile();
    return -1;
}

// On success replaces the stream and sets its size to 0; on failure changes nothing. Never leaves
// the log without a stream, because another thread would take it for closed.
int Logger::OpenFile(const ustring& path) {
    std::FILE* const opened = std::fopen(path.c_str(), "a");
    if (opened == nullptr) {
        return -1;
    }
    // The client must not inherit the log.
    fcntl(fileno(opened), F_SETFD, FD_CLOEXEC);
    Replace(opened);
    *log_size = 0;
    return 0;
}

void Logger::CloseFile() {
    Replace(nullptr);
}

void Logger::Replace(std::FILE* stream) {
    std::FILE* const former = log_fp;
    StoreRelease(log_fp, stream);
    if (former != nullptr && former != stderr && former != stdout) {
        std::fclose(former);
    }
}

void Logger::Destroy() {
    StoreRelease(log_initialized, false);
    if (log_type == TYPE_FILE) {
        CloseFile();
        log_path.clear();
    }
    DestroySharedData();
    DestroyLock();
}

void Logger::InitializeLock() {
    if (log_lock != nullptr) {
        return;
    }
    pthread_mutex_t* const lock = Allocate<pthread_mutex_t>();
    if (lock != nullptr) {
        pthread_mutex_init(lock, nullptr);
        StoreRelease(log_lock, lock);
    }
}

void Logger::DestroyLock() {
    if (log_lock != nullptr) {
        pthread_mutex_destroy(log_lock);
        Free(log_lock);
    }
}

void Logger::Lock() {
    pthread_mutex_lock(log_lock);
}

void Logger::Unlock() {
    pthread_mutex_unlock(log_lock);
}

void Logger::InitializeSharedData() {
    if (log_size != nullptr && log_rotated_count_shared != nullptr) {
        return;
    }
    DestroySharedData();
    int* const size = Allocate<int>();
    std::uint64_t* const rotations = Allocate<std::uint64_t>();
    if (size == nullptr || rotations == nullptr) {
        std::free(size);
        std::free(rotations);
        return;
    }
    *size = log_path.empty() ? -1 : 0;
    *rotations = log_rotated_count_private;
    StoreRelease(log_size, size);
    StoreRelease(log_rotated_count_shared, rotations);
}

void Logger::DestroySharedData() {
    Free(log_size);
    Free(log_rotated_count_shared);
}

void LogMSG_c(int level, char* component, const char* format, va_list args) {
    Logger::LogMsg2(static_cast<Logger::Level>(level), component, format, args);
}
