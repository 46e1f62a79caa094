#pragma once

namespace vexel {

// What counts as a spike in recorded history.
struct SpikeRules {
    double cpu = 0.7; // fraction of the whole machine at or above which a point counts
    int cpuMinutes = 3; // shortest CPU episode
    double diskPerMinute = 150000000.0; // bytes written per minute at or above which a point counts
    double diskTotal = 1000000000.0; // bytes an episode must write in all
    double netPerMinute = 60000000.0; // bytes in + out per minute at or above which a point counts
    double netTotal = 500000000.0; // bytes an episode must move in all
    double batteryDrop = 12.0; // percentage points lost within an hour
    double mergeGap = 180.0; // seconds of quiet inside one episode

    bool operator==(const SpikeRules&) const = default;
};

} // namespace vexel
