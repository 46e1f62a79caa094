#pragma once

#include "system/GPUStats.h"
#include "system/linux/LinuxRoots.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// Reads GPU load from the DRM cards in sysfs (amdgpu's busy percentage,
// Intel's idle residency) and from NVIDIA's management library. With several
// GPUs the busiest one is reported; with all idle, the one that boots the display.
class GpuReader {
public:
    explicit GpuReader(const LinuxRoots& roots)
        : m_roots(roots)
    {
    }

    // Absent when no card reports a load (virtual machines, nouveau, simpledrm).
    [[nodiscard]] std::optional<GPUStats> read(double now);

private:
    struct Card {
        std::string path; // …/class/drm/cardN
        std::string driver;
        std::string name;
        bool bootVga = false;
        std::optional<double> lastIdleMs; // Intel residency counter at the last reading
        double lastTime = 0;
    };

    void discover();
    [[nodiscard]] std::optional<double> load(Card& card, double now) const;

    const LinuxRoots& m_roots;
    bool m_discovered = false;
    std::vector<Card> m_cards;
};

} // namespace vexel
