#include "processes/linux/LiveProcessSource.h"

#include "io/Files.h"
#include "support/ChildProcess.h"
#include "support/ProcessChecks.h"
#include "support/SleepingChildren.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sys/resource.h>
#include <unistd.h>

using namespace vexel;
using vexel::testing::listsEvery;
using vexel::testing::statFilesHeldOf;
namespace fs = std::filesystem;

namespace {

const ProcRecord* byPid(const std::vector<ProcRecord>& records, int32_t pid)
{
    for (const auto& record : records) {
        if (record.pid == pid)
            return &record;
    }
    return nullptr;
}

LiveProcessSource fixtureSource(uint32_t myUID)
{
    return LiveProcessSource(std::string(VEXEL_FIXTURES) + "/linux/proc-tree/proc", myUID, 1000.0, 100, 4096);
}

} // namespace

TEST(LiveProcessSourceOnFixtures, EveryProcessWithWhatItsOwnerMayRead)
{
    auto source = fixtureSource(0);
    const auto records = source.snapshot(ProcessScope::own);
    ASSERT_EQ(records.size(), 6u); // "self" and "sys" are not processes

    const auto* weird = byPid(records, 13233);
    ASSERT_NE(weird, nullptr); // its files' fields are the ProcPidFiles parsers' test
    EXPECT_DOUBLE_EQ(weird->start, 1000.0 + 2344.11);
    EXPECT_DOUBLE_EQ(*weird->cpuTime, 1.58);
    EXPECT_EQ(weird->memory, 55904u * 1024); // RssAnon, no swap in use
    EXPECT_TRUE(weird->memoryIsFootprint);
    EXPECT_EQ(source.cwd(13233), "/tmp/cap"); // " (deleted)" is stripped
    EXPECT_FALSE(source.cwd(2));

    const auto* zombie = byPid(records, 13275);
    ASSERT_NE(zombie, nullptr);
    EXPECT_TRUE(zombie->zombie);
    EXPECT_FALSE(zombie->cpuTime);
    EXPECT_FALSE(zombie->path);

    const auto* kthreadd = byPid(records, 2);
    ASSERT_NE(kthreadd, nullptr);
    EXPECT_TRUE(kthreadd->kernelThread);
    EXPECT_EQ(kthreadd->memory, 0u); // kernel threads have CPU time but no memory
    EXPECT_FALSE(kthreadd->path);

    const auto* init = byPid(records, 1);
    ASSERT_NE(init, nullptr);
    EXPECT_FALSE(init->diskRead); // its io file could not be read
    EXPECT_FALSE(init->path);

    // A supervisor run from a sealed memfd: its exe is no file and its comm is the
    // memfd's name, so argv[0] names it.
    const auto* fromMemory = byPid(records, 1210);
    ASSERT_NE(fromMemory, nullptr);
    EXPECT_EQ(fromMemory->name, "binary_backend");
    EXPECT_FALSE(fromMemory->path);

    // The kernel cut its name to "rust-analyzer-p"; the executable has it whole.
    const auto* longName = byPid(records, 6780);
    ASSERT_NE(longName, nullptr);
    EXPECT_EQ(longName->name, "rust-analyzer-proc-macro-srv");
}

TEST(LiveProcessSourceOnFixtures, OtherUsersMemoryOnlyForEveryoneTheirTimeAlways)
{
    auto source = fixtureSource(1000); // every fixture process belongs to root
    auto records = source.snapshot(ProcessScope::own);
    EXPECT_DOUBLE_EQ(*byPid(records, 13233)->cpuTime, 1.58);
    EXPECT_FALSE(byPid(records, 13233)->memory);
    EXPECT_FALSE(byPid(records, 13275)->cpuTime); // a zombie's time is its parent's now
    records = source.snapshot(ProcessScope::everyone);
    EXPECT_DOUBLE_EQ(*byPid(records, 13233)->cpuTime, 1.58);
    EXPECT_EQ(byPid(records, 13233)->memory, 55904u * 1024);
    EXPECT_FALSE(byPid(records, 13233)->diskRead); // disk bytes are the owner's only
    EXPECT_EQ(source.knownCount(), 6u);
}

TEST(LiveProcessSourceOnFixtures, AMissingProcFolderGivesAnEmptyList)
{
    LiveProcessSource source("/nonexistent/proc", 0, 0, 100, 4096);
    EXPECT_TRUE(source.snapshot(ProcessScope::everyone).empty());
    EXPECT_FALSE(source.cwd(1));
}

// When the program runs out of descriptors while it runs (a limit lowered,
// a leak elsewhere), the source lets go of those it keeps and reads on.
TEST(LiveProcessSourceLive, RunningOutOfDescriptorsGivesTheKeptOnesBack)
{
    DescriptorBudget budget(100000);
    vexel::testing::SleepingChildren before(300);
    LiveProcessSource source("/proc", ::geteuid(), 0, 100, 4096, &budget);
    ASSERT_TRUE(listsEvery(source.snapshot(ProcessScope::everyone), before.pids()));
    const size_t kept = budget.inUse();
    ASSERT_GE(kept, 300u);

    rlimit saved{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &saved), 0);
    struct Restore {
        rlimit limit;
        ~Restore() { ::setrlimit(RLIMIT_NOFILE, &limit); }
    } const restore{saved};
    const rlimit low{Files::list("/proc/self/fd").size() + 4, saved.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &low), 0);
    vexel::testing::SleepingChildren after(50);
    const auto records = source.snapshot(ProcessScope::everyone);
    EXPECT_TRUE(listsEvery(records, before.pids()));
    EXPECT_TRUE(listsEvery(records, after.pids()));
    EXPECT_LT(budget.limit(), kept) << "it keeps fewer from now on";
}

// A kept descriptor of an ended process answers ESRCH even when its pid now
// names another: the new process is read as new. The pid is handed on for
// real, by setting the kernel's last pid (root only).
TEST(LiveProcessSourceLive, APidGivenToANewProcessIsReadAsThatProcess)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to set /proc/sys/kernel/ns_last_pid; CI runs as root";
    LiveProcessSource source;
    const auto sleep = Files::realPath("/bin/sleep");
    for (int attempt = 0; attempt < 20; ++attempt) {
        std::optional<vexel::testing::SleepingChildren> first(std::in_place, 1);
        const pid_t pid = first->pids().front();
        const auto before = source.snapshot(ProcessScope::own);
        ASSERT_TRUE(listsEvery(before, {pid}));
        ASSERT_EQ(statFilesHeldOf({pid}), 1u);
        first.reset();
        std::ofstream("/proc/sys/kernel/ns_last_pid") << pid - 1;
        vexel::testing::ChildProcess second({"sleep", "30"});
        if (second.pid() != pid)
            continue; // another process took the number first: try again
        const auto after = source.snapshot(ProcessScope::own);
        const auto* record = byPid(after, pid);
        ASSERT_NE(record, nullptr) << "the process that took the number was missed";
        EXPECT_EQ(record->name, "sleep");
        EXPECT_EQ(record->path, sleep);
        EXPECT_GT(record->start, byPid(before, pid)->start - 1);
        EXPECT_EQ(statFilesHeldOf({pid}), 1u);
        return;
    }
    FAIL() << "no pid was handed on in 20 tries";
}
