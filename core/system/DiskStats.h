#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// One mounted, user-visible volume. Its identity in lists is its path.
struct VolumeInfo {
    std::string name;
    std::string path; // mount point
    uint64_t total = 0; // capacity, bytes
    uint64_t available = 0; // bytes available to the user

    [[nodiscard]] const std::string& id() const { return path; }

    bool operator==(const VolumeInfo&) const = default;
};

// Volumes and disk throughput.
struct DiskStats {
    std::vector<VolumeInfo> volumes; // the root volume first
    double readRate = 0; // bytes per second, all disks
    double writeRate = 0;

    // The first volume, absent when there is none.
    [[nodiscard]] std::optional<VolumeInfo> main() const
    {
        if (volumes.empty())
            return std::nullopt;
        return volumes.front();
    }

    bool operator==(const DiskStats&) const = default;
};

} // namespace vexel
