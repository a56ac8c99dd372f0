// A bundle's executable is started where the system knows no bundles.
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "platform/desktop/open-application.h"

namespace {

// The files of the new process: nothing of this one's but its standard streams, which lead nowhere.
class FileActions {
  public:
    FileActions() {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
        posix_spawn_file_actions_addchdir_np(&actions_, "/");
    }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_;
};

class Attributes {
  public:
    Attributes() {
        sigset_t all;
        sigset_t none;
        sigfillset(&all);
        sigemptyset(&none);
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    ~Attributes() { posix_spawnattr_destroy(&attributes_); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    const posix_spawnattr_t* get() const { return &attributes_; }

  private:
    posix_spawnattr_t attributes_;
};

// posix_spawn(3) reports what execve(2) says. The child becomes init's when this process ends.
bool Start(const QString& path) {
    QByteArray name = QFile::encodeName(path);
    char* const arguments[] = {name.data(), nullptr};
    pid_t child = 0;
    return posix_spawn(&child, name.constData(), FileActions().get(), Attributes().get(), arguments,
                       environ) == 0;
}

}  // namespace

bool OpenApplication(const QString& application, const QString& executable) {
    if (QFileInfo(application).suffix() == "app") {
        return Start(application + "/" + executable);
    }
    return QFileInfo::exists(application) &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(application));
}
