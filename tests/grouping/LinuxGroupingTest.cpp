#include "grouping/AppGrouper.h"
#include "grouping/linux/CgroupLeaf.h"
#include "grouping/linux/DesktopIndexSource.h"
#include "grouping/linux/LinuxIdentityRules.h"
#include "grouping/linux/ProgramPaths.h"
#include "io/Files.h"
#include "monitor/BundleNames.h"
#include "platform/Environment.h"
#include "support/Golden.h"
#include "support/ProcessTable.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <set>

using namespace vexel;

namespace {

const std::string trees = std::string(VEXEL_FIXTURES) + "/linux/trees";

// Programs as the fixture machine resolves them: the live resolver, rooted at
// a copy of the links Debian installs (/usr/bin/vim → /etc/alternatives/vim →
// /usr/bin/vim.basic, /snap/bin/* → /usr/bin/snap).
std::optional<std::string> resolveProgram(const std::string& program)
{
    return ProgramPaths::resolve(trees + "/root", program, {"/usr/local/bin", "/usr/bin", "/bin", "/snap/bin"});
}

std::shared_ptr<const DesktopIndex> index()
{
    return std::make_shared<DesktopIndex>(std::vector<std::string>{trees + "/applications"}, resolveProgram,
        DesktopIndex::standardSharedFolders("/home/alice"));
}

// A captured session's processes named by the Linux rules.
class Session : public ::testing::Test {
protected:
    explicit Session(const std::string& tree)
        : m_records(vexel::testing::loadProcessTable(trees + "/" + tree))
        , m_rules(index(), [this](const std::string& path) { return m_names.name(path); })
        , m_ids(AppIdentity::resolve(m_records, m_rules, &m_cache))
    {
    }

    [[nodiscard]] std::string keyOf(int32_t pid) const { return m_ids.at(pid).key; }

    // Every group as a reviewer reads it: key, name, then its processes.
    [[nodiscard]] std::string appList()
    {
        auto groups = AppGrouper::group(m_records, {}, m_rules, &m_cache, AppSort::memory);
        std::sort(groups.begin(), groups.end(), [](const auto& a, const auto& b) { return a.id < b.id; });
        std::string text;
        for (const auto& group : groups) {
            text += group.id + "  \"" + group.name + "\"\n";
            for (const auto& row : group.processes)
                text += "    " + std::to_string(row.pid) + " " + row.name + "\n";
        }
        return text;
    }

    std::vector<ProcRecord> m_records;
    BundleNames m_names;
    LinuxIdentityRules m_rules;
    IdentityCache m_cache;
    std::unordered_map<int32_t, Identity> m_ids;
};

class GnomeSession : public Session {
protected:
    GnomeSession()
        : Session("gnome-session.tsv")
    {
    }
};

class KdeSession : public Session {
protected:
    KdeSession()
        : Session("kde-session.tsv")
    {
    }
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
    // A program path as Vexel writes it (the autostart entry) reads back whole.
    for (const std::string path : {"/usr/bin/vexel-app", "/home/al ice/100% \"new\"/$HOME/`x`/a\\b/vexel-app"})
        EXPECT_EQ(DesktopEntry::programOf(DesktopEntry::execArgument(path) + " --hidden"), path);
}

TEST(DesktopEntry, TheNameInTheUsersLanguage)
{
    const auto text = Files::read(trees + "/applications/org.gnome.Nautilus.desktop").value_or("");
    const auto nameIn = [&](std::string_view locale) { return DesktopEntry::parse(text, locale)->name; };
    EXPECT_EQ(nameIn("de_DE.UTF-8"), "Dateien"); // the language without its country
    EXPECT_EQ(nameIn("pt_BR.UTF-8"), "Arquivos"); // the country's own before the language's
    EXPECT_EQ(nameIn("sr_RS.UTF-8@latin"), "Datoteke");
    EXPECT_EQ(nameIn("ja_JP.UTF-8"), "Files"); // no translation
    EXPECT_EQ(nameIn(""), "Files");
    EXPECT_EQ(DesktopEntry::localeKeys("sr_RS.UTF-8@latin"),
        (std::vector<std::string>{"sr_RS@latin", "sr_RS", "sr@latin", "sr"}));
    EXPECT_EQ(messagesLocale([](const char* name) -> std::optional<std::string> {
        return std::string(name) == "LANG" ? std::optional<std::string>("fr_FR.UTF-8") : std::nullopt;
    }),
        "fr_FR.UTF-8");
}

TEST(DesktopIndexOnFixtures, IdsProgramsAndInstallFolders)
{
    const auto apps = index();
    EXPECT_NE(apps->byId("chromium"), nullptr);
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
    EXPECT_EQ(CgroupLeaf::appUnit("app-cosmic-com.system76.CosmicEdit-4376.scope")->launcherlessId,
        "com.system76.CosmicEdit");
    EXPECT_EQ(CgroupLeaf::appUnit("app-org.kde.konsole@autostart.service")->id, "org.kde.konsole");
    EXPECT_EQ(CgroupLeaf::appUnit("app-flatpak-org.mozilla.firefox-12345.scope"),
        (CgroupLeaf::AppUnit{Kind::flatpak, "org.mozilla.firefox", "org.mozilla.firefox", {}}));
    EXPECT_EQ(CgroupLeaf::appUnit("snap.firefox.firefox-1b3f2c9e-7d5a-4e60-9a7e-1f2d3c4b5a69.scope")->id, "firefox");
    EXPECT_EQ(CgroupLeaf::appUnit("dbus-:1.2-org.gnome.Terminal@0.service")->id, "org.gnome.Terminal");
    // The app slices around services and scopes, D-Bus activation's among them.
    EXPECT_EQ(CgroupLeaf::appUnit("app-org.gnome.Terminal.slice")->id, "org.gnome.Terminal");
    EXPECT_EQ(CgroupLeaf::appUnit("app-dbus-:1.37-org.a11y.atspi.Registry.slice")->id, "org.a11y.atspi.Registry");
    EXPECT_EQ(CgroupLeaf::appUnit("app-flatpak-org.telegram.desktop@12345.service")->id, "org.telegram.desktop");
    EXPECT_EQ(CgroupLeaf::appUnit("snap.lxd.lxc-2a7c4f3e-1b2d-4c5e-8f90-1a2b3c4d5e6f.scope")->snapApp, "lxc");
    for (const char* none :
        {"session-2.scope", "NetworkManager.service", "init.scope", "vte-spawn-5e1f.scope", "app.slice", "",
            "app-.scope", "snap..scope", "user-1000.slice", "background.slice", "main.scope", "tab(42253).scope"})
        EXPECT_FALSE(CgroupLeaf::appUnit(none)) << none;
    EXPECT_EQ(
        CgroupLeaf::enclosing("/user.slice/user-1000.slice/user@1000.service/app.slice/"
                              "app-dbus\\x2d:1.2\\x2dorg.gnome.Nautilus.slice/dbus-:1.2-org.gnome.Nautilus@0.service"),
        (std::vector<std::string>{"app-dbus-:1.2-org.gnome.Nautilus.slice", "app.slice", "user@1000.service",
            "user-1000.slice", "user.slice"}));
    EXPECT_TRUE(CgroupLeaf::enclosing("/init.scope").empty());
    EXPECT_TRUE(CgroupLeaf::enclosing("").empty());
}

TEST(ProgramPaths, LinksAreFollowedInsideTheRoot)
{
    const std::string root = trees + "/root";
    const std::vector<std::string> path{"/usr/bin", "/snap/bin"};
    EXPECT_EQ(ProgramPaths::resolve(root, "vim", path), "/usr/bin/vim.basic"); // through /etc/alternatives
    EXPECT_EQ(ProgramPaths::resolve(root, "code", path), "/usr/share/code/bin/code"); // a relative link
    EXPECT_EQ(ProgramPaths::resolve(root, "/usr/bin/google-chrome", path), "/opt/google/chrome/google-chrome");
    EXPECT_EQ(ProgramPaths::resolve(root, "slack", path), "/usr/bin/snap");
    EXPECT_FALSE(ProgramPaths::resolve(root, "missing", path));
    EXPECT_FALSE(ProgramPaths::resolve(root, "bin/vim", path));
    EXPECT_FALSE(ProgramPaths::resolve(root, "", path));
    EXPECT_EQ(ProgramPaths::realPathUnder(root, "/usr/bin/../bin/./python3"), "/usr/bin/python3.11");
}

// What the sandbox or the environment says, where the scope and path do not:
// a Flatpak started with `flatpak run` from a terminal tab, and an AppImage
// relaunched into a new mount folder.
TEST_F(GnomeSession, FlatpakInfoAndTheAppImageFile)
{
    const std::string tab = "/user.slice/user-1000.slice/user@1000.service/app.slice/app-org.gnome.Terminal.slice/"
                            "vte-spawn-393df4de-d554-412a-9e2c-d6c9bdaf0a11.scope";
    ProcRecord telegram;
    telegram.pid = 9100;
    telegram.ppid = 2300;
    telegram.uid = 1000;
    telegram.name = "telegram-deskto";
    telegram.path = "/app/bin/telegram-desktop";
    telegram.cgroup = tab;
    telegram.flatpakApp = "org.telegram.desktop";
    ProcRecord first;
    first.pid = 9200;
    first.ppid = 1530;
    first.uid = 1000;
    first.name = "obsidian";
    first.path = "/tmp/.mount_ObsidiK3xYz9/obsidian";
    first.appImage = "/home/alice/Applications/Obsidian-1.5.3.AppImage";
    auto relaunched = first;
    relaunched.pid = 9300;
    relaunched.path = "/tmp/.mount_Obsidi9qWm2T/obsidian";
    m_records.insert(m_records.end(), {telegram, first, relaunched});
    m_ids = AppIdentity::resolve(m_records, m_rules, &m_cache);
    EXPECT_EQ(keyOf(9100), "app:flatpak:org.telegram.desktop");
    EXPECT_EQ(m_ids.at(9100).name, "Telegram Desktop");
    EXPECT_EQ(keyOf(9200), "app:/home/alice/Applications/Obsidian-1.5.3.AppImage");
    EXPECT_EQ(keyOf(9300), keyOf(9200));
    EXPECT_EQ(keyOf(4205), "app:appimage:Obsidi"); // without APPIMAGE, the letters of its name
}

TEST_F(GnomeSession, GroupsOneRowPerApp)
{
    const auto groups = AppGrouper::group(m_records, {}, m_rules, &m_cache, AppSort::memory);
    const auto chromium = std::find_if(groups.begin(), groups.end(), [](auto& g) { return g.id == "app:chromium"; });
    ASSERT_NE(chromium, groups.end());
    EXPECT_EQ(chromium->processes.size(), 14u);
    EXPECT_EQ(chromium->zombies, 1);
    EXPECT_EQ(chromium->memory, 13u << 20);
    EXPECT_EQ(chromium->mainPID, 14390); // the oldest member: Debian's program is a wrapper script
}

TEST_F(GnomeSession, TheAppListAReviewerReads)
{
    const auto differs = vexel::testing::compareGolden("grouping/gnome-session.txt", appList());
    EXPECT_TRUE(differs.empty()) << differs;
}

// Konsole keeps its window in main.scope and each tab in tab(<pid>).scope
// inside its app scope; htop's entry is Terminal=true.
TEST_F(KdeSession, TheAppListAReviewerReads)
{
    const auto differs = vexel::testing::compareGolden("grouping/kde-session.txt", appList());
    EXPECT_TRUE(differs.empty()) << differs;
}

// An app installed while Vexel runs is known within seconds, without a restart,
// and the names given before are not reused for its processes.
TEST(DesktopIndexSource, AnAppInstalledWhileRunning)
{
    const vexel::testing::TempFolder folder("vexel-apps");
    const std::string applications = (folder.path() / "applications").string();
    std::filesystem::create_directories(applications);
    std::filesystem::copy_file(trees + "/applications/debian-xterm.desktop", applications + "/debian-xterm.desktop");
    double now = 100;
    const auto build = [&] {
        return std::make_shared<DesktopIndex>(
            std::vector<std::string>{applications}, resolveProgram, DesktopIndex::standardSharedFolders("/home/alice"));
    };
    auto source = std::make_shared<DesktopIndexSource>(
        std::vector<std::string>{applications}, build, [&now] { return now; }, 5);
    LinuxIdentityRules rules(source, nullptr);
    IdentityCache cache;
    ProcRecord konsole;
    konsole.pid = 41769;
    konsole.ppid = 1;
    konsole.uid = 1000;
    konsole.name = "konsole";
    konsole.path = "/usr/bin/konsole";
    EXPECT_EQ(AppIdentity::resolve({konsole}, rules, &cache).at(41769).key, "tool:konsole");

    // The package manager adds the entry.
    std::filesystem::copy_file(
        trees + "/applications/org.kde.konsole.desktop", applications + "/org.kde.konsole.desktop");
    std::filesystem::last_write_time(
        applications, std::filesystem::file_time_type::clock::now() + std::chrono::seconds(1));
    now += 1; // looked at again only after a few seconds
    EXPECT_EQ(AppIdentity::resolve({konsole}, rules, &cache).at(41769).key, "tool:konsole");
    EXPECT_EQ(source->generation(), 0u);
    now += 5;
    EXPECT_EQ(AppIdentity::resolve({konsole}, rules, &cache).at(41769).key, "app:org.kde.konsole");
    EXPECT_EQ(source->generation(), 1u);
    now += 5; // nothing changed since: no rebuild
    EXPECT_EQ(source->current()->size(), 2u);
    EXPECT_EQ(source->generation(), 1u);

    // A folder that appears later (the first Flatpak installed) counts too.
    const std::string exports = (folder.path() / "exports").string();
    DesktopIndexSource later(
        {exports}, build, [&now] { return now; }, 5);
    std::filesystem::create_directories(exports);
    now += 5;
    (void)later.current();
    EXPECT_EQ(later.generation(), 1u);
}
