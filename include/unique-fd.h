// The owner of a file descriptor.
#pragma once

#include <unistd.h>

#include <utility>

// Closes its descriptor in the destructor. Owns nothing if it is negative.
class UniqueFd {
  public:
    explicit UniqueFd(int fd = -1) : fd_(fd) {}
    UniqueFd(UniqueFd&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    UniqueFd& operator=(UniqueFd&& other) noexcept {
        reset(std::exchange(other.fd_, -1));
        return *this;
    }
    ~UniqueFd() { reset(); }

    int get() const { return fd_; }
    bool valid() const { return fd_ >= 0; }
    // The caller owns the result.
    int release() { return std::exchange(fd_, -1); }

    void reset(int fd = -1) {
        if (fd_ >= 0) {
            close(fd_);
        }
        fd_ = fd;
    }

  private:
    int fd_;
};
