#pragma once

#include "system/BatteryStats.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vexel::PowerSupply {

// The attributes of one /sys/class/power_supply entry, keyed by lower-case
// attribute name ("status", "energy_now", "type"…), values as written by the kernel.
using Attributes = std::map<std::string, std::string, std::less<>>;

// Reads a supply's "uevent" file (POWER_SUPPLY_ENERGY_NOW=… lines) into attributes.
[[nodiscard]] Attributes parseUevent(std::string_view text);

// The internal battery across every supply: batteries with scope other than
// "Device" that are present, summed (BAT0 + BAT1). Units follow the kernel's
// power-supply class: µV, µA, µAh, µWh, µW, seconds, tenths of a degree.
// Absent when no such battery reports a charge.
[[nodiscard]] std::optional<BatteryStats> battery(std::span<const Attributes> supplies);

} // namespace vexel::PowerSupply
