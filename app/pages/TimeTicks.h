#pragma once

#include "history/HistoryRange.h"
#include "time/TimeZone.h"

#include <QString>

#include <utility>
#include <vector>

namespace vexel {

// The times a history chart marks under its plot, at round local times:
// whole hours for a day (every 1, 2, 3, 4 or 6 hours, so that at most
// six fit), each midnight for a week, every fifth day for a month and the
// first of every other month for a year. Each with its label: "14:00",
// "Mon", "5 Nov", "1 Jan".
[[nodiscard]] std::vector<std::pair<double, QString>> timeTicks(
    double from, double to, HistoryRange range, const TimeZone& zone);

// The ticks between those marks, unnamed: each hour of a day, each noon
// of a week, each day of a month and the first of each month of a year.
[[nodiscard]] std::vector<double> minorTicks(double from, double to, HistoryRange range, const TimeZone& zone);

// The weekday of a moment in local time: "Tue".
[[nodiscard]] QString weekdayText(double t, const TimeZone& zone);

// A moment in local time by its weekday and hour: "Sun 18:40".
[[nodiscard]] QString momentText(double t, const TimeZone& zone);

} // namespace vexel
