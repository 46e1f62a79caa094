#include "io/Files.h"
#include "system/linux/LiveSystemReader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

using namespace vexel;
namespace fs = std::filesystem;

namespace {

// A private copy of a fixture tree that a test may change between readings.
class FixtureTree {
public:
    explicit FixtureTree(const std::string& name)
        : m_root(fs::temp_directory_path() / ("vexel-tree-" + name + "-" + std::to_string(::getpid())))
    {
        fs::remove_all(m_root);
        fs::copy(fs::path(VEXEL_FIXTURES) / "linux" / name, m_root,
            fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    }
    ~FixtureTree() { fs::remove_all(m_root); }

    void write(const std::string& path, const std::string& text) const
    {
        fs::create_directories((m_root / path).parent_path());
        std::ofstream(m_root / path) << text;
    }

    [[nodiscard]] LinuxRoots roots(
        std::map<std::string, FsCapacity> capacities = {}, std::vector<NvidiaGpu> nvidia = {}) const
    {
        LinuxRoots roots;
        roots.proc = (m_root / "proc").string();
        roots.sys = (m_root / "sys").string();
        roots.dev = (m_root / "dev").string();
        roots.osRelease = (m_root / "etc/os-release").string();
        roots.pciIds = std::string(VEXEL_FIXTURES) + "/pciids/pci.ids";
        roots.capacity = [capacities](const std::string& point) -> std::optional<FsCapacity> {
            const auto it = capacities.find(point);
            return it == capacities.end() ? std::nullopt : std::optional(it->second);
        };
        roots.nvidia = [nvidia] { return nvidia; };
        return roots;
    }

private:
    fs::path m_root;
};

std::string statLine(
    unsigned long long user0, unsigned long long idle0, unsigned long long user1, unsigned long long idle1)
{
    return "cpu  0 0 0 0 0 0 0 0 0 0\ncpu0 " + std::to_string(user0) + " 0 0 " + std::to_string(idle0)
        + " 0 0 0 0 0 0\ncpu1 " + std::to_string(user1) + " 0 0 " + std::to_string(idle1) + " 0 0 0 0 0 0\n";
}

std::string netDev(unsigned long long eth0In, unsigned long long eth0Out, unsigned long long loIn)
{
    return "Inter-|   Receive  |  Transmit\n face |bytes    packets|bytes    packets\n"
           "    lo: "
        + std::to_string(loIn) + " 1 0 0 0 0 0 0 " + std::to_string(loIn) + " 1 0 0 0 0 0 0\n  eth0: "
        + std::to_string(eth0In) + " 1 0 0 0 0 0 0 " + std::to_string(eth0Out) + " 1 0 0 0 0 0 0\n";
}

} // namespace

TEST(LiveSystemReaderOnFixtures, TheVirtualMachineAsCaptured)
{
    FixtureTree tree("vm");
    LiveSystemReader reader(tree.roots({{"/", {270553174016, 82975072256}}}));
    const auto first = reader.read(1000);
    EXPECT_EQ(first.time, 1000);
    EXPECT_EQ(first.cpu.cores, (std::vector<double>{0, 0})); // the first reading has no rates
    EXPECT_EQ(first.cpu.performanceCores, 0); // both capacities are 1024
    EXPECT_GT(first.memory.total, 0u);
    EXPECT_EQ(first.memory.compressed, 0u); // zram0 exists but holds nothing
    ASSERT_EQ(first.disk.volumes.size(), 1u);
    EXPECT_EQ(first.disk.volumes[0], (VolumeInfo{"Debian GNU/Linux", "/", 270553174016, 82975072256}));
    EXPECT_FALSE(first.gpu);
    EXPECT_FALSE(first.battery);
    EXPECT_EQ(first.thermal, ThermalLevel::nominal);
}

TEST(LiveSystemReaderOnFixtures, RatesComeFromCounterDifferences)
{
    FixtureTree tree("vm");
    tree.write("proc/stat", statLine(100, 100, 100, 100));
    tree.write("proc/net/dev", netDev(1000, 500, 0));
    tree.write("proc/diskstats", " 254 0 vda 1 0 100 0 1 0 10 0 0 0 0\n 7 0 loop0 1 0 100 0 1 0 100 0 0 0 0\n");
    LiveSystemReader reader(tree.roots());
    (void)reader.read(10);

    tree.write("proc/stat", statLine(175, 125, 100, 200)); // cpu0 75 % busy, cpu1 idle
    tree.write("proc/net/dev", netDev(5000, 2500, 999999)); // loopback never counts
    // loop devices are not disks; vda read 2048 sectors and wrote 1024
    tree.write("proc/diskstats", " 254 0 vda 1 0 2148 0 1 0 1034 0 0 0 0\n 7 0 loop0 1 0 9100 0 1 0 9100 0 0 0 0\n");
    const auto second = reader.read(12);
    EXPECT_EQ(second.cpu.cores, (std::vector<double>{0.75, 0.0}));
    EXPECT_DOUBLE_EQ(second.cpu.user, 75.0 / 200.0);
    EXPECT_DOUBLE_EQ(second.net.inRate, 2000);
    EXPECT_DOUBLE_EQ(second.net.outRate, 1000);
    EXPECT_DOUBLE_EQ(second.disk.readRate, 2048.0 * 512 / 2);
    EXPECT_DOUBLE_EQ(second.disk.writeRate, 1024.0 * 512 / 2);

    // The same instant again: rates are 0 but the counters are replaced.
    tree.write("proc/net/dev", netDev(9000, 2500, 0));
    EXPECT_EQ(reader.read(12).net.inRate, 0);
    tree.write("proc/net/dev", netDev(9100, 2500, 0));
    EXPECT_DOUBLE_EQ(reader.read(13).net.inRate, 100);

    // A counter that went backwards (a driver reload) counts 0, not a huge number.
    tree.write("proc/net/dev", netDev(50, 2600, 0));
    const auto reset = reader.read(14);
    EXPECT_EQ(reset.net.inRate, 0);
    EXPECT_DOUBLE_EQ(reset.net.outRate, 100);

    // A core that went offline: zeros for the cores there are, then normal again.
    tree.write("proc/stat", "cpu0 500 0 0 500 0 0 0 0 0 0\n");
    EXPECT_EQ(reader.read(15).cpu.cores, std::vector<double>{0.0});
    tree.write("proc/stat", "cpu0 600 0 0 500 0 0 0 0 0 0\n");
    EXPECT_EQ(reader.read(16).cpu.cores, std::vector<double>{1.0});
}

TEST(LiveSystemReaderOnFixtures, IntelLaptopRunningHotOnBattery)
{
    FixtureTree tree("laptop-intel-hot");
    LiveSystemReader reader(tree.roots());
    const auto snapshot = reader.read(100);
    EXPECT_EQ(snapshot.cpu.performanceCores, 8);
    EXPECT_EQ(snapshot.cpu.efficiencyCores, 8);
    ASSERT_TRUE(snapshot.battery);
    EXPECT_EQ(snapshot.battery->percent, 72); // the uevent's fields are the PowerSupply parser's test
    EXPECT_EQ(snapshot.thermal, ThermalLevel::serious); // TCPU above its passive trip

    ASSERT_TRUE(snapshot.gpu);
    EXPECT_EQ(snapshot.gpu->name, "Alder Lake-P Integrated Graphics Controller");
    EXPECT_EQ(snapshot.gpu->utilisation, 0); // residency needs two readings

    // 1.5 s of the next 2 s in RC6: the GPU was busy a quarter of the time.
    tree.write("sys/class/drm/card0/gt/gt0/rc6_residency_ms", "8201500\n");
    // The package throttled for 1.2 s of those 2 s.
    for (int cpu = 0; cpu < 16; ++cpu) {
        const std::string folder = "sys/devices/system/cpu/cpu" + std::to_string(cpu) + "/thermal_throttle/";
        tree.write(folder + "package_throttle_count", "13\n");
        tree.write(folder + "package_throttle_total_time_ms", "6510\n");
    }
    const auto later = reader.read(102);
    EXPECT_DOUBLE_EQ(later.gpu->utilisation, 0.25);
    EXPECT_EQ(later.thermal, ThermalLevel::critical);
    // The battery stays cached for 30 seconds, even when the file changes.
    tree.write("sys/class/power_supply/BAT0/uevent", "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_CAPACITY=10\n");
    EXPECT_EQ(reader.read(120).battery->percent, 72);
    EXPECT_EQ(reader.read(131).battery->percent, 10);
    // A clock that went backwards invalidates the cache at once.
    tree.write("sys/class/power_supply/BAT0/uevent", "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_CAPACITY=9\n");
    EXPECT_EQ(reader.read(125).battery->percent, 9);
}

// The same laptop idle and cool, with the TCC offset thermald set (10 of 63):
// nothing slows its processor.
TEST(LiveSystemReaderOnFixtures, IntelLaptopIdleWithItsTccOffsetSet)
{
    FixtureTree tree("laptop-intel-idle");
    LiveSystemReader reader(tree.roots());
    EXPECT_EQ(reader.read(100).thermal, ThermalLevel::nominal);
    EXPECT_EQ(reader.read(102).thermal, ThermalLevel::nominal);
}

TEST(LiveSystemReaderOnFixtures, AmdLaptopChargingWithItsGpuBusy)
{
    FixtureTree tree("laptop-amd-charging");
    LiveSystemReader reader(tree.roots());
    const auto snapshot = reader.read(5);
    EXPECT_EQ(snapshot.cpu.performanceCores, 0); // sixteen equal cores
    ASSERT_TRUE(snapshot.battery);
    EXPECT_EQ(snapshot.battery->percent, 46);
    ASSERT_TRUE(snapshot.gpu);
    EXPECT_EQ(snapshot.gpu->name, "Navi 21 [Radeon RX 6800/6800 XT / 6900 XT]");
    EXPECT_DOUBLE_EQ(snapshot.gpu->utilisation, 0.37);
    EXPECT_EQ(snapshot.thermal, ThermalLevel::nominal);
    // Every chip's temperatures in hwmon order, numbered sensors by number;
    // thinkpad's absent third sensor (-128 °C) left out; the ACPI zone no chip mirrors.
    std::vector<std::string> temperatures;
    for (const auto& t : snapshot.sensors.temperatures)
        temperatures.push_back(t.chip + " " + t.label + " " + std::to_string(static_cast<int>(t.celsius)));
    EXPECT_EQ(temperatures,
        (std::vector<std::string>{"nvme Composite 38", "k10temp Tctl 62", "thinkpad temp1 58", "thinkpad temp2 47",
            "amdgpu edge 51", "acpitz zone 0 55"}));
    ASSERT_FALSE(snapshot.sensors.temperatures.empty());
    EXPECT_EQ(snapshot.sensors.temperatures.front().high, 81.85);
    EXPECT_EQ(snapshot.sensors.temperatures.front().critical, 84.85);
    EXPECT_EQ(snapshot.sensors.fans, (std::vector<FanSpeed>{{"thinkpad", "fan1", 2960}}));

    // A sensor that reads nonsense is left out, the others stay.
    tree.write("sys/class/hwmon/hwmon2/temp1_input", "N/A\n");
    tree.write("sys/class/hwmon/hwmon3/fan1_input", "\n");
    LiveSystemReader again(tree.roots());
    const auto broken = again.read(5).sensors;
    EXPECT_EQ(broken.temperatures.size(), temperatures.size() - 1);
    EXPECT_TRUE(broken.fans.empty());
    // Nothing under /proc in this tree: zeros, never a failure.
    EXPECT_EQ(snapshot.memory, MemoryStats{});
    EXPECT_TRUE(snapshot.cpu.cores.empty());
    EXPECT_TRUE(snapshot.disk.volumes.empty());
}

TEST(LiveSystemReaderOnFixtures, DesktopWithNvidiaZramAndSeveralVolumes)
{
    FixtureTree tree("desktop-nvidia");
    const std::map<std::string, FsCapacity> capacities{{"/", {500'000'000'000, 120'000'000'000}},
        {"/home", {2'000'000'000'000, 900'000'000'000}}, {"/srv/data", {2'000'000'000'000, 900'000'000'000}},
        {"/media/alice/USB STICK", {32'000'000'000, 30'000'000'000}}};
    LiveSystemReader reader(tree.roots(capacities, {{"NVIDIA GeForce RTX 3060", 0.12}}));
    const auto first = reader.read(50);
    ASSERT_EQ(first.disk.volumes.size(), 3u);
    EXPECT_EQ(first.disk.volumes[0].name, "Fedora Linux"); // a root without a label
    EXPECT_EQ(first.disk.volumes[1].name, "home");
    EXPECT_EQ(first.disk.volumes[2].name, "USB STICK");
    EXPECT_EQ(first.memory.compressed, 78643200u + 81920u * 1024);
    EXPECT_EQ(first.memory.swapUsed, (8388604u - 7340028u) * 1024ull);
    EXPECT_EQ(first.memory.pressure, MemoryPressure::normal);
    // The suspended AMD GPU reads idle without being woken; NVIDIA is the busiest.
    ASSERT_TRUE(first.gpu);
    EXPECT_EQ(first.gpu->name, "NVIDIA GeForce RTX 3060");
    EXPECT_DOUBLE_EQ(first.gpu->utilisation, 0.12);
    EXPECT_EQ(first.thermal, ThermalLevel::nominal); // a spinning fan alone
    EXPECT_FALSE(first.battery);

    // Only whole physical disks count (not partitions, dm, loop, zram or hidden paths),
    // and only physical interfaces (not docker, veth or wireguard).
    tree.write("proc/diskstats",
        " 259 0 nvme0n1 0 0 28906466 0 0 0 41087056 0 0 0 0\n"
        " 259 2 nvme0n1p2 0 0 99999999 0 0 0 99999999 0 0 0 0\n"
        " 259 3 nvme1c1n1 0 0 99999999 0 0 0 0 0 0 0 0\n"
        " 253 0 dm-0 0 0 99999999 0 0 0 99999999 0 0 0 0\n"
        " 8 0 sda 0 0 204800 0 0 0 96 0 0 0 0\n");
    tree.write("proc/net/dev",
        "h\nh\nenp6s0: 9123457789 0 0 0 0 0 0 0 612345678 0 0 0 0 0 0 0\n"
        "docker0: 99999999 0 0 0 0 0 0 0 99999999 0 0 0 0 0 0 0\n"
        "wg0: 99999999 0 0 0 0 0 0 0 99999999 0 0 0 0 0 0 0\n"
        "wlp5s0: 205800 0 0 0 0 0 0 0 102400 0 0 0 0 0 0 0\n");
    const auto second = reader.read(51);
    EXPECT_DOUBLE_EQ(second.disk.readRate, 2048.0 * 512);
    EXPECT_DOUBLE_EQ(second.disk.writeRate, 0);
    EXPECT_DOUBLE_EQ(second.net.inRate, 2000);
    EXPECT_DOUBLE_EQ(second.net.outRate, 0);
}

// NVML wakes a runtime-suspended GPU: a hybrid laptop's sleeping NVIDIA GPU
// is never asked, whether nvidia-drm gave it a DRM card or not.
TEST(LiveSystemReaderOnFixtures, ASleepingNvidiaGpuIsNotWoken)
{
    int asked = 0;
    const auto askNvml = [&asked](LinuxRoots roots) {
        roots.nvidia = [&asked] {
            ++asked;
            return std::vector<NvidiaGpu>{{"NVIDIA GeForce RTX 3050 Laptop GPU", 0.41}};
        };
        return roots;
    };

    // Optimus without nvidia-drm: the driver is loaded, the GPU sits on the PCI bus only.
    FixtureTree laptop("laptop-optimus");
    const std::string status = "sys/devices/pci0000:00/0000:00:01.0/0000:01:00.0/power/runtime_status";
    LiveSystemReader reader(askNvml(laptop.roots()));
    auto gpu = reader.read(10).gpu;
    ASSERT_TRUE(gpu);
    EXPECT_EQ(gpu->name, "Alder Lake-P Integrated Graphics Controller"); // both idle: the display's
    EXPECT_EQ(asked, 0);
    laptop.write(status, "active\n");
    // The iGPU slept through the two seconds.
    laptop.write("sys/devices/pci0000:00/0000:00:02.0/drm/card0/gt/gt0/rc6_residency_ms", "8202000\n");
    gpu = reader.read(12).gpu;
    ASSERT_TRUE(gpu);
    EXPECT_EQ(gpu->name, "NVIDIA GeForce RTX 3050 Laptop GPU");
    EXPECT_DOUBLE_EQ(gpu->utilisation, 0.41);
    EXPECT_EQ(asked, 1);

    // A desktop whose NVIDIA card is bound through nvidia-drm, suspended.
    FixtureTree desktop("desktop-nvidia");
    desktop.write("sys/class/drm/card0/device/power/runtime_status", "suspended\n");
    asked = 0;
    gpu = LiveSystemReader(askNvml(desktop.roots())).read(20).gpu;
    ASSERT_TRUE(gpu);
    EXPECT_DOUBLE_EQ(gpu->utilisation, 0);
    EXPECT_EQ(asked, 0);
}

TEST(LiveSystemReaderOnFixtures, ArmBigLittleLevelsAndAnEmptyTree)
{
    FixtureTree tree("arm-biglittle");
    const auto snapshot = LiveSystemReader(tree.roots()).read(1);
    EXPECT_EQ(snapshot.cpu.performanceCores, 4);
    EXPECT_EQ(snapshot.cpu.efficiencyCores, 4);

    LinuxRoots nowhere;
    nowhere.proc = "/nonexistent/proc";
    nowhere.sys = "/nonexistent/sys";
    nowhere.dev = "/nonexistent/dev";
    const auto empty = LiveSystemReader(nowhere).read(7);
    auto expected = SystemSnapshot::empty(7);
    EXPECT_EQ(empty, expected);
}
