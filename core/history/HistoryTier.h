#pragma once

namespace vexel {

// The resolutions history is kept in, stored as their integer values.
enum class HistoryTier { raw = 0, minute = 1, tenMinutes = 2, hour = 3 };

} // namespace vexel
