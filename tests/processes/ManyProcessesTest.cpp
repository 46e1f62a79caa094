// Thousands of processes at once. These run alone (CTest's RUN_SERIAL): forking
// and ending 2,000 children takes the machine's cores for seconds, which
// would starve the timing of the tests beside them.

#include "processes/Shell.h"
#include "processes/linux/LiveProcessSource.h"
#include "support/ChildProcess.h"
#include "support/ProcessChecks.h"
#include "support/SleepingChildren.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace vexel;

using vexel::testing::listsEvery;
using vexel::testing::statFilesHeldOf;

// Each process's stat file is opened at its first reading and kept: no tool
// started beside the source inherits one, and when processes end their
// descriptors are closed at the next reading.
TEST(ManyProcesses, KeepsOneDescriptorPerProcessUntilItEnds)
{
    LiveProcessSource source;
    vexel::testing::SleepingChildren children(2000);
    const auto pids = children.pids();
    ASSERT_EQ(pids.size(), 2000u);
    const auto records = source.snapshot(ProcessScope::everyone);
    EXPECT_TRUE(listsEvery(records, pids));
    ASSERT_GE(DescriptorBudget::program().limit(), 4000u) << "the soft limit on open files was not raised";
    EXPECT_EQ(statFilesHeldOf(pids), pids.size());

    const auto seen = Shell::run("/bin/ls", {"-l", "/proc/self/fd"}, 10);
    ASSERT_TRUE(seen) << seen.error;
    EXPECT_EQ(seen->find("/stat"), std::string::npos) << *seen;

    children.end();
    EXPECT_FALSE(listsEvery(source.snapshot(ProcessScope::everyone), {pids.front()}));
    EXPECT_EQ(statFilesHeldOf(pids), 0u);
}
