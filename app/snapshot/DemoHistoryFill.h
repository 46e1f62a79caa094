#pragma once

#include "grouping/AppGroup.h"
#include "settings/VexelPaths.h"

#include <vector>

namespace vexel {

// Gives the demo world's data folder five weeks of history, as a machine that
// had recorded them would hold, the load of `cores` cores shared among `apps`.
void fillDemoHistory(const VexelPaths& paths, double now, const std::vector<AppGroup>& apps, int cores);

} // namespace vexel
