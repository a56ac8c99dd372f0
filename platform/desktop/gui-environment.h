// What the application object needs to come up on any machine and in any session.
#pragma once

#include <QString>
#include <memory>

// Stands around the life of the application object. Qt ends the process when no platform plug-in
// comes up, breaks when its display goes, and waits without a limit for what a session does not
// answer; the launcher has work to do without a window. So:
//
// - Qt's list of platforms ends in "offscreen" and leaves out an X display that does not take this
//   user or does not answer within a few seconds, or any where no thread can be had to ask it.
// - Platform plug-ins are found in the bundle of the executable or in Qt's own place where
//   `library_path` has none.
// - What then still ends the process, crashes or hangs leads to a new start of the program, without
//   the session's bus and manager or without a display. The main thread is guarded by RunGuard.
// - Windows have the size that the display's resolution asks for.
//
// Works through environment variables, which are put back by Restore(), so that the client does not
// inherit them. Main thread, before any other thread. Does nothing on Apple systems.
class GuiEnvironment {
  public:
    // `library_path` is the directory that was given to QCoreApplication::setLibraryPaths, `argv`
    // what main was given.
    GuiEnvironment(const QString& library_path, char** argv);
    ~GuiEnvironment();
    GuiEnvironment(const GuiEnvironment&) = delete;
    GuiEnvironment& operator=(const GuiEnvironment&) = delete;

    // To be called when the application object is built. Starts accessibility, too.
    void Restore();

    // Starts the program over without a display if it has one; else returns.
    void GiveDisplayUp();

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};
