// A lock file.
#include "platform/files/file-lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <sstream>
#include <utility>

namespace {

bool IsFileOfThisUser(int file) {
    struct stat status;
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid();
}

bool IsNamed(int file, const char* path) {
    struct stat opened;
    struct stat named;
    return fstat(file, &opened) == 0 && lstat(path, &named) == 0 && opened.st_ino == named.st_ino &&
           opened.st_dev == named.st_dev;
}

int FlockThroughSignals(int file, int operation) {
    int result = -1;
    do {
        result = flock(file, operation);
    } while (result != 0 && errno == EINTR);
    return result;
}

}  // namespace

FileLock::FileLock(std::string path, std::string note)
    : path_(std::move(path)), note_(std::move(note)) {}

FileLock::Result FileLock::Take() {
    return Lock(LOCK_EX | LOCK_NB);
}

FileLock::Result FileLock::Wait() {
    return Lock(LOCK_EX);
}

FileLock::Result FileLock::Lock(int operation) {
    if (file_.valid()) {
        return Result::kTaken;
    }
    for (;;) {
        // O_NOFOLLOW and O_NONBLOCK: whatever has this name must not redirect or block this call.
        UniqueFd file(open(path_.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                           S_IRUSR | S_IWUSR));
        if (!file.valid() || !IsFileOfThisUser(file.get())) {
            return Result::kUnusable;
        }
        if (FlockThroughSignals(file.get(), operation) != 0) {
            return errno == EWOULDBLOCK ? Result::kHeld : Result::kUnusable;
        }
        // The previous holder may have removed the file meanwhile.
        if (IsNamed(file.get(), path_.c_str())) {
            file_ = std::move(file);
            break;
        }
    }
    if (ftruncate(file_.get(), 0) != 0 ||
        write(file_.get(), note_.data(), note_.size()) != static_cast<ssize_t>(note_.size())) {
        // On a full disk the lock is held without a note.
    }
    return Result::kTaken;
}

// Another file with this name is another process's lock.
void FileLock::RemoveFile() const {
    if (IsNamed(file_.get(), path_.c_str())) {
        unlink(path_.c_str());
    }
}

void FileLock::Release() {
    if (file_.valid()) {
        RemoveFile();
        file_.reset();
    }
}

std::string FileLock::HoldersNote() const {
    // A failed read ends the text; an iterator would throw.
    std::ostringstream note;
    note << std::ifstream(path_, std::ios::binary).rdbuf();
    return note.str();
}
