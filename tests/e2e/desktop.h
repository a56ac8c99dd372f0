// An X display with a window manager, delayed packages, and the spy plug-in.
#pragma once

#include "e2e/harness.h"

class Desktop {
  public:
    explicit Desktop(int resolution = 96);
    ~Desktop();

    // Makes the launcher of `world` use this display.
    void Show(World& world) const;
    QString Display() const { return display_; }
    // Runs xdotool to its end. Result: its output.
    QString Do(const QStringList& words) const;
    // xdotool's number of the visible window of a start; empty without one.
    QString Window(const QProcess& start) const;
    void SignalServer(int number) { kill(static_cast<pid_t>(server_.processId()), number); }

  private:
    QProcess server_;
    QProcess manager_;
    QString display_;
};

// Replaces the package in the bundle with a FIFO (fifo(7)), so that an upgrade waits. Result: delivers the package.
std::function<void()> DelayPackage(const World& world);

// Loads the plug-in of spy.cpp into the launcher.
void Spy(World& world, const char* how = "spy");
// The lines that it has written.
std::string SpyOutput(const Outcome& run);
