// A file compressed by zstd.
#pragma once

#include <zstd.h>

#include <QSaveFile>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "free-by.h"

// Writes one zstd frame with a checksum of its content, which libarchive's own filter does not
// write: damage in data that do not shrink would go unseen. The file appears under its name with
// Commit, whole; until then a former one stays; what is no regular file is refused. The bytes are
// the same for any number of processors. All operations throw Error.
class ZstdFile {
  public:
    ZstdFile(const std::string& path, int level);

    void Write(const void* data, std::size_t size) { Compress(data, size, ZSTD_e_continue); }
    void Commit();

    static constexpr int kFastest = 1;
    static constexpr int kSmallest = 19;

  private:
    // What the launcher holds in memory to unpack is this window, 2 MiB. One of 4 MiB, level 9's
    // own, would make a package of 300 MB smaller by 1 %.
    static constexpr int kWindowLog = 21;

    void Compress(const void* data, std::size_t size, ZSTD_EndDirective directive);
    void WriteOut(qint64 size);
    [[noreturn]] void Fail(const std::string& why) const;

    QSaveFile file_;
    const std::unique_ptr<ZSTD_CCtx, FreeBy<ZSTD_freeCCtx>> context_;
    std::vector<char> buffer_;
};
