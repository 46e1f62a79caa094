#pragma once

#include "system/CPUStats.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace vexel::ProcStat {

// Per-core tick counters from /proc/stat's "cpuN" lines, in file order.
// user = user, nice = nice, system = system + irq + softirq, idle = idle + iowait;
// steal and guest time are left out (guest is already inside user and nice).
// Older kernels print fewer columns: the missing ones read 0.
[[nodiscard]] std::vector<CoreTicks> parseCoreTicks(std::string_view text);

// The 1, 5 and 15 minute load averages from /proc/loadavg.
[[nodiscard]] std::optional<std::array<double, 3>> parseLoadAverage(std::string_view text);

} // namespace vexel::ProcStat
