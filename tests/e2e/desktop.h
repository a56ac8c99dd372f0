// A desktop for tests: an X display with a window manager; and eyes inside the launcher.
#pragma once

#include "e2e/harness.h"

class Desktop {
  public:
    explicit Desktop(int resolution = 96);
    ~Desktop();

    // Has the launcher of `world` use this display.
    void Show(World& world) const;
    QString Display() const { return display_; }
    // Has xdotool do something, to its end. Result: what it wrote.
    QString Do(const QStringList& words) const;
    // The visible window of a process, as xdotool's number; empty without one.
    QString Window(const QProcess& owner) const;
    void SignalServer(int number) { kill(static_cast<pid_t>(server_.processId()), number); }
    void KillWindowManager();

  private:
    QProcess server_;
    QProcess manager_;
    QString display_;
};

// Makes the pid file a FIFO (fifo(7)): an upgrade shows its window, then waits for the gate to open.
void CloseGate(const World& world);
void OpenGate(const World& world);

// Has the launcher tell what its window does; `how` is for the plug-in in spy.cpp.
void Spy(World& world, const char* how = "spy");
// What it has told.
std::string Told(const Outcome& run);
