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
#include <functional>
#include <memory>
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

    explicit DemoModel(const std::function<void(VexelSettings&)>& adjust = {}, Platform platform = Platform::macOS)
    {
        VexelSettings settings;
        if (adjust)
            adjust(settings);
        settings.save(VexelPaths(folder.path()).settings());
        auto actions = std::make_unique<FakeActions>();
        fake = actions.get();
        model = std::make_unique<AppModel>(AppModel::Setup{VexelPaths(folder.path()),
            [this] {
                samplerThreadName = QThread::currentThread()->objectName().toStdString();
                const VexelPaths paths(folder.path());
                std::optional<std::string> error;
                auto sampler = std::make_unique<Sampler>(
                    world.monitor(), Sampler::openStore(paths, error), paths, TimeZone::fixed(0));
                sampler->beforeSample = [this](double at) {
                    ++readings;
                    world.advance(at - world.now());
                };
                return sampler;
            },
            std::move(actions), [this] { return now; }, 501, 99999, true, platform});
    }

    // Waits for the tick in flight to come back.
    void settle() const
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !model->busy(); }, 10000));
    }
};

} // namespace vexel::testing
