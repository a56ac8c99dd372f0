// Reads small files of keys and values.
#pragma once

#include <map>

#include "ustring/ustring.h"

// An ordered map from key to value. Does not keep the file open.
//
// A line is `key=value`, with optional white space around both. A key has ASCII letters, digits,
// underscores, hyphens and full stops, and may be empty. A plain value ends at white space and is
// not empty. A value in single or double quotes may be empty and may have blanks, but no control
// characters. A comment starts with a number sign, on its own line or after a value. Only values
// and comments may have bytes of 0x80 and above. Examples:
//
//     pid=1234
//       name = "two words"   # why
//     # a comment
class Config : public std::map<ustring, ustring> {
  public:
    // Adds the lines of the file at `path` (UTF-8) to the map; the last line of a key wins. A line
    // of more than 8191 bytes counts as several. A read error counts as the end of the file.
    // Result: 0; -1 for an empty path or a file that cannot be opened, which leave the map
    // unchanged; -1 for a malformed line, which clears the map. Logs nothing.
    int read(const ustring& path);

    // Returns the leading decimal number of a value, with an optional sign, or 0. A number that
    // does not fit gives the nearest int. A missing key gets an empty entry.
    int get_int(const ustring& key);
};
