// Runs the launcher and intercepts its calls on certain files. Uses seccomp_unotify(2), because ptrace(2) disturbs
// the sanitizers.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <algorithm>

#include "e2e/harness.h"
#include "unique-fd.h"

enum What { kLook, kOpen, kMake, kWrite, kChange, kRename, kRemove, kFlush };

// An intercepted call.
struct FileCall {
    What what;
    std::string path;  // its first path, or that of its descriptor
};

// The answer to a call; a negative errno value is the error to fail with.
enum : int {
    kGoOn = 0,
    kKillBoth,      // both processes, before the call
    kKillLauncher,  // the working process, before the call
    kSuccessWithoutIt
};

// The calls on files, each with the index of its path argument; -1 for a descriptor.
constexpr struct FileCallName {
    const char* name;
    int path;
    What what;
} kFileCalls[] = {
    {"open", 0, kOpen},         {"openat", 1, kOpen},         {"stat", 0, kLook},        {"lstat", 0, kLook},
    {"stat64", 0, kLook},       {"lstat64", 0, kLook},        {"fstat", -1, kLook},      {"fstat64", -1, kLook},
    {"fstatat64", 1, kLook},    {"newfstatat", 1, kLook},     {"statx", 1, kLook},       {"access", 0, kLook},
    {"faccessat", 1, kLook},    {"readlink", 0, kLook},       {"readlinkat", 1, kLook},  {"read", -1, kLook},
    {"lseek", -1, kLook},       {"_llseek", -1, kLook},       {"getdents64", -1, kLook}, {"write", -1, kWrite},
    {"ftruncate", -1, kChange}, {"ftruncate64", -1, kChange}, {"chmod", 0, kChange},     {"fchmod", -1, kChange},
    {"fsync", -1, kChange},     {"mkdir", 0, kChange},        {"mkdirat", 1, kChange},   {"link", 1, kChange},
    {"symlink", 1, kChange},    {"rename", 0, kRename},       {"renameat", 1, kRename},  {"renameat2", 1, kRename},
    {"rmdir", 0, kRemove},      {"unlink", 0, kRemove},       {"unlinkat", 1, kRemove},  {"syncfs", -1, kFlush}};

// Starts the interception. Result: the descriptor of the notifications, or negative.
inline int InstallFilter() {
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    for (const auto& call : kFileCalls) {
        seccomp_rule_add(filter, SCMP_ACT_NOTIFY, seccomp_syscall_resolve_name(call.name), 0);
    }
    return seccomp_load(filter) == 0 ? seccomp_notify_fd(filter) : -1;
}

// Duplicates a descriptor of another process.
inline int Borrow(pid_t process, int fd) {
    const UniqueFd handle(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    return static_cast<int>(syscall(SYS_pidfd_getfd, handle.get(), fd, 0));
}

inline FileCall Describe(const seccomp_notif& request) {
    const auto call = std::find_if(std::begin(kFileCalls), std::end(kFileCalls), [&](auto& row) {
        return seccomp_syscall_resolve_name(row.name) == request.data.nr;
    });
    const fs::path process = "/proc/" + std::to_string(request.pid);
    std::string path;
    if (call->path >= 0) {
        std::ifstream memory(process / "mem");
        std::getline(memory.seekg(static_cast<std::streamoff>(request.data.args[call->path])), path, '\0');
    }
    if (path.empty() || path[0] != '/') {  // relative to a directory descriptor
        std::error_code none;
        const std::string fd = std::to_string(static_cast<int>(request.data.args[0]));
        path = fs::read_symlink(process / "fd" / fd, none).string() + (path.empty() ? "" : "/" + path);
    }
    const bool makes = call->what == kOpen && (request.data.args[call->path + 1] & O_CREAT) != 0;
    return {makes ? kMake : call->what, path};
}

// Runs a start until its processes and their children have ended, at most a minute. Calls `answer` for their calls
// on paths that begin with one of `places`. Result: the exit code of the supervisor; -1 if a signal ended it, also
// where calls cannot be intercepted.
inline int RunIntercepted(const World& world, const std::vector<std::string>& places,
                          const std::function<int(const FileCall&)>& answer) {
    constexpr int kListener = 200;
    prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);  // of processes that outlive their parent
    const auto supervisor = world.Spawn([] { dup2(InstallFilter(), kListener); });
    const UniqueFd listener(Borrow(static_cast<pid_t>(supervisor->processId()), kListener));
    const QDeadlineTimer end(60000);
    pollfd ready{listener.get(), POLLIN, 0};
    while (supervisor->state() != QProcess::NotRunning || (ready.revents & POLLHUP) == 0) {
        if (!listener.valid() || end.hasExpired()) { KillStart(*supervisor); }
        if (poll(&ready, 1, 10) <= 0 || (ready.revents & POLLIN) == 0) {
            supervisor->waitForFinished(0);
            while (supervisor->state() == QProcess::NotRunning && waitpid(-1, nullptr, WNOHANG) > 0) {}
            continue;
        }
        seccomp_notif request{};
        if (ioctl(listener.get(), SECCOMP_IOCTL_NOTIF_RECV, &request) != 0) {
            continue;  // the caller is gone
        }
        const auto caller = static_cast<pid_t>(request.pid);
        const FileCall call = Describe(request);
        const bool asked = getpgid(caller) == getpgrp() &&
                           std::any_of(places.begin(), places.end(),
                                       [&](const std::string& place) { return call.path.rfind(place, 0) == 0; });
        const int decision = asked ? answer(call) : kGoOn;
        if (decision == kKillBoth) { supervisor->kill(); }
        if (decision == kKillBoth || decision == kKillLauncher) {
            kill(caller, SIGKILL);
            continue;  // an answer could let the call happen
        }
        seccomp_notif_resp response{};
        response.id = request.id;
        response.error = std::min(decision, 0);
        const bool done = response.error != 0 || decision == kSuccessWithoutIt;
        response.flags = done ? 0 : SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        ioctl(listener.get(), SECCOMP_IOCTL_NOTIF_SEND, &response);
    }
    return supervisor->exitStatus() == QProcess::NormalExit ? supervisor->exitCode() : -1;
}
