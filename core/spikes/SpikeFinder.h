#pragma once

#include "history/AppPoint.h"
#include "history/SysPoint.h"
#include "spikes/Spike.h"
#include "spikes/SpikeRules.h"

#include <vector>

namespace vexel::SpikeFinder {

// The notable episodes in a stretch of history, newest first: long CPU load,
// memory pressure, heavy disk writing, heavy network traffic, heat and fast
// battery drain, each with the app most responsible.
[[nodiscard]] std::vector<Spike> find(
    std::vector<SysPoint> points, const std::vector<AppPoint>& apps, const SpikeRules& rules);

} // namespace vexel::SpikeFinder
