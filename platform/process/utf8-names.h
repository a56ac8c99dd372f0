// File names in UTF-8 under any locale.
#pragma once

// Sets the character type of the C library, and with it libarchive's, and the codec of Qt's file
// names to UTF-8 where the user's locale has another or none ("C"). Language, numbers and dates
// stay the user's. Main thread. To be called after each thing that sets the locale: setlocale
// itself, and the construction of Qt's application object.
void UseUtf8FileNames();
