// The application object that knows of a second instance.
#pragma once

#ifdef __APPLE__
#include <QtSingleApplication>
#else

#include <QApplication>
#include <QLockFile>
#include <memory>

// A QApplication with isRunning(), where the library of this name is not packaged. An instance is
// known by the path of its executable and by the user: a copy at another path, or another user, is
// another. Main thread.
class QtSingleApplication : public QApplication {
  public:
    // The library takes false for a program without windows; here `gui` must be true.
    QtSingleApplication(int& argc, char** argv, bool gui);
    ~QtSingleApplication() override;

    // Whether another instance is running. The first instance that asks becomes the one that runs,
    // until it ends. What a killed process left behind counts for nothing, and a lock that cannot
    // be made for another reason is no running instance.
    bool isRunning();

  private:
    std::unique_ptr<QLockFile> lock_;
};

#endif
