// A file, directory or link of a client, from its directory or a package.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <vector>

struct Entry {
    // Relative to the root of the per-user copy, without "." and empty components; "" is the root.
    // A leading "/" and ".." stay, for the rules.
    std::string path;
    mode_t mode = 0;             // type and permission bits, as in struct stat
    std::int64_t size = 0;       // bytes, of a regular file
    std::string link_text;       // of a symbolic link
    std::string hard_link = {};  // the path that this is another name of, or ""
};

using Entries = std::vector<Entry>;

// Returns the name with escaped control characters, for a terminal.
std::string Visible(const std::string& name);
