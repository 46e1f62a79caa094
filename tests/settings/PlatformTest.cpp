#include "platform/Platform.h"
#include "system/ThermalLevel.h"

#include <gtest/gtest.h>

using namespace vexel;

// On Linux a text that names the Mac names the computer truthfully; the
// macOS texts themselves are checked where the reports use them.
TEST(Platform, LinuxTextsNameTheComputerTruthfully)
{
    for (const auto level : {ThermalLevel::serious, ThermalLevel::critical})
        EXPECT_EQ(detail(level, Platform::linux).english().find("Mac"), std::string::npos);
    EXPECT_EQ(livePlatform(), Platform::linux);
}
