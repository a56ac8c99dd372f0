// Flushing by fsync(2) for each file and F_FULLFSYNC at the end.
#include <fcntl.h>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files/flush.h"
#include "unique-fd.h"

namespace {

constexpr int kOpenDirectories = 16;

// A package may have files that cannot be opened for reading.
int FlushOne(const char* path, const struct stat* status, int, FTW*) {
    if (!S_ISREG(status->st_mode) && !S_ISDIR(status->st_mode)) {
        return 0;
    }
    const UniqueFd file(open(path, O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    return file.valid() ? fsync(file.get()) : (errno == EACCES ? 0 : -1);
}

}  // namespace

// fsync(2) sends the data to the drive, and F_FULLFSYNC makes the drive write everything it has,
// including the journal with the names. sync(2) does not wait.
int FlushTree(const char* path) {
    if (nftw(path, FlushOne, kOpenDirectories, FTW_PHYS) != 0) {
        return -1;
    }
    const UniqueFd directory(open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!directory.valid()) {
        return -1;
    }
    return fcntl(directory.get(), F_FULLFSYNC) == 0 || errno == ENOTSUP ? 0 : -1;
}
