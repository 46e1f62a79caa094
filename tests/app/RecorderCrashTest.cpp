// A recorder killed with SIGKILL loses at most the minute its batch was
// holding: whatever it had sampled more than a minute (and one tick) before
// the kill is in the file, with compaction every minute or without.

#include "history/HistoryStore.h"
#include "support/ChildProcess.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <random>
#include <sys/wait.h>

using namespace vexel;
using vexel::testing::ChildProcess;

namespace {

const std::string workerBinary = std::string(VEXEL_BINARY_DIR) + "/tests/sampler_worker";

// The simulated time of a "tick T" line.
double tickTime(const std::string& line)
{
    return std::stod(line.substr(5));
}

} // namespace

TEST(RecorderCrash, AKilledRecorderLosesAtMostAMinute)
{
    // Kills after a random number of ticks, the same ones each run.
    std::mt19937 random(20261123);
    std::uniform_int_distribution<int> ticks(35, 160);
    for (int kill = 0; kill < 8; ++kill) {
        const vexel::testing::TempFolder data("vexel-recorder-crash");
        ChildProcess recorder({workerBinary, data.path().string(), kill % 2 == 0 ? "compact" : "plain"}, {{}, true});
        const std::string first = recorder.readLine();
        ASSERT_EQ(first.rfind("tick ", 0), 0U) << first;
        double lastTick = tickTime(first);
        for (int n = ticks(random); n > 0; --n)
            lastTick = tickTime(recorder.readLine());
        ASSERT_TRUE(WIFSIGNALED(recorder.stop(SIGKILL))) << "the recorder must still be running when it is killed";
        // Ticks it finished before the kill.
        for (std::string line = recorder.readLine(); !line.empty(); line = recorder.readLine())
            lastTick = tickTime(line);

        const HistoryStore stored(data.path() / "history.sqlite", HistoryAccess::readOnly);
        const auto points = stored.points(HistoryTier::raw, 0, 1e12);
        ASSERT_FALSE(points.empty()) << "kill " << kill;
        const double recordedUntil = points.back().t + points.back().dur;
        EXPECT_LE(lastTick - recordedUntil, 62) << "kill " << kill << ": more than a minute lost";
    }
}
