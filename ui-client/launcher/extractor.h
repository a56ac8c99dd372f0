// Unpacking of the package.
#pragma once

#include "ustring/ustring.h"

struct archive;

// Unpacks an archive, in any format and with any filter that libarchive recognises by content, into
// a directory, and reports each entry through Notify_Adapter. Every failure is a line in the log
// under "extractor_debug" and the result -1; what was written until then stays. An object and its
// calls belong to one thread, any thread.
class Extractor {
  public:
    // Writes all entries of `m_source` below `m_dest`. Every entry counts, and every one is
    // reported, as its number from 1 on of the total. Missing parents are made, and what stands
    // under an entry's name is replaced; owner, exact mode and times are not restored. A path with
    // ".." in it fails, and so do one that is not UTF-8 or too long for a system call, any warning
    // of libarchive, and another number of entries than was counted. The last entry is written when
    // all others are on the disk: a power cut leaves it out, or leaves nothing out. Result: 0 when
    // the end was reached and all is on the disk; -1.
    int Extract();

    // The number of entries that can be read, a damaged archive's until the damage. Result: 0 or
    // more; -1 if the archive cannot be opened.
    int Count();

    // Prints the path of each entry on a line of standard output. Result: 0, also when damage ends
    // the listing; -1 if the archive cannot be opened.
    int List();

    // Pours the data of the present entry of `ar` into `aw`. Result: 0; -1.
    int copy_data(archive* ar, archive* aw);

    ustring m_dest;    // directory that receives the entries, without a trailing "/"
    ustring m_source;  // path of the archive

  private:
    int ExtractEntries(int total, archive* reader, archive* writer);
    bool Flush(archive* writer) const;
    bool HasPaths() const;
};
