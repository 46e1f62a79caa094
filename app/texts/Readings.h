#pragma once

#include "system/BatteryStats.h"

#include <QString>

#include <string>

namespace vexel::Readings {

// Readings in the user's words, shared by the pages and the panel. Figures
// keep the core's units ("1.5 GB", "42 W"); the words around them translate.

// "CPU · Package id 0": the chip as people know it, and the sensor's own label.
[[nodiscard]] QString sensorName(const std::string& chip, const std::string& label);

// "Charging, full in 1h 15m", "On power adapter", "On battery, 3h 2m left".
[[nodiscard]] QString batteryState(const BatteryStats& battery);

// How long something has lasted: "42s", "1h 1m", "3 days".
[[nodiscard]] QString elapsed(double seconds);

// "19.4 GB of 36.0 GB"
[[nodiscard]] QString partOf(const std::string& part, const std::string& whole);

} // namespace vexel::Readings
