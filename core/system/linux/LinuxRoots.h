#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// Capacity of a mounted file system, bytes.
struct FsCapacity {
    uint64_t total = 0;
    uint64_t available = 0; // what an ordinary user may still write
};

// One NVIDIA GPU as the driver's management library reports it.
struct NvidiaGpu {
    std::string name;
    double utilisation = 0; // 0…1
};

// Where the Linux reader looks. Tests point the roots at fixture trees and
// replace the two calls that cannot be faked with files.
struct LinuxRoots {
    std::string proc = "/proc";
    std::string sys = "/sys";
    std::string dev = "/dev";
    std::string pciIds = "/usr/share/misc/pci.ids";
    std::string osRelease = "/etc/os-release";
    // The capacity of the file system mounted at a path (statvfs by default).
    std::function<std::optional<FsCapacity>(const std::string& mountPoint)> capacity;
    // Every NVIDIA GPU's name and load (NVML by default; empty when it cannot be loaded).
    std::function<std::vector<NvidiaGpu>()> nvidia;
};

// The roots of this machine with the real statvfs and NVML.
[[nodiscard]] LinuxRoots liveRoots();

} // namespace vexel
