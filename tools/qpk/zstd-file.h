// A file compressed by zstd.
#pragma once

#include <zstd.h>

#include <QSaveFile>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "free-by.h"

// Writes one zstd frame with a checksum of its content. libarchive's own filter writes none, so
// damage in incompressible data would go undetected. Commit replaces the file atomically. Refuses
// to replace anything but a regular file. The bytes are the same for any number of processors. All
// operations throw Error.
class ZstdFile {
  public:
    ZstdFile(const std::string& path, int level);

    void Write(const void* data, std::size_t size) { Compress(data, size, ZSTD_e_continue); }
    void Commit();

    static constexpr int kFastest = 1;
    static constexpr int kSmallest = 19;

  private:
    // The launcher needs a window of this size in memory, 2 MiB. The default of level 9, 4 MiB,
    // would make a package of 300 MB 1 % smaller.
    static constexpr int kWindowLog = 21;

    void Compress(const void* data, std::size_t size, ZSTD_EndDirective directive);
    void WriteOut(qint64 size);
    [[noreturn]] void Fail(const std::string& why) const;

    QSaveFile file_;
    const std::unique_ptr<ZSTD_CCtx, FreeBy<ZSTD_freeCCtx>> context_;
    std::vector<char> buffer_;
};
