// A year of samples in fast-forward: a simulated clock drives five-second
// samples through the store, compacting every minute of simulated time.

#include "history/HistoryStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

using namespace vexel;
namespace fs = std::filesystem;

namespace {

constexpr double start = 1'767'225'600; // 1 January 2026, 00:00 UTC
constexpr double day = 86400;

SysPoint sample(double t)
{
    SysPoint p;
    p.t = t;
    p.dur = 5;
    p.cpu = p.cpuMax = 0.2;
    p.mem = p.memMax = 0.5;
    p.diskW = 1000; // bytes in each sample, so totals are easy to check
    p.netIn = 500;
    return p;
}

// Runs `days` of samples; returns the store, compacted up to the end.
void simulate(HistoryStore& store, double days)
{
    const std::vector<AppPoint> none;
    for (double minute = start; minute < start + days * day; minute += 60) {
        store.batch([&] {
            for (double t = minute; t < minute + 60; t += 5)
                store.append(sample(t), {AppPoint{t, 5, "app:x", "X", 0.2, 0.2, 1e8, 1, 100, 50}});
        });
        store.compact(minute + 60, 365);
    }
}

} // namespace

TEST(YearFastForward, EachTierHoldsWhatItShouldAndNoByteIsLost)
{
    // VEXEL_YEAR_DAYS sets the span: scripts/test.sh runs 400 days (past the
    // 365-day retention); the default of 40 still crosses every finer tier's lifetime.
    const char* override = std::getenv("VEXEL_YEAR_DAYS");
    const double days = override != nullptr ? std::atof(override) : 40;
    const auto file = fs::temp_directory_path() / ("vexel-year-" + std::to_string(::getpid())) / "history.sqlite";
    fs::remove_all(file.parent_path());
    {
        HistoryStore store(file, false);
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
        EXPECT_EQ(store.rowCount(HistoryTier::hour, false), static_cast<int64_t>(keptDays * 24));
        // Every hourly point holds exactly its 720 samples' bytes.
        for (const auto& hour : store.points(HistoryTier::hour, 0, 1e12)) {
            ASSERT_EQ(hour.diskW, 720 * 1000.0) << hour.t;
            ASSERT_EQ(hour.dur, 3600);
        }
        // A day's totals before and after compaction agree: the last full day
        // is still partly in finer tiers, the first only in hours.
        const auto lastDay = store.totals(now - day, now);
        EXPECT_EQ(lastDay.diskW, 17280 * 1000.0);
        EXPECT_EQ(lastDay.netIn, 17280 * 500.0);
        const auto hoursOfFirstDay = store.points(HistoryTier::hour, firstHour, firstHour + day);
        double firstDay = 0;
        for (const auto& hour : hoursOfFirstDay)
            firstDay += hour.diskW;
        EXPECT_EQ(firstDay, 17280 * 1000.0);
        // The size cap trims only hourly data.
        const auto minutes = store.rowCount(HistoryTier::minute, false);
        const auto tens = store.rowCount(HistoryTier::tenMinutes, false);
        store.maxBytes = store.usedBytes() / 2;
        store.compact(now, 365);
        EXPECT_LT(store.rowCount(HistoryTier::hour, false), static_cast<int64_t>(keptDays * 24));
        EXPECT_EQ(store.rowCount(HistoryTier::minute, false), minutes);
        EXPECT_EQ(store.rowCount(HistoryTier::tenMinutes, false), tens);
    }
    fs::remove_all(file.parent_path());
}
