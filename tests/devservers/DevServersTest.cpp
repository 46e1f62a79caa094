#include "devservers/DevServers.h"
#include "devservers/linux/LinuxPortSources.h"
#include "io/Files.h"
#include "processes/Shell.h"
#include "processes/linux/LiveProcessSource.h"
#include "support/ChildProcess.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
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
        {"own-homebrew-nginx", proc(2, "nginx", "/opt/homebrew/bin/nginx"), "/", true},
        {"libexec-helper", proc(3, "rapportd", "/usr/libexec/rapportd"), home + "/code", false},
        {"libexec-runtime", proc(4, "php-fpm", "/usr/libexec/php-fpm"), std::nullopt, true},
        {"app-helper", proc(5, "Slack Helper", "/Applications/Slack.app/Contents/Frameworks/Slack Helper"), home,
            false},
        {"app-script-runtime", proc(6, "Code Helper", "/Applications/X.app/Contents/Resources/app/bin/srv"),
            std::nullopt, true},
        {"docker-app", proc(7, "com.docker.backend", "/Applications/Docker.app/Contents/MacOS/com.docker.backend"),
            std::nullopt, true},
        {"program-in-project", proc(8, "myserver", home + "/code/site/bin/myserver"), home + "/code/site/src", true},
        {"under-library", proc(9, "agent", home + "/Library/Agent/agent"), home + "/Library/Agent", false},
        {"outside-home", proc(10, "agent", "/opt/agent/agent"), "/opt/agent", false},
        {"home-itself", proc(11, "agent", "/opt/agent/agent"), home, false},
        {"versioned-runtime", proc(12, "python3.11", "/usr/bin/python3.11"), "/", true},
        {"versioned-fpm", proc(13, "php-fpm8.2", "/usr/sbin/php-fpm8.2"), "/", true},
        {"linux-system-folder", proc(14, "cupsd", "/usr/lib/cups/cupsd"), home + "/x", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DevServers::isDevServer(c.record, c.cwd, home, 501), c.expected) << c.name;
    auto zombie = proc(20, "node", std::nullopt);
    zombie.zombie = true;
    EXPECT_FALSE(DevServers::isDevServer(zombie, home + "/x", home, 501));
}

TEST(DevServers, RuntimeLabels)
{
    EXPECT_EQ(DevServers::runtimes().size(), 61u);
    EXPECT_EQ(DevServers::runtimeLabel("Python"), "python");
    EXPECT_EQ(DevServers::runtimeLabel("python3"), "python");
    EXPECT_EQ(DevServers::runtimeLabel("python3.11"), "python");
    EXPECT_EQ(DevServers::runtimeLabel("beam.smp"), "elixir");
    EXPECT_EQ(DevServers::runtimeLabel("php-fpm8.2"), "php-fpm");
    EXPECT_EQ(DevServers::runtimeLabel("node22"), "node");
    EXPECT_EQ(DevServers::runtimeLabel("myserver"), "myserver");
    EXPECT_FALSE(DevServers::runtimeOf("3.11"));
    EXPECT_FALSE(DevServers::runtimeOf("nodejs"));
}

TEST(DevServers, ProjectsAreFoundUpwardsBelowTheHomeFolder)
{
    const std::set<std::string> files{
        home + "/code/site/package.json", home + "/code/site/.git", home + "/package.json", "/srv/app/Cargo.toml"};
    const auto exists = [&](const std::string& path) { return files.contains(path); };
    EXPECT_EQ(DevServers::project(home + "/code/site/src/", home, exists),
        (ProjectInfo{"site", home + "/code/site", ".git"})); // markers in table order
    EXPECT_EQ(DevServers::project(home + "/scratch", home, exists),
        (ProjectInfo{"scratch", home + "/scratch", std::nullopt}));
    EXPECT_EQ(DevServers::project("/srv/app/web", home, exists), (ProjectInfo{"app", "/srv/app", "Cargo.toml"}));
    EXPECT_EQ(DevServers::project(home, home, exists).marker, std::nullopt); // the home folder is never a project
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
    const auto text = Files::read(file.string());
    EXPECT_NE(text->find("\"entries\""), std::string::npos);
    EXPECT_NE(text->find("\"1@2\""), std::string::npos);
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

TEST(DevServersLive, APythonServerStartedInAProjectSubfolder)
{
    const TempFolder home("vexel-home");
    const auto& tempHome = home.path();
    const auto project = tempHome / "code" / "shop";
    fs::create_directories(project / "src");
    std::ofstream(project / "package.json") << "{}";
    const auto python = Shell::find("python3");
    ASSERT_TRUE(python);
    // A real python3 -m http.server on a free loopback port, in src/; it
    // names its port once it listens.
    const std::string script = "import http.server, socketserver, sys\n"
                               "s = socketserver.TCPServer(('127.0.0.1', 0), http.server.SimpleHTTPRequestHandler)\n"
                               "print(s.server_address[1], flush=True)\ns.serve_forever()\n";
    ChildProcess server({*python, "-c", script}, {project / "src", true});
    const auto port = static_cast<uint16_t>(std::atoi(server.readLine().c_str()));
    ASSERT_NE(port, 0);
    const pid_t pid = server.pid();

    LiveProcessSource processes;
    const auto records = processes.snapshot(ProcessScope::own);
    const auto listeners = liveLinuxPortSource()->listeners();
    ASSERT_TRUE(listeners);
    ActivityLog log;
    const DevServers::Inputs inputs{*listeners, records, {}, [&](int32_t p) { return processes.cwd(p); },
        tempHome.string(), static_cast<uint32_t>(::geteuid()),
        [](const std::string& path) { return Files::exists(path); }, 1e10, 172800};
    const auto groups = DevServers::build(inputs, log);
    const auto shop = std::find_if(groups.begin(), groups.end(), [](auto& g) { return g.project.name == "shop"; });
    ASSERT_NE(shop, groups.end());
    ASSERT_EQ(shop->servers.size(), 1u);
    EXPECT_EQ(shop->project.marker, "package.json");
    EXPECT_EQ(shop->project.path, project.string());
    EXPECT_EQ(shop->servers[0].pid, pid);
    EXPECT_EQ(shop->servers[0].ports, std::vector<uint16_t>{port});
    EXPECT_EQ(shop->servers[0].runtime, "python");
    EXPECT_EQ(shop->servers[0].cwd, (project / "src").string());
}
