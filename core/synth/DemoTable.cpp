// The simulated Mac's process table.

#include "synth/DemoWorld.h"

#include <array>

namespace vexel {

namespace {

constexpr uint32_t user = 501;
constexpr uint32_t root = 0;
constexpr double day = 86400;
constexpr double hour = 3600;

const std::string chrome = "/Applications/Google Chrome.app";
const std::string chromeHelpers
    = chrome + "/Contents/Frameworks/Google Chrome Framework.framework/Versions/131.0.6778.86/Helpers/";
const std::string code = "/Applications/Visual Studio Code.app";
const std::string iterm = "/Applications/iTerm.app";
const std::string xcode = "/Applications/Xcode.app";
const std::string webkit = "/System/Library/Frameworks/WebKit.framework/Versions/A/XPCServices/";

} // namespace

void DemoWorld::build()
{
    buildSystem();
    buildBrowser();
    buildEditor();
    buildTerminal();
    buildDatabaseAndIde();
    buildEverydayApps();
    buildServices();
}

void DemoWorld::buildSystem()
{
    add("launchd", "/sbin/launchd", 0, root, 1, 0.002, 12, 9 * day);
    add("kernel_task", std::nullopt, 0, root, 0, 0.05, 1100, 9 * day, 0, 0, 0, 0, 1.2);
    add("WindowServer", "/System/Library/PrivateFrameworks/SkyLight.framework/Resources/WindowServer", 1, 88, 0, 0.12,
        310, 9 * day, 0, 0, 0, 0, 0.9);
    add("login", "/usr/bin/login", 1, root, 0, 0, 4, 9 * day);
    const std::string services = "/System/Library/CoreServices/";
    m_displayNames[services + "Finder.app"] = "Finder";
    m_displayNames[services + "Dock.app"] = "Dock";
    m_displayNames[services + "ControlCenter.app"] = "Control Center";
    add("Finder", services + "Finder.app/Contents/MacOS/Finder", 1, user, 0, 0.004, 140, 9 * day);
    add("Dock", services + "Dock.app/Contents/MacOS/Dock", 1, user, 0, 0.003, 90, 9 * day);
    add("ControlCenter", services + "ControlCenter.app/Contents/MacOS/ControlCenter", 1, user, 0, 0.002, 60, 9 * day);
    add("launchservicesd", services + "launchservicesd", 1, root, 0, 0.001, 18, 9 * day);
    add("trustd", "/usr/libexec/trustd", 1, root, 0, 0.001, 14, 9 * day);
    add("cloudd", "/System/Library/PrivateFrameworks/CloudKitDaemon.framework/Support/cloudd", 1, user, 0, 0.004, 40,
        9 * day, 2000, 1000, 1500, 900);
    add("bird", "/System/Library/PrivateFrameworks/CloudDocsDaemon.framework/Versions/A/Support/bird", 1, user, 0,
        0.002, 30, 9 * day);
    add("photoanalysisd", "/System/Library/PrivateFrameworks/PhotoAnalysis.framework/Versions/A/Support/photoanalysisd",
        1, user, 0, 0.006, 120, 9 * day, 0, 4000);
    add("backupd", "/System/Library/CoreServices/backupd.bundle/Contents/Resources/backupd", 1, root, 0, 0.003, 35,
        9 * day, 1200, 3000);
    const std::string metadata = "/System/Library/Frameworks/CoreServices.framework/Frameworks/Metadata.framework/";
    const int32_t mds = add("mds", metadata + "Support/mds", 1, root, 0, 0.004, 45, 9 * day, 800, 2000);
    add("mds_stores", metadata + "Support/mds_stores", mds, root, 0, 0.006, 80, 9 * day, 3000, 9000);
    for (int i = 0; i < 3; ++i)
        add("mdworker_shared", metadata + "Versions/A/Support/mdworker_shared", 1, user, 0, 0.003, 22, 40.0 + i * 30, 0,
            6000);
    // A run of small XPC services, numbered one after another.
    for (int i = 1; i <= 24; ++i) {
        const std::string n = std::to_string(i);
        add("com.apple.service" + n,
            "/System/Library/PrivateFrameworks/Service" + n + ".framework/XPCServices/com.apple.service" + n
                + ".xpc/Contents/MacOS/com.apple.service" + n,
            1, i % 2 == 0 ? root : user, 0, 0.0002, 6, 9 * day);
    }
    for (const char* agent :
        {"UserEventAgent", "talagent", "universalaccessd", "AirPlayUIAgent", "NotificationCenterAgent", "pboard"})
        add(agent, services + agent, 1, user, 0, 0.0005, 30, 9 * day);
}

void DemoWorld::buildBrowser()
{
    m_displayNames[chrome] = "Google Chrome";
    const int32_t main = add(
        "Google Chrome", chrome + "/Contents/MacOS/Google Chrome", 1, user, 0, 0.08, 420, 2 * day, 0, 0, 0, 0, 1.5);
    const auto helper
        = [&](const std::string& kind, double cpu, double mem, double diskW = 0, double netIn = 0, double netOut = 0) {
              const std::string name = "Google Chrome Helper" + kind;
              add(name, chromeHelpers + name + ".app/Contents/MacOS/" + name, main, user, 0, cpu, mem, 2 * day - 5,
                  diskW, 0, netIn, netOut);
          };
    helper(" (GPU)", 0.09, 380);
    helper("", 0.01, 60, 0, 380'000, 40'000); // the network service
    helper("", 0.004, 40, 60'000); // the storage service
    helper("", 0.002, 30);
    // Renderers carry most of the load: a few busy tabs and many quiet ones.
    // The three busy ones are what strain multiplies, and even multiplied
    // they stay within the twelve cores there are.
    constexpr std::array<double, 28> renderers{0.07, 0.05, 0.04, 0.035, 0.03, 0.03, 0.025, 0.02, 0.02, 0.015, 0.012,
        0.01, 0.01, 0.008, 0.008, 0.006, 0.006, 0.005, 0.005, 0.004, 0.004, 0.003, 0.003, 0.002, 0.002, 0.002, 0.001,
        0.001};
    for (size_t i = 0; i < renderers.size(); ++i)
        helper(" (Renderer)", renderers[i], 60 + 10 * static_cast<double>(i % 9) + renderers[i] * 1200);
}

void DemoWorld::buildEditor()
{
    m_displayNames[code] = "Visual Studio Code";
    const std::string helpers = code + "/Contents/Frameworks/";
    const int32_t main = add("Electron", code + "/Contents/MacOS/Electron", 1, user, 0, 0.03, 260, 6 * hour);
    add("Code Helper (Renderer)", helpers + "Code Helper (Renderer).app/Contents/MacOS/Code Helper (Renderer)", main,
        user, 0, 0.045, 520, 6 * hour);
    add("Code Helper (GPU)", helpers + "Code Helper (GPU).app/Contents/MacOS/Code Helper (GPU)", main, user, 0, 0.02,
        180, 6 * hour);
    add("Code Helper (Plugin)", helpers + "Code Helper (Plugin).app/Contents/MacOS/Code Helper (Plugin)", main, user, 0,
        0.04, 610, 6 * hour, 3000, 20000);
    const int32_t pty = add(
        "Code Helper", helpers + "Code Helper.app/Contents/MacOS/Code Helper", main, user, 0, 0.001, 45, 6 * hour);
    const int32_t zsh = add("zsh", "/bin/zsh", pty, user, 0, 0.0005, 6, 3 * hour);
    const int32_t api = add("node", "/opt/homebrew/Cellar/node/22.9.0/bin/node", zsh, user, 0, 0.015, 180, 3 * hour,
        2000, 500, 12000, 48000);
    processSource->folders[api] = m_home + "/code/atlas-api/src";
    m_files.insert(m_home + "/code/atlas-api/package.json");
    m_files.insert(m_home + "/code/atlas-api/.git");
    portSource->sockets->push_back({api, "node", ListenSocket::Family::v4, "127.0.0.1", 3000});
}

void DemoWorld::buildTerminal()
{
    m_displayNames[iterm] = "iTerm2";
    const int32_t main = add("iTerm2", iterm + "/Contents/MacOS/iTerm2", 1, user, 0, 0.02, 210, 9 * day);
    const auto shell = [&] {
        const int32_t login = add("login", "/usr/bin/login", main, root, 0, 0, 4, 5 * day);
        return add("zsh", "/bin/zsh", login, user, 0, 0.0005, 6, 5 * day);
    };
    const int32_t first = shell();
    add("python3", "/Library/Frameworks/Python.framework/Versions/3.12/bin/python3.12", first, user, 0, 0.025, 95,
        40 * 60, 1500, 8000);
    // The marketing site: served for days, last active five days ago.
    const int32_t site = add("node", "/opt/homebrew/bin/node", first, user, 0, 0.00001, 120, 5 * day);
    processSource->folders[site] = m_home + "/code/marketing-site";
    m_files.insert(m_home + "/code/marketing-site/package.json");
    portSource->sockets->push_back({site, "node", ListenSocket::Family::v4, "*", 4321});
    const int32_t second = shell();
    const int32_t book = add("node", "/opt/homebrew/bin/node", second, user, 0, 0.01, 240, 2 * day, 0, 300);
    processSource->folders[book] = m_home + "/code/design-system";
    m_files.insert(m_home + "/code/design-system/.git");
    portSource->sockets->push_back({book, "node", ListenSocket::Family::v6, "::1", 6006});
    // A child its shell never waited for.
    add("git", std::nullopt, second, user, 0, 0, 0, 600);
    m_procs.back().rec.zombie = true;
    m_procs.back().rec.cpuTime.reset();
    m_procs.back().rec.memory.reset();
}

void DemoWorld::buildDatabaseAndIde()
{
    const std::string postgres = "/opt/homebrew/opt/postgresql@16/bin/postgres";
    const int32_t db = add("postgres", postgres, 1, user, 0, 0.003, 40, 9 * day, 4000, 1000);
    for (int i = 0; i < 5; ++i)
        add("postgres", postgres, db, user, 0, 0.001, 12, 9 * day - 2, i == 0 ? 2000 : 0);
    processSource->folders[db] = "/opt/homebrew/var/postgresql@16";
    portSource->sockets->push_back({db, "postgres", ListenSocket::Family::v4, "127.0.0.1", 5432});
    portSource->sockets->push_back({db, "postgres", ListenSocket::Family::v6, "::1", 5432});

    m_displayNames[xcode] = "Xcode";
    const int32_t ide = add("Xcode", xcode + "/Contents/MacOS/Xcode", 1, user, 0, 0.03, 900, 4 * hour);
    // Started by launchd for Xcode: grouped with it by its place in Xcode's bundle.
    add("SourceKitService",
        xcode
            + "/Contents/Developer/Toolchains/XcodeDefault.xctoolchain/usr/lib/sourcekitd.framework/Versions/A/"
              "XPCServices/SourceKitService.xpc/Contents/MacOS/SourceKitService",
        1, user, 0, 0.04, 700, 4 * hour);
    add("xcodebuild", xcode + "/Contents/Developer/usr/bin/xcodebuild", ide, user, 0, 0.2, 150, 120, 90'000, 40'000);
}

void DemoWorld::buildEverydayApps()
{
    const std::string safari = "/System/Volumes/Preboot/Cryptexes/App/System/Applications/Safari.app";
    m_displayNames[safari] = "Safari";
    add("Safari", safari + "/Contents/MacOS/Safari", 1, user, 0, 0.01, 180, day);
    for (int i = 0; i < 3; ++i)
        add("com.apple.WebKit.WebContent",
            webkit + "com.apple.WebKit.WebContent.xpc/Contents/MacOS/com.apple.WebKit.WebContent", 1, user, 0,
            0.012 - 0.003 * i, 140 - 30 * i, day);
    add("com.apple.WebKit.Networking",
        webkit + "com.apple.WebKit.Networking.xpc/Contents/MacOS/com.apple.WebKit.Networking", 1, user, 0, 0.003, 40,
        day, 0, 0, 60'000, 8'000);
    for (const char* app : {"Mail", "Music", "Notes"}) {
        const std::string bundle = std::string("/System/Applications/") + app + ".app";
        m_displayNames[bundle] = app;
        add(app, bundle + "/Contents/MacOS/" + app, 1, user, 0, 0.004, 110, 9 * day,
            std::string(app) == "Mail" ? 500 : 0, 0, std::string(app) == "Music" ? 24'000 : 1'000, 200);
    }
    // Apps from their display names: a main process and one helper each.
    for (const char* name : {"Spotify", "1Password", "Slack", "Figma"}) {
        const std::string bundle = std::string("/Applications/") + name + ".app";
        m_displayNames[bundle] = name;
        const double cpu = std::string(name) == "Spotify" ? 0.02 : 0.008;
        const double mem = std::string(name) == "Figma" ? 640 : 210;
        const int32_t main = add(name, bundle + "/Contents/MacOS/" + name, 1, user, 0, cpu, mem, day);
        const std::string helper = std::string(name) + " Helper";
        add(helper, bundle + "/Contents/Frameworks/" + helper + ".app/Contents/MacOS/" + helper, main, user, 0,
            cpu * 0.3, mem * 0.3, day, 0, 0, 6'000, 1'500);
    }
    const std::string vexel = "/Applications/Vexel.app";
    m_displayNames[vexel] = "Vexel";
    add("Vexel", vexel + "/Contents/MacOS/Vexel", 1, user, 0, 0.006, 70, 9 * day);
    const std::string docker = "/Applications/Docker.app";
    m_displayNames[docker] = "Docker Desktop";
    const int32_t desktop
        = add("Docker Desktop", docker + "/Contents/MacOS/Docker Desktop", 1, user, 0, 0.006, 160, 2 * day);
    add("com.docker.backend", docker + "/Contents/MacOS/com.docker.backend", desktop, user, 0, 0.02, 220, 2 * day, 0, 0,
        4'000, 4'000);
    add("com.docker.virtualization", docker + "/Contents/MacOS/com.docker.virtualization", desktop, user, 0, 0.09, 2048,
        2 * day, 30'000, 12'000);
}

void DemoWorld::buildServices()
{
    // A port that is not a developer server: a system helper listening for nearby devices.
    const int32_t rapport = add("rapportd", "/usr/libexec/rapportd", 1, user, 0, 0.001, 12, 9 * day);
    portSource->sockets->push_back({rapport, "rapportd", ListenSocket::Family::v6, "*", 49152});
    Container db{"3f2a9c1d8e7b", "atlas-db-1", "postgres:16-alpine", "running", "Up 3 hours", "0.0.0.0:5433->5432/tcp",
        "atlas", 0.4, 48ull << 20, 7'800'000'000ull};
    Container cache{"a81c44f0b2d9", "atlas-cache-1", "redis:7-alpine", "running", "Up 3 hours",
        "0.0.0.0:6379->6379/tcp", "atlas", 0.2, 9ull << 20, 7'800'000'000ull};
    Container migrate{"c0ffee123456", "atlas-migrate-1", "atlas-migrate:latest", "exited", "Exited (0) 2 days ago", "",
        "atlas", std::nullopt, std::nullopt, std::nullopt};
    dockerSource->state = DockerState::running({db, cache, migrate});
}

} // namespace vexel
