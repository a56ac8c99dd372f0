// Runs parts of a test in a child process.
#pragma once

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

// Runs `prepare` and `body` in a child process; a failure there fails the test. Skips the test if
// `prepare` returns false.
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
        GTEST_SKIP() << "needs the right to mount or to become another user";
    }
    EXPECT_EQ(status, 0);
}

// A user without files and processes. A child process of root becomes that user.
inline const uid_t kLoner = 100000 + static_cast<uid_t>(getpid());
inline bool BecomeLoner() { return geteuid() != 0 || !(setgroups(0, nullptr) || setgid(kLoner) || setuid(kLoner)); }
