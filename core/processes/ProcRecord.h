#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace vexel {

// One process at one instant, with what could be learned about it cheaply.
struct ProcRecord {
    int32_t pid = 0;
    int32_t ppid = 0;
    uint32_t uid = 0;
    std::string name; // short name (the kernel's 15-character comm on Linux)
    std::optional<std::string> path; // full executable path when known
    double start = 0; // seconds since the epoch
    bool zombie = false;
    std::optional<double> cpuTime; // cumulative processor seconds, user plus system
    std::optional<uint64_t> memory; // bytes
    bool memoryIsFootprint = false; // memory is the footprint rather than a resident size
    std::optional<uint64_t> diskRead; // cumulative bytes
    std::optional<uint64_t> diskWrite; // cumulative bytes
    std::optional<uint64_t> energyNJ; // cumulative nanojoules
    std::optional<uint64_t> wakeups; // cumulative

    // What Linux adds: the process's cgroup (the "0::" line) and whether it is
    // a kernel thread. Both help to name the app a process belongs to.
    std::optional<std::string> cgroup;
    bool kernelThread = false;
    // What a sandboxed or portable program says of itself, for the user's own
    // processes: a Flatpak's app id (its sandbox's .flatpak-info) and the
    // AppImage file it runs from (APPIMAGE in its environment).
    std::optional<std::string> flatpakApp;
    std::optional<std::string> appImage;

    bool operator==(const ProcRecord&) const = default;
};

// The resource usage of one of the user's own processes.
struct RusageSample {
    double cpuTime = 0; // seconds
    uint64_t footprint = 0;
    uint64_t diskRead = 0;
    uint64_t diskWrite = 0;
    uint64_t energyNJ = 0;
    uint64_t wakeups = 0;

    bool operator==(const RusageSample&) const = default;
};

// The identity of a process across readings: pids are reused, so the pair of
// pid and whole start second is the key.
struct ProcKey {
    int32_t pid = 0;
    int64_t start = 0;

    [[nodiscard]] static ProcKey of(const ProcRecord& record);

    bool operator==(const ProcKey&) const = default;
    auto operator<=>(const ProcKey&) const = default;
};

struct ProcKeyHash {
    size_t operator()(const ProcKey& key) const noexcept
    {
        return std::hash<int64_t>()((static_cast<int64_t>(key.pid) << 40) ^ key.start);
    }
};

} // namespace vexel
