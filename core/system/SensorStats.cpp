#include "system/SensorStats.h"

#include <array>
#include <string_view>
#include <utility>

namespace vexel {

std::string chipTitle(const std::string& chip)
{
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 17> titles{
        {{"coretemp", "CPU"}, {"k10temp", "CPU"}, {"zenpower", "CPU"}, {"cpu_thermal", "CPU"}, {"x86_pkg_temp", "CPU"},
            {"amdgpu", "GPU"}, {"nouveau", "GPU"}, {"i915", "GPU"}, {"xe", "GPU"}, {"nvme", "SSD"},
            {"drivetemp", "Disk"}, {"thinkpad", "Laptop"}, {"dell_smm", "Laptop"}, {"asus", "Laptop"},
            {"applesmc", "Laptop"}, {"acpitz", "Board"}, {"pch_cannonlake", "Chipset"}}};
    for (const auto& [name, title] : titles)
        if (chip == name)
            return std::string(title);
    if (chip.starts_with("iwlwifi"))
        return "Wi-Fi";
    if (chip.starts_with("pch_"))
        return "Chipset";
    return chip;
}

} // namespace vexel
