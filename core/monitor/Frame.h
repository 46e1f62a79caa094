#pragma once

#include "grouping/AppGroup.h"
#include "processes/ProcRecord.h"
#include "rates/RateTracker.h"
#include "system/SystemSnapshot.h"

#include <optional>
#include <string_view>
#include <vector>

namespace vexel {

// One complete sample of the machine.
struct Frame {
    double time = 0; // seconds since the epoch
    SystemSnapshot system;
    std::vector<AppGroup> apps; // in the grouper's order
    std::vector<ProcRecord> records;
    RateTracker::Rates rates;
    double interval = 0; // seconds since the monitor's previous frame; 0 for the first

    // The app named `query` ignoring case; failing that, the first whose name
    // contains it ignoring case; failing that, nothing.
    [[nodiscard]] const AppGroup* app(std::string_view query) const;
};

} // namespace vexel
