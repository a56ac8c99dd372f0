// The environment of the application object.
#pragma once

#include <QString>

#include "platform/desktop/font-loader.h"
#include "platform/desktop/scoped-environment.h"
#include "platform/process/supervisor.h"

// Changes environment variables during the construction of the application object: Qt tries the
// platforms of PlatformsToTry, finds their plug-ins in `library_path`, in the bundle of the
// executable or in its own directory, and does not use what `mode` leaves out. Enables scaling for
// high resolutions. Does nothing on Apple systems. Main thread, before other threads exist.
class GuiEnvironment {
  public:
    GuiEnvironment(StartMode mode, const QString& library_path);

    // Restores the environment for the client. Call it after the construction of the application
    // object. Also connects to the accessibility bus and OpenGL, so that the first window does not
    // do so during the run.
    void Restore();

  private:
    void LeaveOutDisplay();
    void UseDisplay(const QString& library_path);

    ScopedEnvironment environment_;
    FontLoader fonts_;
};
