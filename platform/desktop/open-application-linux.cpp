// Starts the executable of a bundle.
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "platform/desktop/open-application.h"

namespace {

// The descriptors of the new process: only standard streams, on /dev/null.
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

// posix_spawn(3) reports errors of execve(2).
int Spawn(QByteArray path) {
    char* const arguments[] = {path.data(), nullptr};
    pid_t child = 0;
    return posix_spawn(&child, path.constData(), FileActions().get(), Attributes().get(), arguments,
                       environ);
}

// Executes the application in this process.
void ExecApplication(QByteArray path) {
    std::fflush(nullptr);
    setsid();
    const int nothing = open("/dev/null", O_RDWR);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        dup2(nothing, stream);
    }
    closefrom(STDERR_FILENO + 1);
    for (int number = 1; number < SIGRTMIN; ++number) {
        signal(number, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    pthread_sigmask(SIG_SETMASK, &none, nullptr);
    char* const arguments[] = {path.data(), nullptr};
    if (chdir("/") == 0) {
        execve(path.constData(), arguments, environ);
    }
}

// The executable to start at exit.
QByteArray& DeferredExecutable() {
    static auto* const path = new QByteArray;
    return *path;
}

bool Start(const QByteArray& path) {
    const int error = Spawn(path);
    if (error != EAGAIN || access(path.constData(), X_OK) != 0) {
        return error == 0;
    }
    DeferredExecutable() = path;
    return std::atexit([] {
               if (Spawn(DeferredExecutable()) == EAGAIN) {
                   ExecApplication(DeferredExecutable());
               }
           }) == 0;
}

}  // namespace

bool OpenApplication(const QString& application, const QString& executable) {
    const QFileInfo info(application);
    if (info.suffix() == "app") {
        return Start(QFile::encodeName(info.absoluteFilePath() + "/" + executable));
    }
    return info.exists() && QDesktopServices::openUrl(QUrl::fromLocalFile(application));
}
