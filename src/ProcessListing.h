#pragma once

namespace vexel {

// Until the command line arrives: reads the process table twice, one second
// apart, groups it into apps and prints one line per app.
int printApps();

} // namespace vexel
