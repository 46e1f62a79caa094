#include "platform/Platform.h"
#include "system/ThermalLevel.h"

#include <gtest/gtest.h>

using namespace vexel;

TEST(Platform, MacTextsStandLetterForLetter)
{
    EXPECT_EQ(detail(ThermalLevel::nominal, Platform::macOS), "Running at full speed.");
    EXPECT_EQ(detail(ThermalLevel::fair, Platform::macOS), "Slightly warm. Fans may be audible.");
    EXPECT_EQ(detail(ThermalLevel::serious, Platform::macOS), "Hot. macOS is slowing the processor to cool down.");
    EXPECT_EQ(detail(ThermalLevel::critical, Platform::macOS), "Very hot. macOS is slowing everything down hard.");
    EXPECT_EQ(machineWord(Platform::macOS), "Mac");
}

TEST(Platform, LinuxTextsNameTheComputerTruthfully)
{
    EXPECT_EQ(detail(ThermalLevel::serious, Platform::linux), "Hot. Linux is slowing the processor to cool down.");
    EXPECT_EQ(detail(ThermalLevel::critical, Platform::linux), "Very hot. Linux is slowing everything down hard.");
    EXPECT_EQ(detail(ThermalLevel::fair, Platform::linux), "Slightly warm. Fans may be audible.");
    EXPECT_EQ(machineWord(Platform::linux), "computer");
    EXPECT_EQ(systemName(Platform::linux), "Linux");
    EXPECT_EQ(livePlatform(), Platform::linux);
}
