#include "system/SensorStats.h"

#include "text/Sentence.h"
#include <array>
#include <string_view>
#include <utility>

namespace vexel {

std::string chipTitle(const std::string& chip)
{
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 17> titles{
        {{"coretemp", VEXEL_WORDS("vexel::Vexel", "CPU")}, {"k10temp", VEXEL_WORDS("vexel::Vexel", "CPU")},
            {"zenpower", VEXEL_WORDS("vexel::Vexel", "CPU")}, {"cpu_thermal", VEXEL_WORDS("vexel::Vexel", "CPU")},
            {"x86_pkg_temp", VEXEL_WORDS("vexel::Vexel", "CPU")}, {"amdgpu", VEXEL_WORDS("vexel::Vexel", "GPU")},
            {"nouveau", VEXEL_WORDS("vexel::Vexel", "GPU")}, {"i915", VEXEL_WORDS("vexel::Vexel", "GPU")},
            {"xe", VEXEL_WORDS("vexel::Vexel", "GPU")}, {"nvme", VEXEL_WORDS("vexel::Vexel", "SSD")},
            {"drivetemp", VEXEL_WORDS("vexel::Vexel", "Disk")}, {"thinkpad", VEXEL_WORDS("vexel::Vexel", "Laptop")},
            {"dell_smm", VEXEL_WORDS("vexel::Vexel", "Laptop")}, {"asus", VEXEL_WORDS("vexel::Vexel", "Laptop")},
            {"applesmc", VEXEL_WORDS("vexel::Vexel", "Laptop")}, {"acpitz", VEXEL_WORDS("vexel::Vexel", "Board")},
            {"pch_cannonlake", VEXEL_WORDS("vexel::Vexel", "Chipset")}}};
    for (const auto& [name, title] : titles)
        if (chip == name)
            return std::string(title);
    if (chip.starts_with("iwlwifi"))
        return VEXEL_WORDS("vexel::Vexel", "Wi-Fi");
    if (chip.starts_with("pch_"))
        return VEXEL_WORDS("vexel::Vexel", "Chipset");
    return chip;
}

} // namespace vexel
