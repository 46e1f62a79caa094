#pragma once

#include "format/Fmt.h"
#include "look/Sparkline.h"
#include "model/RecentRing.h"

#include <optional>
#include <utility>
#include <vector>

namespace vexel {

// The last few minutes of one reading from the ring, as a scaled trace with
// its minutes marked. Shares (percent) are drawn against 100; rates against
// the round step over their peak (in the unit they are shown in), at least
// 1 KB/s so that a quiet link does not fill the chart with noise.
[[nodiscard]] Sparkline shareTrace(const RecentRing& ring, double RingSample::*field, Strain strain);
[[nodiscard]] Sparkline shareTrace(const RecentRing& ring, std::optional<double> RingSample::*field, Strain strain);
[[nodiscard]] Sparkline rateTrace(
    const RecentRing& ring, double RingSample::*field, Strain strain, Fmt::RateUnit unit = Fmt::RateUnit::bytes);

// The top of a rate's scale: the round step (1, 2, 5 × 10ⁿ of the unit it
// is shown in) at or over its peak, and never under 1 KB/s.
[[nodiscard]] double rateTop(double peak, Fmt::RateUnit unit);

// The ring's minutes under its trace: a tick at each whole minute back from
// the newest reading, where the reading of that moment is drawn, "now" at
// the right and "4 min ago" under the oldest.
[[nodiscard]] std::vector<std::pair<double, QString>> minuteMarks(const RecentRing& ring);

// A trace's values in words: a share in percent ("16%"), a rate ("561 KB/s", "4.5 Mb/s").
[[nodiscard]] QString shareText(double percent);
[[nodiscard]] QString rateText(double bytesPerSecond, Fmt::RateUnit unit = Fmt::RateUnit::bytes);

} // namespace vexel
