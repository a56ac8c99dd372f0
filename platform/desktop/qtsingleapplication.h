// An application object that detects a running instance.
#pragma once

#ifdef __APPLE__
#include <QtSingleApplication>
#else

#include <QApplication>
#include <memory>

#include "platform/files/file-lock.h"

// For systems without a package of the library with this name. An instance is identified by the
// path of its executable and by the user. Main thread.
class QtSingleApplication : public QApplication {
  public:
    // `gui` exists for the library's signature and must be true.
    QtSingleApplication(int& argc, char** argv, bool gui);
    ~QtSingleApplication() override;

    // Whether another instance is running. The first instance that calls this is the running one
    // until it ends. The lock file is in /tmp, whatever $TMPDIR is. False if the lock file cannot
    // be created or belongs to another user.
    bool isRunning();

  private:
    std::unique_ptr<FileLock> lock_;
};

#endif
