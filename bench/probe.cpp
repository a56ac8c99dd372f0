// A library to preload (ld.so(8)). Writes what a process used to the file $BENCH_PROBE:
//
//     flush NANOSECONDS    in calls that wait for the disk
//     memory KIBIBYTES     peak memory; wait4(2) includes that of the parent
//     AT NAME              nanoseconds of CLOCK_MONOTONIC at the start of the phase NAME
#include <dlfcn.h>
#include <spawn.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

struct Mark {
    const char* name;
    long long at;
};

constexpr int kMarks = 16;
Mark marks[kMarks];
std::atomic<int> marked;
std::atomic<long long> flushing;

long long Now() {
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

void Reach(const char* name) {
    const int index = marked++;
    if (index < kMarks) {
        marks[index] = {name, Now()};
    }
}

template <class Function>
Function Real(Function, const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int Flush(int (*real)(int), int fd) {
    const long long start = Now();
    const int result = real(fd);
    flushing += Now() - start;
    return result;
}

int (*real_main)(int, char**, char**);

int Main(int argc, char** argv, char** environment) {
    Reach("qt");
    const int result = real_main(argc, argv, environment);
    Reach("exit");
    return result;
}

// From the line "VmHWM: 1234 kB" of proc(5).
long PeakMemory() {
    char line[128];
    long peak = 0;
    std::FILE* const status = std::fopen("/proc/self/status", "r");
    while (status != nullptr && std::fgets(line, sizeof line, status) != nullptr &&
           std::sscanf(line, "VmHWM: %ld", &peak) != 1) {
    }
    if (status != nullptr) {
        std::fclose(status);
    }
    return peak;
}

// Processes started from here do not belong to the measurement.
const char* TakeOutput() {
    unsetenv("LD_PRELOAD");
    return std::getenv("BENCH_PROBE");
}

const char* output = TakeOutput();

struct Report {
    ~Report() {
        std::FILE* const out = output == nullptr ? nullptr : std::fopen(output, "w");
        if (out == nullptr) {
            return;
        }
        std::fprintf(out, "flush %lld\nmemory %ld\n", flushing.load(), PeakMemory());
        for (int i = 0; i < marked && i < kMarks; ++i) {
            std::fprintf(out, "%lld %s\n", marks[i].at, marks[i].name);
        }
        std::fclose(out);
    }
} report;

}  // namespace

extern "C" {

int syncfs(int fd) noexcept {
    return Flush(Real(syncfs, "syncfs"), fd);
}

int fsync(int fd) {
    return Flush(Real(fsync, "fsync"), fd);
}

int fdatasync(int fd) {
    return Flush(Real(fdatasync, "fdatasync"), fd);
}

int __libc_start_main(int (*main)(int, char**, char**), int argc, char** argv, void (*init)(),
                      void (*fini)(), void (*loader)(), void* stack) {
    real_main = main;
    return Real(__libc_start_main, "__libc_start_main")(Main, argc, argv, init, fini, loader,
                                                        stack);
}

// The child process works and reports.
pid_t fork() noexcept {
    const pid_t child = Real(fork, "fork")();
    if (child > 0) {
        output = nullptr;
    }
    return child;
}

int posix_spawn(pid_t* child, const char* path, const posix_spawn_file_actions_t* actions,
                const posix_spawnattr_t* attributes, char* const* arguments,
                char* const* environment) {
    Reach("opening");
    const int result =
        Real(posix_spawn, "posix_spawn")(child, path, actions, attributes, arguments, environment);
    Reach("end of the run");
    return result;
}

// Qt's functions at the limits of phases, by their names in the C++ ABI.

// QApplication::QApplication(int&, char**, int)
void _ZN12QApplicationC2ERiPPci(void* self, int& argc, char** argv, int version) {
    Real(_ZN12QApplicationC2ERiPPci, "_ZN12QApplicationC2ERiPPci")(self, argc, argv, version);
    Reach("log");
}

// QLocale QLocale::system()
void* _ZN7QLocale6systemEv(void* result) {
    static std::atomic_flag reached;
    if (!reached.test_and_set()) {
        Reach("language");
    }
    return Real(_ZN7QLocale6systemEv, "_ZN7QLocale6systemEv")(result);
}

// QProgressDialog::QProgressDialog(QWidget*, QFlags<Qt::WindowType>)
void _ZN15QProgressDialogC2EP7QWidget6QFlagsIN2Qt10WindowTypeEE(void* self, void* parent,
                                                                int flags) {
    Reach("window");
    Real(_ZN15QProgressDialogC2EP7QWidget6QFlagsIN2Qt10WindowTypeEE,
         "_ZN15QProgressDialogC2EP7QWidget6QFlagsIN2Qt10WindowTypeEE")(self, parent, flags);
}

// void QThread::start(QThread::Priority)
void _ZN7QThread5startENS_8PriorityE(void* self, int priority) {
    Reach("decision");
    Real(_ZN7QThread5startENS_8PriorityE, "_ZN7QThread5startENS_8PriorityE")(self, priority);
}
}
