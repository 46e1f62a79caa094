#include "cli/ReportFields.h"
#include "cli/ReportText.h"
#include "cli/TextColumns.h"
#include "format/CFormat.h"
#include "format/Fmt.h"

#include <cmath>
#include <vector>

namespace vexel::VexelCLI {

namespace {

using nlohmann::json;
using namespace ReportFields;

constexpr size_t labelWidth = 10;

std::string labelled(const char* label, const std::string& content)
{
    return TextColumns::cell(label, labelWidth) + content;
}

std::optional<std::string> cpuLine(const json& report)
{
    const json* cpu = field(report, "cpu");
    const auto total = cpu ? value<double>(*cpu, "percent") : std::nullopt;
    if (!total)
        return std::nullopt;
    std::string line = cformat("%.0f%%", *total);
    line += cformat("  (user %.0f%%, system %.0f%%)", value<double>(*cpu, "user_percent").value_or(0),
        value<double>(*cpu, "system_percent").value_or(0));
    line += "  load";
    for (const auto& load : list(*cpu, "load_average"))
        line += load.is_number() ? cformat(" %.2f", load.get<double>()) : std::string();
    return line;
}

std::optional<std::string> memoryLine(const json& report)
{
    const json* memory = field(report, "memory");
    const auto used = memory ? value<double>(*memory, "used_bytes") : std::nullopt;
    const auto total = memory ? value<double>(*memory, "total_bytes") : std::nullopt;
    if (!used || !total)
        return std::nullopt;
    return Fmt::memory(byteCount(*memory, "used_bytes")) + " of " + Fmt::memory(byteCount(*memory, "total_bytes"))
        + "  pressure " + value<std::string>(*memory, "pressure").value_or("?") + "  swap "
        + Fmt::memory(byteCount(*memory, "swap_bytes"));
}

std::optional<std::string> diskLine(const json& report)
{
    const json* disk = field(report, "disk");
    if (disk == nullptr)
        return std::nullopt;
    std::string line;
    const json& volumes = list(*disk, "volumes");
    if (!volumes.empty())
        line = Fmt::bytes(value<double>(volumes[0], "free_bytes").value_or(0), 1) + " free of "
            + Fmt::bytes(value<double>(volumes[0], "total_bytes").value_or(0), 1) + "  ";
    return line + "read " + Fmt::rate(value<double>(*disk, "read_bytes_per_s").value_or(0), Fmt::RateUnit::bytes)
        + "  write " + Fmt::rate(value<double>(*disk, "write_bytes_per_s").value_or(0), Fmt::RateUnit::bytes);
}

std::optional<std::string> networkLine(const json& report)
{
    const json* network = field(report, "network");
    if (network == nullptr)
        return std::nullopt;
    return "down " + Fmt::rate(value<double>(*network, "in_bytes_per_s").value_or(0), Fmt::RateUnit::bytes) + "  up "
        + Fmt::rate(value<double>(*network, "out_bytes_per_s").value_or(0), Fmt::RateUnit::bytes);
}

std::optional<std::string> gpuLine(const json& report)
{
    const json* gpu = field(report, "gpu");
    if (gpu == nullptr)
        return std::nullopt;
    return cformat("%.0f%%", value<double>(*gpu, "percent").value_or(0)) + "  "
        + value<std::string>(*gpu, "name").value_or("");
}

std::optional<std::string> batteryLine(const json& report)
{
    const json* battery = field(report, "battery");
    if (battery == nullptr)
        return std::nullopt;
    std::string line = cformat("%.0f%%", value<double>(*battery, "percent").value_or(0));
    if (value<bool>(*battery, "charging").value_or(false))
        line += " charging";
    else if (value<bool>(*battery, "on_ac").value_or(false))
        line += " on power";
    if (const auto watts = value<double>(*battery, "power_watts"))
        line += "  " + Fmt::watts(std::fabs(*watts));
    if (const auto minutes = value<double>(*battery, "minutes_left"))
        line += "  " + Fmt::minutes(static_cast<int>(*minutes)) + " left";
    if (const auto health = value<double>(*battery, "health_percent"))
        line += cformat("  health %.0f%%", *health);
    return line;
}

std::optional<std::string> processesLine(const json& report)
{
    const json* processes = field(report, "processes");
    if (processes == nullptr)
        return std::nullopt;
    return cformat("%.0f in %.0f apps", value<double>(*processes, "count").value_or(0),
        value<double>(*processes, "apps").value_or(0));
}

std::optional<std::string> todayLine(const json& report)
{
    const json* today = field(report, "today");
    if (today == nullptr)
        return std::nullopt;
    return Fmt::bytes(value<double>(*today, "disk_written_bytes").value_or(0), 1) + " written  "
        + Fmt::bytes(value<double>(*today, "network_in_bytes").value_or(0), 1) + " down  "
        + Fmt::bytes(value<double>(*today, "network_out_bytes").value_or(0), 1) + " up";
}

} // namespace

std::string statusText(const json& report)
{
    const json* thermal = field(report, "thermal");
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {"CPU", cpuLine(report)},
        {"Memory", memoryLine(report)},
        {"Disk", diskLine(report)},
        {"Network", networkLine(report)},
        {"GPU", gpuLine(report)},
        {"Battery", batteryLine(report)},
        {"Thermal", thermal ? value<std::string>(*thermal, "state") : std::nullopt},
        {"Processes", processesLine(report)},
        {"Today", todayLine(report)},
    };
    std::vector<std::string> lines;
    for (const auto& [label, content] : rows)
        if (content)
            lines.push_back(labelled(label, *content));
    return TextColumns::joinLines(lines);
}

} // namespace vexel::VexelCLI
