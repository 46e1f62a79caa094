#pragma once

#include "system/MemoryPressure.h"

#include <cstdint>

namespace vexel {

// Memory use in bytes.
struct MemoryStats {
    uint64_t total = 0; // physical memory of the machine
    uint64_t app = 0; // anonymous memory held by processes
    uint64_t wired = 0; // memory the kernel cannot page out
    uint64_t compressed = 0; // memory occupied by the compressor
    uint64_t cached = 0; // file-backed and reclaimable pages
    uint64_t free = 0;
    uint64_t swapUsed = 0;
    MemoryPressure pressure = MemoryPressure::normal;

    // app + wired + compressed; cached and free memory are deliberately not "used".
    [[nodiscard]] uint64_t used() const { return app + wired + compressed; }

    // used / total, capped at 1; 0 when total is 0.
    [[nodiscard]] double usedFraction() const
    {
        if (total == 0)
            return 0;
        const double fraction = static_cast<double>(used()) / static_cast<double>(total);
        return fraction > 1.0 ? 1.0 : fraction;
    }

    bool operator==(const MemoryStats&) const = default;
};

} // namespace vexel
