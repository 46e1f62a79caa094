#pragma once

#include <filesystem>

namespace vexel::testing {

// Six hours of one-minute samples ending at the minute of `now`, written
// through the store into `file` and compacted as the app does: a calm machine (10 % CPU, half its memory, 1 MB
// written and 2 MB received a minute) with one 20-minute CPU spike at 90 %
// two hours before `now`, during which "Google Chrome" ran 9 cores. Apps per
// minute: Google Chrome (0.8 cores), node (0.2 cores).
void writeHistory(const std::filesystem::path& file, double now);

// A history file of bytes that are not a database (as a broken disk or a stray copy leaves it).
void writeCorruptHistory(const std::filesystem::path& file);

inline constexpr int historyMinutes = 360;
inline constexpr int spikeStartsMinutesAgo = 120;
inline constexpr int spikeMinutes = 20;

} // namespace vexel::testing
