#include "history/HistoryRange.h"

#include "text/Sentence.h"

namespace vexel {

std::string rawValue(HistoryRange range)
{
    switch (range) {
    case HistoryRange::today: return "today";
    case HistoryRange::week: return "week";
    case HistoryRange::month: return "month";
    case HistoryRange::year: return "year";
    }
    return "today";
}

std::optional<HistoryRange> historyRangeFromRaw(std::string_view raw)
{
    for (const auto range : allHistoryRanges) {
        if (rawValue(range) == raw)
            return range;
    }
    return std::nullopt;
}

std::string title(HistoryRange range)
{
    switch (range) {
    case HistoryRange::today: return VEXEL_WORDS("vexel::Vexel", "Today");
    case HistoryRange::week: return VEXEL_WORDS("vexel::Vexel", "Week");
    case HistoryRange::month: return VEXEL_WORDS("vexel::Vexel", "Month");
    case HistoryRange::year: return VEXEL_WORDS("vexel::Vexel", "Year");
    }
    return VEXEL_WORDS("vexel::Vexel", "Today");
}

double start(HistoryRange range, double now, const TimeZone& zone)
{
    switch (range) {
    case HistoryRange::today: {
        CivilTime midnight = zone.civil(now);
        midnight.hour = midnight.minute = midnight.second = 0;
        return zone.toEpoch(midnight).value_or(now - 86400);
    }
    case HistoryRange::week: return now - 604800;
    case HistoryRange::month: return now - 2592000;
    case HistoryRange::year: return now - 31536000;
    }
    return now;
}

HistoryTier tier(HistoryRange range)
{
    switch (range) {
    case HistoryRange::today: return HistoryTier::minute;
    case HistoryRange::week: return HistoryTier::tenMinutes;
    case HistoryRange::month:
    case HistoryRange::year: return HistoryTier::hour;
    }
    return HistoryTier::hour;
}

double chartBucket(HistoryRange range)
{
    switch (range) {
    case HistoryRange::today: return 300;
    case HistoryRange::week: return 3600;
    case HistoryRange::month: return 14400;
    case HistoryRange::year: return 86400;
    }
    return 3600;
}

} // namespace vexel
