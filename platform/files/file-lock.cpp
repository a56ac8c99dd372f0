// A lock that ends with its process.
#include "platform/files/file-lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <mutex>
#include <set>
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

// The locks that are held. Never freed: an end without destructors comes late.
struct Locks {
    std::mutex mutex;
    std::set<FileLock*> held;
};

Locks& All() {
    static auto* const locks = new Locks;
    return *locks;
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
        // Nothing that lies there can hold this call up, or lead to another file.
        UniqueFd file(open(path_.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                           S_IRUSR | S_IWUSR));
        if (!file.valid() || !IsFileOfThisUser(file.get())) {
            return Result::kUnusable;
        }
        if (FlockThroughSignals(file.get(), operation) != 0) {
            return errno == EWOULDBLOCK ? Result::kHeld : Result::kUnusable;
        }
        // Its holder may have removed the file in between, and it is nobody's lock any more.
        if (IsNamed(file.get(), path_.c_str())) {
            file_ = std::move(file);
            break;
        }
    }
    if (ftruncate(file_.get(), 0) != 0 ||
        write(file_.get(), note_.data(), note_.size()) != static_cast<ssize_t>(note_.size())) {
        // A full disk: the lock is held all the same, by one that is not known.
    }
    const std::lock_guard<std::mutex> guard(All().mutex);
    All().held.insert(this);
    return Result::kTaken;
}

// A file that has come into the place of this one is another's lock.
void FileLock::RemoveFile() const {
    if (IsNamed(file_.get(), path_.c_str())) {
        unlink(path_.c_str());
    }
}

void FileLock::Release() {
    const std::lock_guard<std::mutex> guard(All().mutex);
    if (All().held.erase(this) != 0) {
        RemoveFile();
        file_.reset();
    }
}

void FileLock::RemoveAll() {
    const std::lock_guard<std::mutex> guard(All().mutex);
    for (const FileLock* const lock : All().held) {
        lock->RemoveFile();
    }
}

std::string FileLock::HoldersNote() const {
    // Written from buffer to buffer: a read that fails ends the text, where an iterator would
    // throw.
    std::ostringstream note;
    note << std::ifstream(path_, std::ios::binary).rdbuf();
    return note.str();
}
