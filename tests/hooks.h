// System calls that tests can change. Without a change each does what the system's own does.
#pragma once

#include <cstdint>
#include <ctime>
#include <functional>

namespace hooks {

struct Hooks {
    std::size_t most_bytes = SIZE_MAX;  // of one read(2); one write(2) takes half of them
    int write_error = 0;                // errno of a call that fails
    int fsync_error = 0;
    unsigned long volume_type = 0;  // statfs(2)
    std::time_t now = 0;            // time(2), gettimeofday(2)
    // Run once, before the next call.
    std::function<void()> before_flock;
    std::function<void()> before_fsync;
    std::function<void()> before_mutex_init;
    std::function<void()> before_openat;
    int openat_calls_before = 0;
    // Counts since Reset.
    int fsyncs = 0;
    int syncfs = 0;
    int mutex_inits = 0;
    int inheritable = 0;  // the most InheritableDescriptors() at a readlink(2) or syncfs(2)
};

extern Hooks g;

// Removes all changes, and sets all counts to 0.
void Reset();

// How many descriptors of this process exec(2) would leave open, except those that it has inherited.
int InheritableDescriptors();

}  // namespace hooks
