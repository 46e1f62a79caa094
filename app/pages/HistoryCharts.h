#pragma once

#include "format/Fmt.h"
#include "history/HistoryRange.h"
#include "history/SysPoint.h"
#include "look/Chart.h"
#include "time/TimeZone.h"

#include <QString>

#include <utility>
#include <vector>

namespace vexel {

// Charts of recorded history: the History page's four and the Overview's
// CPU since midnight.

// The frame of a range's charts: its span, the longest pause that still
// joins readings (a few of the tier's own steps), and its times marked in
// local days of `zone`.
[[nodiscard]] Chart chartFrame(
    const std::vector<SysPoint>& points, double from, double to, HistoryRange range, const TimeZone& zone);

// Fields of the points as shares of the machine, in percent, against 100.
using ChartFields = std::vector<std::pair<QString, double SysPoint::*>>;
[[nodiscard]] Chart shareChart(const std::vector<SysPoint>& points, Chart frame, const ChartFields& fields);
// Amounts per interval drawn as rates, so that tiers of different steps
// compare, against the round step over their peak in `unit`.
[[nodiscard]] Chart rateChart(
    const std::vector<SysPoint>& points, Chart frame, const ChartFields& fields, Fmt::RateUnit unit);

} // namespace vexel
