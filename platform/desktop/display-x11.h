// Whether an X display answers.
#pragma once

#include "unique-fd.h"

// Connects to the display that $DISPLAY names and waits, a few seconds at most, for its word on a
// connection set-up (X Window System Protocol, section 8). Any word counts, a refusal too: Qt hears
// it as well and does not hang. So does a display that is not of the local or the TCP kind, of
// which nothing is known.
//
// Result: false when nobody listens, or nobody answers. `connection` is the connection, to be
// closed once Qt has its own: some servers start over when their last client goes. Main thread.
bool DisplayAnswers(UniqueFd& connection);
