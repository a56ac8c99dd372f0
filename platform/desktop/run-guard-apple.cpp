// Nothing to guard against: the window system does not end processes.
#include "platform/desktop/run-guard.h"

void RunGuard::Arm() {}

void RunGuard::RunBegins() {}

void RunGuard::Disarm() {}

bool RunGuard::IsMainThreadLost() {
    return false;
}

void RunGuard::RunIsOver() {}
