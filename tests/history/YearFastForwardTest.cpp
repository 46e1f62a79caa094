// A year of samples in fast-forward: a simulated clock drives samples through
// the store as the app does, compacting as it goes. Five-second samples fill
// the last three days, which the raw and minute tiers keep; before them,
// one-minute samples (the finest a minute bucket can tell apart) compacted
// every simulated hour, so that a year and more runs in seconds.

#include "history/HistoryStore.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace vexel;

namespace {

constexpr double start = 1'767'225'600; // 1 January 2026, 00:00 UTC
constexpr double day = 86400;
constexpr double fineSpan = 3 * day;
// Bytes per second written and received, so that totals are easy to check.
constexpr double writeRate = 200;
constexpr double receiveRate = 100;

SysPoint sample(double t, double dur)
{
    SysPoint p;
    p.t = t;
    p.dur = dur;
    p.cpu = p.cpuMax = 0.2;
    p.mem = p.memMax = 0.5;
    p.diskW = writeRate * dur;
    p.netIn = receiveRate * dur;
    return p;
}

// Samples of `step` seconds from `from` to `to`, written in one transaction
// per `batch` seconds, each batch followed by a compaction.
void run(HistoryStore& store, double from, double to, double step, double batch)
{
    for (double first = from; first < to; first += batch) {
        store.batch([&] {
            for (double t = first; t < first + batch; t += step)
                store.append(sample(t, step), {AppPoint{t, step, "app:x", "X", 0.2, 0.2, 1e8, 1, 100, 50}});
        });
        store.compact(first + batch, 365);
    }
}

// `days` of history ending at start + days; the store is compacted up to the end.
void simulate(HistoryStore& store, double days)
{
    const double end = start + days * day;
    const double fine = std::max(start, end - fineSpan);
    run(store, start, fine, 60, 3600);
    run(store, fine, end, 5, 60);
}

} // namespace

TEST(YearFastForward, EachTierHoldsWhatItShouldAndNoByteIsLost)
{
    // 400 days: past the 365-day retention and every finer tier's lifetime.
    // VEXEL_YEAR_DAYS sets another span.
    const char* override = std::getenv("VEXEL_YEAR_DAYS");
    const double days = override != nullptr ? std::atof(override) : 400;
    const vexel::testing::TempFolder folder("vexel-year");
    {
        HistoryStore store(folder.path() / "history.sqlite", HistoryAccess::readWrite);
        simulate(store, days);
        const double now = start + days * day;
        const auto first = [&](HistoryTier tier) { return store.points(tier, 0, 1e12).front().t; };
        // Raw samples for 3 hours, minutes for 49 hours, ten minutes for 35 days (each a bucket more at most).
        EXPECT_GE(first(HistoryTier::raw), now - 3 * 3600 - 60);
        EXPECT_GE(first(HistoryTier::minute), now - 49 * 3600 - 600);
        if (days > 36) {
            EXPECT_GE(first(HistoryTier::tenMinutes), now - 35 * day - 3600);
        }
        // Hours are kept for the 365 days of the retention setting, no longer.
        const double keptDays = std::min(days, 365.0);
        const double firstHour = now - keptDays * day;
        EXPECT_EQ(first(HistoryTier::hour), firstHour);
        EXPECT_EQ(store.rowCount(HistoryTier::hour, HistoryTable::sys), static_cast<int64_t>(keptDays * 24));
        // Every hourly point holds exactly its hour's bytes and time.
        for (const auto& hour : store.points(HistoryTier::hour, 0, 1e12)) {
            ASSERT_EQ(hour.diskW, 3600 * writeRate) << hour.t;
            ASSERT_EQ(hour.dur, 3600);
        }
        // A day's totals before and after compaction agree: the last full day
        // is still partly in finer tiers, the first only in hours.
        const auto lastDay = store.totals(now - day, now);
        EXPECT_EQ(lastDay.diskW, day * writeRate);
        EXPECT_EQ(lastDay.netIn, day * receiveRate);
        const auto hoursOfFirstDay = store.points(HistoryTier::hour, firstHour, firstHour + day);
        double firstDay = 0;
        for (const auto& hour : hoursOfFirstDay)
            firstDay += hour.diskW;
        EXPECT_EQ(firstDay, day * writeRate);
    }
}
