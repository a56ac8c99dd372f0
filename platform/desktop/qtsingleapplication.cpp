// Detects a running instance by a lock file.
#include "platform/desktop/qtsingleapplication.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>

#include "install-layout.h"

namespace {

std::string LockPath(const QByteArray& program) {
    const QByteArray id =
        QCryptographicHash::hash(program, QCryptographicHash::Sha1).toHex().left(16);
    return layout::kInstanceLockPrefix + id.toStdString() + "-" + std::to_string(getuid()) +
           ".lock";
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool) : QApplication(argc, argv) {}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::isRunning() {
    if (!lock_) {
        const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
        lock_.reset(new FileLock(LockPath(program), program.toStdString()));
    }
    return lock_->Take() == FileLock::Result::kHeld;
}
