#pragma once

#include "rates/ProcRates.h"

#include <cstdint>
#include <map>
#include <optional>

namespace vexel {

// Cumulative network bytes per process id.
using NetCounters = std::map<int32_t, NetCounter>;

// Where per-process network counters come from. Consulted every few seconds.
class NetSource {
public:
    virtual ~NetSource() = default;

    // Every process's cumulative bytes; nothing when the counters could not be read.
    [[nodiscard]] virtual std::optional<NetCounters> counters() = 0;
};

} // namespace vexel
