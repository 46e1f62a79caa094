// The model on the demo world, offscreen: ticks on the sampler's thread, the
// drop of an overlapping tick, the away card, erasing history, quitting
// through the sheet, the login item, and lastSeen at quit.

#include "model/AppModel.h"
#include "ConfirmSheet.h"
#include "DemoModel.h"
#include "MainWindow.h"
#include "NoticeBanner.h"
#include "WindowKeeper.h"
#include "actions/FakeActions.h"
#include "grouping/linux/DesktopEntry.h"
#include "model/RecentRing.h"
#include "pages/HistoryPage.h"
#include "pages/OverviewFigures.h"
#include "pages/OverviewPage.h"
#include "support/FailingSteps.h"
#include "support/TempFolder.h"
#include "synth/DemoWorld.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>

using namespace vexel;
using vexel::testing::DemoModel;

TEST(AppModel, TicksRunOnTheSamplerThreadAndNeverOverlap)
{
    DemoModel demo;
    EXPECT_EQ(demo.samplerThreadName, "dev.vexel.Vexel.sampler");
    EXPECT_FALSE(demo.model->frame()); // "Taking the first reading…"
    QSignalSpy changes(demo.model.get(), &AppModel::changed);
    demo.model->refresh(true);
    demo.model->refresh(false); // while the first is in flight: dropped, not queued
    demo.settle();
    EXPECT_EQ(demo.readings, 1);
    ASSERT_TRUE(demo.model->frame());
    EXPECT_TRUE(demo.model->serversLoaded()); // the first tick is full
    EXPECT_TRUE(demo.model->docker());
    EXPECT_FALSE(changes.isEmpty());
    EXPECT_TRUE(changes.last().at(0).toUInt() & AppModel::frameChanged);
    demo.ticks(1);
    EXPECT_EQ(demo.readings, 2);
    EXPECT_EQ(demo.model->tickSeconds(), 5); // hidden: the settings' interval

    // A full refresh (the window opening) asked for while a partial tick
    // runs is kept, and runs when that one is back.
    DemoModel later;
    later.model->refresh(false);
    later.model->refresh(true);
    later.settle();
    EXPECT_EQ(later.readings, 2);
    EXPECT_TRUE(later.model->docker()) << "containers come only with a full tick while the window is hidden";
}

TEST(AppModel, TheAwayCardAfterElevenMinutesNotNine)
{
    for (const auto& [minutes, shown] : {std::pair{11, true}, std::pair{9, false}}) {
        DemoModel demo([&](VexelSettings& settings) { settings.lastSeen = 1'795'000'000.0 - minutes * 60; });
        demo.now = 1'795'000'000.0;
        demo.model->setWindowVisible(true);
        demo.settle();
        EXPECT_EQ(demo.model->awaySince().has_value(), shown) << minutes << " minutes";
        EXPECT_EQ(demo.model->tickSeconds(), 2);
        demo.model->dismissAway();
        EXPECT_FALSE(demo.model->awaySince());
    }
}

TEST(AppModel, ErasingIsAskedFirstAndSaysItIsDone)
{
    DemoModel demo;
    demo.ticks(41, true);
    demo.model->loadHistorySync();
    ASSERT_TRUE(demo.model->history());
    EXPECT_FALSE(demo.model->history()->points.empty());

    demo.model->eraseHistory();
    ASSERT_TRUE(demo.model->confirm());
    EXPECT_EQ(demo.model->confirm()->title.english(), "Erase all history?");
    demo.model->cancelPending();
    demo.model->loadHistorySync();
    EXPECT_FALSE(demo.model->history()->points.empty()); // cancel changed nothing
    demo.model->eraseHistory();
    demo.model->confirmPending();
    demo.model->loadHistorySync();
    EXPECT_TRUE(demo.model->history()->points.empty());
    demo.settle();
    EXPECT_EQ(demo.model->toast(), "History erased. New samples start now.");
}

// A question that comes while the user reads another (the force offered
// four seconds after a stop) waits its turn instead of taking its place.
TEST(AppModel, QuestionsWaitTheirTurn)
{
    DemoModel demo;
    demo.ticks(1, true);
    auto& model = *demo.model;
    const auto apps = model.apps(AppSort::memory, 100);
    const auto quittable
        = std::ranges::find_if(apps, [](const AppGroup& app) { return ActionFlow::canQuit(app, 501, 99999); });
    ASSERT_NE(quittable, apps.end());
    model.actions().requestQuit(*quittable, false);
    model.actions().requestStop(4242, "node", {}, true);
    ASSERT_TRUE(model.confirm());
    EXPECT_EQ(model.confirm()->title.english(), "Quit " + quittable->name + "?");
    model.cancelPending();
    ASSERT_TRUE(model.confirm());
    EXPECT_EQ(model.confirm()->title.english(), "Force stop node?");
    model.cancelPending();
    EXPECT_FALSE(model.confirm());
    EXPECT_TRUE(demo.fake->log.empty());
}

TEST(AppModel, LoginItemAndLastSeen)
{
    DemoModel demo;
    const auto config = demo.folder.path() / "config";
    ::setenv("XDG_CONFIG_HOME", config.c_str(), 1);
    demo.model->setOpenAtLogin(true);
    demo.settle(); // written on the sampler's thread
    EXPECT_FALSE(demo.model->loginItemError());
    EXPECT_TRUE(demo.model->opensAtLogin());
    std::ifstream entry(config / "autostart" / "dev.vexel.Vexel.desktop");
    std::string text((std::istreambuf_iterator<char>(entry)), std::istreambuf_iterator<char>());
    const auto parsed = DesktopEntry::parse(text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->program, QCoreApplication::applicationFilePath().toStdString());
    EXPECT_NE(text.find(" --hidden\n"), std::string::npos);
    demo.model->setOpenAtLogin(false);
    demo.settle();
    EXPECT_FALSE(demo.model->opensAtLogin());
    EXPECT_FALSE(std::filesystem::exists(config / "autostart" / "dev.vexel.Vexel.desktop"));
    std::ofstream(demo.folder.path() / "a-file") << "x";
    ::setenv("XDG_CONFIG_HOME", (demo.folder.path() / "a-file").c_str(), 1);
    demo.model->setOpenAtLogin(true);
    demo.settle();
    EXPECT_TRUE(demo.model->loginItemError()); // shown under the control
    EXPECT_FALSE(demo.model->opensAtLogin());
    ::unsetenv("XDG_CONFIG_HOME");

    // The first start is marked once: the next run on the same folder is no first launch.
    demo.model->start();
    EXPECT_TRUE(demo.model->firstLaunch());
    demo.settle();
    auto world = std::make_shared<DemoWorld>();
    const VexelPaths paths(demo.folder.path());
    AppModel again(
        AppModel::Setup{paths, [world, paths] { return std::make_unique<Sampler>(world->monitor(), nullptr, paths); },
            std::make_unique<FakeActions>(), [] { return 0.0; }, 501, 1, true});
    again.start();
    EXPECT_FALSE(again.firstLaunch());
    ASSERT_TRUE(QTest::qWaitFor([&again] { return !again.busy(); }, 10000));
}

// The sheet and the toast in the window: what the model asks is shown, and
// the buttons answer it.
TEST(AppModel, TheWindowAsksAndToasts)
{
    DemoModel demo;
    demo.ticks(1, true);
    MainWindow window;
    window.bind(*demo.model);
    window.show();
    EXPECT_FALSE(window.overview()->waitingShown());
    const auto apps = demo.model->apps(AppSort::memory, 100);
    const auto app = std::find_if(
        apps.begin(), apps.end(), [](const AppGroup& group) { return ActionFlow::canQuit(group, 501, 99999); });
    ASSERT_NE(app, apps.end());
    demo.model->actions().requestQuit(*app, true);
    ASSERT_TRUE(window.sheet()->isVisible());
    EXPECT_EQ(window.sheet()->titleText().toStdString(), demo.model->confirm()->title.english());
    EXPECT_FALSE(window.overview()->isEnabled()) << "the window behind a question takes no input";
    window.sheet()->cancelButton()->click();
    EXPECT_FALSE(demo.model->confirm());
    EXPECT_FALSE(window.sheet()->isVisible());
    EXPECT_TRUE(window.overview()->isEnabled());
    EXPECT_TRUE(demo.fake->log.empty());

    demo.model->actions().requestQuit(*app, false);
    window.sheet()->confirmButton()->click();
    EXPECT_EQ(demo.fake->log, std::vector<std::string>{"quit " + app->name});
    ASSERT_TRUE(window.toast()->isVisible());
    EXPECT_EQ(window.toast()->text().toStdString(), *demo.model->toast());
    // What was done leaves by itself; a failure stays until it is closed.
    ASSERT_TRUE(QTest::qWaitFor([&] { return !demo.model->toast(); }, AppModel::toastMilliseconds + 5000));
    EXPECT_FALSE(window.toast()->isVisible());
    demo.model->actions().requestStop(4242, "node", {}, true); // no such process to signal
    window.sheet()->confirmButton()->click();
    ASSERT_TRUE(window.toast()->isVisible());
    EXPECT_FALSE(demo.model->toastLeaving()) << "a failure stays";
    window.toast()->closeButton()->click();
    EXPECT_FALSE(demo.model->toast());
    EXPECT_FALSE(window.toast()->isVisible());
}

// Without a status area the window is the way back: closing it minimises it
// (the hidden cadence), --hidden starts it minimised, and the app says once
// where the readings went. With its readings in the panel, closing hides it.
TEST(AppModel, TheWindowStaysTheWayBackWithoutAPanel)
{
    DemoModel demo([](VexelSettings& settings) { settings.sampleSeconds = 10; });
    MainWindow window;
    window.bind(*demo.model);
    WindowKeeper keeper(window, *demo.model);
    keeper.setPanel({.host = false, .carriesReadings = false});
    EXPECT_EQ(demo.model->toast(), WindowKeeper::noPanelText().toStdString());
    keeper.showAtStart(true);
    EXPECT_TRUE(window.isMinimized());
    EXPECT_FALSE(demo.model->windowVisible());
    window.showNormal();
    EXPECT_TRUE(demo.model->windowVisible());
    EXPECT_EQ(demo.model->tickSeconds(), 2);
    window.resize(1200, 800); // the toast takes its own room below the page, covering none of it
    QCoreApplication::processEvents();
    const auto* page = window.page(window.currentRoute());
    EXPECT_LE(page->mapTo(&window, QPoint(0, page->height())).y(), window.toast()->geometry().top());
    EXPECT_EQ(window.toast()->geometry().bottom(), 799);
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isMinimized());
    EXPECT_FALSE(demo.model->windowVisible());
    EXPECT_EQ(demo.model->tickSeconds(), 10);

    DemoModel inPanel;
    MainWindow other;
    WindowKeeper panel(other, *inPanel.model);
    panel.showAtStart(true); // at login, before the panel has answered: the taskbar
    EXPECT_TRUE(other.isMinimized());
    panel.setPanel({.host = true, .carriesReadings = true}); // the panel came: its items lead back
    EXPECT_FALSE(inPanel.model->toast());
    EXPECT_FALSE(other.isVisible());
    other.showNormal(); // the item's "Open Vexel Window"
    EXPECT_TRUE(inPanel.model->windowVisible());
    EXPECT_TRUE(other.close());
    EXPECT_FALSE(other.isVisible());
    EXPECT_FALSE(inPanel.model->windowVisible());
    // The panel went away: the hidden window comes back to the taskbar, and the app says why once.
    panel.setPanel({.host = false, .carriesReadings = false});
    EXPECT_TRUE(other.isVisible() && other.isMinimized());
    EXPECT_EQ(inPanel.model->toast(), WindowKeeper::noPanelText().toStdString());
    // Shown by the user, then minimised by them: a panel coming back leaves it where they put it.
    other.showNormal();
    other.showMinimized();
    panel.setPanel({.host = true, .carriesReadings = true});
    EXPECT_TRUE(other.isVisible());
}

// The Overview waits for the first frame, then shows the frame's readings on
// its dials and the busiest apps by CPU; a machine without a GPU reading or a
// battery says so on those dials instead of showing an empty reading.
TEST(OverviewPage, DialsAndBusiestAppsFromTheFrame)
{
    DemoModel demo;
    OverviewPage page(nullptr);
    demo.ticks(2, true); // the second frame has rates
    page.present(*demo.model);
    const auto& system = demo.model->frame()->system;
    EXPECT_DOUBLE_EQ(page.dials()[0].fraction, system.cpu.user + system.cpu.system);
    EXPECT_EQ(page.dials()[1].strain, demo.model->strain(MenuItemKind::memory));
    const auto busiest = demo.model->apps(AppSort::cpu, 5);
    const QStringList rows = page.busiestRows();
    ASSERT_EQ(rows.size(), 5);
    EXPECT_TRUE(rows.front().startsWith(QString::fromStdString(busiest.front().name))) << rows.front().toStdString();

    vexel::testing::receiveChanged(*demo.model, [](TickResult& tick) {
        tick.frame.system.gpu.reset();
        tick.frame.system.battery.reset();
    });
    const auto dials = overviewDials(*demo.model);
    EXPECT_EQ(dials[4].value, QStringLiteral("—"));
    EXPECT_EQ(dials[4].fraction, 0);
    EXPECT_EQ(dials[5].value, QStringLiteral("Mains"));

    // The week's days as shares of the busiest, each named by its local weekday.
    const TimeZone utc = TimeZone::fixed(0);
    const double monday = 1'794'787'200; // Mon 16 Nov 2026, 00:00 UTC
    const BarBank week
        = weekBank({{monday, {1e9, 1e9, 0, 0}}, {monday + 86400, {0, 0, 4e9, 0}}, {monday + 2 * 86400, {}}}, utc);
    EXPECT_EQ(week.fractions, (std::vector<double>{0.5, 1, 0}));
    EXPECT_EQ(week.describe(), QStringLiteral("Mon: 2.0 GB, Tue: 4.0 GB, Wed: 0 B"));
    const QRectF strip(0, 0, 300, 56);
    EXPECT_EQ(week.describeAt(week.barRect(1, strip).center(), strip), QStringLiteral("Tue: 4.0 GB")); // on hover
    EXPECT_TRUE(week.describeAt({299, 10}, strip).isEmpty()); // past the bars
    EXPECT_EQ(
        weekBank({{0, {}}, {1, {}}}, utc).fractions, (std::vector<double>{0, 0})); // a quiet week, no division by zero

    // Rates sit on a scale from 1 KB/s to 1 GB/s.
    EXPECT_EQ(rateFraction(500), 0);
    EXPECT_DOUBLE_EQ(rateFraction(1e6), 0.5);
    EXPECT_EQ(rateFraction(5e9), 1);
    EXPECT_EQ(rateFraction(std::nan("")), 0);
}

// A history that fails while the app runs (a read error, a full disk) used
// to reach std::terminate on the sampler's thread when History opened or the
// window came back after ten minutes away. It is shown: on the History page
// and in the banner, with what the user can do, and the app goes on.
TEST(AppModel, AFailingHistoryIsShownNeverACrash)
{
    DemoModel demo([](VexelSettings& settings) { settings.lastSeen = 1'795'000'000.0 - 3600; });
    auto& model = *demo.model;
    demo.now = 1'795'000'000.0;
    demo.ticks(3, true);
    MainWindow window;
    window.bind(model);
    {
        const vexel::testing::FailingSteps failing("SELECT t,dur", 0);
        model.setRoute(Route::history);
        model.loadHistory();
        model.setWindowVisible(true); // the away card reads the week
        demo.settle();
        ASSERT_TRUE(model.storeError());
        EXPECT_TRUE(model.storeError()->starts_with("History error: ")) << *model.storeError();
        EXPECT_TRUE(
            model.storeError()->ends_with(". Live readings go on, and Vexel tries the history again each minute."))
            << *model.storeError();
        EXPECT_EQ(window.banner()->texts(), QStringList{QString::fromStdString(*model.storeError())});
        auto* history = static_cast<HistoryPage*>(window.page(Route::history));
        history->showModel(model);
        EXPECT_EQ(history->emptyState().value(0), QStringLiteral("History can't be read."));
        EXPECT_TRUE(model.awaySince()) << "the card still says since when, without spikes it couldn't read";
    }
    demo.ticks(1); // a tick that goes well clears it
    EXPECT_FALSE(model.storeError());
    EXPECT_TRUE(window.banner()->isHidden());
}
