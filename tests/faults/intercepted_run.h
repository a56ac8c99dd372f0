// Runs the launcher and intercepts its calls on certain files. Uses seccomp_unotify(2), because ptrace(2) disturbs
// the sanitizers.
#pragma once

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdint>

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
constexpr struct FileCallNumber {
    unsigned number;
    int path;
    What what;
} kFileCalls[] = {
#ifdef SYS_open  // not on newer processors
    {SYS_open, 0, kOpen},      {SYS_stat, 0, kLook},           {SYS_lstat, 0, kLook},       {SYS_access, 0, kLook},
    {SYS_readlink, 0, kLook},  {SYS_mkdir, 0, kChange},        {SYS_chmod, 0, kChange},     {SYS_symlink, 1, kChange},
    {SYS_link, 1, kChange},    {SYS_rename, 0, kRename},       {SYS_rmdir, 0, kRemove},     {SYS_unlink, 0, kRemove},
#endif
#ifdef SYS_fstatat64  // where a long has 32 bits
    {SYS_fstatat64, 1, kLook}, {SYS_stat64, 0, kLook},         {SYS_lstat64, 0, kLook},     {SYS_fstat64, -1, kLook},
    {SYS__llseek, -1, kLook},  {SYS_ftruncate64, -1, kChange},
#else
    {SYS_newfstatat, 1, kLook},
#endif
    {SYS_openat, 1, kOpen},    {SYS_statx, 1, kLook},          {SYS_faccessat, 1, kLook},   {SYS_readlinkat, 1, kLook},
    {SYS_mkdirat, 1, kChange}, {SYS_renameat, 1, kRename},     {SYS_renameat2, 1, kRename}, {SYS_unlinkat, 1, kRemove},
    {SYS_read, -1, kLook},     {SYS_lseek, -1, kLook},         {SYS_fstat, -1, kLook},      {SYS_getdents64, -1, kLook},
    {SYS_write, -1, kWrite},   {SYS_ftruncate, -1, kChange},   {SYS_fchmod, -1, kChange},   {SYS_fsync, -1, kChange},
    {SYS_syncfs, -1, kFlush}};

// Starts the interception. Result: the descriptor of the notifications, or -1.
inline int InstallFilter() {
    std::vector<sock_filter> code{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, 0)};  // the call's number
    for (const auto& call : kFileCalls) {
        code.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call.number, 0, 1));
        code.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
    }
    code.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog program{static_cast<unsigned short>(code.size()), code.data()};
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    return static_cast<int>(syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &program));
}

// The process of a thread (proc(5)).
inline pid_t ProcessOf(pid_t thread) {
    const std::string status = ReadFile("/proc/" + std::to_string(thread) + "/status");
    const std::size_t line = status.find("\nTgid:");
    return line == std::string::npos ? 0 : std::atoi(status.c_str() + line + 6);
}

// Duplicates a descriptor of another process.
inline int Borrow(pid_t process, int fd) {
    const UniqueFd handle(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    return static_cast<int>(syscall(SYS_pidfd_getfd, handle.get(), fd, 0));
}

// A text that ends with a NUL, or with the memory.
inline std::string ReadText(pid_t process, __u64 address) {
    char text[4097] = {};
    const iovec here{text, sizeof text - 1};
    const iovec there{reinterpret_cast<void*>(static_cast<std::uintptr_t>(address)), here.iov_len};
    return process_vm_readv(process, &here, 1, &there, 1, 0) < 0 ? "" : text;
}

inline FileCall Describe(pid_t process, const seccomp_data& data) {
    const auto call = std::find_if(std::begin(kFileCalls), std::end(kFileCalls),
                                   [&](auto& row) { return static_cast<int>(row.number) == data.nr; });
    std::string path = call->path < 0 ? "" : ReadText(process, data.args[call->path]);
    if (path.empty() || path[0] != '/') {  // relative to a directory descriptor
        std::error_code none;
        const std::string fd = std::to_string(static_cast<int>(data.args[0]));
        const std::string link = "/proc/" + std::to_string(process) + "/fd/" + fd;
        path = std::filesystem::read_symlink(link, none).string() + (path.empty() ? "" : "/" + path);
    }
    const bool makes = call->what == kOpen && (data.args[call->path + 1] & O_CREAT) != 0;
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
    QElapsedTimer timer;
    timer.start();
    pollfd ready{listener.get(), POLLIN, 0};
    while (supervisor->state() != QProcess::NotRunning || (ready.revents & POLLHUP) == 0) {
        seccomp_notif request{};
        if (!listener.valid() || timer.hasExpired(60000)) { KillStart(*supervisor); }
        if (poll(&ready, 1, 10) <= 0 || (ready.revents & POLLIN) == 0) {
            supervisor->waitForFinished(0);
            while (supervisor->state() == QProcess::NotRunning && waitpid(-1, nullptr, WNOHANG) > 0) {}
            continue;
        }
        if (ioctl(listener.get(), SECCOMP_IOCTL_NOTIF_RECV, &request) != 0) {
            continue;  // the caller is gone
        }
        const auto caller = static_cast<pid_t>(request.pid);
        const FileCall call = Describe(caller, request.data);
        const bool asked = getpgid(caller) == getpgrp() &&
                           std::any_of(places.begin(), places.end(),
                                       [&](const std::string& place) { return call.path.rfind(place, 0) == 0; });
        const int decision = asked ? answer(call) : kGoOn;
        if (decision == kKillBoth) { supervisor->kill(); }
        if (decision == kKillBoth || decision == kKillLauncher) { kill(ProcessOf(caller), SIGKILL); }
        seccomp_notif_resp response{};
        response.id = request.id;
        response.error = std::min(decision, 0);
        const bool done = response.error != 0 || decision == kSuccessWithoutIt;
        response.flags = done ? 0 : SECCOMP_USER_NOTIF_FLAG_CONTINUE;
        ioctl(listener.get(), SECCOMP_IOCTL_NOTIF_SEND, &response);
    }
    return supervisor->exitStatus() == QProcess::NormalExit ? supervisor->exitCode() : -1;
}
