#include "text/TextScan.h"

#include <gtest/gtest.h>

using namespace vexel;

TEST(TextScan, NumbersAreWholeOrNothing)
{
    EXPECT_EQ(TextScan::toU64(" 42\n"), 42u);
    EXPECT_EQ(TextScan::toU64("+7"), 7u);
    EXPECT_EQ(TextScan::toI64("-12"), -12);
    EXPECT_EQ(TextScan::toDouble("0.25"), 0.25);
    for (const char* bad : {"", " ", "4x", "x4", "-3", "1 2", "18446744073709551616"})
        EXPECT_FALSE(TextScan::toU64(bad)) << bad;
    EXPECT_FALSE(TextScan::toDouble("1.5.2"));
}
