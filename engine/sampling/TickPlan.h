#pragma once

#include <cstdint>

namespace vexel {

// What one tick of the sampler must do.
struct TickPlan {
    bool everyone = false; // read other users' processes too
    bool network = false; // read per-process network counters
    bool ports = false; // scan listening sockets and rebuild the dev servers
    bool docker = false; // read containers
    bool record = false; // keep this frame for history
    bool compact = false; // compact the history
    bool totals = false; // recompute today's and the week's totals and today's series
    int retentionDays = 365;
    int64_t maxBytes = 0; // the history's size cap
    double idleAfter = 172800; // seconds without activity before a dev server is idle

    bool operator==(const TickPlan&) const = default;
};

} // namespace vexel
