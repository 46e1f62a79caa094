// The settings tabs save each change at once and the model follows them; the
// command menu reaches every page; the command-line setup links and adds
// what it says.

#include "ConfirmSheet.h"
#include "DemoModel.h"
#include "MainWindow.h"
#include "NoticeBanner.h"
#include "VexelCommands.h"
#include "actions/CommandLineSetup.h"
#include "io/Files.h"
#include "pages/CpuPage.h"
#include "settings/AlertsTab.h"
#include "settings/ChoiceBox.h"
#include "settings/DeveloperTab.h"
#include "settings/GeneralTab.h"
#include "settings/PanelTab.h"
#include "settings/SettingsWindow.h"
#include "texts/QtText.h"

#include <QAction>
#include <QCheckBox>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <fstream>

using namespace vexel;
using vexel::testing::DemoModel;
using vexel::testing::TempFolder;

namespace {

DeveloperTab::Places nowhere()
{
    return {"/nonexistent/vexel", "/nonexistent", [] { return std::nullopt; }};
}

template <typename Tab> Tab& tabOf(SettingsWindow& window, SettingsWindow::Tab which)
{
    return *static_cast<Tab*>(window.tab(which));
}

} // namespace

TEST(Settings, AChangeIsSavedAtOnceAndTheModelFollowsIt)
{
    DemoModel demo;
    auto& model = *demo.model;
    demo.ticks(1, true);
    SettingsWindow settings(nowhere());
    settings.bind(model);
    EXPECT_EQ(settings.tabTitles(), (QStringList{"General", "Menu Bar", "Alerts", "History", "Developer"}));

    auto& general = tabOf<GeneralTab>(settings, SettingsWindow::Tab::general);
    general.interval()->select(10);
    EXPECT_EQ(model.settings().sampleSeconds, 10);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return VexelSettings::load(VexelPaths(demo.folder.path()).settings()).sampleSeconds == 10; }));
    EXPECT_EQ(model.tickSeconds(), 10); // hidden: the new interval

    // The CPU scale reaches the pages.
    CpuPage cpu(nullptr);
    QObject::connect(&model, &AppModel::changed, &cpu, [&](unsigned) { cpu.showModel(model); });
    general.perCore()->setChecked(true);
    EXPECT_EQ(model.settings().cpuScale, CPUScale::core);
    EXPECT_EQ(cpu.scaleText(), QStringLiteral("CPU figures are shown as % of one core (like Activity Monitor)."));

    // Red stays beyond amber when amber moves past it.
    auto& alerts = tabOf<AlertsTab>(settings, SettingsWindow::Tab::alerts);
    alerts.diskAmber()->select(0.05);
    EXPECT_DOUBLE_EQ(model.settings().strain.diskFreeElevated, 0.05);
    EXPECT_LE(model.settings().strain.diskFreeStrained, 0.05);
    alerts.batteryAmber()->select(10);
    EXPECT_EQ(model.settings().strain.batteryElevated, 10);
    EXPECT_LE(model.settings().strain.batteryStrained, 10);

    // Filling a tab from the model saves nothing.
    const auto before = model.settings();
    for (const auto tab : {SettingsWindow::Tab::general, SettingsWindow::Tab::alerts, SettingsWindow::Tab::history})
        settings.tab(tab)->showModel(model);
    EXPECT_EQ(model.settings(), before);
}

TEST(Settings, PanelItemsReorderSwitchAndRestore)
{
    DemoModel demo;
    auto& model = *demo.model;
    SettingsWindow settings(nowhere());
    settings.bind(model);
    auto& panel = tabOf<PanelTab>(settings, SettingsWindow::Tab::panel);
    EXPECT_EQ(panel.rows().mid(0, 3), (QStringList{"CPU on, Both", "Memory on, Value", "Network on, Value"}));
    panel.move(0, 1);
    EXPECT_EQ(model.settings().menuItems[0].kind, MenuItemKind::memory);
    EXPECT_EQ(model.settings().menuItems[1].kind, MenuItemKind::cpu);
    EXPECT_EQ(panel.rows().front(), QStringLiteral("Memory on, Value"));
    panel.move(0, -1); // the first can't go up
    panel.move(6, 1); // nor the last down
    EXPECT_EQ(model.settings().menuItems[0].kind, MenuItemKind::memory);
    EXPECT_EQ(model.settings().menuItems[6].kind, MenuItemKind::gpu);
    // Dropped on the fifth row, the first reading takes its place and the others close up.
    settings.show();
    settings.showTab(SettingsWindow::Tab::panel);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the rows the moves replaced
    QCoreApplication::processEvents();
    QMimeData dragged;
    dragged.setData(QString::fromLatin1(PanelTab::rowMime), QByteArray("0"));
    const auto* fifthRow = panel.findChildren<QCheckBox*>().at(4);
    const QPoint at = fifthRow->mapTo(&panel, fifthRow->rect().center());
    QDragEnterEvent enter(at, Qt::MoveAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&panel, &enter);
    ASSERT_TRUE(enter.isAccepted()) << "the tab takes a dragged row";
    QDropEvent drop(QPointF(at), Qt::MoveAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&panel, &drop);
    EXPECT_EQ(model.settings().menuItems[4].kind, MenuItemKind::memory);
    EXPECT_EQ(model.settings().menuItems[0].kind, MenuItemKind::cpu);
    panel.restoreDefaults();
    EXPECT_EQ(model.settings().menuItems, defaultMenuItems());
}

TEST(CommandLineSetup, LinksTheCommandIntoTheUsersBin)
{
    TempFolder home("vexel-home");
    const auto vexel = home.path() / "app" / "vexel";
    std::filesystem::create_directories(vexel.parent_path());
    std::ofstream(vexel) << "#!/bin/true\n";
    const auto link = home.path() / ".local" / "bin" / "vexel";

    auto outcome = CommandLineSetup::installCommand(vexel, home.path());
    EXPECT_TRUE(outcome.done) << outcome.text.english();
    EXPECT_EQ(std::filesystem::read_symlink(link), vexel);
    // Again, over its own link.
    EXPECT_TRUE(CommandLineSetup::installCommand(vexel, home.path()).done);
    // A file of the user's own is left alone.
    std::filesystem::remove(link);
    std::ofstream(link) << "mine\n";
    outcome = CommandLineSetup::installCommand(vexel, home.path());
    EXPECT_FALSE(outcome.done);
    EXPECT_TRUE(std::filesystem::is_regular_file(std::filesystem::symlink_status(link)));
    // Nothing to link: said so.
    EXPECT_FALSE(CommandLineSetup::installCommand(home.path() / "missing", home.path()).done);
}

TEST(CommandLineSetup, AddsToClaudeOrSaysWhatToPaste)
{
    TempFolder home("vexel-home");
    const auto without = CommandLineSetup::addToClaude(std::nullopt, home.path());
    EXPECT_FALSE(without.done);
    EXPECT_NE(without.text.english().find(CommandLineSetup::claudeLine()), std::string::npos);
    EXPECT_NE(without.text.english().find("\"args\": [\"--mcp\"]"), std::string::npos);
    EXPECT_NE(without.text.english().find((home.path() / ".local/bin/vexel").string()), std::string::npos);

    // A claude that refuses says why. (One that adds: AddingToClaudeNeverHoldsTheWindow.)
    const auto claude = home.path() / "claude";
    std::ofstream(claude) << "#!/bin/sh\necho 'MCP server vexel already exists' >&2\nexit 1\n";
    std::filesystem::permissions(claude, std::filesystem::perms::owner_all);
    const auto refused = CommandLineSetup::addToClaude(claude.string(), home.path());
    EXPECT_FALSE(refused.done);
    EXPECT_NE(refused.text.english().find("already exists"), std::string::npos);
}

// A settings file the user broke is said in the window and left as it is
// through a whole run, a change made in the window included, which is said
// to hold until Vexel quits.
TEST(Settings, ABrokenFileIsShownAndLeftAloneThroughARun)
{
    const std::string broken = "{\n  \"retentionDays\": 730,\n}\n";
    auto demo = std::make_unique<DemoModel>(std::function<void(VexelSettings&)>{}, Platform::linux, broken);
    auto& model = *demo->model;
    const auto file = VexelPaths(demo->folder.path()).settings();
    MainWindow window;
    window.bind(model);
    ASSERT_EQ(model.notices().size(), 1u);
    EXPECT_EQ(window.banner()->texts(),
        QStringList{qs(file.string()
            + " isn't valid JSON (parse error at line 3, column 1: syntax error while parsing object key - unexpected "
              "'}'; expected string literal). Vexel uses its defaults for now and leaves the file as it is.")});
    model.start();
    demo->ticks(2);
    model.setWindowVisible(true);
    model.setWindowVisible(false);
    auto changed = model.settings();
    changed.sampleSeconds = 10;
    model.changeSettings(changed);
    demo->settle();
    ASSERT_TRUE(model.toast());
    EXPECT_TRUE(model.toast()->starts_with("Your change holds until Vexel quits but can't be saved. "))
        << *model.toast();
    EXPECT_EQ(model.tickSeconds(), 10);
    model.shutdown();
    model.dismissNotice(0);
    EXPECT_TRUE(window.banner()->isHidden());
    demo->model.reset(); // the sampler's thread ends, with all it was given done
    EXPECT_EQ(vexel::Files::read(file.string()), broken);
}

// Adding Vexel to Claude Code runs claude, which may take many seconds: the
// window goes on while it does, the button saying so. This claude answers
// only once the test has got its turn back from the click, so a click that
// waited for it would wait out claude's whole time-out and fail.
TEST(Settings, AddingToClaudeNeverHoldsTheWindow)
{
    TempFolder home("vexel-home");
    const auto claude = home.path() / "claude";
    const auto go = home.path() / "go";
    const auto asked = home.path() / "asked";
    std::ofstream(claude) << "#!/bin/sh\necho \"$@\" > " << asked.string() << "\nwhile [ ! -e " << go.string()
                          << " ]; do sleep 0.05; done\necho Added\n";
    std::filesystem::permissions(claude, std::filesystem::perms::owner_all);
    DeveloperTab tab({"/nonexistent/vexel", home.path(), [claude] { return claude.string(); }}, nullptr);
    QSignalSpy done(&tab, &DeveloperTab::stepDone);
    tab.addToClaude();
    EXPECT_FALSE(tab.claudeButton()->isEnabled());
    EXPECT_EQ(tab.claudeButton()->text(), QStringLiteral("Adding…"));
    std::ofstream(go) << "";
    ASSERT_TRUE(done.wait(15000));
    EXPECT_EQ(tab.outcomeText(), QStringLiteral("Added Vexel's read-only MCP server to Claude Code."));
    EXPECT_TRUE(tab.claudeButton()->isEnabled());
    EXPECT_EQ(tab.claudeButton()->text(), QStringLiteral("Add to Claude Code"));
    std::ifstream said(asked);
    std::string line;
    std::getline(said, line);
    EXPECT_EQ(line, "mcp add vexel -- " + (home.path() / ".local/bin/vexel").string() + " --mcp");
}
