// Prepares the process.
#pragma once

// Sets up what the process may have inherited in an unsuitable state. Opens /dev/null for each
// closed standard stream, so that no other file gets its descriptor. Keeps the owner's rights in
// the umask (umask(2)), because a copy needs them. Makes a relative $HOME absolute, because the
// client runs in another directory. Ignores SIGHUP, because the terminal may close during a run,
// and SIGPIPE and SIGXFSZ, so that the write fails instead. Resets SIGCHLD, which waitpid(2) needs.
//
// Precondition: it is the first call in main, with one thread.
void PrepareProcess();
