// Starting the program over where its session does not let it go on.
#pragma once

// What a start of the program does without; each leaves out what the one before it does.
enum class Without { kNothing, kSession, kDisplay };

// To be called once, at the start and before arguments and environment are changed; `argv` is that
// of main. Result: what this start is to do without, kNothing unless StartOver made it. Main
// thread.
Without PrepareStartOver(char** argv);

// Replaces this process by a new start of its program (execve(2) of /proc/self/exe), which has the
// same arguments and environment and does without `without`; without a display it has only the
// first argument. Nothing is written or cleaned up. Returns where this start does without that
// already, and where the system refuses. Async-signal-safe; any thread.
void StartOver(Without without);
