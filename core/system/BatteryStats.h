#pragma once

#include <optional>
#include <string>

namespace vexel {

// The internal battery. Optional fields are absent when the system does not
// say. Written with designated initializers: BatteryStats{.percent = 50, .onAC = true}.
struct BatteryStats {
    int percent = 0; // charge, 0…100
    bool charging = false;
    bool onAC = false;
    std::optional<int> minutesLeft{}; // only a positive estimate
    std::optional<int> minutesToFull{}; // only a positive estimate
    std::optional<double> powerW{}; // negative while discharging
    std::optional<int> cycles{};
    std::optional<int> designCapacity{}; // mAh
    std::optional<int> maxCapacity{}; // mAh, present full charge
    std::optional<double> temperature{}; // degrees Celsius
    std::optional<std::string> condition{};

    // maxCapacity / designCapacity capped at 1; absent when either is missing
    // or the design capacity is below 1.
    [[nodiscard]] std::optional<double> health() const
    {
        if (!maxCapacity || !designCapacity || *designCapacity < 1)
            return std::nullopt;
        const double ratio = static_cast<double>(*maxCapacity) / static_cast<double>(*designCapacity);
        return ratio > 1.0 ? 1.0 : ratio;
    }

    bool operator==(const BatteryStats&) const = default;
};

} // namespace vexel
