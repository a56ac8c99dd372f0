// The run goes on to its end, whatever becomes of the main thread.
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <system_error>
#include <thread>

#include "platform/desktop/run-guard.h"
#include "platform/desktop/start-over.h"
#include "platform/files/file-lock.h"

namespace {

constexpr std::chrono::seconds kPatience(3);

enum State { kOff, kBefore, kRunning, kLost, kOver };

std::atomic<State> state(kOff);

struct Crash {
    int signal;
    struct sigaction former;
};
Crash crashes[] = {{SIGABRT, {}}, {SIGBUS, {}}, {SIGFPE, {}}, {SIGILL, {}}, {SIGSEGV, {}}};

void RestoreSignals() {
    for (const Crash& crash : crashes) {
        sigaction(crash.signal, &crash.former, nullptr);
    }
}

// What may be done in a signal handler (signal-safety(7)). Returns when there is nothing to be
// done.
void OnLoss() {
    State before = kRunning;
    while (state.compare_exchange_strong(before, kLost) || before == kLost) {
        pause();
    }
    if (before == kBefore) {
        StartOver(Without::kDisplay);
    } else if (before == kOver) {
        _exit(0);
    }
}

[[noreturn]] void End() {
    FileLock::RemoveAll();
    std::fflush(stdout);
    _exit(0);
}

void OnExit() {
    if (state == kOver) {
        End();
    }
    OnLoss();
}

// The worker's crash is the end, and so is that of a start without a display.
void OnCrash(int) {
    RestoreSignals();
    if (state == kBefore || gettid() == getpid()) {
        OnLoss();
    }
}

}  // namespace

void RunGuard::Arm() {
    struct sigaction action = {};
    action.sa_handler = OnCrash;
    action.sa_flags = SA_NODEFER;  // a new start would inherit a signal that is blocked
    for (Crash& crash : crashes) {
        sigaction(crash.signal, &action, &crash.former);
    }
    std::atexit(OnExit);
    state = kBefore;
}

void RunGuard::RunBegins() {
    // The latest handler is the first to be called (atexit(3)).
    std::atexit(OnExit);
    state = kRunning;
}

void RunGuard::Disarm() {
    if (state.exchange(kOff) != kOff) {
        RestoreSignals();
    }
}

bool RunGuard::IsMainThreadLost() {
    return state == kLost;
}

void RunGuard::RunIsOver() {
    if (state == kOff) {
        return;
    }
    if (state.exchange(kOver) == kLost) {
        End();
    }
    try {
        std::thread([] {
            std::this_thread::sleep_for(kPatience);
            End();
        }).detach();
    } catch (const std::system_error&) {
        // A display that is cut off at this very moment, and a system without threads, are too
        // much.
    }
}
