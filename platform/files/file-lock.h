// A lock file.
#pragma once

#include <string>

#include "unique-fd.h"

// A file that exists and is locked by flock(2) while the lock is held. The kernel releases the lock
// when the process ends, so a leftover file is not a lock. Any thread, one at a time.
class FileLock {
  public:
    enum class Result {
        kTaken,    // by this object
        kHeld,     // by another process
        kUnusable  // this user cannot create or lock the file
    };

    // `path` is absolute. `note` identifies the holder; it is the content of the file.
    FileLock(std::string path, std::string note);
    ~FileLock() { Release(); }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // Takes the lock if it is free. kTaken if this object holds it already.
    Result Take();
    // Waits until the lock is free. Never kHeld.
    Result Wait();
    // Removes the file and releases the lock, as the destructor does.
    void Release();

    // The holder's note; empty if there is no holder, or the holder has not written it yet.
    std::string HoldersNote() const;

  private:
    Result Lock(int operation);
    void RemoveFile() const;

    std::string path_;
    std::string note_;
    UniqueFd file_;
};
