#include "spikes/StrainRules.h"

namespace vexel {

Strain StrainRules::cpu(double value) const
{
    if (value >= cpuStrained)
        return Strain::strained;
    return value >= cpuElevated ? Strain::elevated : Strain::calm;
}

Strain StrainRules::memory(const MemoryStats& stats) const
{
    switch (stats.pressure) {
    case MemoryPressure::normal: return Strain::calm;
    case MemoryPressure::warning: return Strain::elevated;
    case MemoryPressure::critical: return Strain::strained;
    }
    return Strain::calm;
}

Strain StrainRules::disk(const DiskStats& stats) const
{
    const auto main = stats.main();
    if (!main || main->total == 0)
        return Strain::calm;
    const double free = static_cast<double>(main->available) / static_cast<double>(main->total);
    if (free <= diskFreeStrained)
        return Strain::strained;
    return free <= diskFreeElevated ? Strain::elevated : Strain::calm;
}

Strain StrainRules::network(const NetStats& stats) const
{
    return stats.inRate + stats.outRate >= netElevated ? Strain::elevated : Strain::calm;
}

Strain StrainRules::gpu(const std::optional<GPUStats>& stats) const
{
    if (!stats)
        return Strain::calm;
    if (stats->utilisation >= gpuStrained)
        return Strain::strained;
    return stats->utilisation >= gpuElevated ? Strain::elevated : Strain::calm;
}

Strain StrainRules::battery(const std::optional<BatteryStats>& stats) const
{
    if (!stats || stats->charging || stats->onAC)
        return Strain::calm;
    if (stats->percent <= batteryStrained)
        return Strain::strained;
    return stats->percent <= batteryElevated ? Strain::elevated : Strain::calm;
}

Strain StrainRules::thermal(ThermalLevel level) const
{
    switch (level) {
    case ThermalLevel::nominal: return Strain::calm;
    case ThermalLevel::fair: return Strain::elevated;
    case ThermalLevel::serious:
    case ThermalLevel::critical: return Strain::strained;
    }
    return Strain::calm;
}

} // namespace vexel
