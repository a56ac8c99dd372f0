// What a process relies on from its first line on.
#pragma once

// Prepares the process that the launcher was started as, whatever it inherited:
//
// - Closed descriptors among 0 to 2 are opened on /dev/null, so that no file that is opened later
//   becomes standard output.
// - The umask keeps the owner's rights (umask(2)). A copy that its owner cannot enter or start
// would
//   otherwise replace a working one.
// - A relative $HOME becomes absolute, because the client is started in another directory.
// - SIGHUP is ignored: the terminal may close during a run. SIGPIPE and SIGXFSZ are ignored, so
// that
//   the write fails instead (EPIPE, EFBIG). SIGCHLD has its default, which waitpid(2) needs.
//
// Precondition: it is the first call of main, and there is one thread.
void PrepareProcess();
