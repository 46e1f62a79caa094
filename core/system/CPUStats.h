#pragma once

#include <vector>

namespace vexel {

// Processor load since the previous reading. Fractions are of all processor
// time summed over every core; nice time counts as user time.
struct CPUStats {
    double user = 0;
    double system = 0;
    std::vector<double> cores; // busy fraction of each logical core, in the system's order
    double load1 = 0;
    double load5 = 0;
    double load15 = 0;
    int performanceCores = 0; // 0 when the machine does not report core levels
    int efficiencyCores = 0;

    bool operator==(const CPUStats&) const = default;
};

// One logical core's cumulative tick counters: working state of the reader.
struct CoreTicks {
    unsigned long long user = 0;
    unsigned long long system = 0;
    unsigned long long idle = 0;
    unsigned long long nice = 0;

    bool operator==(const CoreTicks&) const = default;
};

} // namespace vexel
