#include "rates/RateTracker.h"

#include "format/CFormat.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

ProcRecord process(int32_t pid, double start, double cpu, uint64_t read = 0, uint64_t written = 0)
{
    ProcRecord record;
    record.pid = pid;
    // Formatted whole: GCC 12 at -O3 warns falsely (-Wrestrict) on assigning a literal here.
    record.name = cformat("p%d", pid);
    record.start = start;
    record.cpuTime = cpu;
    record.diskRead = read;
    record.diskWrite = written;
    return record;
}

ProcRates rateOf(const RateTracker::Rates& rates, const ProcRecord& record)
{
    return rates.at(ProcKey::of(record));
}

} // namespace

TEST(RateTracker, FirstUpdateIsABaselineThenDifferencesPerSecond)
{
    RateTracker tracker;
    auto a = process(10, 100, 5.0, 1000, 0);
    const auto first = tracker.update({a}, std::nullopt, 1000);
    EXPECT_EQ(rateOf(first, a), ProcRates{});
    a.cpuTime = 6.0;
    a.diskRead = 3000;
    const auto second = tracker.update({a}, std::nullopt, 1002);
    EXPECT_DOUBLE_EQ(rateOf(second, a).cpu, 0.5);
    EXPECT_DOUBLE_EQ(rateOf(second, a).diskRead, 1000);
    EXPECT_FALSE(rateOf(second, a).energyW); // no energy counter: absent, not 0
}

TEST(RateTracker, UpdatesCloserThanTheMinimumIntervalRepeatTheLastRates)
{
    RateTracker tracker;
    auto a = process(10, 100, 1.0);
    (void)tracker.update({a}, std::nullopt, 1000);
    a.cpuTime = 2.0;
    const auto normal = tracker.update({a}, std::nullopt, 1001);
    EXPECT_DOUBLE_EQ(rateOf(normal, a).cpu, 1.0);
    a.cpuTime = 2.5; // 0.03 s later: too close to measure
    const auto close = tracker.update({a}, std::nullopt, 1001.03);
    EXPECT_DOUBLE_EQ(rateOf(close, a).cpu, 1.0);
    // …but the baseline moved to 1001.03 and 2.5 seconds.
    a.cpuTime = 2.75;
    const auto after = tracker.update({a}, std::nullopt, 1001.53);
    EXPECT_NEAR(rateOf(after, a).cpu, 0.5, 1e-9);
}

TEST(RateTracker, ReadingsThatLeaveAFigureOutKeepItsBaseline)
{
    // The app's cadence: a tick every 2 s reads the user's own processes, every
    // third also everyone's. Another user's process using a full core shows
    // its figures only on those ticks, and must read 1 core there.
    RateTracker tracker;
    auto other = process(10, 100, 50.0, 0, 0);
    other.diskRead.reset();
    other.diskWrite.reset();
    auto own = process(11, 100, 5.0, 100, 0);
    std::vector<double> otherRates;
    for (int tick = 0; tick <= 9; ++tick) {
        const double now = 1000 + 2.0 * tick;
        const bool everyone = tick % 3 == 0;
        auto seen = other;
        seen.cpuTime = everyone ? std::optional(50.0 + 2.0 * tick) : std::nullopt;
        own.cpuTime = 5.0 + 0.5 * tick;
        own.diskRead = 100 + 1000 * static_cast<uint64_t>(tick);
        const auto rates = tracker.update({seen, own}, std::nullopt, now);
        if (tick > 0) {
            otherRates.push_back(rateOf(rates, seen).cpu);
            EXPECT_DOUBLE_EQ(rateOf(rates, own).cpu, 0.25) << "tick " << tick;
            EXPECT_DOUBLE_EQ(rateOf(rates, own).diskRead, 500) << "tick " << tick;
        }
    }
    EXPECT_EQ(otherRates, (std::vector<double>{0, 0, 1, 0, 0, 1, 0, 0, 1}));
}

TEST(RateTracker, NewbornsShowTheirWholeUsageAtOnce)
{
    RateTracker tracker;
    const auto old = process(1, 10, 50);
    (void)tracker.update({old}, std::nullopt, 1000);
    // Started 2 seconds ago (after the previous update) with 1.0 s of processor time.
    auto newborn = process(20, 1000.5, 1.0);
    ProcRecord energetic = process(21, 999.6, 0);
    energetic.energyNJ = 3'000'000'000;
    const auto rates = tracker.update({old, newborn, energetic}, std::nullopt, 1002.5);
    EXPECT_DOUBLE_EQ(rateOf(rates, newborn).cpu, 0.5);
    EXPECT_NEAR(*rateOf(rates, energetic).energyW, 3.0 / 2.9, 1e-9);
    // Not a newborn: started long before the last update but seen only now.
    const auto late = process(30, 500, 100);
    const auto later = tracker.update({old, late}, std::nullopt, 1004);
    EXPECT_EQ(rateOf(later, late), ProcRates{});
    // A newborn whose start lies in the future of this clock reports nothing yet.
    const auto future = process(31, 2000, 1);
    EXPECT_EQ(rateOf(tracker.update({old, late, future}, std::nullopt, 1005), future), ProcRates{});
}

TEST(RateTracker, EnergyInWattsAndBackwardsCountersCountNothing)
{
    RateTracker tracker;
    auto a = process(10, 100, 10.0, 5000, 5000);
    a.energyNJ = 1'000'000'000;
    a.wakeups = 100;
    (void)tracker.update({a}, std::nullopt, 1000);
    a.energyNJ = 4'000'000'000;
    a.wakeups = 400;
    a.cpuTime = 9.0; // went backwards
    a.diskRead = 1000; // went backwards
    a.diskWrite = 8000; // grew
    const auto rates = tracker.update({a}, std::nullopt, 1001.5);
    EXPECT_DOUBLE_EQ(*rateOf(rates, a).energyW, 2.0);
    EXPECT_DOUBLE_EQ(rateOf(rates, a).wakeups, 200);
    EXPECT_EQ(rateOf(rates, a).cpu, 0);
    EXPECT_EQ(rateOf(rates, a).diskRead, 0);
    EXPECT_DOUBLE_EQ(rateOf(rates, a).diskWrite, 2000);
}

TEST(RateTracker, NetworkRatesCarryOverBetweenNetworkTicks)
{
    RateTracker tracker;
    const auto a = process(10, 100, 1.0);
    (void)tracker.update({a}, NetCounters{{10, {1000, 100}}}, 1000);
    const auto netTick = tracker.update({a}, NetCounters{{10, {5000, 300}}}, 1002);
    EXPECT_DOUBLE_EQ(rateOf(netTick, a).netIn, 2000);
    EXPECT_DOUBLE_EQ(rateOf(netTick, a).netOut, 100);
    const auto quiet = tracker.update({a}, std::nullopt, 1004);
    EXPECT_DOUBLE_EQ(rateOf(quiet, a).netIn, 2000); // carried over
    // The network family has its own timestamp: 4 s since its last reading.
    const auto next = tracker.update({a}, NetCounters{{10, {9000, 300}}}, 1006);
    EXPECT_DOUBLE_EQ(rateOf(next, a).netIn, 1000);
    EXPECT_DOUBLE_EQ(rateOf(next, a).netOut, 0);
}

TEST(RateTracker, ReusedPidsStartAfreshAndAnEmptyListForgetsEverything)
{
    RateTracker tracker;
    const auto first = process(10, 100, 1000.0);
    (void)tracker.update({first}, std::nullopt, 1000);
    // Same pid, another start second: a different process with a small counter.
    const auto reused = process(10, 900, 1.0);
    const auto rates = tracker.update({reused}, std::nullopt, 1001);
    ASSERT_EQ(rates.size(), 1u);
    EXPECT_EQ(rateOf(rates, reused), ProcRates{}); // not a newborn: started before the last update
    EXPECT_TRUE(tracker.update({}, std::nullopt, 1002).empty());
    // After the reset the tracker's previous update is 1002: a process that
    // started at 1001.6 is a newborn now.
    const auto child = process(11, 1001.6, 0.4);
    EXPECT_NEAR(rateOf(tracker.update({child}, std::nullopt, 1002.4), child).cpu, 0.5, 1e-9);
}
