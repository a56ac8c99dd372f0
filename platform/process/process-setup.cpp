// Prepares the process.
#include "platform/process/process-setup.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

namespace {

void OpenStandardStreams() {
    // open(2) returns the lowest free number.
    int descriptor = STDIN_FILENO;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDWR);
    }
    if (descriptor > STDERR_FILENO) {
        close(descriptor);
    }
}

void KeepOwnersRights() {
    const mode_t mask = umask(0);
    umask(mask & ~mode_t{S_IRWXU});
}

void MakeHomeAbsolute() {
    const char* const home = getenv("HOME");
    if (home == nullptr || *home == 0 || *home == '/') {
        return;
    }
    std::error_code failure;
    const std::filesystem::path absolute = std::filesystem::absolute(home, failure);
    if (!failure) {
        setenv("HOME", absolute.c_str(), 1);
    }
}

void SetSignals() {
    for (const int ignored : {SIGHUP, SIGPIPE, SIGXFSZ}) {
        signal(ignored, SIG_IGN);
    }
    signal(SIGCHLD, SIG_DFL);
}

}  // namespace

void PrepareProcess() {
    OpenStandardStreams();
    KeepOwnersRights();
    MakeHomeAbsolute();
    SetSignals();
}
