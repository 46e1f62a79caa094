#pragma once

namespace vexel {

// Runs the desktop app until its last window closes; returns the exit status.
int runDesktopApp(int& argc, char** argv);

} // namespace vexel
