#include "io/Files.h"
#include "system/linux/CpuTopology.h"
#include "system/linux/Mountinfo.h"
#include "system/linux/PciIds.h"
#include "system/linux/PowerSupply.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

std::string fixture(const std::string& path)
{
    const auto text = Files::read(std::string(VEXEL_FIXTURES) + "/" + path, 8 * 1024 * 1024);
    EXPECT_TRUE(text) << path;
    return text.value_or("");
}

std::vector<std::string> points(const std::vector<Mountinfo::Mount>& mounts)
{
    std::vector<std::string> result;
    for (const auto& mount : mounts)
        result.push_back(mount.mountPoint);
    return result;
}

PowerSupply::Attributes uevent(const std::string& path)
{
    return PowerSupply::parseUevent(fixture(path));
}

} // namespace

TEST(Mountinfo, ThisMachineHasOnlyItsRootAsAVolume)
{
    const auto mounts = Mountinfo::parse(fixture("linux/vm/proc/self/mountinfo"));
    EXPECT_GT(mounts.size(), 10u);
    EXPECT_EQ(points(Mountinfo::userVolumes(mounts)), std::vector<std::string>{"/"});
}

TEST(Mountinfo, DesktopVolumesSkipSystemTreesAndRepeatedDevices)
{
    const auto mounts = Mountinfo::parse(fixture("linux/desktop-nvidia/proc/self/mountinfo"));
    // /boot/efi, /run/user, docker's bind mount and overlays, snaps, gvfs and NFS are left out;
    // /srv/data is a second subvolume of /home's pool.
    EXPECT_EQ(
        points(Mountinfo::userVolumes(mounts)), (std::vector<std::string>{"/", "/home", "/media/alice/USB STICK"}));
}

TEST(Mountinfo, RootComesFirstWhereverItIsListed)
{
    const auto mounts = Mountinfo::parse("40 1 8:17 / /data rw - xfs /dev/sdb1 rw\n"
                                         "41 1 8:2 / / rw - btrfs /dev/sda2 rw\n"
                                         "42 1 8:33 / /run/media/bob/Photos rw - exfat /dev/sdc1 rw\n"
                                         "43 1 8:49 / /run/mount/x rw - ext4 /dev/sdd1 rw\n");
    EXPECT_EQ(
        points(Mountinfo::userVolumes(mounts)), (std::vector<std::string>{"/", "/data", "/run/media/bob/Photos"}));
}

TEST(Mountinfo, EscapesAndMalformedLines)
{
    EXPECT_EQ(Mountinfo::unescape(R"(/media/a\040b\011c\012d\134e)"), "/media/a b\tc\nd\\e");
    EXPECT_EQ(Mountinfo::unescape(R"(/trailing\04)"), R"(/trailing\04)");
    EXPECT_EQ(Mountinfo::unescape(R"(\999)"), R"(\999)");
    const auto mounts = Mountinfo::parse("no separator here\n"
                                         "1 2 3 - ext4\n"
                                         "27 1 254:0 / / rw,relatime - ext4 /dev/vda rw\n");
    ASSERT_EQ(mounts.size(), 1u);
    EXPECT_EQ(mounts[0], (Mountinfo::Mount{"254:0", "/", "ext4", "/dev/vda", "rw"}));
    // Optional tags between the options and the separator do not shift the fields.
    const auto tagged = Mountinfo::parse("22 1 259:2 / / rw shared:1 master:4 - ext4 /dev/nvme0n1p2 rw\n");
    EXPECT_EQ(tagged.at(0).fsType, "ext4");
}

TEST(CpuTopology, CpuLists)
{
    EXPECT_EQ(CpuTopology::countCpuList("0-15\n"), 16);
    EXPECT_EQ(CpuTopology::countCpuList("0-3,8,10-11"), 7);
    EXPECT_EQ(CpuTopology::countCpuList("5"), 1);
    for (const char* bad : {"", "3-1", "a-b", "0-", "0,,1", "0-99999999999"})
        EXPECT_FALSE(CpuTopology::countCpuList(bad)) << bad;
}

TEST(CpuTopology, CapacitiesBelowThreeQuartersOfTheLargestAreEfficiencyCores)
{
    const std::vector<long long> bigLittle{381, 381, 381, 381, 870, 870, 870, 1024};
    EXPECT_EQ(CpuTopology::fromCapacities(bigLittle), (CpuTopology::Levels{4, 4}));
    const std::vector<long long> equal{1024, 1024};
    EXPECT_EQ(CpuTopology::fromCapacities(equal), (CpuTopology::Levels{0, 0}));
    EXPECT_EQ(CpuTopology::fromCapacities({}), (CpuTopology::Levels{0, 0}));
    const std::vector<long long> boundary{768, 1024}; // exactly 75 % is a performance core
    EXPECT_EQ(CpuTopology::fromCapacities(boundary), (CpuTopology::Levels{2, 0}));
}

TEST(PowerSupply, DischargingEnergyBatteryOnALaptop)
{
    const std::vector<PowerSupply::Attributes> supplies{
        uevent("linux/laptop-intel-hot/sys/class/power_supply/AC/uevent"),
        uevent("linux/laptop-intel-hot/sys/class/power_supply/BAT0/uevent")};
    const auto battery = PowerSupply::battery(supplies);
    ASSERT_TRUE(battery);
    EXPECT_EQ(battery->percent, 72);
    EXPECT_FALSE(battery->charging);
    EXPECT_FALSE(battery->onAC);
    EXPECT_DOUBLE_EQ(*battery->powerW, -7.89); // ACPI reports a magnitude; the status gives the sign
    EXPECT_EQ(battery->minutesLeft, 280); // 36.76 Wh at 7.89 W
    EXPECT_FALSE(battery->minutesToFull);
    EXPECT_EQ(battery->cycles, 231);
    EXPECT_EQ(battery->designCapacity, 3692); // 57 Wh at the 15.44 V design voltage
    EXPECT_EQ(battery->maxCapacity, 3308);
    EXPECT_FALSE(battery->temperature);
    EXPECT_FALSE(battery->condition);
}

TEST(PowerSupply, ChargingChargeBatteryIgnoresTheMouse)
{
    auto mains = uevent("linux/laptop-amd-charging/sys/class/power_supply/ACAD/uevent");
    mains["type"] = "Mains"; // this kernel keeps the type in its own file
    const std::vector<PowerSupply::Attributes> supplies{mains,
        uevent("linux/laptop-amd-charging/sys/class/power_supply/BAT1/uevent"),
        uevent("linux/laptop-amd-charging/sys/class/power_supply/hidpp_battery_0/uevent")};
    const auto battery = PowerSupply::battery(supplies);
    ASSERT_TRUE(battery);
    EXPECT_EQ(battery->percent, 46);
    EXPECT_TRUE(battery->charging);
    EXPECT_TRUE(battery->onAC);
    EXPECT_NEAR(*battery->powerW, 12.612 * 2.31, 1e-9);
    EXPECT_EQ(battery->minutesToFull, 56); // (3.989 − 1.836) Ah at 2.31 A
    EXPECT_FALSE(battery->minutesLeft);
    EXPECT_FALSE(battery->cycles); // 0 means unknown
    EXPECT_EQ(battery->designCapacity, 4210);
    EXPECT_EQ(battery->maxCapacity, 3989);
}

TEST(PowerSupply, KernelEstimatesTemperatureAndTwoBatteries)
{
    PowerSupply::Attributes bat0{{"type", "Battery"}, {"status", "Discharging"}, {"capacity", "50"},
        {"energy_now", "20000000"}, {"energy_full", "40000000"}, {"power_now", "-10000000"},
        {"time_to_empty_now", "5400"}, {"temp", "305"}, {"health", "Good"}};
    PowerSupply::Attributes bat1{{"type", "Battery"}, {"status", "Discharging"}, {"capacity", "100"},
        {"energy_now", "20000000"}, {"energy_full", "20000000"}, {"power_now", "0"}};
    const auto one = PowerSupply::battery(std::vector{bat0});
    EXPECT_EQ(one->minutesLeft, 90);
    EXPECT_DOUBLE_EQ(*one->temperature, 30.5);
    EXPECT_EQ(one->condition, "Good");
    EXPECT_DOUBLE_EQ(*one->powerW, -10.0);
    // With no Mains supply at all, external power is read from the status.
    EXPECT_FALSE(one->onAC);

    const auto both = PowerSupply::battery(std::vector{bat0, bat1});
    EXPECT_EQ(both->percent, 67); // 40 of 60 Wh
    // No Mains supply at all: a full battery means external power.
    PowerSupply::Attributes full{{"type", "Battery"}, {"status", "Full"}, {"capacity", "100"}};
    EXPECT_TRUE(PowerSupply::battery(std::vector{full})->onAC);
}

TEST(PowerSupply, NoBatteryOrNonsense)
{
    EXPECT_FALSE(PowerSupply::battery({}));
    const std::vector<PowerSupply::Attributes> notPresent{{{"type", "Battery"}, {"present", "0"}, {"capacity", "80"}}};
    EXPECT_FALSE(PowerSupply::battery(notPresent));
    const std::vector<PowerSupply::Attributes> noCharge{{{"type", "Battery"}, {"status", "Unknown"}}};
    EXPECT_FALSE(PowerSupply::battery(noCharge));
    const std::vector<PowerSupply::Attributes> garbage{{{"type", "Battery"}, {"capacity", "250"},
        {"status", "Discharging"}, {"power_now", "nan"}, {"time_to_empty_now", "-60"}, {"cycle_count", "-3"}}};
    const auto battery = PowerSupply::battery(garbage);
    ASSERT_TRUE(battery);
    EXPECT_EQ(battery->percent, 100);
    EXPECT_FALSE(battery->powerW);
    EXPECT_FALSE(battery->minutesLeft);
    EXPECT_FALSE(battery->cycles);
    const auto parsed = PowerSupply::parseUevent("POWER_SUPPLY_=x\nOTHER=1\nPOWER_SUPPLY_STATUS=Full\nnoise\n");
    EXPECT_EQ(parsed, (PowerSupply::Attributes{{"status", "Full"}}));
}

TEST(PciIds, NamesAreLookedUpUnderTheirVendor)
{
    const auto database = fixture("pciids/pci.ids");
    EXPECT_EQ(PciIds::deviceName(database, "1002", "73bf"), "Navi 21 [Radeon RX 6800/6800 XT / 6900 XT]");
    EXPECT_EQ(PciIds::deviceName(database, "1093", "73bf"), "PCI-8517 FlexRay");
    EXPECT_EQ(PciIds::deviceName(database, "10de", "2504"), "GA106 [GeForce RTX 3060 Lite Hash Rate]");
    EXPECT_FALSE(PciIds::deviceName(database, "10de", "0e3a")); // a subsystem id, not a device
    EXPECT_FALSE(PciIds::deviceName(database, "1234", "0000"));
    EXPECT_FALSE(PciIds::deviceName(database, "03", "00")); // class section lines are not devices
    EXPECT_FALSE(PciIds::deviceName("", "1002", "73bf"));
    EXPECT_EQ(PciIds::normaliseId("0x10DE\n"), "10de");
}
