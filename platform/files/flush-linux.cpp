// Flushing by syncfs(2).
#include <fcntl.h>
#include <unistd.h>

#include "platform/files/flush.h"
#include "unique-fd.h"

// Flushes the whole volume, names included. fsync(2) for each file would write the journal
// thousands of times. Linux 5.8 and later report failed writes.
int FlushTree(const char* path) {
    const UniqueFd directory(open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return directory.valid() ? syncfs(directory.get()) : -1;
}
