#pragma once

#include "processes/ProcRecord.h"
#include "rates/NetSource.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace vexel {

// Turns successive process lists of cumulative counters into per-second rates.
// Each counter family (processor, disk, energy with wakeups, network) keeps
// its own timestamp, because network counters arrive only every few seconds.
class RateTracker {
public:
    using Rates = std::unordered_map<ProcKey, ProcRates, ProcKeyHash>;

    // Rates for exactly the processes in `records`. `net` is absent on ticks
    // when the network source was not consulted; the previous network rates
    // are carried over then. Processes that are gone are forgotten.
    [[nodiscard]] Rates update(
        const std::vector<ProcRecord>& records, const std::optional<NetCounters>& net, double now);

private:
    struct Last {
        std::optional<double> cpu;
        double cpuAt = 0;
        std::optional<uint64_t> dr;
        std::optional<uint64_t> dw;
        double diskAt = 0;
        std::optional<uint64_t> energy;
        std::optional<uint64_t> wakeups;
        double energyAt = 0;
        std::optional<NetCounter> net;
        double netAt = 0;
        ProcRates rate;
    };

    [[nodiscard]] Last baseline(const ProcRecord& record, const std::optional<NetCounter>& net, double now) const;
    static ProcRates advance(
        Last& last, const ProcRecord& record, const std::optional<NetCounter>& net, bool netTick, double now);

    std::unordered_map<ProcKey, Last, ProcKeyHash> m_last;
    std::optional<double> m_previousUpdate;
};

} // namespace vexel
