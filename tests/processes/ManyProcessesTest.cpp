// Thousands of processes at once. These run alone (CTest's RUN_SERIAL): forking
// and ending 2,000 children takes the machine's cores for seconds, which
// would starve the timing of the tests beside them.

#include "io/Files.h"
#include "processes/Shell.h"
#include "processes/linux/LiveProcessSource.h"
#include "support/ChildProcess.h"
#include "support/ProcessChecks.h"
#include "support/SleepingChildren.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace vexel;
using nlohmann::json;

using vexel::testing::listsEvery;
using vexel::testing::runForked;
using vexel::testing::statFilesHeldOf;

namespace {

const std::string vexelBinary = std::string(VEXEL_BINARY_DIR) + "/src/vexel";

} // namespace

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

// Under a low limit on open files (`ulimit -n 256`) with 2,000 processes,
// the process table keeps what its share allows, reads the rest by opening
// each file, and every process is counted.
TEST(ManyProcesses, ALowLimitOnOpenFilesStillCountsEveryProcess)
{
    vexel::testing::SleepingChildren children(2000);
    vexel::testing::TempFolder data("vexel-many");
    const auto run = runForked([&] {
        const rlimit low{256, 256};
        if (::setrlimit(RLIMIT_NOFILE, &low) != 0)
            ::_exit(125);
        const std::string dataVariable = "VEXEL_DATA_DIR=" + data.path().string();
        char* argv[]
            = {const_cast<char*>(vexelBinary.c_str()), const_cast<char*>("top"), const_cast<char*>("--json"), nullptr};
        char* envp[] = {const_cast<char*>(dataVariable.c_str()), nullptr};
        ::execve(argv[0], argv, envp);
    });
    ASSERT_TRUE(WIFEXITED(run.status) && WEXITSTATUS(run.status) == 0) << "status " << run.status;
    const json top = json::parse(run.output, nullptr, false);
    ASSERT_TRUE(top.is_object()) << run.output;
    const auto listed = std::ranges::count_if(Files::list("/proc"),
        [](const std::string& name) { return name.find_first_not_of("0123456789") == std::string::npos; });
    EXPECT_NEAR(top["process_count"].get<double>(), static_cast<double>(listed), 50.0);
    EXPECT_GT(top["process_count"].get<int>(), 2000);
}
