#pragma once

#include "system/ThermalLevel.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel::ThermalRule {

// A trip point of a thermal zone: "active" (a fan stage), "passive" (the
// kernel throttles), "hot" or "critical".
struct Trip {
    std::string type;
    double celsius = 0;
};

struct Zone {
    double celsius = 0;
    std::vector<Trip> trips;
};

// A cooling device; the processor kinds slow the CPU when their state is above 0.
struct CoolingDevice {
    std::string type;
    long long state = 0;
};

// A processor temperature sensor from hwmon (coretemp, k10temp, zenpower).
struct CpuSensor {
    double celsius = 0;
    std::optional<double> max;
    std::optional<double> crit;
    bool package = false; // the package or control temperature, not one core
};

// Intel's throttle counters, as changes since the previous reading.
struct Throttling {
    bool advanced = false; // a throttle count or its time went up
    double fractionOfInterval = 0; // share of the interval spent throttled
};

struct Inputs {
    std::vector<Zone> zones;
    std::vector<CoolingDevice> coolingDevices;
    std::vector<CpuSensor> cpuSensors;
    Throttling throttling;
};

// The hottest level any source shows; nominal when nothing can be read.
[[nodiscard]] ThermalLevel judge(const Inputs& inputs);

// Smooths the judged level: it rises at once but falls only after two
// consecutive lower readings, so that a sensor hovering at a trip does not flicker.
class Stepper {
public:
    [[nodiscard]] ThermalLevel next(ThermalLevel judged);

private:
    ThermalLevel m_level = ThermalLevel::nominal;
    int m_lowerReadings = 0;
};

} // namespace vexel::ThermalRule
