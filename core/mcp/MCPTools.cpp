#include "mcp/MCPTools.h"

#include "reports/ReportError.h"
#include "json/JsonFields.h"

#include <algorithm>

namespace vexel::MCPTools {

namespace {

using nlohmann::json;

json schema(json properties, json required)
{
    return {{"type", "object"}, {"properties", std::move(properties)}, {"required", std::move(required)},
        {"additionalProperties", false}};
}

json tool(const std::string& name, const std::string& title, const std::string& description, json inputSchema)
{
    static const json annotations = {{"readOnlyHint", true}, {"openWorldHint", false}, {"destructiveHint", false}};
    return {{"name", name}, {"title", title}, {"description", description}, {"inputSchema", std::move(inputSchema)},
        {"annotations", annotations}};
}

json none()
{
    return schema(json::object(), json::array());
}

std::string statusDescription(Platform platform)
{
    const std::string machine = machineWord(platform);
    return "The " + machine
        + " right now: CPU (total, per core, load), memory (used, app, wired, compressed, swap, pressure), disks "
          "(free space, read/write rates), network rates, GPU utilisation, battery (charge, power draw, health, time "
          "left), thermal state, and today's disk-written and network totals.";
}

std::string stringArgument(const json& arguments, const char* key)
{
    return JsonFields::value<std::string>(arguments, key).value_or("");
}

} // namespace

json table(Platform platform)
{
    json list = json::array();
    list.push_back(tool("system_status", "System status", statusDescription(platform), none()));
    list.push_back(tool("top_apps", "Busiest apps",
        "Apps (each with all its helper processes) sorted by CPU, memory, energy, disk or network.",
        schema({{"sort",
                    {{"type", "string"}, {"enum", {"cpu", "memory", "energy", "disk", "network"}},
                        {"description", "Default cpu"}}},
                   {"limit", {{"type", "integer"}, {"minimum", 1}, {"maximum", 100}, {"description", "Default 10"}}}},
            json::array())));
    list.push_back(
        tool("app_processes", "One app's processes", "The processes grouped under one app, with CPU and memory each.",
            schema({{"name", {{"type", "string"}, {"description", "App name, e.g. \"Google Chrome\""}}}}, {"name"})));
    list.push_back(tool("history", "History",
        "Averages, peaks, totals and the busiest apps over today, the last week, month or year, with a compact "
        "series.",
        schema(
            {{"range",
                {{"type", "string"}, {"enum", {"today", "week", "month", "year"}}, {"description", "Default today"}}}},
            json::array())));
    list.push_back(tool("spikes", "What happened",
        "CPU, memory-pressure, disk, network, heat and battery-drain spikes in the last N hours, each with the app "
        "most responsible.",
        schema({{"hours", {{"type", "number"}, {"minimum", 1}, {"maximum", 840}, {"description", "Default 24"}}}},
            json::array())));
    list.push_back(tool("dev_servers", "Dev servers",
        "Development servers grouped by project folder, with ports, uptime and whether they've been idle for days.",
        none()));
    list.push_back(tool("listening_ports", "Listening ports",
        "TCP ports your processes are listening on (IPv4 and IPv6), with the process and app.", none()));
    list.push_back(tool("docker_containers", "Docker containers",
        "Docker containers with state, ports, CPU and memory (if the docker command is installed).", none()));
    return list;
}

bool known(const std::string& name)
{
    const json tools = table(Platform::macOS);
    return std::any_of(tools.begin(), tools.end(), [&](const json& tool) { return tool["name"] == name; });
}

json call(VexelService& service, const std::string& name, const json& arguments)
{
    if (name == "system_status")
        return service.status();
    if (name == "top_apps") {
        const auto sort = appSortFromRaw(stringArgument(arguments, "sort")).value_or(AppSort::cpu);
        return service.topApps(sort, JsonFields::value<long long>(arguments, "limit").value_or(10));
    }
    if (name == "app_processes") {
        const std::string app = stringArgument(arguments, "name");
        if (app.empty())
            throw ReportError("An app name is needed.");
        return service.appDetail(app);
    }
    if (name == "history")
        return service.history(historyRangeFromRaw(stringArgument(arguments, "range")).value_or(HistoryRange::today));
    if (name == "spikes") {
        return service.spikes(JsonFields::value<double>(arguments, "hours").value_or(24.0));
    }
    if (name == "dev_servers")
        return service.serversReport();
    if (name == "listening_ports")
        return service.portsReport();
    if (name == "docker_containers")
        return service.dockerReport();
    throw ReportError("Unknown tool");
}

} // namespace vexel::MCPTools
