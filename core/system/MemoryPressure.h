#pragma once

#include <optional>
#include <string>

namespace vexel {

// How hard the system works to find room in memory. Encoded as its raw integer.
enum class MemoryPressure { normal = 0, warning = 1, critical = 2 };

// The pressure for a raw value 0…2; nothing for any other value.
[[nodiscard]] std::optional<MemoryPressure> memoryPressureFromRaw(long long raw);

[[nodiscard]] int rawValue(MemoryPressure pressure);

// "Normal", "Warning", "Critical".
[[nodiscard]] std::string title(MemoryPressure pressure);

} // namespace vexel
