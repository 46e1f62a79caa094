#pragma once

#include <array>
#include <optional>

namespace vexel {

// The resolutions history is kept in, stored as their integer values.
enum class HistoryTier { raw = 0, minute = 1, tenMinutes = 2, hour = 3 };

inline constexpr std::array<HistoryTier, 4> allHistoryTiers{
    HistoryTier::raw, HistoryTier::minute, HistoryTier::tenMinutes, HistoryTier::hour};

// The bucket length of a tier in seconds: 0 for raw samples, 60, 600, 3600.
[[nodiscard]] double bucketSeconds(HistoryTier tier);

// How long a tier's points are kept, seconds: 3 hours of raw samples, 49 hours
// of minutes, 35 days of ten minutes; the hourly tier follows `retentionDays`.
[[nodiscard]] double keepSeconds(HistoryTier tier, int retentionDays);

// The next finer tier; nothing for raw.
[[nodiscard]] std::optional<HistoryTier> finer(HistoryTier tier);

} // namespace vexel
