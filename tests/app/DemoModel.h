#pragma once

// The model on the demo world in a data folder of its own, its sampler
// reading the world at the test's clock, its actions recorded.

#include "actions/FakeActions.h"
#include "model/AppModel.h"
#include "support/TempFolder.h"
#include "synth/DemoWorld.h"

#include <QTest>
#include <QThread>
#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace vexel::testing {

struct DemoModel {
    vexel::testing::TempFolder folder{"vexel-model"};
    DemoWorld world;
    double now = world.now();
    std::atomic<int> readings{0};
    std::string samplerThreadName;
    FakeActions* fake = nullptr;
    std::unique_ptr<AppModel> model;

    // The settings file holds the defaults as `adjust` leaves them, or the
    // text `settingsFile` when given.
    explicit DemoModel(const std::function<void(VexelSettings&)>& adjust = {}, Platform platform = Platform::macOS,
        const std::optional<std::string>& settingsFile = {})
    {
        VexelSettings settings;
        if (adjust)
            adjust(settings);
        if (settingsFile)
            std::ofstream(VexelPaths(folder.path()).settings()) << *settingsFile;
        else
            settings.save(VexelPaths(folder.path()).settings());
        auto actions = std::make_unique<FakeActions>();
        fake = actions.get();
        model = std::make_unique<AppModel>(AppModel::Setup{VexelPaths(folder.path()),
            [this] {
                samplerThreadName = QThread::currentThread()->objectName().toStdString();
                const VexelPaths paths(folder.path());
                std::optional<Sentence> error;
                auto sampler = std::make_unique<Sampler>(
                    world.monitor(), Sampler::openStore(paths, error), paths, TimeZone::fixed(0));
                sampler->beforeSample = [this](double at) {
                    ++readings;
                    world.advance(at - world.now());
                };
                return sampler;
            },
            std::move(actions), [this] { return now; }, 501, 99999, true, platform, world.home(), "/usr/bin",
            TimeZone::fixed(0)});
    }

    // Waits for the work in flight (a tick, a history read, a save) to come back.
    void settle() const
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !model->working(); }, 10000));
    }

    // `count` ticks two seconds apart, each waited for; the first full when asked.
    void ticks(int count, bool firstFull = false)
    {
        for (int tick = 0; tick < count; ++tick) {
            now += 2;
            model->refresh(firstFull && tick == 0);
            settle();
        }
    }
};

// A demo model with `ticks` frames in, the first full.
inline std::unique_ptr<DemoModel> readDemoModel(Platform platform = Platform::macOS, int ticks = 1)
{
    auto demo = std::make_unique<DemoModel>(std::function<void(VexelSettings&)>{}, platform);
    demo->ticks(ticks, true);
    return demo;
}

// Hands the model its last frame again, changed as `change` says: a machine
// the demo world is not (no battery, no Docker), told the way a tick tells it.
inline void receiveChanged(AppModel& model, const std::function<void(TickResult&)>& change)
{
    TickResult tick;
    tick.frame = *model.frame();
    change(tick);
    model.receive(std::move(tick));
}

} // namespace vexel::testing
