// A file compressed by zstd.
#include "tools/qpk/zstd-file.h"

#include <QFileInfo>
#include <QThread>
#include <algorithm>

#include "tools/qpk/message.h"

ZstdFile::ZstdFile(const std::string& path, int level)
    : file_(QString::fromStdString(path)),
      context_(ZSTD_createCCtx()),
      buffer_(ZSTD_CStreamOutSize()) {
    // A device must not be replaced.
    const QFileInfo former(file_.fileName());
    if (former.exists() && !former.isFile()) {
        throw Error(path, Message::kNotRegular);
    }
    if (!file_.open(QIODevice::WriteOnly)) {
        Fail(file_.errorString().toStdString());
    }
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_compressionLevel, level);
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_checksumFlag, 1);
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_windowLog, kWindowLog);
    // The bytes are the same for any number of workers, at least one. A library without threads
    // refuses the parameter and uses this thread.
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
        WriteOut(static_cast<qint64>(output.pos));
        done = directive == ZSTD_e_end ? left == 0 : input.pos == input.size;
    }
}

// On a full disk the first write is short, and the next one returns the reason.
void ZstdFile::WriteOut(qint64 size) {
    for (qint64 at = 0, written = 0; at < size; at += written) {
        written = file_.write(buffer_.data() + at, size - at);
        if (written < 0) {
            Fail(file_.errorString().toStdString());
        }
    }
}

void ZstdFile::Fail(const std::string& why) const {
    throw Error(file_.fileName().toStdString(), Message::kCannotWrite, {why});
}
