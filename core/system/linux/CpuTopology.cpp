#include "system/linux/CpuTopology.h"

#include "text/TextScan.h"

#include <algorithm>

namespace vexel::CpuTopology {

std::optional<int> countCpuList(std::string_view list)
{
    list = TextScan::trim(list);
    if (list.empty())
        return std::nullopt;
    long long count = 0;
    while (!list.empty()) {
        const auto comma = list.find(',');
        const auto range = list.substr(0, comma);
        const auto dash = range.find('-');
        const auto first = TextScan::toU64(range.substr(0, dash));
        const auto last = dash == std::string_view::npos ? first : TextScan::toU64(range.substr(dash + 1));
        if (!first || !last || *last < *first || *last - *first > 1'000'000)
            return std::nullopt;
        count += static_cast<long long>(*last - *first + 1);
        if (count > 1'000'000)
            return std::nullopt;
        if (comma == std::string_view::npos)
            break;
        list.remove_prefix(comma + 1);
    }
    return static_cast<int>(count);
}

Levels fromCapacities(std::span<const long long> capacities)
{
    if (capacities.empty())
        return {};
    const auto [low, high] = std::minmax_element(capacities.begin(), capacities.end());
    if (*low == *high || *high <= 0)
        return {};
    Levels levels;
    for (const auto capacity : capacities) {
        if (static_cast<double>(capacity) < 0.75 * static_cast<double>(*high))
            ++levels.efficiency;
        else
            ++levels.performance;
    }
    return levels;
}

} // namespace vexel::CpuTopology
