#pragma once

#include "look/BarBank.h"
#include "look/Chart.h"
#include "look/Dial.h"
#include "model/AppModel.h"

#include <array>
#include <vector>

namespace vexel {

// The Overview's six dials from the model's frame: CPU and memory as shares,
// disk and network on a scale of ten steps of ten from 1 KB/s to 1 GB/s (a
// rate has no natural top), the GPU's use where it is reported, and the
// battery's charge (mains power shows as such).
[[nodiscard]] std::array<Dial, 6> overviewDials(const AppModel& model);

// Where a rate lies on the dials' scale: 0 at 1 KB/s or less, 1 at 1 GB/s.
[[nodiscard]] double rateFraction(double bytesPerSecond);

// Today's totals in a line: "Disk 1.2 GB written, 300 MB read · Network 2.1 GB
// down, 120 MB up".
[[nodiscard]] QString todayLine(const HistoryStore::Totals& today);

// The week strip: each day's data moved (disk and network together) as a
// bar against the busiest day, oldest first, named by its weekday and
// saying its amount ("Tue: 1.2 GB").
[[nodiscard]] BarBank weekBank(const std::vector<DayTotal>& week, const TimeZone& zone);

// Today's CPU from local midnight to the newest reading, against the round
// step over its peak, with the hours marked.
[[nodiscard]] Chart todayChart(const AppModel& model);

} // namespace vexel
