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
    // The visible window of a start, as xdotool's number; empty without one.
    QString Window(const QProcess& start) const;
    void SignalServer(int number) { kill(static_cast<pid_t>(server_.processId()), number); }
    void KillWindowManager();

  private:
    QProcess server_;
    QProcess manager_;
    QString display_;
};

// A package that is slow to arrive: a FIFO (fifo(7)). An upgrade shows its window, then waits for it.
class SlowPackage {
  public:
    // In the place of the package that `world` offers.
    explicit SlowPackage(const World& world);
    // Delivers the package.
    void Arrive() const;

  private:
    std::string path_;
    std::string package_;
};

// Has the launcher tell what its window does; `how` is for the plug-in in spy.cpp.
void Spy(World& world, const char* how = "spy");
// What it has told.
std::string Told(const Outcome& run);
