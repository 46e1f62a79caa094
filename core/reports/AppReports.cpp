#include "grouping/AppGrouper.h"
#include "reports/ReportError.h"
#include "reports/ReportValues.h"
#include "reports/VexelService.h"

#include <algorithm>

namespace vexel {

namespace {

using nlohmann::json;
using namespace ReportValues;

constexpr long long mostApps = 200;
constexpr size_t mostProcesses = 100;

std::string kindName(AppKind kind)
{
    switch (kind) {
    case AppKind::app: return "app";
    case AppKind::system: return "system";
    case AppKind::tool: return "tool";
    }
    return "tool";
}

json processRow(const ProcRow& row)
{
    return {{"pid", row.pid}, {"name", row.name}, {"cpu_percent_of_one_core", percent(row.cpu)},
        {"memory_bytes", row.memory}, {"zombie", row.zombie}, {"readable", row.readable}};
}

// /proc mounted with hidepid: other users' processes are out of sight, so
// every figure covers the user's own.
constexpr const char* hiddenProcessesNote
    = "other users' processes hidden: /proc is mounted with hidepid, so only your own are counted";

} // namespace

json VexelService::appRow(const AppGroup& group, int cores)
{
    json row = {{"name", group.name}, {"kind", kindName(group.kind)}, {"processes", group.processes.size()},
        {"cpu_percent_of_one_core", percent(group.cpu)},
        {"cpu_percent_of_mac", percent(group.cpu / std::max(cores, 1))}, {"memory_bytes", group.memory},
        {"disk_bytes_per_s", wholeRate(group.diskRead + group.diskWrite)},
        {"network_bytes_per_s", wholeRate(group.netIn + group.netOut)}};
    if (group.energyW)
        row[group.energyEstimated ? "energy_watts_estimated" : "energy_watts"] = rounded(*group.energyW, 3);
    if (group.memoryApprox)
        row["memory_note"] = "includes resident memory of other users' processes (approximate)";
    if (group.unreadable > 0)
        row["unreadable_processes"] = group.unreadable;
    if (group.path)
        row["path"] = *group.path;
    return row;
}

json VexelService::topApps(AppSort sort, long long limit)
{
    const Frame& now = frame();
    std::vector<const AppGroup*> groups;
    for (const auto& group : now.apps)
        groups.push_back(&group);
    std::stable_sort(groups.begin(), groups.end(), [sort](const AppGroup* a, const AppGroup* b) {
        return AppGrouper::sortValue(*a, sort) > AppGrouper::sortValue(*b, sort);
    });
    const auto keep = static_cast<size_t>(std::min(std::max(limit, 1LL), mostApps));
    json apps = json::array();
    for (size_t i = 0; i < groups.size() && i < keep; ++i)
        apps.push_back(appRow(*groups[i], static_cast<int>(now.system.cpu.cores.size())));
    json report = {{"sort", rawValue(sort)}, {"process_count", now.records.size()}, {"app_count", now.apps.size()},
        {"apps", apps}};
    if (monitor().processes().othersHidden())
        report["processes_note"] = hiddenProcessesNote;
    return report;
}

json VexelService::appDetail(const std::string& name)
{
    const Frame& now = frame();
    const AppGroup* group = now.app(name);
    if (group == nullptr)
        throw ReportError("No running app matches \"" + name + "\".");
    json row = appRow(*group, std::max(static_cast<int>(now.system.cpu.cores.size()), 1));
    json processes = json::array();
    for (size_t i = 0; i < group->processes.size() && i < mostProcesses; ++i)
        processes.push_back(processRow(group->processes[i]));
    row["process_list"] = processes;
    return row;
}

} // namespace vexel
