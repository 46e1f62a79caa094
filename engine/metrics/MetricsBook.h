#pragma once

#include "history/FramePoints.h"
#include "sampling/TickResult.h"
#include "settings/VexelSettings.h"

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

namespace vexel {

// Byte and CPU-second counts summed since the recorder started.
struct AppCounts {
    double cpuSeconds = 0;
    double diskRead = 0;
    double diskWritten = 0;
    double netReceived = 0;
    double netSent = 0;
};

// One app as the metrics name it.
struct MetricsApp {
    std::string name; // the app's name, or "other" for the rest together
    AppCounts counts;
    uint64_t memory = 0;
    int processes = 0;
};

// What the metrics say, kept from tick to tick. Counters only ever grow: an
// app's share of a tick goes to its own counters while it is among the top
// apps of that tick and to "other" while it is not, so neither resets when
// an app enters or leaves the top.
class MetricsBook {
public:
    // Adds a tick: its readings, and the counts of its interval. Only what
    // the recorder took anyway is used; nothing is read for the metrics.
    void add(const TickResult& result, const VexelSettings& settings);

    // The last tick's readings of the machine, its process count and time.
    [[nodiscard]] const SystemSnapshot& system() const { return m_system; }
    [[nodiscard]] size_t processes() const { return m_processes; }
    [[nodiscard]] double time() const { return m_system.time; }
    [[nodiscard]] const StrainRules& strain() const { return m_strain; }
    [[nodiscard]] const AppCounts& machine() const { return m_machine; }
    // The top apps of the last tick, busiest first, then "other".
    [[nodiscard]] const std::vector<MetricsApp>& apps() const { return m_apps; }
    [[nodiscard]] const std::vector<ProjectGroup>& servers() const { return m_servers; }
    // Spikes seen since the recorder started, by kind ("cpu", "memory", …).
    [[nodiscard]] const std::map<std::string, double>& spikes() const { return m_spikes; }

private:
    void countApps(const Frame& frame, int top);
    void findSpikes(const FramePoints& points, const SpikeRules& rules);

    SystemSnapshot m_system;
    size_t m_processes = 0;
    StrainRules m_strain;
    AppCounts m_machine;
    std::map<std::string, AppCounts> m_named; // every app named so far, by name
    std::map<std::string, double> m_lastNamed; // when each was last among the top
    AppCounts m_other;
    std::vector<MetricsApp> m_apps;
    std::vector<ProjectGroup> m_servers;
    std::map<std::string, double> m_spikes;
    std::map<std::string, double> m_seenSpikes; // their starts by id, for the last hours
    std::deque<FramePoints> m_recent; // the last hour's points, for finding spikes
    double m_lastSpikeSearch = 0;
};

} // namespace vexel
