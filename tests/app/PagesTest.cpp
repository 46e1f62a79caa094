// The pages on the demo world, offscreen: what each shows from the model,
// its empty states, and what its controls ask of the model.

#include "DemoModel.h"
#include "MainWindow.h"
#include "history/Downsample.h"
#include "pages/AppInspector.h"
#include "pages/AppsPage.h"
#include "pages/DevelopersPage.h"
#include "pages/GpuPage.h"
#include "pages/HistoryPage.h"
#include "pages/OverviewPage.h"
#include "pages/PowerPage.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTreeView>
#include <gtest/gtest.h>

using namespace vexel;
using vexel::testing::DemoModel;

namespace {

auto readModel(Platform platform = Platform::macOS)
{
    return vexel::testing::readDemoModel(platform);
}

// A page that acts on the model and follows its every change, as in the window.
template <typename Page> std::unique_ptr<Page> follow(AppModel& model)
{
    auto page = std::make_unique<Page>(nullptr);
    page->attach(model);
    QObject::connect(
        &model, &AppModel::changed, page.get(), [&model, raw = page.get()](unsigned) { raw->showModel(model); });
    page->showModel(model);
    return page;
}

const AppGroup& appNamed(const AppModel& model, const std::string& name)
{
    const auto* app = model.frame()->app(name);
    EXPECT_NE(app, nullptr) << name;
    return *app;
}

} // namespace

TEST(AppsPage, TheInspectorOffersQuitOnlyWhereItIsAllowedAndSaysWhy)
{
    auto demo = readModel();
    auto& model = *demo->model;
    const auto shown = follow<AppsPage>(model);
    auto& page = *shown;
    EXPECT_FALSE(page.inspectorShown());

    // Selecting a row selects its app in the model and opens the inspector.
    const AppGroup& iterm = appNamed(model, "iTerm2");
    const int row = static_cast<int>(page.rowNames().indexOf("iTerm2"));
    page.list()->setCurrentIndex(page.list()->model()->index(row, 0));
    EXPECT_EQ(model.selectedApp(), iterm.id);
    ASSERT_TRUE(page.inspectorShown());
    EXPECT_TRUE(page.inspector()->offersQuit());
    EXPECT_EQ(page.inspector()->processRows(), static_cast<int>(iterm.processes.size()));
    // iTerm2's login shells run as root and one child is a zombie: both are explained.
    const QStringList notes = page.inspector()->notes();
    EXPECT_TRUE(notes.filter("to another user (usually macOS)").size() == 1) << notes.join('|').toStdString();
    EXPECT_TRUE(notes.filter("(zombie). They use no CPU or memory.").size() == 1) << notes.join('|').toStdString();

    // A system group is never offered a quit, and the inspector says why.
    const auto system = std::ranges::find(model.frame()->apps, AppKind::system, &AppGroup::kind);
    ASSERT_NE(system, model.frame()->apps.end());
    model.selectApp(system->id);
    EXPECT_FALSE(page.inspector()->offersQuit());
    EXPECT_TRUE(page.inspector()->notes().contains(
        QStringLiteral("macOS manages these processes itself; Vexel doesn't offer to quit them.")));
}

// Rows keep their identity: as the figures change and the list reorders
// under them, the app selected stays selected, the list and the inspector's
// process list stay scrolled where they were, and a sort chosen by a click
// is the settings' own.
TEST(AppsPage, SelectionAndScrollSurviveTicksThatReorderTheList)
{
    auto demo = readModel();
    auto& model = *demo->model;
    const auto shown = follow<AppsPage>(model);
    auto& page = *shown;
    page.resize(960, 520);
    page.show();
    const QString chrome = QStringLiteral("Google Chrome");
    const std::string browser = appNamed(model, "Google Chrome").id;
    page.list()->setCurrentIndex(page.list()->model()->index(static_cast<int>(page.rowNames().indexOf(chrome)), 0));
    ASSERT_EQ(model.selectedApp(), browser);
    QCoreApplication::processEvents(); // lays out the inspector just shown
    auto* listBar = page.list()->verticalScrollBar();
    auto* processBar = page.inspector()->processList()->verticalScrollBar();
    ASSERT_GT(listBar->maximum(), 0) << "the list must scroll for this test to mean anything";
    ASSERT_GT(processBar->maximum(), 0);
    listBar->setValue(listBar->maximum() / 2);
    processBar->setValue(processBar->maximum());
    const int listAt = listBar->value();
    const int processesAt = processBar->value();

    QStringList orders{page.rowNames().join('|')};
    for (int tick = 0; tick < 10; ++tick) {
        demo->world.strained = tick >= 5; // the renderers and the language service leap ahead
        demo->ticks(1);
        orders << page.rowNames().join('|');
        EXPECT_EQ(model.selectedApp(), browser) << tick;
        EXPECT_EQ(page.list()->currentIndex().data().toString(), chrome) << tick;
        EXPECT_EQ(listBar->value(), listAt) << tick;
        EXPECT_EQ(processBar->value(), processesAt) << tick;
    }
    orders.removeDuplicates();
    EXPECT_GT(orders.size(), 2) << "the list reordered under the selection";

    // A click on a figure's header is the settings' sort, saved for the next run.
    page.list()->header()->sectionClicked(2);
    EXPECT_EQ(model.settings().appSort, AppSort::memory);
    EXPECT_TRUE(page.shownColumns().contains(QStringLiteral("Memory")));
    demo->settle();
    EXPECT_EQ(VexelSettings::load(VexelPaths(demo->folder.path()).settings()).appSort, AppSort::memory);
    EXPECT_EQ(model.selectedApp(), browser);
}

// Any one of the user's own processes can be force-stopped from the
// inspector, through the question every stop asks; another user's can't.
TEST(AppsPage, TheInspectorForceStopsOneOfTheUsersProcessesAfterAsking)
{
    auto demo = readModel();
    auto& model = *demo->model;
    const auto shown = follow<AppsPage>(model);
    auto& page = *shown;
    const AppGroup& iterm = appNamed(model, "iTerm2");
    model.selectApp(iterm.id);
    auto* processes = page.inspector()->processList();
    const auto rowOf = [processes](const QString& name) {
        for (int row = 0; row < processes->model()->rowCount(); ++row)
            if (processes->model()->index(row, 0).data().toString() == name)
                return processes->model()->index(row, 0);
        return QModelIndex();
    };
    const auto python = std::ranges::find(iterm.processes, std::string("python3"), &ProcRow::name);
    const auto login = std::ranges::find_if(iterm.processes, [](const ProcRow& row) { return row.uid == 0; });
    ASSERT_NE(python, iterm.processes.end());
    ASSERT_NE(login, iterm.processes.end());

    processes->setCurrentIndex(rowOf(QString::fromStdString(login->name)));
    EXPECT_FALSE(page.inspector()->offersStop()) << "root's login shell is not the user's to stop";
    processes->setCurrentIndex(rowOf(QStringLiteral("python3")));
    ASSERT_TRUE(page.inspector()->offersStop());
    demo->fake->alive.insert(python->pid);
    for (auto* button : page.inspector()->findChildren<QPushButton*>())
        if (button->text() == QStringLiteral("Force Stop Process…"))
            button->click();
    ASSERT_TRUE(model.confirm());
    EXPECT_EQ(model.confirm()->title.english(), "Force stop python3?");
    EXPECT_TRUE(demo->fake->alive.contains(python->pid)) << "nothing is sent before the answer";
    model.confirmPending();
    EXPECT_FALSE(demo->fake->alive.contains(python->pid));
}

// Until the first frame is in, every page of the machine's readings says
// so rather than showing zeros; the ones that read other things (history,
// servers) show their own states.
TEST(Pages, EveryPageSaysItIsTakingTheFirstReading)
{
    DemoModel demo;
    auto& model = *demo.model;
    MainWindow window;
    window.bind(model);
    std::vector<Route> waiting;
    for (const Route route : allRoutes) {
        window.showRoute(route);
        if (window.page(route)->waitingShown())
            waiting.push_back(route);
    }
    EXPECT_EQ(waiting,
        (std::vector<Route>{Route::overview, Route::apps, Route::cpu, Route::memory, Route::disk, Route::network,
            Route::gpu, Route::power}));
    demo.ticks(1, true);
    for (const Route route : allRoutes) {
        window.showRoute(route);
        EXPECT_FALSE(window.page(route)->waitingShown()) << static_cast<int>(route);
    }
}

TEST(Pages, AMachineWithoutBatteryGpuCountersOrDockerSaysSo)
{
    auto demo = readModel(Platform::linux);
    auto& model = *demo->model;
    vexel::testing::receiveChanged(model, [](TickResult& tick) {
        tick.frame.system.battery.reset();
        tick.frame.system.gpu.reset();
        tick.docker = DockerState::notInstalled();
        tick.servers.emplace();
    });

    PowerPage power(nullptr);
    power.showModel(model);
    EXPECT_EQ(power.batteryText(), QStringLiteral("This computer runs on mains power — no battery to report."));
    EXPECT_TRUE(power.batteryRows().isEmpty());
    // Linux reports its sensors: shown, or said to be missing.
    EXPECT_TRUE(power.sensorRows().isEmpty());
    vexel::testing::receiveChanged(model, [](TickResult& tick) {
        tick.frame.system.sensors
            = {{{"k10temp", "Tctl", 62.1, std::nullopt, std::nullopt}}, {{"thinkpad", "fan1", 2960}}};
    });
    power.showModel(model);
    EXPECT_EQ(power.sensorRows(), (QStringList{"CPU · Tctl  62 °C", "Laptop · fan1  2960 rpm"}));

    GpuPage gpu(nullptr);
    gpu.showModel(model);
    EXPECT_FALSE(gpu.showsChart());
    EXPECT_EQ(gpu.unavailableText(),
        QStringLiteral("This computer's graphics driver doesn't report utilisation, so there's nothing to show here."));

    DevelopersPage developers(nullptr);
    developers.showModel(model);
    EXPECT_EQ(developers.dockerState(),
        (QStringList{"Docker isn't installed",
            "Vexel looks for the docker command from Docker Engine, Docker Desktop or Podman."}));
    EXPECT_EQ(developers.serverState(),
        (QStringList{"No dev servers running.",
            "When node, python, rails, a database or your own build listens on a "
            "port, it shows up here under its project."}));
    vexel::testing::receiveChanged(model, [](TickResult& tick) {
        tick.docker = DockerState{DockerState::Kind::containers, "", {}};
    });
    developers.showModel(model);
    EXPECT_EQ(developers.dockerState(), QStringList{"Docker is running with no containers."});
}

TEST(DevelopersPage, ServersByProjectWithIdleFlagAndReach)
{
    auto demo = readModel();
    auto& model = *demo->model;
    ASSERT_TRUE(model.serversLoaded()); // the first, full, tick scans ports
    ASSERT_FALSE(model.servers().empty());
    DevelopersPage page(nullptr);
    page.showModel(model);
    const QStringList rows = page.serverRows();
    int servers = 0;
    for (const auto& group : model.servers())
        servers += static_cast<int>(group.servers.size());
    EXPECT_EQ(rows.size(), servers);
    EXPECT_EQ(rows.filter("Idle for ").size(), rows.filter("Idle for 4 days").size());
    EXPECT_FALSE(rows.filter("Idle for ").isEmpty()) << rows.join('|').toStdString();
    EXPECT_FALSE(rows.filter("Reachable from other devices on your network").isEmpty());
    // Project folders under the home folder the model knows, shown from ~.
    QStringList shown;
    for (const auto* label : page.findChildren<QLabel*>())
        shown << label->text();
    EXPECT_TRUE(shown.contains(QStringLiteral("~/code/atlas-api"))) << shown.join('|').toStdString();
    // Listeners that are no server's are listed beside them.
    for (const auto& port : page.otherPorts())
        for (const auto& group : model.servers())
            for (const auto& server : group.servers)
                EXPECT_FALSE(port.contains(QString::fromStdString("process " + std::to_string(server.pid))));
}

TEST(HistoryPage, EachEmptyStateSaysWhichEmptyItIs)
{
    auto demo = readModel(Platform::linux);
    auto& model = *demo->model;
    HistoryPage page(nullptr);
    const double now = demo->now;
    const auto historyFrom = [&model, now](std::optional<double> first) {
        model.receive(Sampler::HistoryResult{{}, {}, {}, first, now - 3600, now, std::nullopt});
    };
    historyFrom(std::nullopt);
    page.showModel(model);
    EXPECT_EQ(page.emptyState(),
        (QStringList{"History starts now.",
            "Vexel takes a reading every few seconds and keeps up to a year, thinning "
            "old readings to hourly so the file stays small. Come back in a few "
            "minutes."}));
    // History began before the range, but nothing was recorded in it.
    historyFrom(now - 86400);
    page.showModel(model);
    EXPECT_EQ(page.emptyState(), QStringList{"Nothing recorded in this range."});
    // History began inside the range and hasn't reached its tier.
    historyFrom(now - 600);
    page.showModel(model);
    EXPECT_EQ(page.emptyState(), QStringList{"No samples yet for this range."});

    // With samples the charts show, and without spikes the list says nothing was unusual.
    demo->ticks(3);
    model.loadHistorySync();
    page.showModel(model);
    EXPECT_TRUE(page.emptyState().isEmpty());
    EXPECT_EQ(page.chartCount(), 4);
    EXPECT_TRUE(page.spikeRows().isEmpty());
    // Core time names the apps `vexel history` names: at most ten, none said to be idle.
    const QStringList coreTime = page.coreTimeRows();
    EXPECT_FALSE(coreTime.isEmpty());
    EXPECT_LE(coreTime.size(), static_cast<int>(Downsample::busiestAppCount));
    EXPECT_TRUE(coreTime.filter(QRegularExpression(QStringLiteral("\\b0 min$"))).isEmpty())
        << coreTime.join('|').toStdString();

    // A spike whose summary names its app says only its share beside it; one that doesn't names the app.
    auto withSpikes = *model.history();
    withSpikes.spikes = {Spike{SpikeKind::network, now - 900, now - 600, 7e8, "Safari", 0.4,
                             Sentence{"%1 moved over the network by %2", {{"698 MB"}, {"Safari"}}}},
        Spike{SpikeKind::cpu, now - 3000, now - 2400, 0.95, "Xcode", 0.8, Sentence{"The processor was busy"}}};
    model.receive(std::move(withSpikes));
    page.showModel(model);
    const QStringList spikes = page.spikeRows();
    ASSERT_EQ(spikes.size(), 2);
    EXPECT_TRUE(spikes[0].endsWith(QStringLiteral("by Safari  40% of it"))) << spikes[0].toStdString();
    EXPECT_TRUE(spikes[1].endsWith(QStringLiteral("busy  mostly Xcode (80%)"))) << spikes[1].toStdString();
}

// History in view follows the recording: each minute's batch is read again.
TEST(HistoryPage, InViewItRefreshesWithEachMinutesBatch)
{
    auto demo = readModel();
    auto& model = *demo->model;
    model.setRoute(Route::history);
    model.loadHistorySync();
    const double readTo = model.history()->to;
    demo->ticks(31); // past the next minute's compaction
    demo->settle();
    ASSERT_TRUE(model.history());
    EXPECT_GT(model.history()->to, readTo + 50);
}

TEST(HistoryPage, PickingARangeReadsThatRange)
{
    auto demo = readModel();
    auto& model = *demo->model;
    HistoryPage page(nullptr);
    page.attach(model);
    QSignalSpy changes(&model, &AppModel::changed);
    page.pick(static_cast<int>(HistoryRange::month));
    EXPECT_EQ(model.historyRange(), HistoryRange::month);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model.historyLoading(); }, 10000));
    ASSERT_TRUE(model.history());
    EXPECT_NEAR(model.history()->to - model.history()->from, 30 * 86400.0, 1);
}

TEST(OverviewPage, TheAwayCardListsSpikesAndCanBeDismissed)
{
    auto demo = readModel();
    auto& model = *demo->model;
    const auto shown = follow<OverviewPage>(model);
    auto& page = *shown;
    EXPECT_TRUE(page.awayLines().isEmpty());
    model.showAway(demo->now - 3600,
        {Spike{SpikeKind::cpu, demo->now - 3000, demo->now - 2400, 0.95, "Xcode", 0.8,
            Sentence{"%1 kept the processor busy for %2 min", {{"Xcode"}, {"10"}}}}});
    page.showModel(model);
    EXPECT_EQ(page.awayLines(), QStringList{"Xcode kept the processor busy for 10 min"});
    // From when the user left to the reading now, in the model's zone.
    const auto clock = [](double t) {
        const CivilTime civil = TimeZone::fixed(0).civil(t);
        return QString::asprintf("%02d:%02d", civil.hour, civil.minute);
    };
    EXPECT_TRUE(page.awaySpan().startsWith(QStringLiteral("From ")));
    EXPECT_TRUE(page.awaySpan().contains(clock(*model.awaySince()) + QStringLiteral(" to ")))
        << page.awaySpan().toStdString();
    EXPECT_TRUE(page.awaySpan().endsWith(clock(model.frame()->time))) << page.awaySpan().toStdString();
    model.showAway(model.awaySince(), {});
    page.showModel(model);
    EXPECT_EQ(page.awayLines(),
        QStringList{"Nothing unusual: no long CPU spikes, memory pressure, big writes or "
                    "downloads, heat or fast battery drain."});
    page.dismissAway();
    EXPECT_FALSE(model.awaySince());
    EXPECT_TRUE(page.awayLines().isEmpty());
}
