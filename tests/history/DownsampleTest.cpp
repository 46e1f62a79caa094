#include "history/Downsample.h"
#include "history/HistoryRange.h"
#include "history/HistoryStore.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace vexel;
namespace fs = std::filesystem;

namespace {

SysPoint at(double t, double dur, double cpu, std::optional<double> gpu = std::nullopt)
{
    SysPoint point;
    point.t = t;
    point.dur = dur;
    point.cpu = cpu;
    point.cpuMax = cpu;
    point.mem = 0.5;
    point.memMax = 0.5;
    point.diskW = 1000;
    point.netIn = 10;
    point.gpu = gpu;
    point.gpuMax = gpu;
    return point;
}

AppPoint app(double t, double dur, const std::string& key, double cpu, double mem)
{
    return AppPoint{t, dur, key, key, cpu, cpu, mem, 1, 2, 3};
}

} // namespace

TEST(Downsample, RollupWeighsByDuration)
{
    const auto three = Downsample::rollup({at(0, 20, 0.1), at(20, 20, 0.2), at(40, 20, 0.6)}, 0, 60);
    EXPECT_EQ(three.dur, 60);
    EXPECT_NEAR(three.cpu, 0.3, 1e-12);
    EXPECT_EQ(three.cpuMax, 0.6);
    EXPECT_EQ(three.diskW, 3000);
    EXPECT_EQ(
        Downsample::rollup({at(0, 20, 0.1), at(20, 20, 0.2)}, 0, 60).dur, 40); // a short bucket claims what it covers
    EXPECT_EQ(Downsample::rollup({at(0, 50, 0.1), at(50, 50, 0.2)}, 0, 60).dur, 60); // never more than its length

    // Negative durations weigh nothing but their bytes still count.
    const auto odd = Downsample::rollup({at(0, 30, 0.4), at(30, -10, 1.0)}, 0, 60);
    EXPECT_NEAR(odd.cpu, 0.4, 1e-12);
    EXPECT_EQ(odd.diskW, 2000);
    EXPECT_EQ(odd.cpuMax, 1.0);

    // A reading present in half of the points is their mean, not half of it.
    const auto gpu = Downsample::rollup({at(0, 30, 0.1, 0.8), at(30, 30, 0.1)}, 0, 60);
    EXPECT_NEAR(*gpu.gpu, 0.8, 1e-12);
    EXPECT_EQ(gpu.gpuMax, 0.8);
    EXPECT_FALSE(gpu.power);

    const auto empty = Downsample::rollup({at(0, 0, 0.9, 0.5)}, 120, 60);
    SysPoint zero;
    zero.t = 120;
    EXPECT_EQ(empty, zero);
    EXPECT_FALSE(empty.gpu);
}

TEST(Downsample, AnAppPresentForHalfABucketCountsIdleForTheRest)
{
    const auto rolled
        = Downsample::rollupApps({app(0, 15, "app:x", 1.0, 100), app(15, 15, "app:x", 1.0, 300)}, 0, 60, 8);
    ASSERT_EQ(rolled.size(), 1u);
    EXPECT_NEAR(rolled[0].cpu, 0.5, 1e-12);
    EXPECT_NEAR(rolled[0].mem, 200, 1e-9); // its mean while present
    EXPECT_EQ(rolled[0].dur, 30);
    EXPECT_EQ(rolled[0].energy, 2);
    const auto grouped = Downsample::regroupApps({app(0, 30, "app:x", 1.0, 100), app(70, 30, "app:x", 0.5, 100)},
        {at(0, 30, 0.1), at(30, 30, 0.1), at(60, 60, 0.1)}, 60, 8);
    ASSERT_EQ(grouped.size(), 2u);
    EXPECT_NEAR(grouped[0].cpu, 0.5, 1e-12);
    EXPECT_NEAR(grouped[1].cpu, 0.25, 1e-12);
}

class Compaction : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_store = std::make_unique<HistoryStore>(m_folder.path() / "history.sqlite", HistoryAccess::readWrite);
    }
    void TearDown() override { m_store.reset(); }
    // Five-second samples from `from` to `to`, with one app.
    void record(double from, double to) const
    {
        m_store->batch([&] {
            for (double t = from; t < to; t += 5)
                m_store->append(at(t, 5, 0.25), {app(t, 5, "app:x", 0.5, 1e8)});
        });
    }

    vexel::testing::TempFolder m_folder{"vexel-compact"};
    std::unique_ptr<HistoryStore> m_store;
};

TEST_F(Compaction, WithoutCompactionHourlySeriesComeFromRawSamples)
{
    record(3600 * 100, 3600 * 100 + 7200);
    const auto hours = m_store->series(HistoryTier::hour, 0, 1e9);
    ASSERT_EQ(hours.size(), 2u);
    EXPECT_EQ(hours[0].dur, 3600);
    EXPECT_NEAR(hours[0].cpu, 0.25, 1e-12);
    const auto apps = m_store->appSeries(HistoryTier::hour, 0, 1e9);
    ASSERT_EQ(apps.size(), 2u);
    EXPECT_NEAR(apps[0].cpu, 0.5, 1e-12);
    EXPECT_EQ(m_store->coveringTier(0), HistoryTier::hour);
}

TEST_F(Compaction, RollsEndedBucketsAndTwiceChangesNothing)
{
    const double start = 3600 * 100;
    record(start, start + 7200 + 90);
    const double now = start + 7200 + 90;
    m_store->compact(now, 365);
    EXPECT_EQ(m_store->watermark(HistoryTier::minute), start + 7200 + 60);
    EXPECT_EQ(m_store->watermark(HistoryTier::hour), start + 7200);
    const auto minutes = m_store->rowCount(HistoryTier::minute, HistoryTable::sys);
    const auto hours = m_store->points(HistoryTier::hour, 0, 1e9);
    EXPECT_EQ(minutes, 121);
    ASSERT_EQ(hours.size(), 2u);
    EXPECT_EQ(hours[0].diskW, 720 * 1000.0); // no byte is lost on the way up
    const auto before = m_store->points(HistoryTier::minute, 0, 1e9);
    m_store->compact(now, 365);
    EXPECT_EQ(m_store->points(HistoryTier::minute, 0, 1e9), before);
    EXPECT_EQ(m_store->points(HistoryTier::hour, 0, 1e9), hours);
    // Raw samples are older than 3 hours only later; none expired yet.
    EXPECT_EQ(m_store->rowCount(HistoryTier::raw, HistoryTable::sys), 1458);
    EXPECT_EQ(m_store->coveringTier(start), HistoryTier::minute);
    const auto totals = m_store->totals(start, now);
    EXPECT_EQ(totals.diskW, 1458 * 1000.0);
}

TEST_F(Compaction, NothingExpiresBeforeItIsRolledUp)
{
    const double start = 3600 * 100;
    record(start, start + 600);
    // Far in the future: the raw rows are past their 3 hours, but are rolled up first.
    const double now = start + 10 * 86400;
    m_store->compact(now, 365);
    EXPECT_EQ(m_store->rowCount(HistoryTier::raw, HistoryTable::sys), 0);
    EXPECT_EQ(m_store->rowCount(HistoryTier::minute, HistoryTable::sys), 0); // older than 49 hours, and rolled on
    EXPECT_EQ(m_store->rowCount(HistoryTier::tenMinutes, HistoryTable::sys), 1);
    EXPECT_EQ(m_store->rowCount(HistoryTier::hour, HistoryTable::sys), 1);
    EXPECT_EQ(m_store->points(HistoryTier::hour, 0, 1e9).front().diskW, 120 * 1000.0);
}
