// A file compressed by zstd.
#include "tools/qpk/zstd-file.h"

#include <QThread>
#include <algorithm>

#include "tools/qpk/error.h"

ZstdFile::ZstdFile(const std::string& path, int level)
    : file_(QString::fromStdString(path)),
      context_(ZSTD_createCCtx()),
      buffer_(ZSTD_CStreamOutSize()) {
    if (!file_.open(QIODevice::WriteOnly)) {
        Fail(file_.errorString().toStdString());
    }
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_compressionLevel, level);
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_checksumFlag, 1);
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_windowLog, kWindowLog);
    // From one worker on their number makes no difference to the bytes. A library without threads
    // refuses the parameter and works in this one.
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_nbWorkers,
                           std::max(1, QThread::idealThreadCount()));
}

void ZstdFile::Commit() {
    Compress(nullptr, 0, ZSTD_e_end);
    if (!file_.commit()) {
        Fail(file_.errorString().toStdString());
    }
}

void ZstdFile::Compress(const void* data, std::size_t size, ZSTD_EndDirective directive) {
    ZSTD_inBuffer input{data, size, 0};
    for (bool done = false; !done;) {
        ZSTD_outBuffer output{buffer_.data(), buffer_.size(), 0};
        const std::size_t left = ZSTD_compressStream2(context_.get(), &output, &input, directive);
        if (ZSTD_isError(left) != 0) {
            Fail(ZSTD_getErrorName(left));
        }
        const auto produced = static_cast<qint64>(output.pos);
        if (file_.write(buffer_.data(), produced) != produced) {
            Fail(file_.errorString().toStdString());
        }
        done = directive == ZSTD_e_end ? left == 0 : input.pos == input.size;
    }
}

void ZstdFile::Fail(const std::string& why) const {
    throw Failure(file_.fileName().toStdString() + ": " + why);
}
