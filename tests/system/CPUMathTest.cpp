#include "system/CPUMath.h"

#include <gtest/gtest.h>

using namespace vexel;

TEST(CPUMath, WeightsEachCoreByItsOwnTicksAndCountsNiceAsUser)
{
    const std::vector<CoreTicks> prev{{100, 50, 1000, 10}, {0, 0, 0, 0}};
    // core 0: user 30 + nice 10, system 20, idle 140 → busy 60 of 200
    // core 1: user 100, idle 0 → busy 100 of 100
    const std::vector<CoreTicks> cur{{130, 70, 1140, 20}, {100, 0, 0, 0}};
    const auto usage = CPUMath::usage(prev, cur);
    ASSERT_EQ(usage.cores.size(), 2u);
    EXPECT_DOUBLE_EQ(usage.cores[0], 0.3);
    EXPECT_DOUBLE_EQ(usage.cores[1], 1.0);
    EXPECT_DOUBLE_EQ(usage.user, 140.0 / 300.0);
    EXPECT_DOUBLE_EQ(usage.system, 20.0 / 300.0);
}

TEST(CPUMath, BackwardsCountersCountNothing)
{
    // Idle went backwards: the core's total is only its busy delta.
    const std::vector<CoreTicks> prev{{10, 10, 500, 0}, {5, 5, 5, 5}};
    const std::vector<CoreTicks> cur{{20, 20, 400, 0}, {5, 5, 5, 5}};
    const auto usage = CPUMath::usage(prev, cur);
    EXPECT_DOUBLE_EQ(usage.cores[0], 1.0);
    EXPECT_DOUBLE_EQ(usage.cores[1], 0.0); // all deltas 0
    EXPECT_DOUBLE_EQ(usage.user, 0.5);
    EXPECT_DOUBLE_EQ(usage.system, 0.5);

    // A counter that wrapped around from near the top.
    const std::vector<CoreTicks> high{{UINT64_MAX - 1, 0, 0, 0}};
    const std::vector<CoreTicks> low{{3, 0, 7, 0}};
    const auto wrapped = CPUMath::usage(high, low);
    EXPECT_DOUBLE_EQ(wrapped.cores[0], 0.0);
    EXPECT_DOUBLE_EQ(wrapped.user, 0.0);
}
