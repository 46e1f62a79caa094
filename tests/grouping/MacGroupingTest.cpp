#include "grouping/AppGrouper.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

const std::string chrome = "/Applications/Google Chrome.app";
const std::string chromeMain = chrome + "/Contents/MacOS/Google Chrome";
const std::string helpers
    = chrome + "/Contents/Frameworks/Google Chrome Framework.framework/Versions/131.0.6778.86/Helpers/";

ProcRecord proc(int32_t pid, int32_t ppid, std::string name, std::optional<std::string> path, uint32_t uid = 501,
    double start = 1000)
{
    ProcRecord record;
    record.pid = pid;
    record.ppid = ppid;
    record.uid = uid;
    record.name = std::move(name);
    record.path = std::move(path);
    record.start = start + pid * 0.001; // children start after their parents
    record.cpuTime = 1;
    record.memory = 1000;
    record.memoryIsFootprint = true;
    return record;
}

MacIdentityRules rules([](const std::string& path) -> std::optional<std::string> {
    if (path == "/Applications/Google Chrome.app")
        return "Google Chrome";
    return std::nullopt;
});

std::unordered_map<int32_t, Identity> resolve(const std::vector<ProcRecord>& records)
{
    return AppIdentity::resolve(records, rules, nullptr);
}

} // namespace

// The kernel, WebKit, Finder and the tools of the demo world stand in the
// golden apps.txt; these are the rules it doesn't show.
TEST(MacIdentity, BaseRules)
{
    struct Case {
        const char* name;
        ProcRecord record;
        const char* key;
        AppKind kind;
    };
    const std::vector<Case> cases{
        {"family-by-name-anywhere", proc(5, 1, "mdworker_shared", "/opt/weird/mdworker_shared"), "sys:Spotlight",
            AppKind::system},
        {"user-without-path", proc(8, 1, "sleep", std::nullopt, 501), "tool:sleep", AppKind::tool},
        {"other-core-services",
            proc(11, 1, "loginwindow", "/System/Library/CoreServices/loginwindow.app/Contents/MacOS/loginwindow"),
            "sys:macOS services", AppKind::system},
        {"app-named-like-a-family",
            proc(12, 1, "x", "/System/Library/CoreServices/Spotlight.app/Contents/MacOS/Spotlight2"), "sys:Spotlight",
            AppKind::system},
        {"system-path", proc(13, 1, "zsh", "/bin/zsh"), "sys:macOS services", AppKind::system},
    };
    for (const auto& c : cases) {
        const auto identity = AppIdentity::base(c.record, nullptr);
        EXPECT_EQ(identity.key, c.key) << c.name;
        EXPECT_EQ(identity.kind, c.kind) << c.name;
    }
    EXPECT_EQ(rules.base(proc(15, 1, "Google Chrome", chromeMain)).name, "Google Chrome");
}

TEST(MacGrouping, HelpersFollowParentsToTheirAppOrTool)
{
    const std::string code = "/Applications/Visual Studio Code.app";
    const std::string iterm = "/Applications/iTerm.app";
    const std::vector<ProcRecord> records{
        proc(1, 0, "launchd", "/sbin/launchd", 0, 0), proc(400, 1, "Electron", code + "/Contents/MacOS/Electron"),
        proc(401, 400, "Code Helper", code + "/Contents/Frameworks/Code Helper.app/Contents/MacOS/Code Helper"),
        proc(402, 401, "zsh", "/bin/zsh"),
        proc(403, 402, "node", "/opt/homebrew/bin/node"), // the dev server in the integrated terminal
        proc(404, 1, "SourceKitService",
            code + "/Contents/Frameworks/x.framework/XPCServices/SourceKitService.xpc/Contents/MacOS/SourceKitService"),
        proc(500, 1, "iTerm2", iterm + "/Contents/MacOS/iTerm2"), proc(501, 500, "login", "/usr/bin/login", 0),
        proc(502, 501, "zsh", "/bin/zsh"), proc(503, 502, "python3", "/opt/homebrew/bin/python3"),
        proc(600, 1, "postgres", "/opt/homebrew/opt/postgresql@16/bin/postgres"),
        proc(601, 600, "postgres", "/opt/homebrew/opt/postgresql@16/bin/postgres"),
        proc(700, 1, "cron", "/usr/sbin/cron", 0),
        proc(701, 700, "backup.sh", "/Users/a/bin/backup.sh"), // a tool under a system daemon stays a tool
    };
    const auto ids = resolve(records);
    EXPECT_EQ(ids.at(403).key, "app:" + code);
    EXPECT_EQ(ids.at(404).key, "app:" + code); // launched by launchd, kept by its bundle path
    EXPECT_EQ(ids.at(501).key, "app:" + iterm);
    EXPECT_EQ(ids.at(503).key, "app:" + iterm);
    EXPECT_EQ(ids.at(600).key, "tool:postgres");
    EXPECT_EQ(ids.at(601).key, "tool:postgres");
    EXPECT_EQ(ids.at(701).key, "tool:backup.sh");
    EXPECT_EQ(ids.at(1).key, "sys:macOS services");
}

TEST(MacGrouping, ZombiesReusedPidsCyclesAndDeepChains)
{
    auto zombie = proc(11, 10, "defunct", std::nullopt);
    zombie.zombie = true;
    auto reusedParent = proc(20, 1, "Electron", "/Applications/X.app/Contents/MacOS/X", 501, 5000);
    auto olderChild = proc(21, 20, "mytool", "/Users/a/mytool", 501, 100); // started before its "parent"
    std::vector<ProcRecord> records{proc(10, 1, "Electron", "/Applications/X.app/Contents/MacOS/X"), zombie,
        reusedParent, olderChild, proc(30, 31, "a", "/Users/a/a"), proc(31, 30, "b", "/Users/a/b")};
    auto ids = resolve(records);
    EXPECT_EQ(ids.at(11).key, "app:/Applications/X.app");
    EXPECT_EQ(ids.at(21).key, "tool:mytool");
    EXPECT_EQ(ids.at(30).kind, AppKind::tool); // a cycle of parents ends, each keeps a tool identity
    EXPECT_EQ(ids.at(31).kind, AppKind::tool);

    // 100 processes deep under an app, deepest listed first: the walk from the
    // deepest stops after 64 parents; a shallower one walked afresh reaches the app.
    std::vector<ProcRecord> chain;
    for (int i = 100; i >= 1; --i)
        chain.push_back(proc(1000 + i, 1000 + i - 1, "sh" + std::to_string(i), "/Users/a/sh" + std::to_string(i)));
    chain.push_back(proc(1000, 1, "App", "/Applications/Deep.app/Contents/MacOS/App"));
    ids = resolve(chain);
    EXPECT_EQ(ids.at(1100).kind, AppKind::tool);
    EXPECT_EQ(ids.at(1034).key, "app:/Applications/Deep.app");
}

TEST(MacGrouping, SumsEstimatesAndSorts)
{
    auto a = proc(10, 1, "a", "/Users/a/a");
    auto b = proc(20, 1, "b", "/Users/a/b");
    auto b2 = proc(21, 20, "b", "/Users/a/b");
    b2.memoryIsFootprint = false;
    b2.cpuTime.reset();
    RateTracker::Rates rates;
    rates[ProcKey::of(a)] = ProcRates{0.5, 100, 200, 2.0, 10, 1, 2};
    rates[ProcKey::of(b)] = ProcRates{1.0, 0, 0, std::nullopt, 50, 0, 0};
    const auto groups = AppGrouper::group({a, b, b2}, rates, rules, nullptr, AppSort::cpu);
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[0].id, "tool:b");
    EXPECT_TRUE(groups[0].memoryApprox);
    EXPECT_EQ(groups[0].unreadable, 1);
    EXPECT_TRUE(groups[0].energyEstimated);
    EXPECT_DOUBLE_EQ(*groups[0].energyW, 1.0 * 3.5 + 50 * 0.0002);
    EXPECT_EQ(groups[0].mainPID, 20); // no main executable: the oldest member
    EXPECT_FALSE(groups[1].energyEstimated);
    EXPECT_DOUBLE_EQ(*groups[1].energyW, 2.0);
    EXPECT_DOUBLE_EQ(groups[1].diskWrite, 200);
    const auto byDisk = AppGrouper::group({a, b, b2}, rates, rules, nullptr, AppSort::disk);
    EXPECT_EQ(byDisk[0].id, "tool:a");
}
