#include "system/linux/HwmonChips.h"

#include "io/Files.h"

#include <algorithm>

namespace vexel {

std::vector<std::string> entriesWithPrefix(const std::string& folder, std::string_view prefix)
{
    std::vector<std::string> paths;
    for (const auto& name : Files::list(folder))
        if (name.starts_with(prefix))
            paths.push_back(folder + "/" + name);
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::vector<HwmonChip> hwmonChips(const std::string& sys)
{
    std::vector<HwmonChip> chips;
    for (const auto& hwmon : entriesWithPrefix(sys + "/class/hwmon", "hwmon")) {
        for (const auto& folder : {hwmon, hwmon + "/device"}) {
            if (auto name = Files::readValue(folder + "/name"); !name.empty()) {
                chips.push_back({std::move(name), folder});
                break;
            }
        }
    }
    return chips;
}

} // namespace vexel
