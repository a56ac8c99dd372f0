// Reads files.
#pragma once

#include <cstdint>
#include <limits>
#include <string>

// Returns the first `most` bytes of a file, or all of it. Throws Error if it cannot be read.
std::string ReadFile(const std::string& path,
                     std::int64_t most = std::numeric_limits<std::int64_t>::max());
