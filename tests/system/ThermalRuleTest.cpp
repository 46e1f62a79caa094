#include "system/linux/ThermalRule.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::ThermalRule;

TEST(ThermalRule, ZonesAgainstTheirTripPoints)
{
    struct Case {
        const char* name;
        Zone zone;
        ThermalLevel expected;
    };
    const std::vector<Case> cases{
        {"cool", {45, {{"active", 60}, {"passive", 90}, {"critical", 105}}}, ThermalLevel::nominal},
        {"fan-stage", {61, {{"active", 75}, {"active", 60}, {"passive", 90}}}, ThermalLevel::fair},
        {"passive", {91, {{"active", 60}, {"passive", 90}, {"critical", 105}}}, ThermalLevel::serious},
        {"near-critical", {100, {{"critical", 105}}}, ThermalLevel::critical},
        {"below-critical-margin", {99.9, {{"critical", 105}}}, ThermalLevel::nominal},
        {"hot-trip", {96, {{"hot", 95}, {"critical", 120}}}, ThermalLevel::critical},
        {"laptop-acpitz-only-critical", {95, {{"critical", 128}}}, ThermalLevel::nominal},
    };
    for (const auto& c : cases) {
        Inputs inputs;
        inputs.zones = {c.zone};
        EXPECT_EQ(judge(inputs), c.expected) << c.name;
    }
}

TEST(ThermalRule, SensorsCoolingDevicesAndThrottling)
{
    Inputs inputs;
    EXPECT_EQ(judge(inputs), ThermalLevel::nominal);

    inputs.cpuSensors = {{86, 100.0, 100.0, true}};
    EXPECT_EQ(judge(inputs), ThermalLevel::fair); // within 15 °C of max
    inputs.cpuSensors = {{86, 100.0, 100.0, false}};
    EXPECT_EQ(judge(inputs), ThermalLevel::nominal); // a single core's sensor does not warm the machine
    inputs.cpuSensors = {{80, std::nullopt, std::nullopt, true}};
    EXPECT_EQ(judge(inputs), ThermalLevel::fair); // no limits known: 80 °C
    inputs.cpuSensors = {{100, 100.0, 105.0, false}};
    EXPECT_EQ(judge(inputs), ThermalLevel::serious);
    inputs.cpuSensors = {{105, 100.0, 105.0, false}};
    EXPECT_EQ(judge(inputs), ThermalLevel::critical);

    inputs.cpuSensors.clear();
    // A spinning fan is not throttling, nor is the temperature-target offset
    // that firmware or thermald sets once (it stays above 0 on an idle laptop).
    inputs.coolingDevices = {{"Fan", 3}, {"Processor", 0}, {"TCC Offset", 10}};
    EXPECT_EQ(judge(inputs), ThermalLevel::nominal);
    inputs.coolingDevices = {{"thermal-cpufreq-0", 1}};
    EXPECT_EQ(judge(inputs), ThermalLevel::serious);

    inputs.coolingDevices.clear();
    inputs.throttling = {true, 0.2};
    EXPECT_EQ(judge(inputs), ThermalLevel::serious);
    inputs.throttling = {true, 0.5};
    EXPECT_EQ(judge(inputs), ThermalLevel::critical);
}

TEST(ThermalRule, StepperRisesAtOnceAndFallsAfterTwoLowerReadings)
{
    Stepper stepper;
    EXPECT_EQ(stepper.next(ThermalLevel::serious), ThermalLevel::serious);
    EXPECT_EQ(stepper.next(ThermalLevel::nominal), ThermalLevel::serious);
    EXPECT_EQ(stepper.next(ThermalLevel::serious), ThermalLevel::serious); // the count starts again
    EXPECT_EQ(stepper.next(ThermalLevel::fair), ThermalLevel::serious);
    EXPECT_EQ(stepper.next(ThermalLevel::nominal), ThermalLevel::nominal);
    EXPECT_EQ(stepper.next(ThermalLevel::critical), ThermalLevel::critical);
}
