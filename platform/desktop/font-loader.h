// Loads the list of fonts before the first window needs it.
#pragma once

#include <thread>

// Loads the list on its own thread while the main thread connects to the display. Loading takes a
// third of the instructions of a start.
class FontLoader {
  public:
    FontLoader() = default;
    ~FontLoader() { Wait(); }
    FontLoader(const FontLoader&) = delete;
    FontLoader& operator=(const FontLoader&) = delete;

    // If no thread can be created, the window loads the list.
    void Start();
    void Wait();

  private:
    std::thread thread_;
};
