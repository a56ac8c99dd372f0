// What the application object needs to come up on any machine and in any session.
#pragma once

#include <QByteArray>
#include <QString>
#include <thread>
#include <vector>

#include "unique-fd.h"

// Stands around the construction of the application object. Qt ends the process when no platform
// plug-in comes up, and hangs on a display that accepts a connection and never answers; the
// launcher has work to do without a window. So while this object stands, Qt's list of platforms
// ends in "offscreen", leaves out an X display that does not answer within a few seconds, and
// platform plug-ins are found in the bundle of the executable or in Qt's own place where
// `library_path` has none.
//
// It also has the system's list of fonts read meanwhile, on a thread that ends with Restore().
//
// Works through environment variables, which are put back by Restore() or the destructor, so that
// the client does not inherit them. Main thread, before any other thread. Does nothing on Apple
// systems.
class GuiEnvironment {
  public:
    // `library_path` is the directory that was given to QCoreApplication::setLibraryPaths.
    explicit GuiEnvironment(const QString& library_path);
    ~GuiEnvironment() { Restore(); }
    GuiEnvironment(const GuiEnvironment&) = delete;
    GuiEnvironment& operator=(const GuiEnvironment&) = delete;

    void Restore();

  private:
    struct Variable {
        QByteArray name;
        QByteArray value;
        bool was_set;
    };
    void Set(const char* name, const QByteArray& value);

    std::vector<Variable> former_;
    UniqueFd display_;
    std::thread fonts_;
};
