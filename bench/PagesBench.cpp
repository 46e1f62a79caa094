// What drawing the window costs: one page's picture as snapshot mode takes
// it, and the Overview's repaint for one visible tick (its figures shown
// anew and painted). Runs offscreen on the demo world with five weeks of
// history, as snapshot mode has it.

#include "Appearance.h"
#include "MainWindow.h"
#include "actions/FakeActions.h"
#include "model/AppModel.h"
#include "pages/OverviewPage.h"
#include "panel/MenuBarController.h"
#include "snapshot/DemoHistoryFill.h"
#include "snapshot/SnapshotMode.h"
#include "synth/DemoWorld.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QSystemTrayIcon>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <memory>

using namespace vexel;

namespace {

struct Demo {
    QTemporaryDir folder;
    DemoWorld world;
    std::unique_ptr<AppModel> model;

    Demo()
    {
        const VexelPaths paths(folder.path().toStdString());
        model = std::make_unique<AppModel>(AppModel::Setup{paths,
            [this, paths] {
                std::optional<Sentence> error;
                auto sampler = std::make_unique<Sampler>(world.monitor(), Sampler::openStore(paths, error), paths);
                sampler->beforeSample = [this](double) { world.advance(2); };
                return sampler;
            },
            std::make_unique<FakeActions>(), [this] { return world.now(); }, 501, 0, false, Platform::macOS});
        tick(true);
        fillDemoHistory(paths, *model->frame(), model->zone, model->apps(AppSort::cpu, 6), model->cores());
        tick(true);
        tick(false);
        model->loadHistorySync();
    }

    void tick(bool full)
    {
        model->refresh(full);
        while (model->busy())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
};

Demo& demo()
{
    static Demo shared;
    return shared;
}

void pagePicture(benchmark::State& state, Route route)
{
    MainWindow window;
    window.bind(*demo().model);
    window.show();
    window.showRoute(route);
    for (auto _ : state) {
        // A page comes into view: shown the model, laid out, painted.
        window.page(route)->showModel(*demo().model);
        benchmark::DoNotOptimize(picture(window));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

// Every page in sidebar order: 0 Overview … 8 History, 9 Developers.
void BM_PagePicture(benchmark::State& state)
{
    const auto route = allRoutes.at(static_cast<size_t>(state.range(0)));
    state.SetLabel(identifier(route));
    pagePicture(state, route);
}
BENCHMARK(BM_PagePicture)->DenseRange(0, 9)->Unit(benchmark::kMillisecond);

// One visible tick on the Overview: the new frame shown and the page repainted.
void BM_OverviewTickRepaint(benchmark::State& state)
{
    MainWindow window;
    window.bind(*demo().model);
    window.show();
    window.showRoute(Route::overview); // the model may still be on another page's route
    auto* page = window.overview();
    QImage canvas(window.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        page->showModel(*demo().model);
        QCoreApplication::sendPostedEvents();
        QPainter painter(&canvas);
        window.render(&painter);
    }
}
BENCHMARK(BM_OverviewTickRepaint)->Unit(benchmark::kMillisecond);

// One tick's update of the panel with all seven readings in it: each
// reading from the frame, its picture at both scales, its tooltip and menu
// line; in a real session (bench/panel-session.sh) the status items also
// send their new pictures over D-Bus (on threads of Qt's own: the CPU
// figure is the whole process's).
void BM_PanelUpdateSevenItems(benchmark::State& state)
{
    auto& model = *demo().model;
    auto settings = model.settings();
    for (auto& item : settings.menuItems)
        item.enabled = true;
    model.changeSettings(settings);
    MenuBarController panel(model, Appearance::dark, {[] {}, [] {}, [] {}});
    panel.start();
    for (auto _ : state) {
        panel.update();
        QCoreApplication::sendPostedEvents();
    }
    state.SetLabel(QSystemTrayIcon::isSystemTrayAvailable() ? "status area" : "no status area");
}
BENCHMARK(BM_PanelUpdateSevenItems)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    // On a display of its own (bench/panel-session.sh) the panel is real; else offscreen.
    if (qgetenv("DISPLAY").isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    Look::installFont();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
