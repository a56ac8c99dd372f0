// The window system has the list of fonts.
#include "platform/desktop/font-loader.h"

void FontLoader::Start() {}

void FontLoader::Wait() {}
