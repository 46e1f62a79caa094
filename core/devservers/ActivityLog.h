#pragma once

#include "processes/ProcRecord.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// When each developer server last did something, kept across runs so that a
// server idle for days is recognised as such.
class ActivityLog {
public:
    struct Entry {
        double cpu = 0; // cumulative CPU seconds when last seen
        double lastActive = 0; // seconds since the epoch
        double firstSeen = 0;

        bool operator==(const Entry&) const = default;
    };

    // "pid@start": "4242@1718000000".
    [[nodiscard]] static std::string keyOf(const ProcKey& key);

    // The time of the process's last activity, updating its entry: growth of
    // more than 0.25 CPU seconds since the last look is activity. A process
    // seen for the first time after running over an hour at under 30 CPU
    // seconds a day is taken to have been idle since a minute after its start.
    double observe(const ProcKey& key, std::optional<double> cpuTime, double started, double now);

    // Drops every entry but those of `keeping`.
    void prune(const std::vector<ProcKey>& keeping);

    [[nodiscard]] const std::map<std::string, Entry>& entries() const { return m_entries; }

    // The log in a file ({"entries": {…}}); empty when missing or unreadable.
    [[nodiscard]] static ActivityLog load(const std::filesystem::path& file);
    // Writes atomically, creating the folder. Throws std::filesystem::filesystem_error.
    void save(const std::filesystem::path& file) const;

    bool operator==(const ActivityLog&) const = default;

private:
    std::map<std::string, Entry> m_entries;
};

} // namespace vexel
