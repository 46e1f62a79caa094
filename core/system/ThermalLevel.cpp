#include "system/ThermalLevel.h"

#include "text/Sentence.h"

namespace vexel {

int rawValue(ThermalLevel level)
{
    return static_cast<int>(level);
}

std::string title(ThermalLevel level)
{
    switch (level) {
    case ThermalLevel::nominal: return VEXEL_WORDS("vexel::Vexel", "Cool");
    case ThermalLevel::fair: return VEXEL_WORDS("vexel::Vexel", "Warm");
    case ThermalLevel::serious: return VEXEL_WORDS("vexel::Vexel", "Hot");
    case ThermalLevel::critical: return VEXEL_WORDS("vexel::Vexel", "Critical");
    }
    return VEXEL_WORDS("vexel::Vexel", "Cool");
}

Sentence detail(ThermalLevel level, Platform platform)
{
    const std::vector<Sentence::Value> system{{systemName(platform)}};
    switch (level) {
    case ThermalLevel::nominal: break;
    case ThermalLevel::fair: return {VEXEL_WORDS("vexel::Vexel", "Slightly warm. Fans may be audible."), {}};
    case ThermalLevel::serious:
        return {VEXEL_WORDS("vexel::Vexel", "Hot. %1 is slowing the processor to cool down."), system};
    case ThermalLevel::critical:
        return {VEXEL_WORDS("vexel::Vexel", "Very hot. %1 is slowing everything down hard."), system};
    }
    return {VEXEL_WORDS("vexel::Vexel", "Running at full speed."), {}};
}

} // namespace vexel
