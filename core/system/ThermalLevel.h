#pragma once

#include "platform/Platform.h"
#include "text/Sentence.h"

#include <array>
#include <string>

namespace vexel {

// How hot the machine runs, as the operating system judges it. Ordered: a
// level compares greater than any cooler one. Encoded as its raw integer.
enum class ThermalLevel { nominal = 0, fair = 1, serious = 2, critical = 3 };

inline constexpr std::array<ThermalLevel, 4> allThermalLevels{
    ThermalLevel::nominal, ThermalLevel::fair, ThermalLevel::serious, ThermalLevel::critical};

[[nodiscard]] int rawValue(ThermalLevel level);

// "Cool", "Warm", "Hot", "Critical".
[[nodiscard]] std::string title(ThermalLevel level);

// One sentence on what the level means for the user, in the platform's words.
[[nodiscard]] Sentence detail(ThermalLevel level, Platform platform);

} // namespace vexel
