#include "system/MemoryPressure.h"

#include "text/Sentence.h"

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
    case MemoryPressure::normal: return VEXEL_WORDS("vexel::Vexel", "Normal");
    case MemoryPressure::warning: return VEXEL_WORDS("vexel::Vexel", "Warning");
    case MemoryPressure::critical: return VEXEL_WORDS("vexel::Vexel", "Critical");
    }
    return VEXEL_WORDS("vexel::Vexel", "Normal");
}

} // namespace vexel
