#pragma once

#include "devservers/ActivityLog.h"
#include "devservers/DevServers.h"
#include "devservers/DockerState.h"
#include "devservers/PortSource.h"
#include "grouping/AppIdentity.h"
#include "monitor/Frame.h"
#include "processes/ProcessSource.h"
#include "rates/NetSource.h"
#include "system/SystemSource.h"

#include <functional>
#include <memory>
#include <optional>

namespace vexel {

// The sources a monitor reads, and how it names apps. Shared, so that a
// fixture world can keep feeding the sources it handed to a monitor.
struct MonitorSources {
    std::shared_ptr<ProcessSource> processes;
    std::shared_ptr<NetSource> net;
    std::shared_ptr<SystemSource> system;
    std::shared_ptr<PortSource> ports;
    std::shared_ptr<DockerSource> docker;
    std::shared_ptr<IdentityRules> identities;
    std::string home;
    uint32_t myUID = 0;
    std::function<bool(const std::string&)> exists;
    ProgramPlaces places = ProgramPlaces::macOS(); // where system programs and app data live
};

// Takes complete samples of the machine: one frame per call. Driven by one
// thread at a time; the caller decides how often the costly parts (every
// user's processes, per-process network) are read.
class Monitor {
public:
    explicit Monitor(MonitorSources sources);

    // The monitor of this machine with its live sources.
    [[nodiscard]] static std::unique_ptr<Monitor> live();

    // What one sample reads besides the user's own processes and the system.
    struct Readings {
        bool everyone = false; // other users' processor time and memory
        bool network = false; // per-process network counters (else the previous rates carry over)
    };

    // One frame at `now`, e.g. sample(now, {.everyone = true, .network = true}).
    [[nodiscard]] Frame sample(double now, Readings readings);

    [[nodiscard]] std::optional<std::vector<ListenSocket>> listeners();
    [[nodiscard]] std::vector<ProjectGroup> devServers(
        const Frame& frame, const std::vector<ListenSocket>& listeners, ActivityLog& log, double idleAfter);
    [[nodiscard]] DockerState dockerState();

    [[nodiscard]] std::optional<double> lastNetRun() const { return m_lastNetRun; }
    [[nodiscard]] std::optional<double> lastEveryoneRun() const { return m_lastEveryoneRun; }
    [[nodiscard]] ProcessSource& processes() { return *m_sources.processes; }
    // The home folder of the user whose machine this is.
    [[nodiscard]] const std::string& home() const { return m_sources.home; }

private:
    MonitorSources m_sources;
    RateTracker m_rates;
    IdentityCache m_identities;
    std::optional<double> m_lastTime;
    std::optional<double> m_lastNetRun;
    std::optional<double> m_lastEveryoneRun;
};

// Seconds since the epoch, now.
[[nodiscard]] double currentTime();

} // namespace vexel
