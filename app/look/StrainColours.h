#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QColor>

#include <cstddef>

namespace vexel::Look {

// The colour of a reading by its strain: calm in the accent, elevated amber,
// strained red; one palette for dials, bars, charts and panel glyphs.
[[nodiscard]] QColor strainColour(Appearance appearance, Strain strain);

// The colour of a chart's `index`th series: the calm accent first, then
// violet, green and orange, the same in every chart.
[[nodiscard]] QColor seriesColour(Appearance appearance, size_t index);

// The unfilled part of a dial or bar, a quiet step off the page.
[[nodiscard]] QColor track(Appearance appearance);

} // namespace vexel::Look
