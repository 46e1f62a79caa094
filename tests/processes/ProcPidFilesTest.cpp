#include "processes/linux/ProcPidFiles.h"
#include "io/Files.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

std::string fixture(const std::string& path)
{
    return Files::read(std::string(VEXEL_FIXTURES) + "/proc/" + path).value_or("");
}

} // namespace

TEST(ProcPidFiles, StatWhoseNameHoldsBlanksAndParentheses)
{
    const auto stat = ProcPidFiles::parseStat(fixture("pid-weird/stat"));
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->comm, "we ird) (x");
    EXPECT_EQ(stat->state, 'S');
    EXPECT_EQ(stat->ppid, 1);
    EXPECT_EQ(stat->utime, 153u);
    EXPECT_EQ(stat->stime, 5u);
    EXPECT_EQ(stat->startTime, 234411u);
    EXPECT_FALSE(stat->isKernelThread());
    EXPECT_FALSE(stat->isZombie());

    const auto zombie = ProcPidFiles::parseStat(fixture("pid-zombie/stat"));
    ASSERT_TRUE(zombie);
    EXPECT_TRUE(zombie->isZombie());
    const auto kthreadd = ProcPidFiles::parseStat(fixture("pid-kthreadd/stat"));
    ASSERT_TRUE(kthreadd);
    EXPECT_TRUE(kthreadd->isKernelThread());
    EXPECT_EQ(kthreadd->ppid, 0);
}

TEST(ProcPidFiles, MalformedStatLines)
{
    for (const char* bad :
        {"", "12 (cut", "12 no parens S 1", "12 (a) S 1 2 3", "12 (a) SS 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1",
            "12 (a) S x 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1", ")( S 1"})
        EXPECT_FALSE(ProcPidFiles::parseStat(bad)) << bad;
}

TEST(ProcPidFiles, StatusStatmIoAndCgroup)
{
    const auto status = ProcPidFiles::parseStatus(fixture("pid-weird/status"));
    EXPECT_EQ(status.uid, 0u);
    EXPECT_EQ(status.rssAnon, 55904u * 1024);
    EXPECT_EQ(status.vmSwap, 0u);
    EXPECT_FALSE(status.kernelThread);
    EXPECT_TRUE(ProcPidFiles::parseStatus(fixture("pid-kthreadd/status")).kernelThread);
    EXPECT_FALSE(ProcPidFiles::parseStatus(fixture("pid-zombie/status")).rssAnon); // zombies have no Vm lines

    // statm's resident minus shared pages is exactly RssAnon.
    EXPECT_EQ(ProcPidFiles::parseStatmAnonPages(fixture("pid-weird/statm")), 55904u / 4);
    EXPECT_EQ(ProcPidFiles::parseStatmAnonPages("0 0 0 0 0 0 0"), 0u);
    EXPECT_EQ(ProcPidFiles::parseStatmAnonPages("10 5 9"), 0u); // torn read: shared above resident
    EXPECT_FALSE(ProcPidFiles::parseStatmAnonPages("10 5"));

    EXPECT_EQ(ProcPidFiles::parseIo(fixture("pid-weird/io")), (ProcPidFiles::Io{2514944, 4014080}));
    EXPECT_FALSE(ProcPidFiles::parseIo(fixture("pid-init/io"))); // refused: an empty read
    EXPECT_FALSE(ProcPidFiles::parseIo("read_bytes: 5\n"));

    // This VM mounts cgroup v1 with systemd's named hierarchy at "/".
    EXPECT_EQ(ProcPidFiles::parseCgroup(fixture("pid-weird/cgroup")), "/");
    EXPECT_EQ(ProcPidFiles::parseCgroup("0::/user.slice/user-1000.slice/user@1000.service/app.slice/"
                                        "app-gnome-firefox-2345.scope\n"),
        "/user.slice/user-1000.slice/user@1000.service/app.slice/app-gnome-firefox-2345.scope");
    EXPECT_EQ(
        ProcPidFiles::parseCgroup("1:name=systemd:/system.slice/cron.service\n0::/\n"), "/system.slice/cron.service");
    EXPECT_FALSE(ProcPidFiles::parseCgroup("5:cpu:/\n"));
}
