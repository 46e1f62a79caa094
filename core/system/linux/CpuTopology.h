#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace vexel::CpuTopology {

// Number of CPUs in a kernel cpulist such as "0-7,16-23"; nothing when malformed.
[[nodiscard]] std::optional<int> countCpuList(std::string_view list);

// Logical cores of the performance and efficiency levels.
struct Levels {
    int performance = 0;
    int efficiency = 0;

    bool operator==(const Levels&) const = default;
};

// Levels from per-CPU capacities (cpuN/cpu_capacity): cores below 75 % of the
// largest capacity are efficiency cores, the rest performance cores. Equal
// capacities, or none, mean the machine has no levels: 0 and 0.
[[nodiscard]] Levels fromCapacities(std::span<const long long> capacities);

} // namespace vexel::CpuTopology
