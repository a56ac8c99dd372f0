// A lock that ends with its process.
#pragma once

#include <string>

#include "unique-fd.h"

// A file that is there and locked by flock(2) while the lock is held. The kernel ends the lock with
// the process, so that a file which a killed process left behind means nothing. Age means nothing
// either. Any thread, one at a time.
class FileLock {
  public:
    enum class Result {
        kTaken,    // by this object
        kHeld,     // by another process
        kUnusable  // no file of this user's can be made or locked there
    };

    // `path` is absolute. `note` is what others can read in the file, as the holder's mark.
    FileLock(std::string path, std::string note);
    ~FileLock() { Release(); }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // Takes the lock now or not at all.
    Result Take();
    // Waits for as long as another process holds the lock; never kHeld.
    Result Wait();
    // Removes the file and lets go. The destructor does so too.
    void Release();

    // Removes the files of all locks that are held, for an end without destructors. Any thread.
    static void RemoveAll();

    // What the holder has noted; empty when nobody holds the lock, or the holder is about to.
    std::string HoldersNote() const;

  private:
    Result Lock(int operation);
    void RemoveFile() const;

    std::string path_;
    std::string note_;
    UniqueFd file_;
};
