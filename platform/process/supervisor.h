// The processes of one start, and the sequence of a run.
#pragma once

#include <string>

// A start consists of two processes. The launcher may crash, hang or be killed; the supervisor then
// forks another attempt, which does with less.
//
//     supervisor                        launcher (an attempt)
//     fork ---------------------------> StartMode::kFull
//       within 5 s  <-- kConnected ---- the window system has answered
//       within 5 s  <-- kReady -------- application object and window exist
//       no limit                        the run: decide, upgrade, open the client
//                   <-- kMoved -------- the old copy is a backup now
//                   <-- kInstalled ---- the new copy is whole; the backups may go
//                   <-- kOpened ------- the client is open, the run is over
//       within 3 s  <-- (closed pipe) - the process has ended
//     exit 0
//
// The next attempt after one that ended too early:
//
//     hung before kConnected            kWithoutDisplay, or the next mode if that is later
//     ended or hung before kReady       the next mode
//     ended during the run              kAfterRepair, or the next mode if that is later
//     ended in kOpenOnly                none: the supervisor exits with 0
enum class StartMode {
    kFull,
    kWithoutSession,  // without the session's bus and session manager
    kWithoutDisplay,  // nor a display
    kAfterRepair,     // nor a display; the interrupted upgrade is undone or completed first
    kOpenOnly         // the same, and the client is opened without another upgrade
};

enum class Stage : char { kStarted, kConnected, kReady, kMoved, kInstalled, kOpened };

struct Attempt {
    StartMode mode = StartMode::kFull;
    std::string cause;  // how the previous attempt ended; empty for the first one
    // The latest of the previous attempts' reports from kMoved on.
    Stage reached = Stage::kStarted;
    int backups = 0;
};

// Runs `launcher` in a child process and supervises it as above. The supervisor has one thread,
// makes no call of Qt and opens no file of the run.
//
// Result in the child: that of `launcher`. Result in the supervisor: 0. `main` returns either.
// SIGTERM and SIGINT to the supervisor end both processes; a supervisor that is killed leaves the
// child undisturbed. Where no child can be created, and on Apple systems, where a GUI process must
// not fork without exec, `launcher` runs in this process. Precondition: PrepareProcess was called,
// and there is one thread.
int Supervise(int (*launcher)(const Attempt& attempt, int argc, char** argv), int argc,
              char** argv);

// Reports that this process has reached `stage`; with kMoved and kInstalled, also how many names of
// backups the upgrade uses, up to that of the old copy. From kReady until kOpened, exit(3) becomes
// _exit(2): a library that ends the process must not destroy static objects under the worker
// thread. Any thread, in the order of the stages.
void ReportStage(Stage stage, char backups = 0);
