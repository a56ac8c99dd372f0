// The window system manages the fonts.
#include "platform/desktop/font-loader.h"

void FontLoader::Start() {}

void FontLoader::Wait() {}
