#include "spikes/StrainRules.h"

#include <gtest/gtest.h>

using namespace vexel;

TEST(StrainRules, CpuThresholdsAreInclusive)
{
    const StrainRules rules;
    EXPECT_EQ(rules.cpu(0.59), Strain::calm);
    EXPECT_EQ(rules.cpu(0.6), Strain::elevated);
    EXPECT_EQ(rules.cpu(0.85), Strain::strained);
    EXPECT_EQ(rules.gpu(std::nullopt), Strain::calm);
    EXPECT_EQ(rules.gpu(GPUStats{0.8, "GPU"}), Strain::elevated);
    EXPECT_EQ(rules.gpu(GPUStats{0.95, "GPU"}), Strain::strained);
    EXPECT_EQ(rules.gpu(GPUStats{0.79, "GPU"}), Strain::calm);
}

TEST(StrainRules, MemoryFollowsPressureAndHeatFollowsThermalLevel)
{
    const StrainRules rules;
    MemoryStats memory;
    memory.pressure = MemoryPressure::warning;
    EXPECT_EQ(rules.memory(memory), Strain::elevated);
    memory.pressure = MemoryPressure::critical;
    EXPECT_EQ(rules.memory(memory), Strain::strained);
    EXPECT_EQ(rules.thermal(ThermalLevel::fair), Strain::elevated);
    EXPECT_EQ(rules.thermal(ThermalLevel::serious), Strain::strained);
    EXPECT_EQ(rules.thermal(ThermalLevel::critical), Strain::strained);
}

TEST(StrainRules, DiskByTheFreeShareOfTheFirstVolume)
{
    const StrainRules rules;
    DiskStats disk;
    EXPECT_EQ(rules.disk(disk), Strain::calm);
    disk.volumes = {{"Root", "/", 0, 0}};
    EXPECT_EQ(rules.disk(disk), Strain::calm);
    disk.volumes = {{"Root", "/", 1000, 100}, {"Other", "/x", 1000, 0}};
    EXPECT_EQ(rules.disk(disk), Strain::elevated);
    disk.volumes[0].available = 50;
    EXPECT_EQ(rules.disk(disk), Strain::strained);
    disk.volumes[0].available = 101;
    EXPECT_EQ(rules.disk(disk), Strain::calm);
}

TEST(StrainRules, NetworkIsNeverStrainedAndChargingBatteriesAreCalm)
{
    const StrainRules rules;
    EXPECT_EQ(rules.network(NetStats{30e6, 30e6}), Strain::elevated);
    EXPECT_EQ(rules.network(NetStats{1e12, 1e12}), Strain::elevated);
    EXPECT_EQ(rules.network(NetStats{49e6, 0.9e6}), Strain::calm);
    EXPECT_EQ(rules.battery(std::nullopt), Strain::calm);
    EXPECT_EQ(rules.battery(BatteryStats{.percent = 5, .charging = true}), Strain::calm);
    EXPECT_EQ(rules.battery(BatteryStats{.percent = 5, .onAC = true}), Strain::calm);
    EXPECT_EQ(rules.battery(BatteryStats{.percent = 10}), Strain::strained);
    EXPECT_EQ(rules.battery(BatteryStats{.percent = 20}), Strain::elevated);
    EXPECT_EQ(rules.battery(BatteryStats{.percent = 21}), Strain::calm);
}
