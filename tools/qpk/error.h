// How the tool's operations fail.
#pragma once

#include <stdexcept>
#include <string>

#include "tools/qpk/entry.h"

// Something that cannot be read, written or run: exit code 3.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A client or a package with faults: exit code 1.
class Refused : public std::runtime_error {
  public:
    explicit Refused(Findings findings)
        : std::runtime_error("refused"), findings_(std::move(findings)) {}
    const Findings& findings() const { return findings_; }

  private:
    Findings findings_;
};
