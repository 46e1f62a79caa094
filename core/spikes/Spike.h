#pragma once

#include "text/Sentence.h"

#include <optional>
#include <string>
#include <string_view>

namespace vexel {

// What kind of episode a spike was.
enum class SpikeKind { cpu, memory, disk, network, thermal, battery };

// "cpu", "memory", "disk", "network", "thermal", "battery".
[[nodiscard]] std::string rawValue(SpikeKind kind);
// "CPU", "Memory pressure", "Disk writes", "Network", "Heat", "Battery drain".
[[nodiscard]] std::string title(SpikeKind kind);

// A notable episode in recorded history and the app most responsible.
struct Spike {
    SpikeKind kind = SpikeKind::cpu;
    double start = 0; // seconds since the epoch
    double end = 0;
    double peak = 0; // the kind's peak: CPU fraction, level, bytes or percentage points
    std::optional<std::string> culprit; // display name of the app most responsible
    std::optional<double> share; // the culprit's part of the kind's total, 0…1
    Sentence summary; // one line for people

    // A stable identity for lists: kind and start ("cpu@1795000000").
    [[nodiscard]] std::string id() const;

    bool operator==(const Spike&) const = default;
};

} // namespace vexel
