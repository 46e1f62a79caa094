#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QColor>

namespace vexel::Look {

// The colour of a reading by its strain: calm in the accent, elevated amber,
// strained red; one palette for dials, bars, charts and panel glyphs.
[[nodiscard]] QColor strainColour(Appearance appearance, Strain strain);

// The unfilled part of a dial or bar, a quiet step off the page.
[[nodiscard]] QColor track(Appearance appearance);

} // namespace vexel::Look
