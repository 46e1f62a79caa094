#include "system/SystemSnapshot.h"

#include <gtest/gtest.h>

using namespace vexel;

TEST(SnapshotRecords, DerivedValuesGuardTheirEdges)
{
    EXPECT_EQ(SystemSnapshot::empty(0).coreCount(), 1);
    SystemSnapshot four = SystemSnapshot::empty(0);
    four.cpu.cores = {0, 0, 0, 0};
    EXPECT_EQ(four.coreCount(), 4);

    MemoryStats memory;
    memory.app = 10;
    EXPECT_EQ(memory.usedFraction(), 0.0); // total 0
    memory.total = 8;
    EXPECT_EQ(memory.usedFraction(), 1.0); // used above total is capped
    memory = MemoryStats{100, 20, 10, 5, 40, 25, 0, MemoryPressure::normal};
    EXPECT_EQ(memory.used(), 35u);
    EXPECT_DOUBLE_EQ(memory.usedFraction(), 0.35);

    BatteryStats battery{.percent = 50};
    EXPECT_FALSE(battery.health());
    battery.maxCapacity = 5200;
    battery.designCapacity = 5000;
    EXPECT_EQ(battery.health(), 1.0);
    battery.maxCapacity = 4000;
    EXPECT_DOUBLE_EQ(*battery.health(), 0.8);
    battery.designCapacity = 0;
    EXPECT_FALSE(battery.health());
}
