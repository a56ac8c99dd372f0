// Looks on while the main thread talks to the session.
#pragma once

#include <future>
#include <thread>

// An X display, a compositor, a session manager or a message bus may take a connection and never
// say a word, and the libraries that talk to them wait without a limit. So a thread of this object
// asks the display first, and then starts the program over, without the session or without the
// display, when a step of the main thread takes too long. Made and used on the main thread.
class SessionWatch {
  public:
    struct Display {
        bool answers = false;
        double resolution = 0;  // dots per inch, as the user has set it or as the screen has it
    };

    // Begins to watch, where a thread can be had. Result: of the X display that $DISPLAY names,
    // which answers when `wants_x11` and it has taken this user. One that leaves the question open
    // for 3 seconds is given up by StartOver. The connection stays open while there is watching,
    // since some servers start over when their last client goes.
    Display Begin(bool wants_x11);
    // Whether there is a thread that watches.
    bool IsOn() const { return thread_.joinable(); }

    // The step that builds the application object is over; it may take 10 seconds.
    void ApplicationIsBuilt();
    // The step that starts accessibility is over, and with it the watching; it may take 3 seconds.
    void End();

    ~SessionWatch() { End(); }
    SessionWatch() = default;
    SessionWatch(const SessionWatch&) = delete;
    SessionWatch& operator=(const SessionWatch&) = delete;

  private:
    std::promise<void> built_;
    std::promise<void> ended_;
    std::thread thread_;
};
