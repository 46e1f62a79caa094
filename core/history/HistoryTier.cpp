#include "history/HistoryTier.h"

#include <algorithm>

namespace vexel {

double bucketSeconds(HistoryTier tier)
{
    switch (tier) {
    case HistoryTier::raw: return 0;
    case HistoryTier::minute: return 60;
    case HistoryTier::tenMinutes: return 600;
    case HistoryTier::hour: return 3600;
    }
    return 0;
}

double keepSeconds(HistoryTier tier, int retentionDays)
{
    switch (tier) {
    case HistoryTier::raw: return 10800;
    case HistoryTier::minute: return 176400;
    case HistoryTier::tenMinutes: return 3024000;
    case HistoryTier::hour: return std::max(retentionDays, 1) * 86400.0;
    }
    return 0;
}

std::optional<HistoryTier> finer(HistoryTier tier)
{
    if (tier == HistoryTier::raw)
        return std::nullopt;
    return static_cast<HistoryTier>(static_cast<int>(tier) - 1);
}

} // namespace vexel
