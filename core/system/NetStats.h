#pragma once

namespace vexel {

// Network throughput over counted interfaces, bytes per second.
struct NetStats {
    double inRate = 0;
    double outRate = 0;

    bool operator==(const NetStats&) const = default;
};

} // namespace vexel
