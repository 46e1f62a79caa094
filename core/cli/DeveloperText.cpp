#include "cli/ReportFields.h"
#include "cli/ReportText.h"
#include "cli/TextColumns.h"
#include "format/CFormat.h"
#include "format/Fmt.h"
#include "text/HomePath.h"

#include <algorithm>
#include <vector>

namespace vexel::VexelCLI {

namespace {

using nlohmann::json;
using namespace ReportFields;
using TextColumns::Align;
using TextColumns::cell;

// IPv6 addresses in brackets, as in URLs; the wildcard says which family it covers.
std::string addressText(const json& socket)
{
    const std::string address = value<std::string>(socket, "address").value_or("");
    const bool v6 = value<std::string>(socket, "family").value_or("") == "IPv6";
    if (address == "*")
        return v6 ? "* (IPv6)" : "* (IPv4)";
    return v6 ? "[" + address + "]" : address;
}

std::string whole(const json& object, const char* key)
{
    return cformat("%.0f", value<double>(object, key).value_or(0));
}

std::string portList(const json& server)
{
    std::string ports;
    for (const auto& port : list(server, "ports"))
        ports += (ports.empty() ? "" : ", ") + (port.is_number() ? cformat("%.0f", port.get<double>()) : "");
    return ports;
}

std::string runtimeOf(const json& server)
{
    return value<std::string>(server, "runtime").value_or("?");
}

// The runtime column fits the widest label ("next-server", a 15-character
// process name), so that no label runs into its pid.
size_t runtimeWidth(const json& projects)
{
    size_t widest = 8;
    for (const auto& project : projects)
        for (const auto& server : list(project, "servers"))
            widest = std::max(widest, runtimeOf(server).size());
    return widest + 2;
}

std::string serverLine(const json& server, size_t runtimeColumn, const TimeZone& zone)
{
    const auto ports = list(server, "ports");
    std::string line = "  " + cell(runtimeOf(server), runtimeColumn) + cell("pid " + whole(server, "pid"), 12)
        + (ports.size() == 1 ? "port " : "ports ") + portList(server);
    if (value<bool>(server, "reachable_from_network").value_or(false))
        line += "  reachable from the network";
    if (const auto since = value<std::string>(server, "idle_since");
        since && value<bool>(server, "idle").value_or(false))
        line += "  idle since " + localTime(*since, zone, TimeForm::date);
    return line;
}

} // namespace

std::string portsText(const json& report)
{
    const json& listening = list(report, "listening");
    if (listening.empty())
        return "Nothing of yours is listening on a TCP port.";
    std::vector<std::string> lines{cell("PORT", 7) + cell("ADDRESS", 26) + cell("PID", 8) + cell("PROCESS", 22)};
    for (const auto& socket : listening)
        lines.push_back(cell(whole(socket, "port"), 7) + cell(addressText(socket), 26) + cell(whole(socket, "pid"), 8)
            + cell(value<std::string>(socket, "process").value_or(""), 22));
    return TextColumns::joinLines(lines);
}

std::string serversText(const json& report, const std::string& home, const TimeZone& zone)
{
    const json& projects = list(report, "projects");
    if (projects.empty())
        return "No dev servers running.";
    const size_t runtimeColumn = runtimeWidth(projects);
    std::vector<std::string> lines;
    for (const auto& project : projects) {
        std::string heading = value<std::string>(project, "name").value_or("?") + "  "
            + shownPath(value<std::string>(project, "path").value_or(""), home);
        if (value<bool>(project, "all_idle").value_or(false))
            heading += "  (idle)";
        lines.push_back(heading);
        for (const auto& server : list(project, "servers"))
            lines.push_back(serverLine(server, runtimeColumn, zone));
    }
    return TextColumns::joinLines(lines);
}

std::string dockerText(const json& report)
{
    const std::string state = value<std::string>(report, "state").value_or("");
    if (state == "not_installed" || state == "not_running")
        return value<std::string>(report, "message").value_or("");
    const json& containers = list(report, "containers");
    if (containers.empty())
        return "No containers.";
    std::vector<std::string> lines{cell("NAME", 22) + cell("IMAGE", 26) + cell("STATE", 10)
        + cell("CPU", 8, Align::right) + cell("MEMORY", 11, Align::right) + "  PORTS"};
    for (const auto& container : containers) {
        const auto cpu = value<double>(container, "cpu_percent");
        const bool measured = value<double>(container, "memory_bytes").has_value();
        lines.push_back(cell(value<std::string>(container, "name").value_or(""), 22)
            + cell(value<std::string>(container, "image").value_or(""), 26)
            + cell(value<std::string>(container, "state").value_or(""), 10)
            + cell(cpu ? cformat("%.1f%%", *cpu) : "", 8, Align::right)
            + cell(measured ? Fmt::memory(byteCount(container, "memory_bytes")) : "", 11, Align::right) + "  "
            + value<std::string>(container, "ports").value_or(""));
    }
    return TextColumns::joinLines(lines);
}

} // namespace vexel::VexelCLI
