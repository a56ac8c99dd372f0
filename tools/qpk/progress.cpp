// A progress bar, on a terminal.
#include "tools/qpk/progress.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kWidth = 40;

}  // namespace

Progress::Progress(const std::string& what, std::int64_t total)
    : what_(what), total_(std::max<std::int64_t>(total, 1)), visible_(isatty(STDERR_FILENO) == 1) {
    MoveTo(0);
}

Progress::~Progress() {
    if (visible_) {
        std::fprintf(stderr, "\r\033[K");
    }
}

void Progress::MoveTo(std::int64_t done) {
    done_ = done;
    const int percent = static_cast<int>(std::min(done_, total_) * 100 / total_);
    if (!visible_ || percent == percent_) {
        return;
    }
    percent_ = percent;
    const std::string bar(static_cast<std::size_t>(percent * kWidth / 100), '#');
    std::fprintf(stderr, "\r%s [%-*s] %3d%%", what_.c_str(), kWidth, bar.c_str(), percent);
}
