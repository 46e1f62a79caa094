#include "metrics/MetricsBook.h"

#include "sampling/HistoryBatch.h"
#include "spikes/SpikeFinder.h"

#include <algorithm>

namespace vexel {

namespace {

// How far back spikes are looked for, how often, and how long a counted one
// is remembered so that it is never counted twice.
constexpr double spikeWindow = 3600;
constexpr double spikeSearchEvery = 60;
constexpr double spikeMemory = 3 * spikeWindow;
// An app not among the top this long is forgotten; should it come back, its
// counters start again from zero, which Prometheus reads as a restart.
constexpr double forgetAfter = 86400;

void addTo(AppCounts& counts, const AppGroup& app, double seconds)
{
    counts.cpuSeconds += app.cpu * seconds;
    counts.diskRead += app.diskRead * seconds;
    counts.diskWritten += app.diskWrite * seconds;
    counts.netReceived += app.netIn * seconds;
    counts.netSent += app.netOut * seconds;
}

} // namespace

void MetricsBook::add(const TickResult& result, const VexelSettings& settings)
{
    const Frame& frame = result.frame;
    m_system = frame.system;
    m_processes = frame.records.size();
    m_strain = settings.strain;
    const double seconds = frame.interval;
    const auto& system = frame.system;
    m_machine.diskRead += system.disk.readRate * seconds;
    m_machine.diskWritten += system.disk.writeRate * seconds;
    m_machine.netReceived += system.net.inRate * seconds;
    m_machine.netSent += system.net.outRate * seconds;
    m_machine.cpuSeconds += (system.cpu.user + system.cpu.system) * system.coreCount() * seconds;
    countApps(frame, std::max(settings.metricsApps, 1));
    if (result.servers)
        m_servers = *result.servers;
    // Spikes are looked for in what history would keep of the ticks.
    if (HistoryBatch::usable(frame))
        findSpikes(historyPoints(frame), settings.spikes);
}

void MetricsBook::countApps(const Frame& frame, int top)
{
    std::vector<const AppGroup*> order;
    for (const auto& app : frame.apps)
        order.push_back(&app);
    const auto busier = [](const AppGroup* a, const AppGroup* b) {
        return a->cpu != b->cpu ? a->cpu > b->cpu
                                : (a->memory != b->memory ? a->memory > b->memory : a->name < b->name);
    };
    const size_t named = std::min(order.size(), static_cast<size_t>(top));
    std::partial_sort(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(named), order.end(), busier);

    m_apps.clear();
    MetricsApp rest{"other", {}, 0, 0};
    for (size_t i = 0; i < order.size(); ++i) {
        const AppGroup& app = *order[i];
        // Two apps of one name (a user's and root's) share their series.
        const bool ownSeries = i < named && app.name != "other";
        auto& counts = ownSeries ? m_named[app.name] : m_other;
        addTo(counts, app, frame.interval);
        if (!ownSeries) {
            rest.memory += app.memory;
            rest.processes += static_cast<int>(app.processes.size());
            continue;
        }
        m_lastNamed[app.name] = frame.time;
        const auto same = std::find_if(
            m_apps.begin(), m_apps.end(), [&](const MetricsApp& shown) { return shown.name == app.name; });
        if (same == m_apps.end()) {
            m_apps.push_back({app.name, {}, app.memory, static_cast<int>(app.processes.size())});
        } else {
            same->memory += app.memory;
            same->processes += static_cast<int>(app.processes.size());
        }
    }
    for (auto& shown : m_apps)
        shown.counts = m_named[shown.name];
    rest.counts = m_other;
    m_apps.push_back(rest);
    std::erase_if(m_lastNamed, [&](const auto& entry) {
        const bool forgotten = frame.time - entry.second > forgetAfter;
        if (forgotten)
            m_named.erase(entry.first);
        return forgotten;
    });
}

void MetricsBook::findSpikes(const FramePoints& points, const SpikeRules& rules)
{
    m_recent.push_back(points);
    const double now = points.sys.t;
    while (!m_recent.empty() && now - m_recent.front().sys.t > spikeWindow)
        m_recent.pop_front();
    if (now - m_lastSpikeSearch < spikeSearchEvery)
        return;
    m_lastSpikeSearch = now;
    std::vector<SysPoint> sys;
    std::vector<AppPoint> apps;
    for (const auto& recent : m_recent) {
        sys.push_back(recent.sys);
        apps.insert(apps.end(), recent.apps.begin(), recent.apps.end());
    }
    for (const auto& spike : SpikeFinder::find(std::move(sys), apps, rules))
        if (m_seenSpikes.emplace(spike.id(), spike.start).second)
            m_spikes[rawValue(spike.kind)] += 1;
    std::erase_if(m_seenSpikes, [&](const auto& seen) { return now - seen.second > spikeMemory; });
}

} // namespace vexel
