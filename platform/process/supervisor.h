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
//                   <-- kOpened ------- the client is open, the run is over
//       within 3 s  <-- (closed pipe) - the process has ended
//     exit 0
//
// The next attempt after one that ended too early:
//
//     ended or hung before kConnected   hung: kWithoutDisplay; ended: the next mode
//     ended or hung before kReady       the next mode, up to kWithoutDisplay; then kOpenOnly
//     ended during the run              kAfterRepair; the second time kOpenOnly
//     ended in kOpenOnly                none: the supervisor exits with 0
enum class StartMode {
    kFull,
    kWithoutSession,  // without the session's bus and session manager
    kWithoutDisplay,  // nor a display
    kAfterRepair,     // nor a display; an old copy is put back before the run
    kOpenOnly         // an old copy is put back, and the client is opened without an upgrade
};

enum class Stage : char { kStarted, kConnected, kReady, kOpened };

struct Attempt {
    StartMode mode = StartMode::kFull;
    std::string cause;  // how the previous attempt ended; empty for the first one
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

// Reports that this process has reached `stage`. From kReady to kOpened, exit(3) becomes _exit(2):
// a library that ends the process must not destroy static objects under the worker thread. Any
// thread, in the order of the stages.
void ReportStage(Stage stage);
