#include "history/Downsample.h"
#include "reports/ReportValues.h"
#include "reports/VexelService.h"
#include "spikes/SpikeFinder.h"

#include <algorithm>
#include <cmath>

namespace vexel {

namespace {

using nlohmann::json;
using namespace ReportValues;

// The finest tier that keeps a look-back of `hours` (minutes up to 49 hours,
// ten minutes up to 35 days, hours beyond), so that recent samples not yet
// rolled up count too.
HistoryTier spikeTier(double hours)
{
    for (const auto tier : {HistoryTier::minute, HistoryTier::tenMinutes})
        if (hours * 3600 <= keepSeconds(tier, 0))
            return tier;
    return HistoryTier::hour;
}

// The ten apps with the most core-hours over `covered` seconds, highest
// first, each named by its latest point.
json busiestApps(const std::vector<AppPoint>& points, double start, double covered)
{
    json apps = json::array();
    for (const auto& app : Downsample::busiestApps(points, start, covered))
        apps.push_back({{"name", app.name}, {"cpu_core_hours", rounded(app.cpu * covered / 3600, 2)}});
    return apps;
}

json spikeEntry(const Spike& spike)
{
    json entry = {{"kind", rawValue(spike.kind)}, {"start", iso8601(spike.start)}, {"end", iso8601(spike.end)},
        {"minutes", rounded((spike.end - spike.start) / 60, 1)}, {"peak", rounded(spike.peak, 3)},
        {"summary", spike.summary.english()}};
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
        {"busiest_apps", busiestApps(store->appSeries(tier(range), from, to), from, whole.dur)},
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
