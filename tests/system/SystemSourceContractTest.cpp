// Every system source keeps the same promises, whether it reads this machine,
// a fixture tree or hands back a stored snapshot.

#include "system/FixtureSystemSource.h"
#include "system/linux/LiveSystemReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

using namespace vexel;

namespace {

struct LiveMachine {
    static std::unique_ptr<SystemSource> make() { return std::make_unique<LiveSystemReader>(); }
};

struct VirtualMachineTree {
    static std::unique_ptr<SystemSource> make()
    {
        LinuxRoots roots;
        const std::string tree = std::string(VEXEL_FIXTURES) + "/linux/vm";
        roots.proc = tree + "/proc";
        roots.sys = tree + "/sys";
        roots.osRelease = tree + "/etc/os-release";
        roots.capacity = [](const std::string&) { return std::optional<FsCapacity>({100, 40}); };
        return std::make_unique<LiveSystemReader>(roots);
    }
};

struct StoredSnapshot {
    static std::unique_ptr<SystemSource> make()
    {
        auto snapshot = SystemSnapshot::empty(1);
        snapshot.cpu.cores = {0.5, 0.25};
        snapshot.cpu.user = 0.3;
        snapshot.memory.total = 100;
        snapshot.memory.app = 40;
        snapshot.battery = BatteryStats{.percent = 60};
        return std::make_unique<FixtureSystemSource>(snapshot);
    }
};

bool isFraction(double value)
{
    return std::isfinite(value) && value >= 0 && value <= 1.0;
}

template <typename Maker> class SystemSourceContract : public ::testing::Test {
};

using Sources = ::testing::Types<LiveMachine, VirtualMachineTree, StoredSnapshot>;
TYPED_TEST_SUITE(SystemSourceContract, Sources);

} // namespace

TYPED_TEST(SystemSourceContract, EveryReadingIsStampedAndWithinRange)
{
    auto source = TypeParam::make();
    for (const double now : {1000.0, 1002.0, 1002.0, 1001.0}) {
        const auto snapshot = source->read(now);
        EXPECT_EQ(snapshot.time, now);
        EXPECT_GE(snapshot.coreCount(), 1);
        EXPECT_TRUE(isFraction(snapshot.cpu.user + snapshot.cpu.system));
        for (const double core : snapshot.cpu.cores)
            EXPECT_TRUE(isFraction(core));
        EXPECT_TRUE(isFraction(snapshot.memory.usedFraction()));
        EXPECT_GE(snapshot.disk.readRate, 0);
        EXPECT_GE(snapshot.disk.writeRate, 0);
        EXPECT_GE(snapshot.net.inRate, 0);
        EXPECT_GE(snapshot.net.outRate, 0);
        if (snapshot.gpu) {
            EXPECT_TRUE(isFraction(snapshot.gpu->utilisation));
        }
        if (snapshot.battery) {
            EXPECT_TRUE(snapshot.battery->percent >= 0 && snapshot.battery->percent <= 100);
        }
        for (const auto& volume : snapshot.disk.volumes)
            EXPECT_LE(volume.available, volume.total);
    }
}
