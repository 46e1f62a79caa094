#include "grouping/AppGrouper.h"

#include <algorithm>
#include <unordered_map>

namespace vexel::AppGrouper {

namespace {

struct Building {
    AppGroup group;
    double measuredWatts = 0;
    bool anyMeasured = false;
    double wakeups = 0;
    const ProcRecord* oldest = nullptr;
};

ProcRow rowOf(const ProcRecord& record, const ProcRates& rate)
{
    return ProcRow{ProcKey::of(record), record.pid, record.ppid, record.name, record.path, record.zombie, rate.cpu,
        record.memory.value_or(0), record.memoryIsFootprint, record.cpuTime.has_value(), record.start, record.uid};
}

void add(Building& building, const ProcRecord& record, const ProcRates& rate, bool isMain)
{
    AppGroup& group = building.group;
    group.processes.push_back(rowOf(record, rate));
    group.cpu += rate.cpu;
    group.memory += record.memory.value_or(0);
    group.memoryApprox = group.memoryApprox || (record.memory && !record.memoryIsFootprint);
    group.diskRead += rate.diskRead;
    group.diskWrite += rate.diskWrite;
    group.netIn += rate.netIn;
    group.netOut += rate.netOut;
    group.unreadable += !record.cpuTime && !record.zombie ? 1 : 0;
    group.zombies += record.zombie ? 1 : 0;
    if (rate.energyW) {
        building.measuredWatts += *rate.energyW;
        building.anyMeasured = true;
    }
    building.wakeups += rate.wakeups;
    if (isMain && !group.mainPID)
        group.mainPID = record.pid;
    if (building.oldest == nullptr || record.start < building.oldest->start)
        building.oldest = &record;
}

void finish(Building& building)
{
    AppGroup& group = building.group;
    if (building.anyMeasured) {
        group.energyW = building.measuredWatts;
    } else {
        group.energyW = group.cpu * estimateWattsPerCore + building.wakeups * estimateWattsPerWakeup;
        group.energyEstimated = true;
    }
    // Without a main executable among the members, the oldest member stands for the app.
    if (!group.mainPID && building.oldest != nullptr)
        group.mainPID = building.oldest->pid;
    std::stable_sort(group.processes.begin(), group.processes.end(),
        [](const ProcRow& a, const ProcRow& b) { return a.cpu > b.cpu || (a.cpu == b.cpu && a.memory > b.memory); });
}

} // namespace

double sortValue(const AppGroup& group, AppSort sort)
{
    switch (sort) {
    case AppSort::cpu: return group.cpu;
    case AppSort::memory: return static_cast<double>(group.memory);
    case AppSort::energy: return group.energyW.value_or(-1.0);
    case AppSort::disk: return group.diskRead + group.diskWrite;
    case AppSort::network: return group.netIn + group.netOut;
    }
    return group.cpu;
}

std::vector<AppGroup> group(const std::vector<ProcRecord>& records, const RateTracker::Rates& rates,
    const IdentityRules& rules, IdentityCache* cache, AppSort sort)
{
    const auto resolution = AppIdentity::resolveAll(records, rules, cache);
    // Identities are numbered in order of discovery, so a group's number is its identity's.
    std::vector<Building> buildings(resolution.identities.size());
    for (size_t i = 0; i < buildings.size(); ++i) {
        const Identity& id = resolution.identities[i];
        buildings[i].group.id = id.key;
        buildings[i].group.name = id.name;
        buildings[i].group.kind = id.kind;
        buildings[i].group.path = id.path;
    }
    const ProcRates none;
    for (size_t i = 0; i < records.size(); ++i) {
        const ProcRecord& record = records[i];
        const uint32_t index = resolution.indexOfRecord[i];
        const Identity& id = resolution.identities[index];
        const auto rate = rates.find(ProcKey::of(record));
        add(buildings[index], record, rate == rates.end() ? none : rate->second,
            id.kind == AppKind::app && rules.isMainExecutable(record, id));
    }
    std::vector<AppGroup> groups;
    groups.reserve(buildings.size());
    for (auto& building : buildings) {
        if (building.group.processes.empty())
            continue; // a base identity that every member traded for its parent's
        finish(building);
        groups.push_back(std::move(building.group));
    }
    std::stable_sort(groups.begin(), groups.end(),
        [sort](const AppGroup& a, const AppGroup& b) { return sortValue(a, sort) > sortValue(b, sort); });
    return groups;
}

} // namespace vexel::AppGrouper
