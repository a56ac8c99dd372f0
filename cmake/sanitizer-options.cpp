// What the sanitizers must know of libraries that are not built with them.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __tsan_default_options();
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

// Qt passes queued calls and their arguments from thread to thread under locks that the sanitizer
// does not see, and frees them in these functions.
extern "C" const char* __tsan_default_suppressions() {
    return "race:Notify_Adapter::Update\n"
           "race:Worker::sig\n"
           "race:QMetaType::destroy\n"
           "race:QObject::~QObject\n"
           "race:QWaitCondition\n"
           "race_top:QCoreApplicationPrivate::sendPostedEvents\n"
           "race_top:operator delete\n"
           "race_top:qt_static_metacall\n";
}

// By default exit(3) waits a second, in which the worker goes on.
extern "C" const char* __tsan_default_options() {
    return "atexit_sleep_ms=0";
}
