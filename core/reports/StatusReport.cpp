#include "reports/ReportTexts.h"
#include "reports/ReportValues.h"
#include "reports/VexelService.h"

#include <algorithm>
#include <cctype>

namespace vexel {

namespace {

using nlohmann::json;
using namespace ReportValues;

std::string lowercase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

json cpuPart(const CPUStats& cpu)
{
    json perCore = json::array();
    for (const double core : cpu.cores)
        perCore.push_back(percent(core));
    return {{"percent", machinePercent(cpu.user + cpu.system)}, {"user_percent", percent(cpu.user)},
        {"system_percent", percent(cpu.system)}, {"cores", cpu.cores.size()}, {"per_core_percent", perCore},
        {"load_average", {rounded(cpu.load1, 1), rounded(cpu.load5, 1), rounded(cpu.load15, 1)}}};
}

json memoryPart(const MemoryStats& memory)
{
    return {{"total_bytes", memory.total}, {"used_bytes", memory.used()}, {"app_bytes", memory.app},
        {"wired_bytes", memory.wired}, {"compressed_bytes", memory.compressed}, {"cached_bytes", memory.cached},
        {"swap_bytes", memory.swapUsed}, {"pressure", lowercase(title(memory.pressure))},
        {"used_percent", percent(memory.usedFraction())}};
}

json diskPart(const DiskStats& disk)
{
    json volumes = json::array();
    for (const auto& volume : disk.volumes)
        volumes.push_back({{"name", volume.name}, {"path", volume.path}, {"total_bytes", volume.total},
            {"free_bytes", volume.available}});
    return {{"read_bytes_per_s", wholeRate(disk.readRate)}, {"write_bytes_per_s", wholeRate(disk.writeRate)},
        {"volumes", volumes}};
}

json batteryPart(const BatteryStats& battery)
{
    json part = {{"percent", battery.percent}, {"charging", battery.charging}, {"on_ac", battery.onAC}};
    if (battery.powerW)
        part["power_watts"] = rounded(*battery.powerW, 1);
    if (battery.minutesLeft)
        part["minutes_left"] = *battery.minutesLeft;
    if (const auto health = battery.health())
        part["health_percent"] = percent(*health);
    if (battery.cycles)
        part["cycles"] = *battery.cycles;
    return part;
}

size_t readableCount(const std::vector<ProcRecord>& records)
{
    return static_cast<size_t>(
        std::count_if(records.begin(), records.end(), [](const ProcRecord& r) { return r.cpuTime.has_value(); }));
}

} // namespace

json VexelService::todayPart() const
{
    try {
        const auto store = openStore();
        if (!store)
            return nullptr;
        const double to = m_now();
        const auto totals = store->totals(start(HistoryRange::today, to, m_calendar), to);
        return {{"disk_written_bytes", wholeBytes(totals.diskW)}, {"disk_read_bytes", wholeBytes(totals.diskR)},
            {"network_in_bytes", wholeBytes(totals.netIn)}, {"network_out_bytes", wholeBytes(totals.netOut)}};
    } catch (const HistoryError&) {
        // The status stands without today's totals; `history` says what is wrong with the file.
        return nullptr;
    }
}

json VexelService::status()
{
    const Frame& now = frame();
    const SystemSnapshot& system = now.system;
    json report;
    report["time"] = iso8601(now.time);
    report["cpu"] = cpuPart(system.cpu);
    report["memory"] = memoryPart(system.memory);
    report["disk"] = diskPart(system.disk);
    report["network"]
        = {{"in_bytes_per_s", wholeRate(system.net.inRate)}, {"out_bytes_per_s", wholeRate(system.net.outRate)}};
    report["thermal"]
        = {{"state", lowercase(title(system.thermal))}, {"detail", detail(system.thermal, m_platform).english()}};
    report["processes"]
        = {{"count", now.records.size()}, {"apps", now.apps.size()}, {"readable", readableCount(now.records)}};
    if (system.gpu && !system.gpu->name.empty())
        report["gpu"] = {{"percent", percent(system.gpu->utilisation)}, {"name", system.gpu->name}};
    if (system.battery)
        report["battery"] = batteryPart(*system.battery);
    if (auto today = todayPart(); !today.is_null())
        report["today"] = std::move(today);
    report["not_measured"] = ReportTexts::notMeasured(m_platform);
    return report;
}

} // namespace vexel
