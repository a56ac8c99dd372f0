// An X display with a window manager, slow packages, and the spy plug-in.
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
    void KillWindowManager();

  private:
    QProcess server_;
    QProcess manager_;
    QString display_;
};

// A package that arrives slowly: a FIFO (fifo(7)). The upgrade shows its window and waits.
class SlowPackage {
  public:
    // Replaces the package in the bundle of `world`.
    explicit SlowPackage(const World& world);
    // Delivers the package.
    void Arrive() const;

  private:
    std::string path_;
    std::string package_;
};

// Loads the plug-in of spy.cpp into the launcher.
void Spy(World& world, const char* how = "spy");
// The lines that it has written.
std::string SpyOutput(const Outcome& run);
