#pragma once

#include "sampling/TickPlan.h"
#include "settings/VexelSettings.h"

#include <optional>

namespace vexel {

// How often each reading is taken. The cheap ones come with every tick; the
// costly ones (other users' processes, per-process network, the socket scan,
// containers) on slower intervals and only where a visible page needs them,
// to keep the app light.
class Cadence {
public:
    // What the user is looking at when a tick is planned: whether a window
    // shows at all, and what its page needs. A recorder with no window plans
    // with the defaults.
    struct View {
        bool windowVisible = false;
        bool showsAppNetwork = false; // each app's network (the overview, Apps, Network)
        bool showsServers = false; // ports, dev servers and containers (the Developers page)
    };

    // Seconds between ticks: 2 while the window is visible, else the settings'
    // interval, held to 1 to 3600.
    [[nodiscard]] static double tickSeconds(bool windowVisible, const VexelSettings& settings);

    // The plan of a tick at `now`, marking what it schedules as taken then.
    // `full` (the first tick, a manual refresh, the window opening) makes every
    // slow reading due at once.
    [[nodiscard]] TickPlan plan(double now, bool full, View view, const VexelSettings& settings);

    // The next plan scans ports whatever the interval (a server was just stopped).
    void requestPorts() { m_lastPorts.reset(); }

private:
    // Due when never taken or at least `interval` seconds ago; taken now if due.
    static bool take(std::optional<double>& last, double now, double interval, bool full);

    std::optional<double> m_lastEveryone;
    std::optional<double> m_lastNetwork;
    std::optional<double> m_lastPorts;
    std::optional<double> m_lastDocker;
    std::optional<double> m_lastCompact;
};

} // namespace vexel
