#include "monitor/Monitor.h"

#include "grouping/AppGrouper.h"

#include <chrono>

namespace vexel {

double currentTime()
{
    using namespace std::chrono;
    return duration<double>(system_clock::now().time_since_epoch()).count();
}

Monitor::Monitor(MonitorSources sources)
    : m_sources(std::move(sources))
{
}

Frame Monitor::sample(double now, Readings readings)
{
    Frame frame;
    frame.time = now;
    frame.records = m_sources.processes->snapshot(readings.everyone ? ProcessScope::everyone : ProcessScope::own);
    if (readings.everyone)
        m_lastEveryoneRun = now;
    std::optional<NetCounters> counters;
    if (readings.network) {
        counters = m_sources.net->counters();
        m_lastNetRun = now;
    }
    frame.rates = m_rates.update(frame.records, counters, now);
    frame.system = m_sources.system->read(now);
    frame.apps = AppGrouper::group(frame.records, frame.rates, *m_sources.identities, &m_identities);
    frame.interval = m_lastTime ? now - *m_lastTime : 0;
    m_lastTime = now;
    return frame;
}

std::optional<std::vector<ListenSocket>> Monitor::listeners()
{
    return m_sources.ports->listeners();
}

std::vector<ProjectGroup> Monitor::devServers(
    const Frame& frame, const std::vector<ListenSocket>& listeners, ActivityLog& log, double idleAfter)
{
    const DevServers::Inputs inputs{listeners, frame.records, frame.rates,
        [this](int32_t pid) { return m_sources.processes->cwd(pid); }, m_sources.home, m_sources.myUID,
        m_sources.exists, frame.time, idleAfter, m_sources.places};
    return DevServers::build(inputs, log);
}

DockerState Monitor::dockerState()
{
    return m_sources.docker->read();
}

} // namespace vexel
