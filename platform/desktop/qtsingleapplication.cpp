// The single instance, by a lock file.
#include "platform/desktop/qtsingleapplication.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QThread>

#include "unique-fd.h"

namespace {

constexpr int kLooks = 20;
constexpr unsigned long kPause = 5;  // milliseconds

bool IsOwn(const QString& path) {
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && status.st_uid == getuid();
}

// $XDG_RUNTIME_DIR is the freedesktop.org base directory for such files, if the session has one.
QString LockDirectory() {
    QString runtime = QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
    if (!runtime.isEmpty() && IsOwn(runtime)) {
        return runtime;
    }
    const QString temporary = QDir::tempPath();  // empty for a $TMPDIR that is not there
    return temporary.isEmpty() ? QStringLiteral("/tmp") : temporary;
}

QString LockPath() {
    const QByteArray path = QCoreApplication::applicationFilePath().toUtf8();
    const QByteArray id = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex().left(16);
    return QStringLiteral("%1/quillmere-launcher-%2-%3.lock")
        .arg(LockDirectory(), QString::fromLatin1(id))
        .arg(getuid());
}

// An owner makes the file, locks it and writes it, in this order and at once. So an empty file may
// be one that is about to be locked; one that stays empty is not.
void WaitUntilWritten(int file) {
    struct stat status;
    for (int look = 0; look < kLooks && fstat(file, &status) == 0 && status.st_size == 0; ++look) {
        QThread::msleep(kPause);
    }
}

// QLockFile keeps its file locked with flock(2) as long as it owns it, and the kernel ends that
// with the process. So whoever gets the lock of the file has found one that nobody owns, whatever
// it says inside.
void RemoveIfAbandoned(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    const UniqueFd file(open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    struct stat opened;
    struct stat named;
    WaitUntilWritten(file.get());
    if (file.valid() && flock(file.get(), LOCK_EX | LOCK_NB) == 0 &&
        fstat(file.get(), &opened) == 0 && lstat(name.constData(), &named) == 0 &&
        opened.st_ino == named.st_ino) {
        unlink(name.constData());
    }
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool) : QApplication(argc, argv) {}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::isRunning() {
    if (lock_ && lock_->isLocked()) {
        return false;
    }
    const QString path = LockPath();
    lock_.reset(new QLockFile(path));
    // Age alone makes no lock stale: an upgrade takes as long as it takes.
    lock_->setStaleLockTime(0);
    if (!lock_->tryLock(0) && lock_->error() == QLockFile::LockFailedError) {
        RemoveIfAbandoned(path);
        lock_->tryLock(0);
    }
    return !lock_->isLocked() && lock_->error() == QLockFile::LockFailedError && IsOwn(path);
}
