// One process: a GUI process must not fork without exec, and the window system does not end it.
#include "platform/process/supervisor.h"

int Supervise(int (*launcher)(const Attempt&, int, char**), int argc, char** argv) {
    return launcher(Attempt(), argc, argv);
}

void ReportStage(Stage) {}
