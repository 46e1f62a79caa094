#pragma once

#include "system/GPUStats.h"
#include "system/linux/LinuxRoots.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// Reads GPU load from the DRM cards in sysfs (amdgpu's busy percentage,
// Intel's idle residency) and from NVIDIA's management library. With several
// GPUs the busiest one is reported; with all idle, the one that boots the display.
// A GPU that is runtime-suspended (the discrete one of a hybrid laptop) reads
// idle without being asked, since asking would wake it.
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

    // A GPU bound to NVIDIA's driver, seen on the PCI bus whether or not
    // nvidia-drm gave it a DRM card.
    struct NvidiaDevice {
        std::string path; // …/bus/pci/drivers/nvidia/0000:01:00.0 or a card's device folder
        std::string name;
    };

    void discover();
    void discoverNvidia(const std::optional<std::string>& database);
    [[nodiscard]] bool anyNvidiaAwake(const std::function<void(const std::string&)>& asleep) const;
    [[nodiscard]] std::optional<double> load(Card& card, double now) const;

    const LinuxRoots& m_roots;
    bool m_discovered = false;
    std::vector<Card> m_cards;
    bool m_nvidiaDriver = false; // NVIDIA's kernel module is loaded
    std::vector<NvidiaDevice> m_nvidia;
};

} // namespace vexel
