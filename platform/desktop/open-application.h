// Opening an application that then runs by itself.
#pragma once

#include <QString>

// Opens the application at the local path `application`, as if the user had done so.
//
// Apple systems open the bundle by its URL. Elsewhere what is named ".app" is a bundle, and its
// file `executable` (a relative path) is started: in a session of its own, at "/", with default
// signal dispositions, nothing on its standard streams and no other descriptor of this process,
// which does not wait for it. Where the system has no room for another process, the start is put
// off to the normal end of this one, when its threads are gone; and where even that makes no room,
// this process becomes the application. What is no bundle goes to QDesktopServices::openUrl.
//
// Result: whether it could be opened or started; what is not there cannot. Any thread.
bool OpenApplication(const QString& application, const QString& executable);
