#include "sampling/Cadence.h"

#include <algorithm>
#include <limits>

namespace vexel {

namespace {

// Never: an interval no clock reaches.
constexpr double never = std::numeric_limits<double>::infinity();

int64_t capBytes(int megabytes)
{
    // Decimal megabytes; a cap too large to count in bytes is the largest count.
    int64_t bytes = 0;
    if (__builtin_mul_overflow(static_cast<int64_t>(megabytes), int64_t{1'000'000}, &bytes))
        return std::numeric_limits<int64_t>::max();
    return bytes;
}

} // namespace

double Cadence::tickSeconds(bool windowVisible, const VexelSettings& settings)
{
    if (windowVisible)
        return 2.0;
    // Loaded settings are in range already; a value set in code is held to it
    // too, since no interval at all would spin a core.
    const double seconds = settings.sampleSeconds;
    return seconds >= VexelSettings::shortestSample ? std::min(seconds, VexelSettings::longestSample)
                                                    : VexelSettings::shortestSample;
}

bool Cadence::take(std::optional<double>& last, double now, double interval, bool full)
{
    // A reading that is never due on its own comes only with a full refresh.
    const bool due = full || (interval != never && (!last || now - *last >= interval));
    if (due)
        last = now;
    return due;
}

TickPlan Cadence::plan(double now, bool full, View view, const VexelSettings& settings)
{
    const bool visible = view.windowVisible;
    const bool developers = visible && view.showsServers;
    TickPlan plan;
    plan.everyone = take(m_lastEveryone, now, visible ? 6 : 60, full);
    plan.network = take(m_lastNetwork, now, !visible ? 60 : (view.showsAppNetwork ? 4 : 15), full);
    plan.ports = take(m_lastPorts, now, developers ? 8 : 300, full);
    plan.docker = take(m_lastDocker, now, developers ? 15 : never, full);
    plan.record = true;
    plan.compact = take(m_lastCompact, now, 60, full);
    plan.totals = plan.compact || full;
    plan.retentionDays = settings.retentionDays;
    plan.maxBytes = capBytes(settings.maxHistoryMB);
    plan.idleAfter = settings.idleAfter();
    return plan;
}

} // namespace vexel
