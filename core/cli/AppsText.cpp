#include "cli/ReportFields.h"
#include "cli/ReportText.h"
#include "cli/TextColumns.h"
#include "format/CFormat.h"
#include "format/Fmt.h"

#include <vector>

namespace vexel::VexelCLI {

namespace {

using nlohmann::json;
using namespace ReportFields;
using TextColumns::Align;
using TextColumns::cell;

std::string energyCell(const json& app)
{
    const auto watts = value<double>(app, "energy_watts");
    const auto estimated = value<double>(app, "energy_watts_estimated");
    return watts ? Fmt::watts(*watts) : estimated ? Fmt::watts(*estimated) : std::string();
}

std::string appLine(const json& app)
{
    return cell(value<std::string>(app, "name").value_or(""), 30)
        + cell(cformat("%.0f", value<double>(app, "processes").value_or(0)), 7, Align::right)
        + cell(cformat("%.1f%%", value<double>(app, "cpu_percent_of_one_core").value_or(0)), 9, Align::right)
        + cell(Fmt::memory(byteCount(app, "memory_bytes")), 11, Align::right) + cell(energyCell(app), 10, Align::right)
        + cell(Fmt::rate(value<double>(app, "disk_bytes_per_s").value_or(0), Fmt::RateUnit::bytes), 12, Align::right)
        + cell(
            Fmt::rate(value<double>(app, "network_bytes_per_s").value_or(0), Fmt::RateUnit::bytes), 12, Align::right);
}

} // namespace

std::string appsText(const json& report)
{
    std::vector<std::string> lines{cell("APP", 30) + cell("PROCS", 7, Align::right) + cell("CPU", 9, Align::right)
        + cell("MEMORY", 11, Align::right) + cell("ENERGY", 10, Align::right) + cell("DISK", 12, Align::right)
        + cell("NET", 12, Align::right)};
    for (const auto& app : list(report, "apps"))
        lines.push_back(appLine(app));
    lines.push_back(cformat("%.0f processes in %.0f apps. CPU is %% of one core.",
        value<double>(report, "process_count").value_or(0), value<double>(report, "app_count").value_or(0)));
    if (const auto note = value<std::string>(report, "processes_note"))
        lines.push_back("Note: " + *note + ".");
    return TextColumns::joinLines(lines);
}

std::string appText(const json& report)
{
    std::vector<std::string> lines{value<std::string>(report, "name").value_or("")
        + cformat("  %.0f processes, %.1f%% CPU, ", value<double>(report, "processes").value_or(0),
            value<double>(report, "cpu_percent_of_one_core").value_or(0))
        + Fmt::memory(byteCount(report, "memory_bytes"))};
    for (const auto& process : list(report, "process_list")) {
        std::string line = cell(cformat("%.0f", value<double>(process, "pid").value_or(0)), 9, Align::right) + "  "
            + cell(value<std::string>(process, "name").value_or(""), 34)
            + cell(cformat("%.1f%%", value<double>(process, "cpu_percent_of_one_core").value_or(0)), 9, Align::right)
            + cell(Fmt::memory(byteCount(process, "memory_bytes")), 11, Align::right);
        if (value<bool>(process, "zombie").value_or(false))
            line += "  (zombie)";
        lines.push_back(line);
    }
    return TextColumns::joinLines(lines);
}

} // namespace vexel::VexelCLI
