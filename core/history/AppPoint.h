#pragma once

#include <string>

namespace vexel {

// One app's share of the interval of a system point.
struct AppPoint {
    double t = 0; // interval start, as its system point
    double dur = 0; // seconds
    std::string app; // the app's identity key
    std::string name; // its display name
    double cpu = 0; // cores, mean
    double cpuMax = 0;
    double mem = 0; // bytes, mean
    double energy = 0; // joules in the interval
    double disk = 0; // bytes in the interval
    double net = 0; // bytes in the interval

    bool operator==(const AppPoint&) const = default;
};

} // namespace vexel
