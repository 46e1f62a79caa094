#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QColor>
#include <QPalette>

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

// The same colours for a drawing on `palette`: calm is the palette's
// highlight (the system's accent in the live window), and the others are of
// the palette's appearance.
[[nodiscard]] QColor strainColour(const QPalette& palette, Strain strain);
[[nodiscard]] QColor seriesColour(const QPalette& palette, size_t index);
[[nodiscard]] QColor track(const QPalette& palette);

} // namespace vexel::Look
