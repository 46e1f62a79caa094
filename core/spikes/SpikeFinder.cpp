#include "spikes/SpikeFinder.h"

#include "format/CFormat.h"
#include "format/Fmt.h"
#include "system/MemoryPressure.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

namespace vexel::SpikeFinder {

namespace {

using Run = std::vector<const SysPoint*>;

struct Culprit {
    std::optional<std::string> name;
    std::optional<double> share;
};

// Qualifying points grouped into runs: a gap of more than `mergeGap` seconds
// of quiet between two qualifying points starts a new run.
std::vector<Run> runs(const std::vector<SysPoint>& points, double step, double mergeGap,
    const std::function<bool(const SysPoint&)>& qualifies)
{
    std::vector<Run> result;
    Run current;
    for (const auto& point : points) {
        if (!qualifies(point))
            continue;
        if (!current.empty() && point.t - current.back()->t - step > mergeGap) {
            result.push_back(std::move(current));
            current.clear();
        }
        current.push_back(&point);
    }
    if (!current.empty())
        result.push_back(std::move(current));
    return result;
}

Culprit culprit(const std::vector<AppPoint>& apps, double start, double end, double AppPoint::*metric)
{
    std::map<std::string, std::pair<double, std::string>> sums;
    double total = 0;
    for (const auto& app : apps) {
        if (app.t < start || app.t >= end)
            continue;
        const double amount = app.*metric * app.dur;
        auto& entry = sums[app.app];
        entry.first += amount;
        entry.second = app.name;
        total += amount;
    }
    // No app did any of it (every figure 0, or none recorded): nobody is to blame.
    if (!(total > 0))
        return {};
    const auto top = std::max_element(
        sums.begin(), sums.end(), [](const auto& a, const auto& b) { return a.second.first < b.second.first; });
    return {top->second.second, top->second.first / total};
}

// The sentence naming the culprit when there is one, the one without otherwise;
// the culprit fills the pattern's last value.
Sentence told(const Culprit& who, const char* named, const char* unnamed, std::vector<Sentence::Value> values)
{
    if (!who.name)
        return {unnamed, std::move(values)};
    values.push_back({*who.name});
    return {named, std::move(values)};
}

int wholeMinutes(double seconds)
{
    return static_cast<int>(std::lround(seconds / 60));
}

Spike spike(SpikeKind kind, double start, double end, double peak, const Culprit& who, Sentence summary)
{
    return Spike{kind, start, end, peak, who.name, who.share, std::move(summary)};
}

} // namespace

std::vector<Spike> find(std::vector<SysPoint> points, const std::vector<AppPoint>& apps, const SpikeRules& rules)
{
    std::vector<Spike> spikes;
    std::stable_sort(points.begin(), points.end(), [](const SysPoint& a, const SysPoint& b) { return a.t < b.t; });
    double step = 60;
    if (points.size() >= 2) {
        double smallest = 0;
        for (size_t i = 1; i < points.size(); ++i) {
            const double gap = points[i].t - points[i - 1].t;
            if (gap > 0 && (smallest == 0 || gap < smallest))
                smallest = gap;
        }
        if (smallest <= 0)
            return spikes;
        step = smallest;
    }
    const auto span = [&](const Run& run) { return std::pair{run.front()->t, run.back()->t + step}; };

    for (const auto& run : runs(points, step, rules.mergeGap, [&](const SysPoint& p) { return p.cpu >= rules.cpu; })) {
        if (step * static_cast<double>(run.size()) < rules.cpuMinutes * 60.0 - 1)
            continue;
        const auto [start, end] = span(run);
        double peak = 0;
        for (const auto* p : run)
            peak = std::max(peak, std::max(p->cpu, p->cpuMax));
        const auto who = culprit(apps, start, end, &AppPoint::cpu);
        // The culprit leads this sentence, so it fills %1 and the minutes %2.
        const std::string minutes = std::to_string(wholeMinutes(end - start));
        spikes.push_back(spike(SpikeKind::cpu, start, end, peak, who,
            who.name ? Sentence{VEXEL_WORDS("vexel::Vexel", "%1 kept the processor busy for %2 min"),
                {{*who.name}, {minutes}}}
                     : Sentence{VEXEL_WORDS("vexel::Vexel", "The processor was busy for %1 min"), {{minutes}}}));
    }
    for (const auto& run : runs(points, step, rules.mergeGap, [](const SysPoint& p) { return p.pressure >= 1; })) {
        const auto [start, end] = span(run);
        int64_t peak = 0;
        for (const auto* p : run)
            peak = std::max(peak, p->pressure);
        const auto who = culprit(apps, start, end, &AppPoint::mem);
        const auto level = memoryPressureFromRaw(peak).value_or(MemoryPressure::critical);
        spikes.push_back(spike(SpikeKind::memory, start, end, static_cast<double>(peak), who,
            told(who, VEXEL_WORDS("vexel::Vexel", "Memory pressure reached %1 while the most memory was held by %2"),
                VEXEL_WORDS("vexel::Vexel", "Memory pressure reached %1"), {{title(level), true}})));
    }
    const auto amountRuns = [&](SpikeKind kind, double perMinute, double total, double AppPoint::*metric,
                                const std::function<double(const SysPoint&)>& amount, const char* named,
                                const char* unnamed) {
        const auto qualifying = [&](const SysPoint& p) { return p.dur > 0 && amount(p) >= perMinute * p.dur / 60; };
        for (const auto& run : runs(points, step, rules.mergeGap, qualifying)) {
            double sum = 0;
            for (const auto* p : run)
                sum += amount(*p);
            if (sum < total)
                continue;
            const auto [start, end] = span(run);
            const auto who = culprit(apps, start, end, metric);
            spikes.push_back(spike(kind, start, end, sum, who, told(who, named, unnamed, {{Fmt::bytes(sum)}})));
        }
    };
    amountRuns(
        SpikeKind::disk, rules.diskPerMinute, rules.diskTotal, &AppPoint::disk,
        [](const SysPoint& p) { return p.diskW; }, VEXEL_WORDS("vexel::Vexel", "%1 written to disk by %2"),
        VEXEL_WORDS("vexel::Vexel", "%1 written to disk"));
    amountRuns(
        SpikeKind::network, rules.netPerMinute, rules.netTotal, &AppPoint::net,
        [](const SysPoint& p) { return p.netIn + p.netOut; },
        VEXEL_WORDS("vexel::Vexel", "%1 moved over the network by %2"),
        VEXEL_WORDS("vexel::Vexel", "%1 moved over the network"));
    for (const auto& run : runs(points, step, rules.mergeGap, [](const SysPoint& p) { return p.thermal >= 2; })) {
        const auto [start, end] = span(run);
        int64_t peak = 0;
        for (const auto* p : run)
            peak = std::max(peak, p->thermal);
        const auto who = culprit(apps, start, end, &AppPoint::cpu);
        spikes.push_back(spike(SpikeKind::thermal, start, end, static_cast<double>(peak), who,
            told(who, VEXEL_WORDS("vexel::Vexel", "Ran hot for %1 min while the busiest app was %2"),
                VEXEL_WORDS("vexel::Vexel", "Ran hot for %1 min"), {{std::to_string(wholeMinutes(end - start))}})));
    }
    // Battery: from each point on battery, look ahead up to an hour for a fall of batteryDrop points.
    std::vector<const SysPoint*> discharging;
    for (const auto& p : points) {
        if (p.battery && p.power && *p.power < 0)
            discharging.push_back(&p);
    }
    for (size_t i = 0; i < discharging.size(); ++i) {
        const SysPoint& first = *discharging[i];
        for (size_t j = i + 1; j < discharging.size(); ++j) {
            const SysPoint& later = *discharging[j];
            if (later.t - first.t > 3600 || later.t - discharging[j - 1]->t > step + rules.mergeGap)
                break;
            const double drop = *first.battery - *later.battery;
            if (drop < rules.batteryDrop)
                continue;
            const auto who = culprit(apps, first.t, later.t, &AppPoint::energy);
            spikes.push_back(spike(SpikeKind::battery, first.t, later.t, drop, who,
                told(who,
                    VEXEL_WORDS("vexel::Vexel", "Battery fell %1 points in %2 min while the most energy went to %3"),
                    VEXEL_WORDS("vexel::Vexel", "Battery fell %1 points in %2 min"),
                    {{cformat("%.0f", drop)}, {std::to_string(wholeMinutes(later.t - first.t))}})));
            i = j; // carry on after this drain
            break;
        }
    }
    std::stable_sort(spikes.begin(), spikes.end(), [](const Spike& a, const Spike& b) { return a.start > b.start; });
    return spikes;
}

} // namespace vexel::SpikeFinder
