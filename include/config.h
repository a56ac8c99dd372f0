// Reader of small files of key and value lines.
#pragma once

#include <map>

#include "ustring/ustring.h"

// An ordered map from key to value, read from a file. A plain value: it keeps no file open.
//
// A line is `key=value`, with white space allowed around both. Keys are made of ASCII letters and
// digits, underscores, hyphens and full stops, and may be empty. A value is plain (it ends at white
// space, and cannot be empty) or stands between two equal quotes, single or double (it may be empty
// and hold blanks, and no control character). A number sign starts a comment, alone on a line or
// behind a value. Bytes of 0x80 and above stand in values and comments only. Examples:
//
//     pid=1234
//       name = "two words"   # why
//     # a comment
class Config : public std::map<ustring, ustring> {
  public:
    // Adds the lines of the file at `path` (UTF-8) to the map; the last line of a key wins. A line
    // of more than 8191 bytes counts as several. Result: 0 when the file was read to its end; -1
    // for an empty path or a file that cannot be opened (the map stays as it was) and for a
    // malformed line (the map is then empty: one such line refuses the whole file). Logs nothing.
    int read(const ustring& path);

    // The leading decimal number of a value, with optional sign; 0 where there is none. A key that
    // is missing gets an empty entry.
    int get_int(const ustring& key);
};
