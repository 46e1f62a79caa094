#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vexel {

// Turns named pairs of cumulative byte counters (per disk, per interface)
// into rates. Deltas are taken per name, so a device that disappears or
// restarts its counters does not disturb the others: a counter that went
// backwards counts 0, and a name seen for the first time counts nothing.
class CounterDeltas {
public:
    // Records this reading's counters for one name; call once per name, then `finish`.
    void add(std::string_view name, uint64_t first, uint64_t second);

    // The rates since the previous reading (per second), then makes this
    // reading the previous one. Both 0 on the first reading and when `now` is
    // not after the previous reading's time.
    [[nodiscard]] std::pair<double, double> finish(double now);

private:
    std::map<std::string, std::pair<uint64_t, uint64_t>, std::less<>> m_previous;
    std::map<std::string, std::pair<uint64_t, uint64_t>, std::less<>> m_current;
    std::optional<double> m_previousTime;
    uint64_t m_firstDelta = 0;
    uint64_t m_secondDelta = 0;
};

} // namespace vexel
