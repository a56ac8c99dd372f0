// What a process may rely on from its first line on.
#include "platform/desktop/process-start.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

void OpenStandardStreams() {
    // The lowest free number is given (open(2)).
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
