#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// One temperature sensor as the system names it.
struct Temperature {
    std::string chip; // the driver: "coretemp", "nvme", "acpitz"
    std::string label; // the sensor's own name ("Package id 0"), or "temp2" when it has none
    double celsius = 0;
    std::optional<double> high; // where the chip says it runs hot
    std::optional<double> critical;

    bool operator==(const Temperature&) const = default;
};

// One fan and how fast it turns.
struct FanSpeed {
    std::string chip;
    std::string label;
    double rpm = 0;

    bool operator==(const FanSpeed&) const = default;
};

// The temperatures and fan speeds a system reports (Linux does; macOS keeps
// them behind private interfaces, so there they stay empty).
struct SensorStats {
    std::vector<Temperature> temperatures;
    std::vector<FanSpeed> fans;

    bool operator==(const SensorStats&) const = default;
};

// What a chip is, in a word a user knows: "CPU" for coretemp and k10temp,
// "GPU" for amdgpu, nouveau and i915, "SSD" for nvme and drivetemp, "Laptop"
// for the makers' laptop drivers, "Wi-Fi", "Board" for ACPI zones; otherwise
// the driver's own name.
[[nodiscard]] std::string chipTitle(const std::string& chip);

} // namespace vexel
