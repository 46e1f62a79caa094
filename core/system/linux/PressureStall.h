#pragma once

#include "system/MemoryPressure.h"

#include <optional>
#include <string_view>

namespace vexel::PressureStall {

// The ten-second averages of /proc/pressure/memory, in percent of wall time.
struct Averages {
    double some = 0; // some task stalled on memory
    double full = 0; // every non-idle task stalled

    bool operator==(const Averages&) const = default;
};

// Reads the "some" and "full" avg10 values; nothing when either line is missing or malformed.
[[nodiscard]] std::optional<Averages> parse(std::string_view text);

// The pressure level from the fraction of memory still available and, when the
// kernel reports them, the stall averages. Stalls only count while less than
// half of memory is available, because a single cgroup at its limit stalls too.
// `previous` adds hysteresis: a level is kept until the stalls fall below half
// of what it took to enter it, since avg10 decays over about ten seconds.
[[nodiscard]] MemoryPressure judge(double availableFraction, std::optional<Averages> stalls, MemoryPressure previous);

} // namespace vexel::PressureStall
