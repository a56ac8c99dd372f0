// What the sanitizers must know of libraries that are not built with them.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __tsan_default_suppressions();

// Qt's platform plug-ins, fontconfig and D-Bus keep what they have allocated until the process
// ends.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libqoffscreen\n"
           "leak:libqxcb\n"
           "leak:libQt5XcbQpa\n"
           "leak:libQt6XcbQpa\n"
           "leak:libdbus-1\n"
           "leak:libfontconfig\n";
}

// Qt hands queued calls and their arguments from thread to thread under locks that are not seen, in
// lists that it moves and frees. Of most functions only the innermost counts, so that races in what
// these calls lead to are still reported.
extern "C" const char* __tsan_default_suppressions() {
    return "race:Notify_Adapter::Update\n"
           "race:Worker::sig\n"
           "race:QMetaType::destroy\n"
           "race:QWaitCondition\n"
           "race_top:free\n"
           "race_top:memcmp\n"
           "race_top:memcpy\n"
           "race_top:memmove\n"
           "race_top:write\n"
           "race_top:operator delete\n"
           "race_top:qt_static_metacall\n";
}
