// Interposes system calls.
#undef _FORTIFY_SOURCE  // which defines some of them inline
#include "tests/hooks.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace hooks {

Hooks g;

void Reset() { g = Hooks(); }

namespace {

int CountInheritable() {
    int count = 0;
    for (int fd = 3; fd < 64; ++fd) {
        const int flags = fcntl(fd, F_GETFD);
        count += flags >= 0 && (flags & FD_CLOEXEC) == 0 ? 1 : 0;
    }
    return count;
}

const int g_count_at_start = CountInheritable();

}  // namespace

int InheritableDescriptors() { return CountInheritable() - g_count_at_start; }

}  // namespace hooks

namespace {

using hooks::g;

void RunOnce(std::function<void()>& action) {
    if (const auto once = std::exchange(action, nullptr)) { once(); }
}

int Fail(int error) {
    errno = error;
    return -1;
}

template <class Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void CountDescriptors() { g.inheritable = std::max(g.inheritable, hooks::InheritableDescriptors()); }

int OpenAt(int directory, const char* path, int flags) {
    if (g.before_openat && g.openat_calls_before-- == 0) { RunOnce(g.before_openat); }
    return static_cast<int>(syscall(SYS_openat, directory, path, flags));
}

}  // namespace

// fcntl.h has a struct flock.
#pragma GCC diagnostic ignored "-Wshadow"

extern "C" {

int flock(int file, int operation) noexcept {
    RunOnce(g.before_flock);
    return static_cast<int>(syscall(SYS_flock, file, operation));
}

int fsync(int file) {
    RunOnce(g.before_fsync);
    ++g.fsyncs;
    return g.fsync_error != 0 ? Fail(g.fsync_error) : static_cast<int>(syscall(SYS_fsync, file));
}

int syncfs(int file) noexcept {
    ++g.syncfs;
    CountDescriptors();
    return static_cast<int>(syscall(SYS_syncfs, file));
}

int openat(int directory, const char* path, int flags, ...) { return OpenAt(directory, path, flags); }

// Some compilers call this one in fortified code.
int __openat64_2(int directory, const char* path, int flags) { return OpenAt(directory, path, flags); }

ssize_t readlink(const char* path, char* text, size_t size) noexcept {
    CountDescriptors();
    return syscall(SYS_readlinkat, AT_FDCWD, path, text, size);
}

ssize_t read(int file, void* bytes, size_t size) {
    return syscall(SYS_read, file, bytes, std::min(size, g.most_bytes));
}

ssize_t write(int file, const void* bytes, size_t size) {
    return g.write_error != 0
               ? Fail(g.write_error)
               : syscall(SYS_write, file, bytes, std::min(size, g.most_bytes == SIZE_MAX ? size : g.most_bytes / 2));
}

int statfs(const char* path, struct statfs* volume) noexcept {
    // The structure has 64-bit fields on all systems here.
    static auto* const next = Next<int(const char*, struct statfs*)>("statfs64");
    const int result = next(path, volume);
    if (g.volume_type != 0) { volume->f_type = static_cast<decltype(volume->f_type)>(g.volume_type); }
    return result;
}

time_t time(time_t* now) noexcept {
    timespec present = {};
    clock_gettime(CLOCK_REALTIME, &present);
    const time_t seconds = g.now != 0 ? g.now : present.tv_sec;
    if (now != nullptr) { *now = seconds; }
    return seconds;
}

int gettimeofday(struct timeval* now, void*) noexcept {
    timespec present = {};
    clock_gettime(CLOCK_REALTIME, &present);
    *now = g.now != 0 ? timeval{g.now, 7} : timeval{present.tv_sec, present.tv_nsec / 1000};
    return 0;
}

int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attributes) noexcept {
    static auto* const next = Next<int(pthread_mutex_t*, const pthread_mutexattr_t*)>("pthread_mutex_init");
    ++g.mutex_inits;
    RunOnce(g.before_mutex_init);
    return next(mutex, attributes);
}
}
