#include "grouping/AppGrouper.h"
#include "grouping/linux/CgroupLeaf.h"
#include "grouping/linux/LinuxIdentityRules.h"
#include "monitor/BundleNames.h"
#include "support/ProcessTable.h"

#include <gtest/gtest.h>

#include <set>

using namespace vexel;

namespace {

const std::string trees = std::string(VEXEL_FIXTURES) + "/linux/trees";

// Programs as this fixture machine would resolve them: bare names on /usr/bin.
std::optional<std::string> resolveProgram(const std::string& program)
{
    return program.starts_with('/') ? program : "/usr/bin/" + program;
}

std::shared_ptr<const DesktopIndex> index()
{
    return std::make_shared<DesktopIndex>(std::vector<std::string>{trees + "/applications"}, resolveProgram,
        DesktopIndex::standardSharedFolders("/home/alice"));
}

class DesktopSession : public ::testing::Test {
protected:
    DesktopSession()
        : m_records(vexel::testing::loadProcessTable(trees + "/desktop-session.tsv"))
        , m_rules(index(), [this](const std::string& path) { return m_names.name(path); })
        , m_ids(AppIdentity::resolve(m_records, m_rules, &m_cache))
    {
    }

    [[nodiscard]] std::string keyOf(int32_t pid) const { return m_ids.at(pid).key; }

    std::vector<ProcRecord> m_records;
    BundleNames m_names;
    LinuxIdentityRules m_rules;
    IdentityCache m_cache;
    std::unordered_map<int32_t, Identity> m_ids;
};

} // namespace

TEST(DesktopEntry, ParsesApplicationsOnly)
{
    const auto entry
        = DesktopEntry::parse("[Desktop Entry]\nType=Application\nName=Code\nName[de]=Kode\nExec=env A=1 B=2 "
                              "\"/opt/My App/run\" --x %F\nTerminal=true\n[Desktop Action x]\nName=Other\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, "Code");
    EXPECT_EQ(entry->program, "/opt/My App/run");
    EXPECT_TRUE(entry->terminal);
    EXPECT_FALSE(DesktopEntry::parse("[Desktop Entry]\nType=Link\nName=x\n"));
    EXPECT_FALSE(DesktopEntry::parse("[Desktop Entry]\nType=Application\n"));
    EXPECT_FALSE(DesktopEntry::parse("Type=Application\nName=outside any group\n"));
    EXPECT_EQ(DesktopEntry::programOf("%U"), "");
}

TEST(DesktopIndexOnFixtures, IdsProgramsAndInstallFolders)
{
    const auto apps = index();
    EXPECT_NE(apps->byId("chromium"), nullptr);
    EXPECT_NE(apps->byId("debian-xterm"), nullptr);
    EXPECT_EQ(apps->byId("kde4-dolphin"), nullptr); // Hidden=true
    EXPECT_EQ(apps->byId("broken"), nullptr); // not an application
    EXPECT_EQ(apps->byExecutable("/usr/bin/xterm")->id, "debian-xterm");
    EXPECT_EQ(apps->byExecutable("/usr/share/code/resources/app/node_modules/x/helper")->id, "code");
    EXPECT_EQ(apps->byExecutable("/usr/bin/bash"), nullptr); // /usr/bin is shared by every program
    EXPECT_EQ(apps->byExecutable("/usr/bin/python3.11"), nullptr); // an interpreter's entry claims nothing
}

TEST(CgroupLeaf, AppUnits)
{
    using Kind = CgroupLeaf::AppUnit::Kind;
    EXPECT_EQ(CgroupLeaf::leaf("/a/b/app-gnome-debian\\x2dxterm-14392.scope"), "app-gnome-debian-xterm-14392.scope");
    EXPECT_EQ(CgroupLeaf::appUnit("app-gnome-firefox-2345.scope"),
        (CgroupLeaf::AppUnit{Kind::launcher, "gnome-firefox", "firefox"}));
    EXPECT_EQ(CgroupLeaf::appUnit("app-cosmic-com.system76.CosmicEdit-4376.scope")->launcherlessId,
        "com.system76.CosmicEdit");
    EXPECT_EQ(CgroupLeaf::appUnit("app-org.kde.konsole@autostart.service")->id, "org.kde.konsole");
    EXPECT_EQ(CgroupLeaf::appUnit("app-flatpak-org.mozilla.firefox-12345.scope"),
        (CgroupLeaf::AppUnit{Kind::flatpak, "org.mozilla.firefox", "org.mozilla.firefox"}));
    EXPECT_EQ(CgroupLeaf::appUnit("snap.firefox.firefox-1b3f2c9e-7d5a-4e60-9a7e-1f2d3c4b5a69.scope")->id, "firefox");
    EXPECT_EQ(CgroupLeaf::appUnit("dbus-:1.2-org.gnome.Terminal@0.service")->id, "org.gnome.Terminal");
    for (const char* none : {"session-2.scope", "NetworkManager.service", "init.scope", "vte-spawn-5e1f.scope",
             "app.slice", "", "app-.scope", "snap..scope"})
        EXPECT_FALSE(CgroupLeaf::appUnit(none)) << none;
}

TEST_F(DesktopSession, BrowserWithItsHelpersAndCrashHandlers)
{
    for (const int32_t pid : {14390, 14541, 14543, 14641, 14645, 14660, 14690, 14699, 14700, 14527, 14537, 14800})
        EXPECT_EQ(keyOf(pid), "app:chromium") << pid;
    EXPECT_EQ(m_ids.at(14390).name, "Chromium Web Browser");
    // Started outside any app scope: Debian's /usr/bin/chromium is a script, so
    // the real program in /usr/lib is known by the entry's id.
    EXPECT_EQ(keyOf(7000), "app:chromium");
    EXPECT_EQ(keyOf(7001), "app:chromium");
    // Entries of interpreters and terminal programs claim nothing by name.
    EXPECT_EQ(keyOf(7100), "tool:python3");
    EXPECT_EQ(keyOf(7200), "tool:vim");
    EXPECT_TRUE(m_rules.isMainExecutable(m_records[0], m_ids.at(1)) == false);
}

TEST_F(DesktopSession, EditorWithADevServerInItsIntegratedTerminal)
{
    for (const int32_t pid : {3001, 3005, 3030, 3090, 3101, 3150, 3160})
        EXPECT_EQ(keyOf(pid), "app:code") << pid;
    EXPECT_EQ(m_ids.at(3160).name, "Visual Studio Code");
    EXPECT_EQ(keyOf(3200), "app:code"); // no app scope: its install folder names it
}

TEST_F(DesktopSession, TerminalsWithShellsAndInterpreters)
{
    for (const int32_t pid : {14392, 14408, 14410, 14411})
        EXPECT_EQ(keyOf(pid), "app:debian-xterm") << pid;
    // GNOME Terminal's shells live in vte-spawn scopes: the parent walk joins them to it.
    for (const int32_t pid : {2200, 2210, 2220, 2230})
        EXPECT_EQ(keyOf(pid), "app:org.gnome.Terminal") << pid;
    EXPECT_EQ(m_ids.at(2230).name, "Terminal");
}

TEST_F(DesktopSession, DatabasesServicesKernelAndSession)
{
    for (const int32_t pid : {14452, 14485, 14501})
        EXPECT_EQ(keyOf(pid), "sys:Linux services") << pid; // Debian's PostgreSQL under systemd
    // A user's own PostgreSQL, orphaned to systemd --user: a tool of its own with its workers.
    for (const int32_t pid : {5000, 5001, 5003})
        EXPECT_EQ(keyOf(pid), "tool:postgres") << pid;
    EXPECT_EQ(keyOf(2), "sys:Kernel");
    EXPECT_EQ(keyOf(3), "sys:Kernel");
    EXPECT_EQ(keyOf(1), "sys:Linux services");
    EXPECT_EQ(keyOf(590), "sys:Linux services"); // unreadable, system-owned
    EXPECT_EQ(keyOf(6000), "tool:sleep"); // unreadable, another user's
    EXPECT_EQ(keyOf(1530), "sys:Display server");
    EXPECT_EQ(keyOf(1561), "sys:Display server");
    EXPECT_EQ(keyOf(1420), "sys:Audio");
    EXPECT_EQ(keyOf(1700), "sys:File indexing");
    EXPECT_EQ(keyOf(1602), "sys:Linux services");
    EXPECT_EQ(keyOf(1680), "sys:Desktop session");
}

TEST_F(DesktopSession, SandboxedAndPortableApps)
{
    for (const int32_t pid : {4000, 4002, 4010})
        EXPECT_EQ(keyOf(pid), "app:flatpak:org.mozilla.firefox") << pid;
    EXPECT_EQ(m_ids.at(4010).name, "Firefox");
    EXPECT_EQ(keyOf(4100), "app:snap:thunderbird");
    EXPECT_EQ(m_ids.at(4100).name, "Thunderbird Mail");
    EXPECT_EQ(keyOf(4205), "app:/tmp/.mount_ObsidiK3xYz9");
    EXPECT_EQ(m_ids.at(4205).name, "obsidian");
}

TEST_F(DesktopSession, GroupsOneRowPerApp)
{
    const auto groups = AppGrouper::group(m_records, {}, m_rules, &m_cache, AppSort::memory);
    const auto chromium = std::find_if(groups.begin(), groups.end(), [](auto& g) { return g.id == "app:chromium"; });
    ASSERT_NE(chromium, groups.end());
    EXPECT_EQ(chromium->processes.size(), 14u);
    EXPECT_EQ(chromium->zombies, 1);
    EXPECT_EQ(chromium->memory, 13u << 20);
    EXPECT_EQ(chromium->mainPID, 14390); // the oldest member: Debian's program is a wrapper script
    // Every member holds 1 MiB in this table: the biggest group has the most members.
    EXPECT_EQ(groups.front().id, "sys:Linux services");
    EXPECT_EQ(groups.front().processes.size(), 15u); // both systemds, daemons, session helpers, Debian's PostgreSQL
    std::set<std::string> ids;
    for (const auto& group : groups)
        EXPECT_TRUE(ids.insert(group.id).second) << group.id;
}
