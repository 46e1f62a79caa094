#include "devservers/DevServers.h"
#include "devservers/linux/LinuxPortSources.h"
#include "io/Files.h"
#include "platform/linux/LoginDefs.h"
#include "processes/Shell.h"
#include "processes/linux/LiveProcessSource.h"
#include "support/ServerProcess.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>

using namespace vexel;
using namespace vexel::testing;
namespace fs = std::filesystem;

namespace {

const std::string home = "/Users/alice";

ProcRecord proc(int32_t pid, std::string name, std::optional<std::string> path, uint32_t uid = 501)
{
    ProcRecord record;
    record.pid = pid;
    record.name = std::move(name);
    record.path = std::move(path);
    record.uid = uid;
    record.start = 1000;
    record.cpuTime = 1;
    return record;
}

} // namespace

TEST(DevServers, WhoCountsAsADeveloperServer)
{
    struct Case {
        const char* name;
        ProcRecord record;
        std::optional<std::string> cwd;
        bool expected;
    };
    const std::vector<Case> cases{
        {"root-nginx", proc(1, "nginx", "/usr/sbin/nginx", 0), "/", false},
        {"libexec-helper", proc(3, "rapportd", "/usr/libexec/rapportd"), home + "/code", false},
        {"libexec-runtime", proc(4, "php-fpm", "/usr/libexec/php-fpm"), std::nullopt, true},
        {"app-helper", proc(5, "Slack Helper", "/Applications/Slack.app/Contents/Frameworks/Slack Helper"), home,
            false},
        {"app-script-runtime", proc(6, "Code Helper", "/Applications/X.app/Contents/Resources/app/bin/srv"),
            std::nullopt, true},
        {"docker-app", proc(7, "com.docker.backend", "/Applications/Docker.app/Contents/MacOS/com.docker.backend"),
            std::nullopt, true},
        {"under-library", proc(9, "agent", home + "/Library/Agent/agent"), home + "/Library/Agent", false},
        {"outside-home", proc(10, "agent", "/opt/agent/agent"), "/opt/agent", false},
        {"home-itself", proc(11, "agent", "/opt/agent/agent"), home, false},
    };
    const auto mac = ProgramPlaces::macOS();
    for (const auto& c : cases)
        EXPECT_EQ(DevServers::isDevServer(c.record, c.cwd, home, 501, mac), c.expected) << c.name;
    auto zombie = proc(20, "node", std::nullopt);
    zombie.zombie = true;
    EXPECT_FALSE(DevServers::isDevServer(zombie, home + "/x", home, 501, mac));
}

// Linux keeps every interpreter in /usr/bin and its apps' data in the XDG,
// Flatpak and Snap folders; paths as Debian, Steam, Snap and uv lay them out.
TEST(DevServers, WhoCountsAsADeveloperServerOnLinux)
{
    const std::string dev = "/home/dev";
    struct Case {
        const char* name;
        ProcRecord record;
        std::optional<std::string> cwd;
        bool expected;
    };
    auto inService = [](ProcRecord record, std::string cgroup) {
        record.cgroup = std::move(cgroup);
        return record;
    };
    const std::vector<Case> cases{
        {"distro-python", proc(1, "python3", "/usr/bin/python3.11", 1000), dev + "/code/shop/src", true},
        {"titled-interpreter", proc(2, "my-api", "/usr/bin/python3.11", 1000), dev + "/code/api", true},
        {"next-title", proc(3, "next-server (v1", "/usr/bin/node", 1000), std::nullopt, true},
        {"steam", proc(4, "steam", dev + "/.local/share/Steam/ubuntu12_32/steam", 1000), dev + "/.local/share/Steam",
            false},
        {"snap-app", proc(5, "spotify", "/snap/spotify/72/usr/share/spotify/spotify", 1000), dev + "/snap/spotify/72",
            false},
        {"flatpak-app", proc(6, "obs", "/app/bin/obs", 1000), dev + "/.var/app/com.obsproject.Studio", false},
        {"runtime-in-app-data", proc(7, "python3", "/usr/bin/python3.11", 1000), dev + "/.config/some-sync", false},
        {"uv-python",
            proc(8, "python3.12", dev + "/.local/share/uv/python/cpython-3.12.7-linux-x86_64-gnu/bin/python3.12", 1000),
            dev + "/code/api", true},
        {"library-folder", proc(9, "cupsd", "/usr/lib/cups/cupsd", 1000), dev + "/x", false},
        {"sbin-runtime", proc(10, "php-fpm8.2", "/usr/sbin/php-fpm8.2", 1000), "/", true},
        {"system-service", inService(proc(11, "gitea", "/usr/local/bin/gitea", 1000), "/system.slice/gitea.service"),
            dev + "/gitea", false},
        {"user-service",
            inService(proc(12, "gitea", "/usr/local/bin/gitea", 1000),
                "/user.slice/user-1000.slice/user@1000.service/app.slice/gitea.service"),
            dev + "/gitea", true},
        {"library-not-special", proc(13, "agent", dev + "/Library/agent", 1000), dev + "/Library", true},
    };
    const auto linux = ProgramPlaces::linux(1000);
    for (const auto& c : cases)
        EXPECT_EQ(DevServers::isDevServer(c.record, c.cwd, dev, 1000, linux), c.expected) << c.name;
    // Root is below UID_MIN: its own servers count only when they are runtimes.
    EXPECT_FALSE(
        DevServers::isDevServer(proc(20, "myserver", "/root/code/myserver", 0), "/root/code", "/root", 0, linux));
    EXPECT_TRUE(DevServers::isDevServer(proc(21, "node", "/usr/bin/node", 0), "/root/code", "/root", 0, linux));
}

TEST(DevServers, RuntimeLabels)
{
    EXPECT_EQ(DevServers::runtimeLabel("Python"), "python");
    EXPECT_EQ(DevServers::runtimeLabel("python3.11"), "python");
    EXPECT_EQ(DevServers::runtimeLabel("beam.smp"), "elixir");
    EXPECT_EQ(DevServers::runtimeLabel("php-fpm8.2"), "php-fpm");
    EXPECT_EQ(DevServers::runtimeLabel("node22"), "node");
    EXPECT_FALSE(DevServers::runtimeOf("3.11"));
    EXPECT_FALSE(DevServers::runtimeOf("nodejs"));
    // Titles with a note, cut by the kernel to 15 characters.
    EXPECT_EQ(DevServers::runtimeLabel("next-server (v1"), "next-server");
    EXPECT_EQ(DevServers::runtimeOf("node (vite)"), "node");
    EXPECT_FALSE(DevServers::runtimeOf("steam (x)"));
    EXPECT_FALSE(DevServers::runtimeOf(" (node)"));
}

TEST(LoginDefs, UidMinOfARealFileAndItsDefault)
{
    // Debian 12's /etc/login.defs, as installed.
    EXPECT_EQ(
        LoginDefs::parseUidMin(Files::read(std::string(VEXEL_FIXTURES) + "/linux/login.defs").value_or("")), 1000u);
    EXPECT_EQ(LoginDefs::parseUidMin("UID_MIN 500\nUID_MAX 60000\n"), 500u);
    EXPECT_EQ(LoginDefs::parseUidMin("#UID_MIN 500\nSYS_UID_MIN 100\n"), LoginDefs::defaultUidMin);
    EXPECT_EQ(LoginDefs::parseUidMin("UID_MIN 5x0\n"), LoginDefs::defaultUidMin);
    EXPECT_EQ(LoginDefs::parseUidMin(""), LoginDefs::defaultUidMin);
}

TEST(ActivityLog, ActivityIdlenessAndPruning)
{
    ActivityLog log;
    const ProcKey server{4242, 1718000000};
    const int64_t start = 1718000000;
    const double now = static_cast<double>(start + 3 * 86400);
    // First seen three days after its start, 10 CPU seconds in all: idle since a minute after it started.
    EXPECT_EQ(log.observe(server, 10.0, 1718000000, now), 1718000060);
    EXPECT_EQ(log.observe(server, 10.25, 1718000000, now + 5), 1718000060); // exactly 0.25 s is not activity
    EXPECT_EQ(log.observe(server, 10.6, 1718000000, now + 10), now + 10);
    EXPECT_EQ(log.observe(server, std::nullopt, 1718000000, now + 20), now + 10);
    const ProcKey busy{7, start + 3 * 86400 - 7200};
    EXPECT_EQ(log.observe(busy, 500.0, now - 7200, now), now); // long running but busy: active now
    const ProcKey fresh{8, start + 3 * 86400 - 60};
    EXPECT_EQ(log.observe(fresh, 0.0, now - 60, now), now);
    EXPECT_EQ(log.observe(ProcKey{9, 0}, std::nullopt, 0, now), now); // unreadable and unknown: now, nothing kept
    EXPECT_EQ(log.entries().size(), 3u);
    EXPECT_EQ(log.entries().at("4242@1718000000").firstSeen, now);
    log.prune({server});
    EXPECT_EQ(log.entries().size(), 1u);
}

TEST(ActivityLog, SavesAndLoads)
{
    const TempFolder folder("vexel-activity");
    const auto file = folder.path() / "data" / "server-activity.json";
    ActivityLog log;
    (void)log.observe(ProcKey{1, 2}, 3.5, 2, 100);
    log.save(file);
    EXPECT_EQ(ActivityLog::load(file), log);
    std::ofstream(file)
        << "{\"entries\": {\"1@2\": {\"cpu\": \"x\"}, \"3@4\": {\"cpu\": 1, \"lastActive\": 2, \"firstSeen\": 3}}}";
    EXPECT_EQ(ActivityLog::load(file).entries().size(), 1u);
    std::ofstream(file) << "not json";
    EXPECT_TRUE(ActivityLog::load(file).entries().empty());
    EXPECT_TRUE(ActivityLog::load(file.parent_path() / "missing.json").entries().empty());
}

TEST(DevServers, BuildGroupsByProjectAndFlagsIdleServers)
{
    const std::set<std::string> files{home + "/code/api/package.json", home + "/code/site/package.json"};
    const std::map<int32_t, std::string> folders{
        {10, home + "/code/api"}, {11, home + "/code/api/src"}, {12, home + "/code/site"}, {13, "/"}};
    auto api = proc(10, "node", "/opt/homebrew/bin/node");
    auto worker = proc(11, "vite", "/opt/homebrew/bin/vite");
    auto site = proc(12, "node", "/opt/homebrew/bin/node");
    site.start = 1000;
    site.cpuTime = 2;
    auto rootNginx = proc(13, "nginx", "/usr/sbin/nginx", 0);
    const std::vector<ListenSocket> listeners{{10, "node", ListenSocket::Family::v4, "127.0.0.1", 3000},
        {10, "node", ListenSocket::Family::v6, "::1", 3000}, {11, "vite", ListenSocket::Family::v4, "*", 5173},
        {12, "node", ListenSocket::Family::v4, "127.0.0.1", 4000}, {13, "nginx", ListenSocket::Family::v4, "*", 80}};
    api.start = site.start = worker.start = 1000;
    const double now = 1000 + 5 * 86400;
    ActivityLog log;
    (void)log.observe(ProcKey{10, 1000}, 0.0, 1000, now - 60); // api: seen a minute ago, busy since
    api.cpuTime = 5.0;
    (void)log.observe(ProcKey{99, 5}, 1.0, 5, now - 60); // a server that is gone
    RateTracker::Rates rates;
    ProcRates apiRate;
    apiRate.cpu = 0.2;
    rates[ProcKey::of(api)] = apiRate;
    const DevServers::Inputs inputs{listeners, {api, worker, site, rootNginx}, rates,
        [&](int32_t pid) -> std::optional<std::string> { return folders.at(pid); }, home, 501,
        [&](const std::string& path) { return files.contains(path); }, now, 2 * 86400};
    const auto groups = DevServers::build(inputs, log);
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[0].project.name, "api");
    ASSERT_EQ(groups[0].servers.size(), 2u);
    EXPECT_EQ(groups[0].servers[0].pid, 10); // port 3000 before 5173
    EXPECT_EQ(groups[0].servers[0].ports, std::vector<uint16_t>{3000});
    EXPECT_EQ(groups[0].servers[0].sockets.size(), 2u);
    EXPECT_DOUBLE_EQ(groups[0].servers[0].cpu, 0.2);
    EXPECT_FALSE(groups[0].servers[0].isIdle);
    EXPECT_EQ(groups[0].servers[1].runtime, "vite");
    EXPECT_EQ(groups[1].project.name, "site");
    // Running five days at 2 CPU seconds: idle since a minute after its start.
    EXPECT_TRUE(groups[1].servers[0].isIdle);
    EXPECT_EQ(groups[1].servers[0].idleSince, 1060);
    EXPECT_FALSE(log.entries().contains("99@5"));
    EXPECT_TRUE(log.entries().contains("12@1000"));
}

// A working folder that can't be read names no project: each such server
// stands alone under its own name instead of sharing the project "".
TEST(DevServers, ServersWithoutAReadableFolderStandAlone)
{
    const std::vector<ListenSocket> listeners{{20, "node", ListenSocket::Family::v4, "127.0.0.1", 3000},
        {21, "postgres", ListenSocket::Family::v4, "127.0.0.1", 5432},
        {22, "node", ListenSocket::Family::v4, "127.0.0.1", 3001}};
    const auto node = proc(20, "node", "/usr/bin/node");
    const auto postgres = proc(21, "postgres", "/usr/lib/postgresql/15/bin/postgres");
    const auto otherNode = proc(22, "node", std::nullopt);
    ActivityLog log;
    const DevServers::Inputs inputs{listeners, {node, postgres, otherNode}, {},
        [](int32_t) -> std::optional<std::string> { return std::nullopt; }, home, 501,
        [](const std::string&) { return false; }, 5000, 2 * 86400};
    const auto groups = DevServers::build(inputs, log);
    ASSERT_EQ(groups.size(), 3u);
    std::vector<std::pair<std::string, int32_t>> seen;
    for (const auto& group : groups) {
        ASSERT_EQ(group.servers.size(), 1u) << group.project.name;
        EXPECT_EQ(group.project.name, group.servers[0].name);
        seen.emplace_back(group.project.name, group.servers[0].pid);
    }
    EXPECT_EQ(seen, (std::vector<std::pair<std::string, int32_t>>{{"node", 20}, {"node", 22}, {"postgres", 21}}));
}

// Three listeners as a user of this machine starts them: python's http server
// in a project's src/, a Next.js-style server whose title holds a "(" in a
// second project, and a program of an app's own run from ~/.local/share.
TEST(DevServersLive, ServersByProjectAndNotTheAppsOwn)
{
    const TempFolder home("vexel-home");
    const auto& tempHome = home.path();
    const auto shop = tempHome / "code" / "shop";
    const auto site = tempHome / "code" / "site";
    const auto steam = tempHome / ".local" / "share" / "Steam";
    fs::create_directories(shop / "src");
    fs::create_directories(site);
    fs::create_directories(steam);
    std::ofstream(shop / "package.json") << "{}";
    std::ofstream(site / "package.json") << "{}";
    const auto python = Shell::find("python3");
    ASSERT_TRUE(python);
    // The app's own program: a copy of the interpreter under another name.
    fs::copy_file(fs::canonical(*python), steam / "steam");

    const ServerProcess http(*python, shop / "src");
    const ServerProcess next(*python, site, "next-server (v14.2.3)");
    const ServerProcess app((steam / "steam").string(), steam);
    ASSERT_NE(http.port(), 0);
    ASSERT_NE(next.port(), 0);
    ASSERT_NE(app.port(), 0);

    LiveProcessSource processes;
    const auto records = processes.snapshot(ProcessScope::own);
    const auto listeners = liveLinuxPortSource()->listeners();
    ASSERT_TRUE(listeners);
    ActivityLog log;
    const DevServers::Inputs inputs{*listeners, records, {}, [&](int32_t p) { return processes.cwd(p); },
        tempHome.string(), static_cast<uint32_t>(::geteuid()),
        [](const std::string& path) { return Files::exists(path); }, 1e10, 172800,
        ProgramPlaces::linux(LoginDefs::liveUidMin())};
    const auto groups = DevServers::build(inputs, log);
    std::map<std::string, std::vector<const DevServer*>> byProject; // by folder name, of this test's folders
    for (const auto& group : groups)
        for (const auto& server : group.servers)
            if (group.project.path.starts_with(tempHome.string()))
                byProject[group.project.name].push_back(&server);
    ASSERT_EQ(byProject["shop"].size(), 1u);
    EXPECT_EQ(byProject["shop"][0]->pid, http.pid());
    EXPECT_EQ(byProject["shop"][0]->ports, std::vector<uint16_t>{http.port()});
    EXPECT_EQ(byProject["shop"][0]->runtime, "python");
    EXPECT_EQ(byProject["shop"][0]->cwd, (shop / "src").string());
    ASSERT_EQ(byProject["site"].size(), 1u);
    EXPECT_EQ(byProject["site"][0]->pid, next.pid());
    EXPECT_EQ(byProject["site"][0]->name, "next-server (v1");
    EXPECT_EQ(byProject["site"][0]->runtime, "next-server");
    for (const auto& group : groups)
        for (const auto& server : group.servers)
            EXPECT_NE(server.pid, app.pid()) << "the app's own listener is in project " << group.project.name;
}
