#pragma once

#include "history/SysPoint.h"
#include "time/TimeZone.h"

namespace vexel::DemoHistory {

// The length of each demo history point, seconds.
inline constexpr double pointSeconds = 60;

// A plausible system reading of the simulated Mac for the minute starting at
// `t`: busy on weekday working hours (in `zone`), quiet at night, with a
// repeatable wobble. Points after `now` are empty readings (dur 0), because
// the future has not been recorded.
[[nodiscard]] SysPoint sample(double t, const TimeZone& zone, double now);

} // namespace vexel::DemoHistory
