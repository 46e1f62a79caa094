#include "io/Files.h"
#include "system/linux/Diskstats.h"
#include "system/linux/Meminfo.h"
#include "system/linux/NetDev.h"
#include "system/linux/PressureStall.h"
#include "system/linux/ProcStat.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

std::string fixture(const std::string& path)
{
    const auto text = Files::read(std::string(VEXEL_FIXTURES) + "/" + path);
    EXPECT_TRUE(text) << path;
    return text.value_or("");
}

} // namespace

TEST(ProcStat, CoreLinesMapIrqToSystemAndIowaitToIdle)
{
    const auto cores = ProcStat::parseCoreTicks("cpu  1086 0 1224 64120 106 0 20 11 0 0\n"
                                                "cpu0 411 7 493 32367 7 2 5 3 0 0\n"
                                                "cpu1 675 0 731 31752 98 0 15 8 0 0\n"
                                                "intr 64497 0 0\nctxt 1\n");
    ASSERT_EQ(cores.size(), 2u);
    EXPECT_EQ(cores[0], (CoreTicks{411, 493 + 2 + 5, 32367 + 7, 7})); // steal (3) left out
    EXPECT_EQ(cores[1], (CoreTicks{675, 731 + 15, 31752 + 98, 0}));
}

TEST(ProcStat, CapturedFileAndOddShapes)
{
    EXPECT_EQ(ProcStat::parseCoreTicks(fixture("linux/vm/proc/stat")).size(), 2u);
    // Kernels before 2.6 print four columns: the missing ones are zero.
    EXPECT_EQ(ProcStat::parseCoreTicks("cpu0 10 1 5 100\n").front(), (CoreTicks{10, 5, 100, 1}));
    // Offline CPUs leave gaps in the numbering; each line is still one core.
    EXPECT_EQ(ProcStat::parseCoreTicks("cpu0 1 1 1 1 1\ncpu3 2 2 2 2 2\n").size(), 2u);
    for (const char* bad : {"", "cpu0 1 2\n", "cpu0 1 x 3 4 5\n", "cpuX 1 2 3 4 5\n", "cpu0 -1 2 3 4 5\n",
             "cpu0 99999999999999999999 1 1 1\n"})
        EXPECT_TRUE(ProcStat::parseCoreTicks(bad).empty()) << bad;
}

TEST(ProcStat, LoadAverage)
{
    const auto load = ProcStat::parseLoadAverage("0.23 0.06 0.02 4/82 1885\n");
    ASSERT_TRUE(load);
    EXPECT_DOUBLE_EQ((*load)[0], 0.23);
    EXPECT_DOUBLE_EQ((*load)[2], 0.02);
    EXPECT_TRUE(ProcStat::parseLoadAverage(fixture("linux/vm/proc/loadavg")));
    for (const char* bad : {"", "0.1 0.2", "a b c", "-1 0 0 1/1 1"})
        EXPECT_FALSE(ProcStat::parseLoadAverage(bad)) << bad;
}

TEST(Meminfo, BucketsOfACapturedZramMachineAddUpToTotal)
{
    const auto fields = Meminfo::parse(fixture("proc/meminfo-zram-cgroup"));
    const auto zram = Meminfo::parseZramMemUsed(fixture("proc/zram-mm_stat"));
    ASSERT_EQ(zram, 66494464u);
    const auto memory = Meminfo::toMemoryStats(fields, *zram);
    EXPECT_EQ(memory.total, 24684084ull * 1024);
    EXPECT_EQ(memory.cached, 2325780ull * 1024);
    EXPECT_EQ(memory.app, 219528ull * 1024);
    EXPECT_EQ(memory.compressed, 66494464ull);
    EXPECT_EQ(
        memory.wired, 24684084ull * 1024 - 21867884ull * 1024 - 2325780ull * 1024 - 219528ull * 1024 - 66494464ull);
    EXPECT_EQ(memory.swapUsed, 183960ull * 1024);
    EXPECT_EQ(memory.free + memory.cached + memory.app + memory.compressed + memory.wired, memory.total);
}

TEST(Meminfo, ZswapCountsAsCompressedAndSReclaimableStandsInForKReclaimable)
{
    const auto memory = Meminfo::toMemoryStats(Meminfo::parse("MemTotal: 1000 kB\nMemFree: 100 kB\nCached: 300 kB\n"
                                                              "Shmem: 50 kB\nSReclaimable: 20 kB\nZswap: 10 kB\n"
                                                              "AnonPages: 200 kB\n"),
        0);
    EXPECT_EQ(memory.cached, (250u + 20u) * 1024);
    EXPECT_EQ(memory.app, 250u * 1024);
    EXPECT_EQ(memory.compressed, 10u * 1024);
    EXPECT_EQ(memory.wired, (1000u - 100 - 270 - 250 - 10) * 1024);
}

TEST(Meminfo, MalformedTextGivesZerosNotGarbage)
{
    const auto memory = Meminfo::toMemoryStats(Meminfo::parse("MemTotal: lots kB\nMemFree:\nBuffers 12 kB\n"
                                                              "SwapTotal: 10 kB\nSwapFree: 20 kB\n"),
        0);
    EXPECT_EQ(memory, MemoryStats{});
    // Counters that overflow when scaled are dropped.
    EXPECT_FALSE(Meminfo::parse("MemTotal: 18446744073709551615 kB\n").memTotal);
    // Free above total (a torn read) cannot make wired negative.
    const auto torn = Meminfo::toMemoryStats(Meminfo::parse("MemTotal: 10 kB\nMemFree: 50 kB\nAnonPages: 5 kB\n"), 0);
    EXPECT_EQ(torn.wired, 0u);
    EXPECT_FALSE(Meminfo::parseZramMemUsed("1 2"));
    EXPECT_FALSE(Meminfo::parseZramMemUsed("1 2 x"));
}

TEST(PressureStall, ParsesTheTenSecondAverages)
{
    const auto stalls = PressureStall::parse(fixture("proc/pressure-cgroup-thrash"));
    ASSERT_TRUE(stalls);
    EXPECT_DOUBLE_EQ(stalls->some, 17.65);
    EXPECT_DOUBLE_EQ(stalls->full, 12.99);
    EXPECT_TRUE(PressureStall::parse(fixture("linux/vm/proc/pressure/memory")));
    for (const char* bad :
        {"", "some avg10=1.0 avg60=0\n", "some avg10=x\nfull avg10=1\n", "some avg10=-1\nfull avg10=0\n"})
        EXPECT_FALSE(PressureStall::parse(bad)) << bad;
}

TEST(PressureStall, StallsCountOnlyWhenMemoryIsShort)
{
    using PressureStall::Averages;
    const auto normal = MemoryPressure::normal;
    // A cgroup thrashing at its own limit while 96 % of memory is free.
    EXPECT_EQ(PressureStall::judge(0.96, Averages{32.01, 28.34}, normal), MemoryPressure::normal);
    EXPECT_EQ(PressureStall::judge(0.30, Averages{12, 2}, normal), MemoryPressure::warning);
    EXPECT_EQ(PressureStall::judge(0.30, Averages{40, 2}, normal), MemoryPressure::critical);
    EXPECT_EQ(PressureStall::judge(0.30, Averages{15, 10}, normal), MemoryPressure::critical);
    // Without PSI the availability rules alone decide.
    EXPECT_EQ(PressureStall::judge(0.09, std::nullopt, normal), MemoryPressure::warning);
    EXPECT_EQ(PressureStall::judge(0.04, std::nullopt, normal), MemoryPressure::critical);
    EXPECT_EQ(PressureStall::judge(0.30, std::nullopt, normal), MemoryPressure::normal);
}

TEST(PressureStall, StepsDownOnlyBelowHalfTheEntryThreshold)
{
    using PressureStall::Averages;
    EXPECT_EQ(PressureStall::judge(0.3, Averages{6, 0}, MemoryPressure::warning), MemoryPressure::warning);
    EXPECT_EQ(PressureStall::judge(0.3, Averages{4.9, 0}, MemoryPressure::warning), MemoryPressure::normal);
    EXPECT_EQ(PressureStall::judge(0.3, Averages{25, 6}, MemoryPressure::critical), MemoryPressure::critical);
    EXPECT_EQ(PressureStall::judge(0.3, Averages{12, 4}, MemoryPressure::critical), MemoryPressure::warning);
    EXPECT_EQ(PressureStall::judge(0.3, Averages{6, 0}, MemoryPressure::normal), MemoryPressure::normal);
}

TEST(Diskstats, BytesFromSectorsOfEveryLine)
{
    const auto devices = Diskstats::parse(fixture("linux/vm/proc/diskstats"));
    const auto vda = std::find_if(devices.begin(), devices.end(), [](auto& d) { return d.name == "vda"; });
    ASSERT_NE(vda, devices.end());
    EXPECT_GT(vda->bytesRead, 0u);
    EXPECT_EQ(vda->bytesRead % 512, 0u);

    const auto parsed = Diskstats::parse(" 254       0 vda 8702 4855 1404314 3195 7953 3680 531296 1374 0 2592 4796\n"
                                         "   8 0 sda 1 2\n" // too short
                                         " 7 0 loop0 0 0 x 0 0 0 0 0 0 0 0\n");
    ASSERT_EQ(parsed.size(), 1u);
    EXPECT_EQ(parsed[0], (Diskstats::Device{"vda", 1404314ull * 512, 531296ull * 512}));
}

TEST(NetDev, SplitsAtTheLastColonAndSkipsHeaders)
{
    const auto interfaces = NetDev::parse(fixture("linux/vm/proc/net/dev"));
    ASSERT_EQ(interfaces.size(), 4u);
    EXPECT_EQ(interfaces[0].name, "lo");
    EXPECT_EQ(interfaces[0].received, interfaces[0].sent);

    const auto odd = NetDev::parse("eth0:1: 100 1 0 0 0 0 0 0 200 2 0 0 0 0 0 0\n" // an alias holds a colon
                                   "wlan0:5 1 0 0 0 0 0 0 7\n" // no blank after the colon
                                   "bad: 1 2 3\n"
                                   "neg: -1 0 0 0 0 0 0 0 5 0\n");
    ASSERT_EQ(odd.size(), 2u);
    EXPECT_EQ(odd[0], (NetDev::Interface{"eth0:1", 100, 200}));
    EXPECT_EQ(odd[1], (NetDev::Interface{"wlan0", 5, 7}));
}
