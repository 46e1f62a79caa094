#pragma once

#include "grouping/AppGroup.h"
#include "grouping/AppIdentity.h"
#include "grouping/AppSort.h"
#include "rates/RateTracker.h"

#include <vector>

namespace vexel::AppGrouper {

// Watts of one fully busy core, and per wakeup per second, for the estimate
// used where no energy is measured.
inline constexpr double estimateWattsPerCore = 3.5;
inline constexpr double estimateWattsPerWakeup = 0.0002;

// The processes summed into one group per identity, members and groups
// sorted by `sort`, highest first (stable: ties keep their order of discovery).
[[nodiscard]] std::vector<AppGroup> group(const std::vector<ProcRecord>& records, const RateTracker::Rates& rates,
    const IdentityRules& rules, IdentityCache* cache, AppSort sort = AppSort::cpu);

// The value a group is ranked by for `sort`; a group without energy ranks last.
[[nodiscard]] double sortValue(const AppGroup& group, AppSort sort);

} // namespace vexel::AppGrouper
