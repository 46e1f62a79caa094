#include "system/linux/BatteryReader.h"

#include "io/Files.h"
#include "system/linux/PowerSupply.h"
#include "text/TextScan.h"

#include <algorithm>
#include <vector>

namespace vexel {

std::optional<BatteryStats> BatteryReader::read() const
{
    const std::string folder = m_roots.sys + "/class/power_supply";
    auto names = Files::list(folder);
    std::sort(names.begin(), names.end());
    std::vector<PowerSupply::Attributes> supplies;
    for (const auto& name : names) {
        const std::string supply = folder + "/" + name;
        const auto uevent = Files::read(supply + "/uevent", 16 * 1024);
        auto attributes = uevent ? PowerSupply::parseUevent(*uevent) : PowerSupply::Attributes{};
        // Kernels before 5.8 leave the type and scope out of uevent.
        for (const char* key : {"type", "scope"}) {
            if (!attributes.contains(key))
                if (auto value = Files::readValue(supply + "/" + key); !value.empty())
                    attributes[key] = std::move(value);
        }
        supplies.push_back(std::move(attributes));
    }
    return PowerSupply::battery(supplies);
}

} // namespace vexel
