#pragma once

#include "system/SensorStats.h"
#include "system/linux/LinuxRoots.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// Every temperature and fan the hwmon chips report, and the thermal zones no
// chip mirrors. The files are found once a minute and read at every call.
class SensorReader {
public:
    explicit SensorReader(const LinuxRoots& roots)
        : m_roots(roots)
    {
    }

    // Sensors that can't be read right now are left out.
    [[nodiscard]] SensorStats read(double now);

private:
    struct Input {
        std::string chip;
        std::string label;
        std::string path; // the value's file
        bool fan = false;
        std::optional<double> high; // a chip's limits are fixed: read when found
        std::optional<double> critical;
    };

    void discover(double now);

    const LinuxRoots& m_roots;
    std::optional<double> m_discoveredAt;
    std::vector<Input> m_inputs;
};

} // namespace vexel
