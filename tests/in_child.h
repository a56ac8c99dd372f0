// Parts of a test that need a process of their own.
#pragma once

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

// Runs `body` in a child process that `prepare` makes ready: what fails there fails the test. It is
// skipped if `prepare` is refused.
template <class Prepare, class Body>
void InChild(Prepare prepare, Body body) noexcept {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const bool ready = prepare();
        ready ? body() : void();
        std::fflush(nullptr);
        _exit(ready ? testing::Test::HasFailure() : 77);
    }
    int status = -1;
    waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 77) {
        GTEST_SKIP() << "This user may neither mount nor become another.";
    }
    EXPECT_EQ(status, 0);
}

// For InChild: becomes a user who owns nothing, unless it is one without root's rights anyway.
inline bool BecomeNobody() { return geteuid() != 0 || !(setgroups(0, nullptr) || setgid(65534) || setuid(65534)); }
