#include "devservers/DevServers.h"

#include "grouping/AppIdentity.h"

#include <algorithm>
#include <array>
#include <map>

namespace vexel {

namespace {

std::string lastComponent(const std::string& path)
{
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string parentOf(const std::string& folder)
{
    const auto slash = folder.rfind('/');
    if (slash == std::string::npos || slash == 0)
        return "/";
    return folder.substr(0, slash);
}

} // namespace

namespace DevServers {

const std::vector<std::string_view>& runtimes()
{
    static const std::vector<std::string_view> names{"node", "bun", "deno", "python", "python3", "Python", "ruby",
        "java", "php", "php-fpm", "go", "air", "dotnet", "beam.smp", "elixir", "uvicorn", "gunicorn", "hypercorn",
        "daphne", "flask", "rails", "puma", "unicorn", "hugo", "jekyll", "zola", "vite", "esbuild", "next-server",
        "nuxt", "astro", "webpack", "parcel", "turbo", "wrangler", "workerd", "miniflare", "caddy", "nginx", "httpd",
        "postgres", "redis-server", "mongod", "mysqld", "mariadbd", "memcached", "minio", "ollama", "jupyter",
        "jupyter-lab", "cargo", "trunk", "mix", "iex", "streamlit", "gradio", "http-server", "serve", "live-server",
        "browser-sync", "localstack"};
    return names;
}

const std::vector<std::string_view>& markers()
{
    static const std::vector<std::string_view> names{".git", "package.json", "Cargo.toml", "go.mod", "pyproject.toml",
        "requirements.txt", "Gemfile", "composer.json", "mix.exs", "deno.json", "pom.xml", "build.gradle",
        "Package.swift", "manage.py", "Makefile"};
    return names;
}

std::optional<std::string> runtimeOf(std::string_view name)
{
    // A title with a note in parentheses, which the kernel's 15 characters may
    // cut: "next-server (v14.2.3)" is "next-server (v1".
    if (const auto note = name.find(" ("); note != std::string_view::npos && note > 0)
        name = name.substr(0, note);
    const auto& names = runtimes();
    if (std::find(names.begin(), names.end(), name) != names.end())
        return std::string(name);
    auto bare = name;
    while (!bare.empty() && ((bare.back() >= '0' && bare.back() <= '9') || bare.back() == '.'))
        bare.remove_suffix(1);
    if (bare.size() < name.size() && !bare.empty() && std::find(names.begin(), names.end(), bare) != names.end())
        return std::string(bare);
    return std::nullopt;
}

std::string runtimeLabel(std::string_view name)
{
    const auto runtime = runtimeOf(name).value_or(std::string(name));
    if (runtime == "Python" || runtime == "python3")
        return "python";
    if (runtime == "beam.smp")
        return "elixir";
    return runtime;
}

bool isDevServer(const ProcRecord& record, const std::optional<std::string>& cwd, const std::string& home,
    uint32_t myUID, const ProgramPlaces& places)
{
    if (record.uid != myUID || record.zombie)
        return false;
    const bool runtime = runtimeOf(record.name).has_value();
    const bool cwdInAppData = cwd && places.inAppData(*cwd, home);
    // An app's own service works in its data folder or runs from it. Version
    // managers (uv, fnm, mise) install interpreters there too, so a runtime's
    // program path alone does not make it an app's.
    if (places.appDataHoldsRuntimes
        && (cwdInAppData || (!runtime && record.path && places.inAppData(*record.path, home))))
        return false;
    if (places.isSystemProgram(record))
        return runtime;
    if (record.path) {
        if (const auto app = AppIdentity::outermostApp(*record.path))
            return record.path->find("/Contents/Resources/app/") != std::string::npos
                || app->find("Docker") != std::string::npos || runtime;
    }
    if (runtime)
        return true;
    if (!cwd || !cwd->starts_with(home + "/"))
        return false;
    return !cwdInAppData;
}

ProjectInfo project(
    const std::string& cwd, const std::string& home, const std::function<bool(const std::string&)>& exists)
{
    std::string start = cwd;
    if (start.size() > 1 && start.back() == '/')
        start.pop_back();
    for (std::string folder = start; folder != "/" && folder != home && !folder.empty(); folder = parentOf(folder)) {
        for (const auto marker : markers()) {
            if (exists(folder + "/" + std::string(marker)))
                return ProjectInfo{lastComponent(folder), folder, std::string(marker)};
        }
    }
    return ProjectInfo{lastComponent(start), start, std::nullopt};
}

std::vector<ProjectGroup> build(const Inputs& in, ActivityLog& log)
{
    std::map<int32_t, std::vector<ListenSocket>> socketsByPid;
    for (const auto& socket : in.listeners)
        socketsByPid[socket.pid].push_back(socket);
    std::vector<DevServer> servers;
    std::vector<ProcKey> keys;
    for (const auto& record : in.records) {
        const auto sockets = socketsByPid.find(record.pid);
        if (sockets == socketsByPid.end())
            continue;
        const auto cwd = in.cwd ? in.cwd(record.pid) : std::nullopt;
        if (!isDevServer(record, cwd, in.home, in.myUID, in.places))
            continue;
        DevServer server;
        server.key = ProcKey::of(record);
        server.pid = record.pid;
        server.name = record.name;
        server.runtime = runtimeLabel(record.name);
        server.commandPath = record.path;
        server.cwd = cwd;
        server.project = cwd ? project(*cwd, in.home, in.exists) : ProjectInfo{record.name, "", std::nullopt};
        server.sockets = sockets->second;
        std::sort(server.sockets.begin(), server.sockets.end(),
            [](const auto& a, const auto& b) { return std::tie(a.port, a.address) < std::tie(b.port, b.address); });
        server.sockets.erase(std::unique(server.sockets.begin(), server.sockets.end()), server.sockets.end());
        for (const auto& socket : server.sockets) {
            if (std::find(server.ports.begin(), server.ports.end(), socket.port) == server.ports.end())
                server.ports.push_back(socket.port);
        }
        server.started = record.start;
        const auto rate = in.cpuRates.find(server.key);
        server.cpu = rate == in.cpuRates.end() ? 0 : rate->second.cpu;
        server.memory = record.memory.value_or(0);
        const double lastActive = log.observe(server.key, record.cpuTime, record.start, in.now);
        server.lastActive = lastActive;
        server.isIdle = in.now - lastActive >= in.idleAfter;
        if (server.isIdle)
            server.idleSince = lastActive;
        keys.push_back(server.key);
        servers.push_back(std::move(server));
    }
    log.prune(keys);
    std::stable_sort(servers.begin(), servers.end(), [](const DevServer& a, const DevServer& b) {
        return (a.ports.empty() ? 0 : a.ports.front()) < (b.ports.empty() ? 0 : b.ports.front());
    });
    std::vector<ProjectGroup> groups;
    for (auto& server : servers) {
        // A server whose folder could not be read has no project to share.
        auto group = std::find_if(groups.begin(), groups.end(),
            [&](const auto& g) { return !server.project.path.empty() && g.project.path == server.project.path; });
        if (group == groups.end()) {
            groups.push_back(ProjectGroup{server.project, {}});
            group = groups.end() - 1;
        }
        group->servers.push_back(std::move(server));
    }
    std::stable_sort(groups.begin(), groups.end(), [](const ProjectGroup& a, const ProjectGroup& b) {
        return std::tie(a.project.name, a.project.path) < std::tie(b.project.name, b.project.path);
    });
    return groups;
}

} // namespace DevServers

} // namespace vexel
