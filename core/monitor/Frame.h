#pragma once

#include "grouping/AppGroup.h"
#include "history/AppPoint.h"
#include "history/SysPoint.h"
#include "processes/ProcRecord.h"
#include "rates/RateTracker.h"
#include "system/SystemSnapshot.h"

#include <optional>
#include <string_view>
#include <utility>
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

    // The frame as history: the interval that ends at `time`, system-wide and
    // per app; rates become amounts over the interval (bytes, joules).
    [[nodiscard]] std::pair<SysPoint, std::vector<AppPoint>> historyPoints() const;
};

} // namespace vexel
