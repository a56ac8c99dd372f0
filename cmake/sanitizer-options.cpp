// What the sanitizers must know of the libraries: Qt's platform plug-ins and fontconfig keep what they have
// allocated until the process ends.
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libqoffscreen\n"
           "leak:libqxcb\n"
           "leak:libQt5XcbQpa\n"
           "leak:libfontconfig\n";
}
