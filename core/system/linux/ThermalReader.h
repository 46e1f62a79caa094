#pragma once

#include "system/SensorStats.h"
#include "system/ThermalLevel.h"
#include "system/linux/LinuxRoots.h"
#include "system/linux/ThermalRule.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// Gathers thermal zones, processor cooling devices and Intel throttle
// counters from sysfs and, with the CPU's temperatures the sensor reader
// has taken, judges the thermal level.
class ThermalReader {
public:
    explicit ThermalReader(const LinuxRoots& roots)
        : m_roots(roots)
    {
    }

    // The smoothed level at `now`; nominal when nothing can be read.
    [[nodiscard]] ThermalLevel read(double now, const std::vector<Temperature>& temperatures);

    // The raw inputs of one reading.
    [[nodiscard]] ThermalRule::Inputs inputs(double now, const std::vector<Temperature>& temperatures);

private:
    void discover(double now);
    [[nodiscard]] ThermalRule::Throttling throttling(double now);

    const LinuxRoots& m_roots;
    std::optional<double> m_discoveredAt;
    std::vector<std::string> m_zones;
    std::vector<std::string> m_coolingDevices;
    std::vector<std::string> m_throttleFolders; // one per physical package
    std::optional<double> m_lastThrottleCount;
    std::optional<double> m_lastThrottleMs;
    double m_lastThrottleTime = 0;
    ThermalRule::Stepper m_stepper;
};

} // namespace vexel
