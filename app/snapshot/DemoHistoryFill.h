#pragma once

#include "grouping/AppGroup.h"
#include "monitor/Frame.h"
#include "settings/VexelPaths.h"
#include "time/TimeZone.h"

#include <vector>

namespace vexel {

// Gives the demo world's data folder five weeks of history, as a machine that
// had recorded them would hold up to the live `frame`, in local days of
// `zone`, the load of `cores` cores shared among `apps`.
void fillDemoHistory(
    const VexelPaths& paths, const Frame& frame, const TimeZone& zone, const std::vector<AppGroup>& apps, int cores);

} // namespace vexel
