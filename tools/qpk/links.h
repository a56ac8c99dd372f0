// Symbolic links among the entries of a client, followed without a file system.
#pragma once

#include <map>
#include <string>

#include "tools/qpk/entry.h"

class Links {
  public:
    enum Outcome {
        kInside,  // leads to a place in the client, whether or not something is there
        kLeaves,  // is absolute or climbs out of it
        kCircle,
    };

    struct Target {
        Outcome outcome;
        std::string path;  // with kInside
    };

    // Keeps pointers to the entries.
    explicit Links(const Entries& entries);

    // The place that a path leads to in the end, every link in it followed (path_resolution(7)).
    Target Follow(const std::string& path) const { return Follow("", path); }
    // The same for the text of a link, from where the link stands.
    Target Follow(const Entry& link) const;

    // The entry of this very path; null if there is none.
    const Entry* Find(const std::string& path) const;

  private:
    Target Follow(std::string done, std::string rest) const;

    std::map<std::string, const Entry*> entries_;
};
