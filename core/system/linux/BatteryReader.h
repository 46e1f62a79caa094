#pragma once

#include "system/BatteryStats.h"
#include "system/linux/LinuxRoots.h"

#include <optional>

namespace vexel {

// Reads every power supply under sysfs and sums the internal batteries.
class BatteryReader {
public:
    explicit BatteryReader(const LinuxRoots& roots)
        : m_roots(roots)
    {
    }

    // Absent on machines without an internal battery.
    [[nodiscard]] std::optional<BatteryStats> read() const;

private:
    const LinuxRoots& m_roots;
};

} // namespace vexel
