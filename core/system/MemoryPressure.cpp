#include "system/MemoryPressure.h"

namespace vexel {

std::optional<MemoryPressure> memoryPressureFromRaw(long long raw)
{
    if (raw < 0 || raw > 2)
        return std::nullopt;
    return static_cast<MemoryPressure>(raw);
}

int rawValue(MemoryPressure pressure)
{
    return static_cast<int>(pressure);
}

std::string title(MemoryPressure pressure)
{
    switch (pressure) {
    case MemoryPressure::normal: return "Normal";
    case MemoryPressure::warning: return "Warning";
    case MemoryPressure::critical: return "Critical";
    }
    return "Normal";
}

} // namespace vexel
