// The application object that knows of a second instance.
#pragma once

#ifdef __APPLE__
#include <QtSingleApplication>
#else

#include <QApplication>
#include <memory>

#include "platform/files/file-lock.h"

// A QApplication with isRunning(), where the library of this name is not packaged. An instance is
// known by the path of its executable and by the user: a copy at another path, or another user, is
// another. Main thread.
class QtSingleApplication : public QApplication {
  public:
    // `gui` is there for the library's signature; only true is of use here.
    QtSingleApplication(int& argc, char** argv, bool gui);
    ~QtSingleApplication() override;

    // Whether another instance is running. The first instance that asks becomes the one that runs,
    // until it ends. The lock is a file in /tmp in every session of the user, whatever its
    // environment says. One that cannot be made, or is another user's, is no running instance.
    bool isRunning();

  private:
    std::unique_ptr<FileLock> lock_;
};

#endif
