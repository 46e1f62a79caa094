#pragma once

#include <cstdint>
#include <optional>

namespace vexel {

// One system-wide reading over an interval that starts at `t`.
struct SysPoint {
    double t = 0; // interval start, seconds since the epoch
    double dur = 0; // seconds
    double cpu = 0; // time-weighted mean, fraction of the machine
    double cpuMax = 0;
    double mem = 0; // used fraction, mean
    double memMax = 0;
    int64_t pressure = 0; // highest memory-pressure level in the interval
    double swap = 0; // bytes used, mean
    double diskR = 0; // bytes read during the interval
    double diskW = 0;
    double netIn = 0;
    double netOut = 0;
    std::optional<double> gpu;
    std::optional<double> gpuMax;
    std::optional<double> power; // watts, mean
    std::optional<double> battery; // charge percent, mean
    int64_t thermal = 0; // highest thermal level in the interval

    bool operator==(const SysPoint&) const = default;
};

// The point under its field names; absent optionals are left out.

} // namespace vexel
