#include "synth/DemoWorld.h"

#include <gtest/gtest.h>

using namespace vexel;

// Which processes make up which app in the demo world, and that two worlds
// advanced alike are identical, is pinned by the golden app lists and app
// reports of the command line (tests/golden/cli) and by the snapshot pictures
// being the same from run to run.

// The demo world is a machine whose figures add up, strained or not, at
// every tick of an hour: no app takes more than the whole machine, the apps
// together draw no more power than the machine does, and the cores' mean is
// the machine's CPU figure.
TEST(DemoWorld, ItsSumsHoldAtEveryTickOfAnHour)
{
    DemoWorld world;
    auto monitor = world.monitor();
    (void)monitor->sample(world.now(), {.everyone = true});
    for (int tick = 0; tick < 1800; ++tick) {
        world.strained = tick >= 900;
        world.advance(2);
        const Frame frame = monitor->sample(world.now(), {.everyone = true});
        const auto& cpu = frame.system.cpu;
        const double cores = frame.system.coreCount();
        double appWatts = 0;
        for (const auto& app : frame.apps) {
            ASSERT_LE(app.cpu, cores) << app.name << " at tick " << tick;
            ASSERT_GT(app.memory, 0u) << app.name;
            appWatts += app.energyW.value_or(0);
        }
        ASSERT_TRUE(frame.system.battery);
        ASSERT_LE(appWatts, -*frame.system.battery->powerW) << "tick " << tick;
        double coreSum = 0;
        for (const double core : cpu.cores) {
            ASSERT_LE(core, 1.0);
            coreSum += core;
        }
        ASSERT_NEAR(coreSum / cores, cpu.user + cpu.system, 1e-9) << "tick " << tick;
    }
}

TEST(Monitor, IntervalsNetworkTicksAndTheSourcesItAsks)
{
    DemoWorld world;
    auto monitor = world.monitor();
    const Frame first = monitor->sample(world.now(), {.network = true});
    EXPECT_EQ(first.interval, 0);
    EXPECT_EQ(monitor->lastNetRun(), world.now());
    EXPECT_FALSE(monitor->lastEveryoneRun());
    world.advance(2);
    const Frame second = monitor->sample(world.now(), {.everyone = true, .network = true});
    EXPECT_EQ(second.interval, 2);
    EXPECT_EQ(monitor->lastEveryoneRun(), world.now());
    const auto downloader = std::find_if(second.records.begin(), second.records.end(),
        [](const ProcRecord& r) { return r.name == "Google Chrome Helper" && r.path; });
    // (Rates carried over between network readings: the rate tracker's test.)
    EXPECT_GT(second.rates.at(ProcKey::of(*downloader)).netIn, 380'000 * 0.6);
    EXPECT_EQ(world.processSource->served, 2);
}

TEST(Frame, AppsByNameEqualBeforeContaining)
{
    Frame frame;
    AppGroup helper;
    helper.id = "app:a";
    helper.name = "Notes Helper";
    AppGroup notes;
    notes.id = "app:b";
    notes.name = "Notes";
    frame.apps = {helper, notes};
    EXPECT_EQ(frame.app("notes")->id, "app:b");
    EXPECT_EQ(frame.app("HELP")->id, "app:a");
}
