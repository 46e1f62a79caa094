#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexel {

// The paths of `folder`'s entries whose names start with `prefix`, sorted.
[[nodiscard]] std::vector<std::string> entriesWithPrefix(const std::string& folder, std::string_view prefix);

// One hwmon chip: its driver's name and the folder that holds its files.
struct HwmonChip {
    std::string name; // "coretemp", "nvme", "thinkpad"
    std::string folder;
};

// The chips under `sys`/class/hwmon, in order. Some drivers keep their files
// one level down, under device/; a chip without a name is left out.
[[nodiscard]] std::vector<HwmonChip> hwmonChips(const std::string& sys);

} // namespace vexel
