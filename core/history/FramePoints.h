#pragma once

#include "history/AppPoint.h"
#include "history/SysPoint.h"
#include "monitor/Frame.h"

#include <vector>

namespace vexel {

// A frame as history: the interval that ends at the frame's time, system-wide
// and per app group.
struct FramePoints {
    SysPoint sys;
    std::vector<AppPoint> apps;
};

// The history points of `frame`; rates become amounts over its interval
// (bytes, joules), levels their raw values.
[[nodiscard]] FramePoints historyPoints(const Frame& frame);

} // namespace vexel
