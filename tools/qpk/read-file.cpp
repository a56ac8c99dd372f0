// Reads files.
#include "tools/qpk/read-file.h"

#include <QFile>
#include <algorithm>

#include "tools/qpk/message.h"

std::string ReadFile(const std::string& path, std::int64_t most) {
    QFile file(QString::fromStdString(path));
    const bool is_open = file.open(QIODevice::ReadOnly);
    const QByteArray content =
        is_open ? file.read(std::min<qint64>(most, file.size())) : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        throw Error(path, Message::kCannotRead, {file.errorString().toStdString()});
    }
    return content.toStdString();
}
