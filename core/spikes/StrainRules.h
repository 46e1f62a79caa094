#pragma once

#include "spikes/Strain.h"
#include "system/SystemSnapshot.h"

namespace vexel {

// Thresholds that turn live readings into calm, elevated or strained.
// Every threshold is inclusive.
struct StrainRules {
    double cpuElevated = 0.6; // fraction of the whole machine
    double cpuStrained = 0.85;
    int batteryElevated = 20; // charge percent at or below which
    int batteryStrained = 10;
    double diskFreeElevated = 0.1; // free fraction of the main volume at or below which
    double diskFreeStrained = 0.05;
    double gpuElevated = 0.8;
    double gpuStrained = 0.95;
    double netElevated = 50000000.0; // in + out, bytes per second

    [[nodiscard]] Strain cpu(double value) const;
    // The memory pressure itself: normal, warning, critical.
    [[nodiscard]] Strain memory(const MemoryStats& stats) const;
    // By the free fraction of the first volume; calm without one.
    [[nodiscard]] Strain disk(const DiskStats& stats) const;
    // Elevated at most: heavy traffic is worth a look, never strain.
    [[nodiscard]] Strain network(const NetStats& stats) const;
    [[nodiscard]] Strain gpu(const std::optional<GPUStats>& stats) const;
    // Calm without a battery and whenever it charges or runs on external power.
    [[nodiscard]] Strain battery(const std::optional<BatteryStats>& stats) const;
    [[nodiscard]] Strain thermal(ThermalLevel level) const;

    bool operator==(const StrainRules&) const = default;
};

} // namespace vexel
