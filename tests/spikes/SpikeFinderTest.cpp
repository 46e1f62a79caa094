#include "spikes/SpikeFinder.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

SysPoint minute(double t, double cpu)
{
    SysPoint p;
    p.t = t;
    p.dur = 60;
    p.cpu = cpu;
    p.cpuMax = cpu;
    return p;
}

std::vector<Spike> ofKind(const std::vector<Spike>& spikes, SpikeKind kind)
{
    std::vector<Spike> result;
    std::copy_if(
        spikes.begin(), spikes.end(), std::back_inserter(result), [&](const Spike& s) { return s.kind == kind; });
    return result;
}

const SpikeRules rules;

} // namespace

TEST(SpikeFinder, CpuRunsNeedThreeMinutes)
{
    EXPECT_TRUE(SpikeFinder::find({minute(0, 0.9)}, {}, rules).empty()); // one point: 60 < 179
    const auto three = SpikeFinder::find({minute(0, 0.9), minute(60, 0.95), minute(120, 0.8)}, {}, rules);
    ASSERT_EQ(three.size(), 1u);
    EXPECT_EQ(three[0].kind, SpikeKind::cpu);
    EXPECT_EQ(three[0].start, 0);
    EXPECT_EQ(three[0].end, 180);
    EXPECT_EQ(three[0].peak, 0.95);
    EXPECT_EQ(three[0].summary.english(), "The processor was busy for 3 min");
    EXPECT_EQ(three[0].id(), "cpu@0");
}

// Apps recorded, but none of them used the processor (the machine's own
// work): the spike names no one, not the first app by name.
TEST(SpikeFinder, NoCulpritWhenNoAppDidAnyOfIt)
{
    const std::vector<SysPoint> busy{minute(0, 0.9), minute(60, 0.95), minute(120, 0.8)};
    std::vector<AppPoint> idle;
    for (double t : {0.0, 60.0, 120.0})
        for (const char* name : {"Alpha", "Beta"})
            idle.push_back(AppPoint{t, 60, std::string("app:") + name, name, 0, 0, 1e8, 0, 0, 0});
    const auto spikes = SpikeFinder::find(busy, idle, rules);
    ASSERT_EQ(spikes.size(), 1u);
    EXPECT_FALSE(spikes[0].culprit);
    EXPECT_FALSE(spikes[0].share);
    EXPECT_EQ(spikes[0].summary.english(), "The processor was busy for 3 min");
}

TEST(SpikeFinder, QuietGapsOfThreeMinutesMergeAndOfFourSplit)
{
    std::vector<SysPoint> points;
    const auto burst = [&](double from) {
        for (int i = 0; i < 3; ++i)
            points.push_back(minute(from + 60 * i, 0.9));
    };
    burst(0);
    for (int i = 3; i < 6; ++i)
        points.push_back(minute(60 * i, 0.1)); // three quiet minutes
    burst(360);
    EXPECT_EQ(ofKind(SpikeFinder::find(points, {}, rules), SpikeKind::cpu).size(), 1u);
    points.clear();
    burst(0);
    for (int i = 3; i < 7; ++i)
        points.push_back(minute(60 * i, 0.1)); // four quiet minutes
    burst(420);
    const auto two = ofKind(SpikeFinder::find(points, {}, rules), SpikeKind::cpu);
    ASSERT_EQ(two.size(), 2u);
    EXPECT_GT(two[0].start, two[1].start); // newest first
}

TEST(SpikeFinder, NoPositiveGapMeansNoSpikes)
{
    EXPECT_TRUE(SpikeFinder::find({minute(5, 0.9), minute(5, 0.9), minute(5, 0.9), minute(5, 0.9)}, {}, rules).empty());
}

TEST(SpikeFinder, DiskAndNetworkAmountsWithCulprits)
{
    std::vector<SysPoint> points;
    std::vector<AppPoint> apps;
    for (int i = 0; i < 6; ++i) {
        SysPoint p = minute(60 * i, 0.1);
        p.diskW = 200e6; // 1.2 GB in all
        p.netIn = 120e6;
        points.push_back(p);
        apps.push_back(AppPoint{p.t, 60, "app:backup", "Backup", 0.1, 0.1, 0, 0, 180e6, 0});
        apps.push_back(AppPoint{p.t, 60, "app:other", "Other", 0.1, 0.1, 0, 0, 20e6, 110e6});
    }
    const auto spikes = SpikeFinder::find(points, apps, rules);
    const auto disk = ofKind(spikes, SpikeKind::disk);
    ASSERT_EQ(disk.size(), 1u);
    EXPECT_EQ(disk[0].peak, 1.2e9);
    EXPECT_EQ(disk[0].summary.english(), "1.2 GB written to disk by Backup");
    EXPECT_NEAR(*disk[0].share, 0.9, 1e-12);
    const auto net = ofKind(spikes, SpikeKind::network);
    ASSERT_EQ(net.size(), 1u);
    EXPECT_EQ(net[0].summary.english(), "720 MB moved over the network by Other");
    // 900 MB in all is not reported, however fast it was written.
    for (auto& p : points)
        p.diskW = 150e6;
    EXPECT_TRUE(ofKind(SpikeFinder::find(points, {}, rules), SpikeKind::disk).empty());
}

TEST(SpikeFinder, BatteryDrainOnlyWhileDischargingAndOverlapsAllReported)
{
    std::vector<SysPoint> points;
    for (int i = 0; i < 40; ++i) {
        SysPoint p = minute(60 * i, 0.9);
        p.battery = 90 - 0.5 * i;
        p.power = -30;
        p.pressure = i >= 10 && i < 15 ? 1 : 0;
        p.thermal = i >= 20 && i < 22 ? 2 : 0;
        points.push_back(p);
    }
    const auto spikes = SpikeFinder::find(points, {}, rules);
    EXPECT_EQ(ofKind(spikes, SpikeKind::cpu).size(), 1u);
    EXPECT_EQ(ofKind(spikes, SpikeKind::memory).size(), 1u);
    EXPECT_EQ(ofKind(spikes, SpikeKind::thermal).size(), 1u);
    const auto drains = ofKind(spikes, SpikeKind::battery);
    ASSERT_EQ(drains.size(), 1u);
    EXPECT_EQ(drains[0].peak, 12);
    EXPECT_EQ(drains[0].end - drains[0].start, 24 * 60);
    for (auto& p : points)
        p.power = 25; // charging: the same fall is no drain
    EXPECT_TRUE(ofKind(SpikeFinder::find(points, {}, rules), SpikeKind::battery).empty());
}
