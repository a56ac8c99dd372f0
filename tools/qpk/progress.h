// A progress bar, on a terminal.
#pragma once

#include <cstdint>
#include <string>

// Writes to standard error, if that is a terminal.
class Progress {
  public:
    // `total` is the sum of all calls to Advance, in bytes.
    Progress(const std::string& what, std::int64_t total);
    // Clears the bar.
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void Advance(std::int64_t by) { MoveTo(done_ + by); }
    void MoveTo(std::int64_t done);

  private:
    const std::string what_;
    const std::int64_t total_;
    const bool visible_;
    std::int64_t done_ = 0;
    int percent_ = -1;
};
