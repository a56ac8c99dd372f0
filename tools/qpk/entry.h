// One object of a client, read from its directory or from a package.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <vector>

struct Entry {
    // Relative to the root of the private copy, without "." and empty components: "" is the root
    // itself. What is wrong in it (a leading "/", "..") is kept.
    std::string path;
    mode_t mode = 0;             // type and permission bits, as in struct stat
    std::int64_t size = 0;       // bytes, of a regular file
    std::string link_text;       // of a symbolic link
    std::string hard_link = {};  // the entry that this is another name of, else ""
};

using Entries = std::vector<Entry>;

// The name with its control characters made visible, for a terminal.
std::string Visible(const std::string& name);
