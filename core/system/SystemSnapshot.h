#pragma once

#include "system/BatteryStats.h"
#include "system/CPUStats.h"
#include "system/DiskStats.h"
#include "system/GPUStats.h"
#include "system/MemoryStats.h"
#include "system/NetStats.h"
#include "system/SensorStats.h"
#include "system/ThermalLevel.h"

#include <optional>

namespace vexel {

// Everything known about the machine as a whole at one instant.
struct SystemSnapshot {
    double time = 0; // seconds since the Unix epoch
    CPUStats cpu;
    MemoryStats memory;
    DiskStats disk;
    NetStats net;
    std::optional<GPUStats> gpu; // absent when no accelerator could be read
    std::optional<BatteryStats> battery; // absent without an internal battery
    ThermalLevel thermal = ThermalLevel::nominal;
    SensorStats sensors; // temperatures and fans, where the system reports them

    // The empty reading for a time: every number 0, no cores, no volumes.
    [[nodiscard]] static SystemSnapshot empty(double time)
    {
        SystemSnapshot snapshot;
        snapshot.time = time;
        return snapshot;
    }

    // Number of cores, never below 1 so that per-core arithmetic cannot divide by zero.
    [[nodiscard]] int coreCount() const { return cpu.cores.empty() ? 1 : static_cast<int>(cpu.cores.size()); }

    bool operator==(const SystemSnapshot&) const = default;
};

} // namespace vexel
