// Resolves symbolic links among the entries of a client, without a file system.
#pragma once

#include <map>
#include <string>

#include "tools/qpk/entry.h"

class Links {
  public:
    enum Outcome {
        kInside,  // the target is in the client, whether or not it exists
        kLeaves,  // the target is absolute or outside the client
        kCircle,
    };

    struct Target {
        Outcome outcome;
        std::string path;  // with kInside
    };

    // Keeps pointers to the entries.
    explicit Links(const Entries& entries);

    // Resolves every link in a path (path_resolution(7)).
    Target Follow(const std::string& path) const { return Follow("", path); }
    // The same for the text of a link, relative to the link's directory.
    Target Follow(const Entry& link) const;

    // The entry with exactly this path, or null.
    const Entry* Find(const std::string& path) const;

  private:
    Target Follow(std::string done, std::string rest) const;

    std::map<std::string, const Entry*> entries_;
};
