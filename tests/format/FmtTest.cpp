#include "format/Fmt.h"
#include "format/RoundSteps.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vexel;

// Everyday figures are pinned by the command line's golden tables; these are
// the edges.
TEST(Fmt, PercentAndCpu)
{
    EXPECT_EQ(Fmt::percent(0.256), "26%");
    EXPECT_EQ(Fmt::percent(-0.5), "0%");
    EXPECT_EQ(Fmt::cpu(2.0, 8), "25%");
    EXPECT_EQ(Fmt::cpu(0.0004), "<0.1%");
    EXPECT_EQ(Fmt::cpu(0), "0.0%");
    EXPECT_EQ(Fmt::cpu(0.0999), "10.0%"); // 9.99 % is still below 10 before rounding
    EXPECT_EQ(Fmt::cpu(0.1), "10%");
    EXPECT_EQ(Fmt::cpu(1.0, 0), "100%"); // a core count of 0 counts as 1
}

TEST(Fmt, MemoryUsesBinaryUnits)
{
    EXPECT_EQ(Fmt::memory(1073741824), "1.00 GB");
    EXPECT_EQ(Fmt::memory(0), "0.0 MB");
    EXPECT_EQ(Fmt::memory(1020054733), "0.95 GB"); // just above 0.95 of 2^30
    EXPECT_EQ(Fmt::memory(1020054732), "973 MB"); // just below it
}

TEST(Fmt, BytesUseDecimalUnits)
{
    EXPECT_EQ(Fmt::bytes(999.9), "999 B");
    EXPECT_EQ(Fmt::bytes(1000.0), "1.0 KB");
    EXPECT_EQ(Fmt::bytes(1500.0, 2), "1.50 KB");
    EXPECT_EQ(Fmt::bytes(-5.0), "0 B");
    EXPECT_EQ(Fmt::bytes(2e18), "2000 PB"); // beyond the last unit it stays in PB
}

TEST(Fmt, RatesInBytesAndBits)
{
    EXPECT_EQ(Fmt::rate(-1, Fmt::RateUnit::bytes), "0 B/s");
    EXPECT_EQ(Fmt::rate(1250000, Fmt::RateUnit::bits), "10 Mb/s");
    EXPECT_EQ(Fmt::rate(100, Fmt::RateUnit::bits), "800 b/s");
    EXPECT_EQ(Fmt::rate(125, Fmt::RateUnit::bits), "1.0 Kb/s");
    EXPECT_EQ(Fmt::rate(1e12, Fmt::RateUnit::bits), "8000 Gb/s");
}

TEST(Fmt, WattsMinutesAndDurations)
{
    EXPECT_EQ(Fmt::watts(0.25), "250 mW");
    EXPECT_EQ(Fmt::watts(-18), "-18 W");
    EXPECT_EQ(Fmt::watts(-0.5), "500 mW");
    EXPECT_EQ(Fmt::minutes(75), "1h 15m");
    EXPECT_EQ(Fmt::minutes(60), "1h 00m");
    EXPECT_EQ(Fmt::minutes(59), "59 min");
    EXPECT_EQ(Fmt::duration(-3), "0s");
    EXPECT_EQ(Fmt::duration(3599), "59m");
    EXPECT_EQ(Fmt::duration(3700), "1h 1m");
    EXPECT_EQ(Fmt::duration(86399.9), "23h 59m");
    EXPECT_EQ(Fmt::duration(86400), "1 day");
    EXPECT_EQ(Fmt::duration(172799), "1 day");
    EXPECT_EQ(Fmt::duration(172800), "2 days");
}

// A scale's top is the next 1, 2 or 5 × 10ⁿ, never below the value and never
// a whole step above it; its gridlines fall at least twice under it.
TEST(RoundSteps, TopsAndGridlinesAtRoundValues)
{
    const auto isRound = [](double value) {
        const double mantissa = value / std::pow(10.0, std::floor(std::log10(value) + 1e-9));
        return std::abs(mantissa - 1) < 1e-9 || std::abs(mantissa - 2) < 1e-9 || std::abs(mantissa - 5) < 1e-9;
    };
    for (double value = 0.0013; value < 5e9; value *= 1.37) {
        const double top = RoundSteps::roundUp(value);
        EXPECT_TRUE(isRound(top)) << value;
        EXPECT_GE(top, value);
        EXPECT_LT(top, value * 2.5 + 1e-12) << value; // 1 → 2 → 5 → 10: at most 2.5 times
        const double step = RoundSteps::gridStep(top);
        EXPECT_TRUE(isRound(step)) << top;
        EXPECT_GE(top / step, 2 - 1e-9) << top;
        EXPECT_LE(top / step, 5 + 1e-9) << top;
    }
    EXPECT_EQ(RoundSteps::roundUp(107e3), 200e3); // 107 KB/s and 100 MB/s never share a scale
    EXPECT_EQ(RoundSteps::roundUp(100e6), 100e6);
    EXPECT_EQ(RoundSteps::gridStep(100), 50);
    EXPECT_EQ(RoundSteps::gridStep(5), 2);
    EXPECT_EQ(RoundSteps::roundUp(0), 1);
    EXPECT_EQ(RoundSteps::roundUp(std::nan("")), 1);
}
