#pragma once

#include <csignal>

namespace vexel {

// SIGTERM (the session ending, systemd stopping a unit), SIGINT (Ctrl-C) and
// SIGHUP (the terminal it was started from closing): each ends Vexel the
// ordinary way, with the waiting minute of history written.
// Blocked before any thread starts, so that they wait to be taken where the
// program looks for them (sigtimedwait, a signalfd) instead of killing it.
[[nodiscard]] sigset_t stopSignals();
// Blocks them for this thread and every thread started after; the set.
sigset_t blockStopSignals();

} // namespace vexel
