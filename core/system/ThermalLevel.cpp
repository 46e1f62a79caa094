#include "system/ThermalLevel.h"

namespace vexel {

int rawValue(ThermalLevel level)
{
    return static_cast<int>(level);
}

std::string title(ThermalLevel level)
{
    switch (level) {
    case ThermalLevel::nominal: return "Cool";
    case ThermalLevel::fair: return "Warm";
    case ThermalLevel::serious: return "Hot";
    case ThermalLevel::critical: return "Critical";
    }
    return "Cool";
}

std::string detail(ThermalLevel level, Platform platform)
{
    const std::string system = systemName(platform);
    switch (level) {
    case ThermalLevel::nominal: return "Running at full speed.";
    case ThermalLevel::fair: return "Slightly warm. Fans may be audible.";
    case ThermalLevel::serious: return "Hot. " + system + " is slowing the processor to cool down.";
    case ThermalLevel::critical: return "Very hot. " + system + " is slowing everything down hard.";
    }
    return "Running at full speed.";
}

} // namespace vexel
