// What the application object needs to come up in any session.
#pragma once

#include <QString>

#include "platform/desktop/font-loader.h"
#include "platform/desktop/scoped-environment.h"
#include "platform/process/supervisor.h"

// Exists around the construction of the application object. Changes environment variables so that
// Qt tries the right platforms (see PlatformsToTry), finds their plug-ins in `library_path`, in the
// bundle of the executable, or in Qt's own directory, and does without what `mode` leaves out.
// Windows get the size that the display's resolution asks for. Does nothing on Apple systems. Main
// thread, before any other thread.
class GuiEnvironment {
  public:
    GuiEnvironment(StartMode mode, const QString& library_path);

    // Restores the environment, which the client inherits. To be called after the construction of
    // the application object. Connects to what the first window would otherwise connect to during
    // the run: the accessibility bus, and OpenGL.
    void Restore();

  private:
    void LeaveOutDisplay();
    void UseDisplay(const QString& library_path);

    ScopedEnvironment environment_;
    FontLoader fonts_;
};
