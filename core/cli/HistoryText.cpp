#include "cli/ReportFields.h"
#include "cli/ReportText.h"
#include "cli/TextColumns.h"
#include "format/CFormat.h"
#include "format/Fmt.h"
#include "history/HistoryRange.h"
#include "reports/ReportValues.h"

#include <vector>

namespace vexel::VexelCLI {

namespace {

using nlohmann::json;
using namespace ReportFields;

std::string amount(const json& report, const char* key)
{
    return Fmt::bytes(value<double>(report, key).value_or(0), 1);
}

std::string averageAndPeak(const json& report, const char* average, const char* peak)
{
    return cformat("average %.1f%%, peak %.1f%%", value<double>(report, average).value_or(0),
        value<double>(report, peak).value_or(0));
}

} // namespace

std::string localTime(const std::string& iso, const TimeZone& zone, TimeForm form)
{
    static constexpr const char* weekdays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    const auto epoch = ReportValues::parseISO8601(iso);
    if (!epoch)
        return iso;
    int weekday = 0;
    const CivilTime c = zone.civil(*epoch, &weekday);
    if (form == TimeForm::date)
        return cformat("%04d-%02d-%02d %02d:%02d", c.year, c.month, c.day, c.hour, c.minute);
    return cformat("%s %02d:%02d", weekdays[weekday % 7], c.hour, c.minute);
}

std::string historyText(const json& report, const TimeZone& zone)
{
    std::vector<std::string> lines;
    const auto range = historyRangeFromRaw(value<std::string>(report, "range").value_or(""));
    if (range)
        lines.push_back(title(*range) + " since "
            + localTime(value<std::string>(report, "from").value_or("?"), zone, TimeForm::date));
    if (const auto hours = value<double>(report, "hours_sampled"))
        lines.push_back(cformat("%.1f hours sampled", *hours));
    lines.push_back("CPU       " + averageAndPeak(report, "cpu_avg_percent", "cpu_peak_percent"));
    lines.push_back("Memory    " + averageAndPeak(report, "memory_avg_percent", "memory_peak_percent"));
    lines.push_back("Disk      " + amount(report, "disk_written_bytes") + " written, "
        + amount(report, "disk_read_bytes") + " read");
    lines.push_back(
        "Network   " + amount(report, "network_in_bytes") + " down, " + amount(report, "network_out_bytes") + " up");
    lines.push_back("Busiest apps (CPU core-hours):");
    for (const auto& app : list(report, "busiest_apps"))
        lines.push_back("  " + TextColumns::cell(value<std::string>(app, "name").value_or(""), 30)
            + cformat("%.2f", value<double>(app, "cpu_core_hours").value_or(0)));
    if (const auto note = value<std::string>(report, "note"))
        lines.push_back(*note);
    return TextColumns::joinLines(lines);
}

std::string spikesText(const json& report, const TimeZone& zone)
{
    const json& spikes = list(report, "spikes");
    if (spikes.empty())
        return "Nothing unusual in the last " + cformat("%g", value<double>(report, "hours").value_or(24)) + " hours.";
    std::vector<std::string> lines;
    for (const auto& spike : spikes)
        lines.push_back(localTime(value<std::string>(spike, "start").value_or("?"), zone, TimeForm::weekday) + "  "
            + value<std::string>(spike, "summary").value_or(""));
    return TextColumns::joinLines(lines);
}

} // namespace vexel::VexelCLI
