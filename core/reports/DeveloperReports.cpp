#include "reports/ReportTexts.h"
#include "reports/ReportValues.h"
#include "reports/VexelService.h"

#include <algorithm>
#include <map>

namespace vexel {

namespace {

using nlohmann::json;
using namespace ReportValues;

// Who holds a pid in the frame: the process's own name and its app's name.
struct Holder {
    std::string process;
    std::string app;
};

std::map<int32_t, Holder> holders(const Frame& frame)
{
    std::map<int32_t, Holder> byPID;
    for (const auto& group : frame.apps)
        for (const auto& row : group.processes)
            byPID[row.pid] = {row.name, group.name};
    return byPID;
}

json serverEntry(const DevServer& server)
{
    json ports = json::array();
    for (const uint16_t port : server.ports)
        ports.push_back(port);
    const bool reachable = std::any_of(server.sockets.begin(), server.sockets.end(),
        [](const ListenSocket& socket) { return reachableFromNetwork(socket); });
    json entry = {{"pid", server.pid}, {"name", server.name}, {"runtime", server.runtime}, {"ports", ports},
        {"started", iso8601(server.started)}, {"cpu_percent_of_one_core", percent(server.cpu)},
        {"memory_bytes", server.memory}, {"idle", server.isIdle}, {"reachable_from_network", reachable}};
    if (server.isIdle && server.idleSince)
        entry["idle_since"] = iso8601(*server.idleSince);
    return entry;
}

json containerEntry(const Container& container)
{
    // What the engine did not say is left out, never null.
    json entry = {{"name", container.name}, {"image", container.image}, {"state", container.state},
        {"status", container.status}, {"ports", container.ports}};
    if (container.project)
        entry["compose_project"] = *container.project;
    if (container.cpu)
        entry["cpu_percent"] = rounded(*container.cpu, 1);
    if (container.memory)
        entry["memory_bytes"] = *container.memory;
    return entry;
}

} // namespace

const std::vector<ListenSocket>& VexelService::listeners()
{
    if (!m_listeners)
        m_listeners = monitor().listeners().value_or(std::vector<ListenSocket>{});
    return *m_listeners;
}

json VexelService::portsReport()
{
    const Frame& now = frame();
    std::vector<ListenSocket> sockets = listeners();
    std::stable_sort(sockets.begin(), sockets.end(), [](const ListenSocket& a, const ListenSocket& b) {
        return a.port != b.port ? a.port < b.port : a.pid < b.pid;
    });
    const auto byPID = holders(now);
    json listening = json::array();
    for (const auto& socket : sockets) {
        const auto found = byPID.find(socket.pid);
        const bool known = found != byPID.end();
        listening.push_back({{"port", socket.port}, {"address", socket.address}, {"family", rawValue(socket.family)},
            {"pid", socket.pid}, {"process", known ? found->second.process : socket.command},
            {"app", known ? found->second.app : socket.command},
            {"reachable_from_network", reachableFromNetwork(socket)}});
    }
    return {{"listening", listening}, {"note", ReportTexts::portsNote(m_platform)}};
}

json VexelService::serversReport()
{
    const Frame& now = frame();
    // The log is read for when each server was last active and never written back.
    ActivityLog log = ActivityLog::load(m_paths.activity());
    const auto groups = monitor().devServers(now, listeners(), log, settings().idleAfter());
    json projects = json::array();
    for (const auto& group : groups) {
        json servers = json::array();
        bool allIdle = !group.servers.empty();
        for (const auto& server : group.servers) {
            servers.push_back(serverEntry(server));
            allIdle = allIdle && server.isIdle;
        }
        projects.push_back(
            {{"name", group.project.name}, {"path", group.project.path}, {"all_idle", allIdle}, {"servers", servers}});
    }
    return {{"projects", projects},
        {"note", "Read-only. To stop a server, use Vexel's Developers page (it asks first) or stop it yourself."}};
}

json VexelService::dockerReport()
{
    const DockerState state = monitor().dockerState();
    switch (state.kind) {
    case DockerState::Kind::notInstalled:
        return {{"state", "not_installed"}, {"message", "Docker isn't installed (no docker command found)."}};
    case DockerState::Kind::notRunning: return {{"state", "not_running"}, {"message", state.message}};
    case DockerState::Kind::containers: break;
    }
    json containers = json::array();
    for (const auto& container : state.containers)
        containers.push_back(containerEntry(container));
    return {{"state", "running"}, {"containers", containers}};
}

} // namespace vexel
