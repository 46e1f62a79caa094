#pragma once

#include <string>

namespace vexel {

// How busy the graphics processor is.
struct GPUStats {
    double utilisation = 0; // busy fraction, 0…1
    std::string name = "GPU";

    bool operator==(const GPUStats&) const = default;
};

} // namespace vexel
