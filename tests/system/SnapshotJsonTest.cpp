#include "system/SnapshotJson.h"

#include <gtest/gtest.h>

using namespace vexel;
using Json = nlohmann::ordered_json;

namespace {

SystemSnapshot fullSnapshot()
{
    SystemSnapshot s = SystemSnapshot::empty(1700000000.5);
    s.cpu = CPUStats{0.25, 0.125, {0.5, 0.25}, 1.5, 1.25, 1.0, 8, 8};
    s.memory = MemoryStats{16, 4, 2, 1, 3, 5, 7, MemoryPressure::warning};
    s.disk.volumes = {{"Macintosh HD", "/", 1000, 400}, {"Data", "/Volumes/Data", 500, 100}};
    s.disk.readRate = 12.5;
    s.disk.writeRate = 6;
    s.net = {100, 50};
    s.gpu = GPUStats{0.4, "Navi 21"};
    BatteryStats battery(80, true, true);
    battery.minutesToFull = 42;
    battery.powerW = 18.5;
    battery.cycles = 231;
    battery.designCapacity = 5000;
    battery.maxCapacity = 4500;
    battery.temperature = 30.5;
    battery.condition = "Good";
    s.battery = battery;
    s.thermal = ThermalLevel::serious;
    return s;
}

} // namespace

TEST(SnapshotJson, AbsentGpuAndBatteryLeaveNoKeys)
{
    const Json json = toJson(SystemSnapshot::empty(5));
    EXPECT_FALSE(json.contains("gpu"));
    EXPECT_FALSE(json.contains("battery"));
    EXPECT_EQ(json.dump(),
        R"({"time":5.0,"cpu":{"user":0.0,"system":0.0,"cores":[],"load1":0.0,"load5":0.0,)"
        R"("load15":0.0,"performanceCores":0,"efficiencyCores":0},"memory":{"total":0,"app":0,)"
        R"("wired":0,"compressed":0,"cached":0,"free":0,"swapUsed":0,"pressure":0},"disk":)"
        R"({"volumes":[],"readRate":0.0,"writeRate":0.0},"net":{"inRate":0.0,"outRate":0.0},)"
        R"("thermal":0})");
}

TEST(SnapshotJson, DecodingRestoresEveryField)
{
    const auto original = fullSnapshot();
    const auto decoded = snapshotFromJson(Json::parse(toJson(original).dump()));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(*decoded, original);

    const auto bare = snapshotFromJson(toJson(SystemSnapshot::empty(3)));
    ASSERT_TRUE(bare);
    EXPECT_FALSE(bare->gpu);
    EXPECT_FALSE(bare->battery);
}

TEST(SnapshotJson, OutOfRangeOrMistypedValuesFailToDecode)
{
    struct Case {
        const char* name;
        const char* pointer;
        Json value;
    };
    const std::vector<Case> cases{
        {"thermal-4", "/thermal", 4},
        {"thermal-negative", "/thermal", -1},
        {"pressure-3", "/memory/pressure", 3},
        {"time-as-text", "/time", "now"},
        {"core-as-text", "/cpu/cores/0", "busy"},
        {"negative-byte-count", "/memory/total", -5},
        {"battery-percent-as-float", "/battery/percent", 80.5},
        {"optional-of-wrong-type", "/battery/cycles", "many"},
    };
    for (const auto& c : cases) {
        Json json = toJson(fullSnapshot());
        json[Json::json_pointer(c.pointer)] = c.value;
        EXPECT_FALSE(snapshotFromJson(json)) << c.name;
    }
    Json missing = toJson(fullSnapshot());
    missing.erase("net");
    EXPECT_FALSE(snapshotFromJson(missing));
    EXPECT_FALSE(snapshotFromJson(Json::array()));
}

TEST(SnapshotJson, RawLevelsOutsideTheirRangeGiveNoLevel)
{
    EXPECT_EQ(thermalLevelFromRaw(3), ThermalLevel::critical);
    EXPECT_FALSE(thermalLevelFromRaw(4));
    EXPECT_EQ(memoryPressureFromRaw(2), MemoryPressure::critical);
    EXPECT_FALSE(memoryPressureFromRaw(3));
    EXPECT_LT(ThermalLevel::fair, ThermalLevel::serious);
    EXPECT_EQ(title(ThermalLevel::serious), "Hot");
    EXPECT_EQ(title(MemoryPressure::warning), "Warning");
}

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

    BatteryStats battery(50, false, false);
    EXPECT_FALSE(battery.health());
    battery.maxCapacity = 5200;
    battery.designCapacity = 5000;
    EXPECT_EQ(battery.health(), 1.0);
    battery.maxCapacity = 4000;
    EXPECT_DOUBLE_EQ(*battery.health(), 0.8);
    battery.designCapacity = 0;
    EXPECT_FALSE(battery.health());

    DiskStats disk;
    EXPECT_FALSE(disk.main());
    disk.volumes = {{"Root", "/", 1, 1}, {"Home", "/home", 2, 2}};
    EXPECT_EQ(disk.main()->path, "/");
}
