#include "platform/Platform.h"
#include "system/ThermalLevel.h"

#include <gtest/gtest.h>

using namespace vexel;

// On Linux a text that names the Mac names the computer truthfully; the
// macOS texts themselves are checked where the reports use them.
TEST(Platform, LinuxTextsNameTheComputerTruthfully)
{
    EXPECT_EQ(detail(ThermalLevel::serious, Platform::linux), "Hot. Linux is slowing the processor to cool down.");
    EXPECT_EQ(detail(ThermalLevel::critical, Platform::linux), "Very hot. Linux is slowing everything down hard.");
    EXPECT_EQ(livePlatform(), Platform::linux);
}
