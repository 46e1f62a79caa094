#include "system/linux/ThermalRule.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vexel::ThermalRule {

namespace {

// Cooling devices that slow the processor while their state is above 0.
// "TCC Offset" is not one: its state is the temperature-target offset that
// firmware or thermald sets once, and it stays above 0 on a cool, idle laptop.
bool slowsProcessor(std::string_view type)
{
    return type == "Processor" || type == "intel_powerclamp" || type.starts_with("thermal-cpufreq");
}

ThermalLevel zoneLevel(const Zone& zone)
{
    ThermalLevel level = ThermalLevel::nominal;
    std::optional<double> lowestActive;
    for (const auto& trip : zone.trips) {
        if (trip.type == "active")
            lowestActive = lowestActive ? std::min(*lowestActive, trip.celsius) : trip.celsius;
        if ((trip.type == "hot" && zone.celsius >= trip.celsius)
            || (trip.type == "critical" && zone.celsius >= trip.celsius - 5))
            return ThermalLevel::critical;
        if (trip.type == "passive" && zone.celsius >= trip.celsius)
            level = ThermalLevel::serious;
    }
    if (level == ThermalLevel::nominal && lowestActive && zone.celsius >= *lowestActive)
        level = ThermalLevel::fair;
    return level;
}

ThermalLevel sensorLevel(const CpuSensor& sensor)
{
    if (sensor.crit && sensor.celsius >= *sensor.crit)
        return ThermalLevel::critical;
    if (sensor.max && sensor.celsius >= *sensor.max)
        return ThermalLevel::serious;
    if (!sensor.package)
        return ThermalLevel::nominal;
    const auto limit = sensor.max ? sensor.max : sensor.crit;
    const bool warm = limit ? sensor.celsius >= *limit - 15 : sensor.celsius >= 80;
    return warm ? ThermalLevel::fair : ThermalLevel::nominal;
}

} // namespace

ThermalLevel judge(const Inputs& inputs)
{
    ThermalLevel level = ThermalLevel::nominal;
    for (const auto& zone : inputs.zones)
        level = std::max(level, zoneLevel(zone));
    for (const auto& sensor : inputs.cpuSensors)
        level = std::max(level, sensorLevel(sensor));
    for (const auto& device : inputs.coolingDevices) {
        if (device.state > 0 && slowsProcessor(device.type))
            level = std::max(level, ThermalLevel::serious);
    }
    if (inputs.throttling.fractionOfInterval >= 0.5)
        level = ThermalLevel::critical;
    else if (inputs.throttling.advanced)
        level = std::max(level, ThermalLevel::serious);
    return level;
}

ThermalLevel Stepper::next(ThermalLevel judged)
{
    if (judged >= m_level) {
        m_level = judged;
        m_lowerReadings = 0;
        return m_level;
    }
    if (++m_lowerReadings >= 2) {
        m_level = judged;
        m_lowerReadings = 0;
    }
    return m_level;
}

} // namespace vexel::ThermalRule
