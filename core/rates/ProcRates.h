#pragma once

#include <cstdint>
#include <optional>

namespace vexel {

// Cumulative network bytes of one process.
struct NetCounter {
    uint64_t bytesIn = 0;
    uint64_t bytesOut = 0;

    bool operator==(const NetCounter&) const = default;
};

// Per-second figures of one process.
struct ProcRates {
    double cpu = 0; // processor seconds per second (1.0 = one busy core)
    double diskRead = 0; // bytes per second
    double diskWrite = 0; // bytes per second
    std::optional<double> energyW; // watts; absent without an energy counter
    double wakeups = 0; // per second
    double netIn = 0; // bytes per second
    double netOut = 0; // bytes per second

    bool operator==(const ProcRates&) const = default;
};

} // namespace vexel
