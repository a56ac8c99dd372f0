// Flushing by syncfs(2).
#include <fcntl.h>
#include <unistd.h>

#include "platform/files/flush.h"
#include "unique-fd.h"

// One call for the whole volume: it writes names and their changes too, so no directory needs an
// fsync(2) of its own, and the file system puts the files in its own order, where an fsync for each
// would have it write its journal thousands of times. From Linux 5.8 on it tells of failed writes.
int FlushTree(const char* path) {
    const UniqueFd directory(open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return directory.valid() ? syncfs(directory.get()) : -1;
}
