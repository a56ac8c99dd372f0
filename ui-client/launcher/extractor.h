// Extracts a package.
#pragma once

#include "ustring/ustring.h"

struct archive;

// Extracts an archive, in any format and with any filter that libarchive detects, to a directory,
// and reports each entry to Notify_Adapter. A failure is a log line of "extractor_debug" and the
// result -1; files that were written stay. One thread uses an object, any thread.
class Extractor {
  public:
    // Writes all entries of `m_source` below `m_dest`, and reports the number of each, from 1 to
    // the total. Creates missing parents and replaces existing files. Does not restore owner, exact
    // mode and times. Fails with a path that has "..", is not UTF-8 or is too long for a system
    // call, with any warning of libarchive, and if the number of entries differs from Count().
    // Writes the last entry when all others are on the disk, so after a power cut it is missing or
    // everything is there. Result: 0 when everything is on the disk; -1.
    int Extract();

    // Returns the number of entries, up to the first damage; -1 if the archive cannot be opened.
    int Count();

    // Prints the path of each entry, up to the first damage. Result: 0; -1 if the archive cannot be
    // opened.
    int List();

    // Copies the data of the current entry of `ar` to `aw`. Result: 0; -1.
    int copy_data(archive* ar, archive* aw);

    ustring m_dest;    // target directory, without a trailing "/"
    ustring m_source;  // path of the archive

  private:
    int ExtractEntries(int total, archive* reader, archive* writer);
    bool Flush(archive* writer) const;
    bool HasPaths() const;
};
