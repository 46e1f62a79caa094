// Faults injected under the history store: reads of the file that fail (a
// file layer under SQLite) and statement steps that fail (the store's step
// seam). A history that cannot be read must never pass for an empty one, and
// a compaction that fails must leave the file as it was.

#include "history/HistoryStore.h"

#include "support/FailingSteps.h"
#include "support/FaultyFiles.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace vexel;
using namespace vexel::testing;
namespace fs = std::filesystem;

namespace {

constexpr double start = 1'767'225'600; // 1 January 2026, 00:00 UTC
constexpr int sampleCount = 2 * 720; // two hours of five-second samples

SysPoint sampleAt(double t)
{
    SysPoint p;
    p.t = t;
    p.dur = 5;
    p.cpu = p.cpuMax = 0.25;
    p.mem = p.memMax = 0.5;
    p.diskW = 1000;
    return p;
}

// Two hours of samples with a compaction after the first, so that every
// tier but the hour has rows and the minute tier a watermark.
void writeHistory(const fs::path& file)
{
    HistoryStore store(file, HistoryAccess::readWrite);
    for (int half = 0; half < 2; ++half) {
        store.batch([&] {
            for (int i = half * sampleCount / 2; i < (half + 1) * sampleCount / 2; ++i) {
                const double t = start + 5.0 * i;
                store.append(sampleAt(t), {AppPoint{t, 5, "app:x", "X", 0.25, 0.25, 1e8, 0, 1000, 0}});
            }
        });
        if (half == 0)
            store.compact(start + 3600, 365);
    }
}

// Every row and watermark of a file, read through a connection of its own.
struct FileState {
    std::vector<SysPoint> sys[4];
    std::vector<AppPoint> apps[4];
    std::optional<double> watermarks[4];

    explicit FileState(const fs::path& file)
    {
        const HistoryStore store(file, HistoryAccess::readOnly);
        for (const auto tier : allHistoryTiers) {
            const auto index = static_cast<size_t>(tier);
            sys[index] = store.points(tier, 0, 1e12);
            apps[index] = store.appPoints(tier, 0, 1e12);
            watermarks[index] = store.watermark(tier);
        }
    }
    bool operator==(const FileState&) const = default;
};

class HistoryFaults : public ::testing::Test {
protected:
    void SetUp() override { writeHistory(file()); }
    [[nodiscard]] fs::path file() const { return m_folder.path() / "history.sqlite"; }

    TempFolder m_folder{"vexel-faults"};
};

} // namespace

// Whichever read fails, the compaction raises and the file keeps every row
// and watermark it had; once no read fails, the same compaction succeeds.
TEST_F(HistoryFaults, CompactionLeavesTheFileAsItWasWhicheverReadFails)
{
    const FileState before(file());
    const double now = start + 2 * 3600 + 30;
    int aborted = 0;
    bool compacted = false;
    for (int goodReads = 0; !compacted; ++goodReads) {
        ASSERT_LT(goodReads, 2000) << "the compaction never got through";
        HistoryStore store(file(), HistoryAccess::readWrite); // a cold cache: its pages come from the file
        try {
            const FaultyFiles::ReadFailure failure(goodReads);
            store.compact(now, 365);
            compacted = true;
        } catch (const HistoryError& error) {
            ++aborted;
            EXPECT_EQ(error.kind(), HistoryError::Kind::sql) << error.what();
            ASSERT_EQ(FileState(file()), before) << "after " << goodReads << " good reads";
        }
    }
    EXPECT_GT(aborted, 3);
    // The compaction that got through rolled every byte of the second hour.
    const FileState after(file());
    const auto hour = static_cast<size_t>(HistoryTier::hour);
    EXPECT_EQ(after.watermarks[hour], start + 2 * 3600);
    ASSERT_EQ(after.sys[hour].size(), 2u);
    for (const auto& point : after.sys[hour])
        EXPECT_EQ(point.diskW, 720 * 1000.0) << point.t;
}

// A reader's failed read raises, from the first row or the hundredth: the
// rows read so far never pass for the whole history.
TEST_F(HistoryFaults, AFailedReadIsAnErrorNotAnEmptyHistory)
{
    for (const int goodReads : {0, 1, 3}) {
        const HistoryStore store(file(), HistoryAccess::readOnly);
        const FaultyFiles::ReadFailure failure(goodReads);
        EXPECT_THROW((void)store.series(HistoryTier::hour, start, start + 7200), HistoryError) << goodReads;
        EXPECT_THROW((void)store.totals(start, start + 7200), HistoryError) << goodReads;
    }
    const HistoryStore healthy(file(), HistoryAccess::readOnly);
    EXPECT_EQ(healthy.series(HistoryTier::hour, start, start + 7200).size(), 2u);
}

TEST_F(HistoryFaults, AFailedStepIsAnErrorNotTheEndOfTheRows)
{
    const HistoryStore store(file(), HistoryAccess::readOnly);
    ASSERT_EQ(store.points(HistoryTier::raw, 0, 1e12).size(), static_cast<size_t>(sampleCount));
    for (const int goodSteps : {0, 100}) {
        const FailingSteps failing("SELECT t,", goodSteps);
        try {
            (void)store.points(HistoryTier::raw, 0, 1e12);
            FAIL() << "the rows after a failed step were taken for the end";
        } catch (const HistoryError& error) {
            EXPECT_STREQ(error.what(), "History error: disk I/O error");
        }
    }
    {
        const FailingSteps failing("SELECT t,app", 10);
        EXPECT_THROW((void)store.appSeries(HistoryTier::minute, 0, 1e12), HistoryError);
    }
    {
        const FailingSteps failing("SELECT value FROM meta", 0);
        EXPECT_THROW((void)store.series(HistoryTier::minute, 0, 1e12), HistoryError)
            << "a watermark that can't be read";
    }
}

// A failed write inside the compaction rolls the whole compaction back.
TEST_F(HistoryFaults, AFailedWriteRollsTheCompactionBack)
{
    const FileState before(file());
    {
        HistoryStore store(file(), HistoryAccess::readWrite);
        const FailingSteps failing("INSERT OR REPLACE INTO apps", 5);
        try {
            store.compact(start + 2 * 3600 + 30, 365);
            FAIL() << "the failed insert went unnoticed";
        } catch (const HistoryError& error) {
            EXPECT_STREQ(error.what(), "History error: step 10");
        }
    }
    EXPECT_EQ(FileState(file()), before);
}
