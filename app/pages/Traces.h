#pragma once

#include "look/Sparkline.h"
#include "model/RecentRing.h"

#include <optional>

namespace vexel {

// The last few minutes of one reading from the ring, as a trace. Shares
// (percent) are drawn against 100; rates against their own peak, at least
// 1 KB/s so that a quiet link does not fill the chart with noise.
[[nodiscard]] Sparkline shareTrace(const RecentRing& ring, double RingSample::*field, Strain strain);
[[nodiscard]] Sparkline shareTrace(const RecentRing& ring, std::optional<double> RingSample::*field, Strain strain);
[[nodiscard]] Sparkline rateTrace(const RecentRing& ring, double RingSample::*field, Strain strain);

// A trace's values in words: a share in percent ("16%"), a rate ("561 KB/s").
[[nodiscard]] QString shareText(double percent);
[[nodiscard]] QString rateText(double bytesPerSecond);

} // namespace vexel
