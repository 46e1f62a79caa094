#include "synth/DemoHistory.h"

#include <gtest/gtest.h>

using namespace vexel;

TEST(DemoHistory, ADayWithWorkingHoursAndQuietNights)
{
    const TimeZone zone = TimeZone::fixed(3600); // a Central European winter
    // Wednesday 18 November 2026: 03:00 and 15:00 local time.
    const double night = *zone.toEpoch({2026, 11, 18, 3, 0, 0});
    const double afternoon = *zone.toEpoch({2026, 11, 18, 15, 0, 0});
    const double now = afternoon + 86400;
    double nightCpu = 0;
    double dayCpu = 0;
    for (int minute = 0; minute < 60; ++minute) {
        const auto quiet = DemoHistory::sample(night + minute * 60, zone, now);
        const auto busy = DemoHistory::sample(afternoon + minute * 60, zone, now);
        for (const auto& point : {quiet, busy}) {
            EXPECT_EQ(point.dur, 60);
            EXPECT_GE(point.cpu, 0);
            EXPECT_LE(point.cpuMax, 1);
            EXPECT_GE(point.cpuMax, point.cpu);
            EXPECT_LE(point.mem, 1);
            EXPECT_GE(point.diskW, 0);
            EXPECT_TRUE(point.battery && *point.battery >= 0 && *point.battery <= 100);
        }
        nightCpu += quiet.cpu;
        dayCpu += busy.cpu;
    }
    EXPECT_GT(dayCpu, 2.5 * nightCpu);
    // A Saturday afternoon is quieter than a Wednesday's.
    const double saturday = *zone.toEpoch({2026, 11, 21, 15, 0, 0});
    EXPECT_LT(
        DemoHistory::sample(saturday, zone, now + 4 * 86400).cpu, DemoHistory::sample(afternoon, zone, now).cpu + 0.05);
}

TEST(DemoHistory, RepeatableAndEmptyInTheFuture)
{
    const TimeZone zone = TimeZone::fixed(0);
    EXPECT_EQ(DemoHistory::sample(1'795'000'000, zone, 1'795'100'000),
        DemoHistory::sample(1'795'000'000, zone, 1'795'100'000));
    const auto future = DemoHistory::sample(1'795'000'000, zone, 1'794'000'000);
    EXPECT_EQ(future.dur, 0);
    EXPECT_FALSE(future.gpu);
}
