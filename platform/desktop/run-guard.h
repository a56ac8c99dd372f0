// The run goes on to its end, whatever becomes of the main thread.
#pragma once

// Qt's plug-in for X11 calls exit(3) on the main thread when its display goes, what draws on a
// display that has just gone may crash, and one that is cut off without a word holds the thread up
// for many minutes. The work is done on another thread, so:
//
// - Before the run, an exit or a crash leads to a new start of the program without a display, for
//   which PrepareStartOver must have been called.
// - During the run the main thread is kept where it is, and the process ends with 0 when the run is
//   over. Objects of static storage duration are not destroyed, but for those that were first used
//   after RunBegins.
// - After the run the process ends with 0, at the latest after 3 seconds.
//
// All of it does nothing on Apple systems.
namespace RunGuard {

// From here on the main thread is guarded. Main thread, as for the next two.
void Arm();
void RunBegins();
// From here on exit(3) and crashes are what they always were.
void Disarm();

// During the run, on its own thread: whether the main thread has come to its end.
bool IsMainThreadLost();
// To be called at the end of the run, on its thread. Does not return when the main thread is lost.
void RunIsOver();

}  // namespace RunGuard
