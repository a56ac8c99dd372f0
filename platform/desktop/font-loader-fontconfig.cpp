// Loads the list of fonts before the first window needs it.
#include <fontconfig/fontconfig.h>

#include <system_error>

#include "platform/desktop/font-loader.h"

void FontLoader::Start() {
    try {
        thread_ = std::thread(FcInit);
    } catch (const std::system_error&) {
        return;
    }
}

void FontLoader::Wait() {
    if (thread_.joinable()) {
        thread_.join();
    }
}
