// File names in UTF-8 under any locale.
#pragma once

// Sets the character type of the locale, which libarchive also uses, and the codec of Qt's file
// names to UTF-8, if the user's locale has another one. Other categories stay as they are. Main
// thread. Call it after setlocale and after the construction of the application object.
void UseUtf8FileNames();
