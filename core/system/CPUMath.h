#pragma once

#include "system/CPUStats.h"

#include <span>
#include <vector>

namespace vexel::CPUMath {

// Processor load between two readings of per-core tick counters.
struct Usage {
    double user = 0; // fraction of all ticks, nice included
    double system = 0; // fraction of all ticks
    std::vector<double> cores; // busy fraction per core

    bool operator==(const Usage&) const = default;
};

// Load from `prev` to `cur`. A counter that went backwards counts nothing for
// the interval. When the core count changed the result is all zeros, one per
// current core. The overall fractions weight each core by its own tick total.
[[nodiscard]] Usage usage(std::span<const CoreTicks> prev, std::span<const CoreTicks> cur);

} // namespace vexel::CPUMath
