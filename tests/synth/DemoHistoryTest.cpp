#include "synth/DemoHistory.h"

#include <gtest/gtest.h>

using namespace vexel;

TEST(DemoHistory, RepeatableAndEmptyInTheFuture)
{
    const TimeZone zone = TimeZone::fixed(0);
    EXPECT_EQ(DemoHistory::sample(1'795'000'000, zone, 1'795'100'000),
        DemoHistory::sample(1'795'000'000, zone, 1'795'100'000));
    const auto future = DemoHistory::sample(1'795'000'000, zone, 1'794'000'000);
    EXPECT_EQ(future.dur, 0);
    EXPECT_FALSE(future.gpu);
}
