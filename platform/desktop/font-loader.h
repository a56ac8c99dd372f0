// Reading the list of fonts ahead of the first window.
#pragma once

#include <thread>

// Reads the list on a thread of its own while the main thread connects to the display. Reading
// takes a third of a start's instructions, and the first window waits for it.
class FontLoader {
  public:
    FontLoader() = default;
    ~FontLoader() { Wait(); }
    FontLoader(const FontLoader&) = delete;
    FontLoader& operator=(const FontLoader&) = delete;

    // Where no thread can be created, the window reads the list.
    void Start();
    void Wait();

  private:
    std::thread thread_;
};
