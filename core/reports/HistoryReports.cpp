#include "history/Downsample.h"
#include "reports/ReportValues.h"
#include "reports/VexelService.h"
#include "spikes/SpikeFinder.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace vexel {

namespace {

using nlohmann::json;
using namespace ReportValues;

constexpr size_t busiestCount = 10;

// The finest tier that still keeps a look-back of `hours`: minutes up to 49
// hours, ten minutes up to 35 days, hours beyond.
HistoryTier spikeTier(double hours)
{
    if (hours <= 49)
        return HistoryTier::minute;
    if (hours <= 840)
        return HistoryTier::tenMinutes;
    return HistoryTier::hour;
}

// The apps with the most core-hours, highest first, named by their latest point.
json busiestApps(const std::vector<AppPoint>& points)
{
    struct Tally {
        double coreSeconds = 0;
        double latest = 0;
        std::string name;
    };
    std::map<std::string, Tally> byApp;
    for (const auto& point : points) {
        Tally& tally = byApp[point.app];
        tally.coreSeconds += point.cpu * point.dur;
        if (tally.name.empty() || point.t >= tally.latest) {
            tally.latest = point.t;
            tally.name = point.name;
        }
    }
    std::vector<const Tally*> ranked;
    for (const auto& [key, tally] : byApp)
        ranked.push_back(&tally);
    std::stable_sort(
        ranked.begin(), ranked.end(), [](const Tally* a, const Tally* b) { return a->coreSeconds > b->coreSeconds; });
    json apps = json::array();
    for (size_t i = 0; i < ranked.size() && i < busiestCount; ++i)
        apps.push_back({{"name", ranked[i]->name}, {"cpu_core_hours", rounded(ranked[i]->coreSeconds / 3600, 2)}});
    return apps;
}

json spikeEntry(const Spike& spike)
{
    json entry = {{"kind", rawValue(spike.kind)}, {"start", iso8601(spike.start)}, {"end", iso8601(spike.end)},
        {"minutes", rounded((spike.end - spike.start) / 60, 1)}, {"peak", rounded(spike.peak, 3)},
        {"summary", spike.summary}};
    if (spike.culprit)
        entry["culprit"] = *spike.culprit;
    if (spike.share)
        entry["culprit_share_percent"] = percent(*spike.share);
    return entry;
}

} // namespace

json VexelService::history(HistoryRange range)
{
    const auto store = requireStore();
    const double to = m_now();
    const double from = start(range, to, m_calendar);
    // The whole range as one point: time-weighted means, peaks and byte sums.
    const SysPoint whole = Downsample::rollup(store->series(tier(range), from, to), from, 0);
    return {{"range", rawValue(range)}, {"from", iso8601(from)}, {"hours_sampled", rounded(whole.dur / 3600, 2)},
        {"cpu_avg_percent", percent(whole.cpu)}, {"cpu_peak_percent", percent(whole.cpuMax)},
        {"memory_avg_percent", percent(whole.mem)}, {"memory_peak_percent", percent(whole.memMax)},
        {"disk_written_bytes", wholeBytes(whole.diskW)}, {"disk_read_bytes", wholeBytes(whole.diskR)},
        {"network_in_bytes", wholeBytes(whole.netIn)}, {"network_out_bytes", wholeBytes(whole.netOut)},
        {"busiest_apps", busiestApps(store->appSeries(tier(range), from, to))},
        {"note",
            "CPU is the share of the whole machine; averages weigh each sample by its length. Busiest apps are "
            "ranked by CPU core-hours (one core fully busy for an hour is 1)."}};
}

json VexelService::spikes(double hours)
{
    if (!std::isfinite(hours)) // "nan" and "inf" read as numbers, but name no look-back
        hours = 24;
    const auto store = requireStore();
    const double to = m_now();
    const double from = to - hours * 3600;
    const HistoryTier finest = spikeTier(hours);
    const auto found
        = SpikeFinder::find(store->series(finest, from, to), store->appSeries(finest, from, to), settings().spikes);
    json list = json::array();
    for (const auto& spike : found)
        list.push_back(spikeEntry(spike));
    return {{"hours", hours}, {"spikes", list}};
}

} // namespace vexel
