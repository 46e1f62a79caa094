#pragma once

#include "history/HistoryTier.h"
#include "time/TimeZone.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace vexel {

// The periods reports and charts offer; each ends at `now`.
enum class HistoryRange { today, week, month, year };

inline constexpr std::array<HistoryRange, 4> allHistoryRanges{
    HistoryRange::today, HistoryRange::week, HistoryRange::month, HistoryRange::year};

// "today", "week", "month", "year".
[[nodiscard]] std::string rawValue(HistoryRange range);
[[nodiscard]] std::optional<HistoryRange> historyRangeFromRaw(std::string_view raw);
// "Today", "Week", "Month", "Year".
[[nodiscard]] std::string title(HistoryRange range);
// Where the period begins: the start of today in `zone`, or 7, 30 or 365 days before `now`.
[[nodiscard]] double start(HistoryRange range, double now, const TimeZone& zone);
// The tier that serves the period.
[[nodiscard]] HistoryTier tier(HistoryRange range);
// The width of one chart bar, seconds.
[[nodiscard]] double chartBucket(HistoryRange range);

} // namespace vexel
