#include "grouping/AppSort.h"

#include <array>

namespace vexel {

namespace {

constexpr std::array<std::string_view, 5> sortNames{"cpu", "memory", "energy", "disk", "network"};

} // namespace

std::string rawValue(AppSort sort)
{
    return std::string(sortNames[static_cast<size_t>(sort)]);
}

std::optional<AppSort> appSortFromRaw(std::string_view raw)
{
    for (size_t i = 0; i < sortNames.size(); ++i) {
        if (sortNames[i] == raw)
            return static_cast<AppSort>(i);
    }
    return std::nullopt;
}

std::string rawValue(CPUScale scale)
{
    return scale == CPUScale::mac ? "mac" : "core";
}

std::optional<CPUScale> cpuScaleFromRaw(std::string_view raw)
{
    if (raw == "mac")
        return CPUScale::mac;
    if (raw == "core")
        return CPUScale::core;
    return std::nullopt;
}

} // namespace vexel
