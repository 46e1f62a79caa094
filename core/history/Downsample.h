#pragma once

#include "history/AppPoint.h"

#include <vector>

namespace vexel::Downsample {

// The apps of one sample or bucket worth storing: the `keep` busiest by CPU,
// then the three leaders of memory, energy, disk and network not yet chosen
// (a leader already chosen still uses up its place), in the order chosen.
[[nodiscard]] std::vector<AppPoint> select(const std::vector<AppPoint>& apps, size_t keep);

} // namespace vexel::Downsample
