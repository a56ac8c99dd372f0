// Opens an application that outlives this process.
#pragma once

#include <QString>

// Opens the application at the local path `application`, as if the user had done so.
//
// Apple systems open the bundle by its URL. On others a directory named "*.app" is a bundle, and
// its file `executable` (a relative path) is started: in a new session, in "/", with default signal
// dispositions, with /dev/null as standard streams and no other descriptors. If the process limit
// is reached, the start is deferred to the normal exit of this process, after the end of its
// threads; if the limit is still reached then, this process executes the application.
// QDesktopServices::openUrl opens everything that is not a bundle.
//
// Result: whether it was opened, started or deferred. False if it does not exist. Any thread.
bool OpenApplication(const QString& application, const QString& executable);
