#include <gtest/gtest.h>

#include "core/setting_limits.h"

namespace zt {
namespace {

struct IntervalCase {
    const char* name;
    int16_t speed;
    int channels;
    int16_t triggerType;
    int16_t target;
    int32_t baud;
    int32_t link;
    int32_t factor;
    double min;
    double max;
};

class IntervalLimits : public ::testing::TestWithParam<IntervalCase> {};

TEST_P(IntervalLimits, FollowChannelsLinkAndFaultTrigger) {
    const IntervalCase& c = GetParam();
    INIFILE_ITEM ini;
    ini.lngData[1] = c.baud;
    ini.lngData[9] = c.link;
    ini.lngData[10] = c.factor;
    const Limits l = intervalLimits(c.speed, c.channels, c.triggerType, c.target, ini);
    EXPECT_EQ(l.min, c.min);
    EXPECT_EQ(l.max, c.max);
}

INSTANTIATE_TEST_SUITE_P(
    Table, IntervalLimits,
    ::testing::Values(IntervalCase{"NoChannelSerial", 0, 0, 0, 255, 19200, 0, 0, 100, 60000},
                      IntervalCase{"NoChannelOtherLink", 0, 0, 0, 255, 19200, 1, 1, 50, 60000},
                      IntervalCase{"FourAt9600", 0, 4, 0, 255, 9600, 0, 0, 600, 240000},
                      IntervalCase{"FourAt9600Doubled", 0, 4, 0, 255, 9600, 0, 1, 1200, 240000},
                      IntervalCase{"FourAt9600FaultTrigger", 0, 4, 2, 3, 9600, 0, 0, 750, 300000},
                      IntervalCase{"FaultTriggerDoubled", 0, 4, 2, 3, 9600, 0, 1, 1500, 300000},
                      IntervalCase{"FaultTriggerWithoutTarget", 0, 4, 2, 255, 9600, 0, 0, 600,
                                   240000},
                      IntervalCase{"EightPlusFault", 0, 8, 2, 1, 19200, 0, 0, 900, 540000},
                      IntervalCase{"UnknownBaud", 0, 6, 0, 255, 14400, 0, 0, 100, 360000},
                      IntervalCase{"OtherLink", 0, 3, 0, 255, 300, 1, 0, 150, 180000},
                      IntervalCase{"HighSpeedMask", 1, 4, 0, 255, 9600, 0, 1, 1, 40}),
    [](const auto& param) { return std::string(param.param.name); });

TEST(SamplingTimeLimits, FollowIntervalOrMaskCount) {
    EXPECT_EQ(samplingTimeLimits(1, 100, 1).min, 100);
    EXPECT_EQ(samplingTimeLimits(1, 100, 1).max, 8000);
    EXPECT_EQ(samplingTimeLimits(1, 100, 40).min, 2050);
    EXPECT_EQ(samplingTimeLimits(1, 100, 40).max, 164000);
    EXPECT_EQ(samplingTimeLimits(0, 100, 40).min, 10000);
    EXPECT_EQ(samplingTimeLimits(0, 100, 40).max, 1000000);
}

TEST(TriggerPosition, RoundsToTensWithinTenToNinety) {
    const std::pair<double, float> cases[] = {{95, 90}, {5, 10},   {55, 60}, {65, 60},
                                              {47, 50}, {100, 90}, {0, 10},  {90.9, 90}};
    for (const auto& [in, out] : cases)
        EXPECT_EQ(triggerPositionFrom(in), out) << in;
    EXPECT_EQ(triggerPositionFrom(std::nullopt), 10);
}

TEST(ShownForms, StationsAndTargetsReadBack) {
    EXPECT_EQ(stationText(3, "None"), "03");
    EXPECT_EQ(stationText(32, "None"), "None");
    EXPECT_EQ(stationFromText("None", "None"), 32);
    EXPECT_EQ(stationFromText("17", "None"), 17);
    EXPECT_EQ(stationFromText("x", "None"), 32);
    EXPECT_EQ(triggerTargetText(1, 5, "---"), "CH05");
    EXPECT_EQ(triggerTargetText(2, 5, "---"), "05");
    EXPECT_EQ(triggerTargetText(1, 255, "---"), "---");
    EXPECT_EQ(triggerTargetFromText("CH07", "---"), 7);
    EXPECT_EQ(triggerTargetFromText(" 12 ", "---"), 12);
    EXPECT_EQ(triggerTargetFromText("---", "---"), 255);
    EXPECT_EQ(triggerTargetFromText("", "---"), 255);
    EXPECT_EQ(triggerTargetFromText("abc", "---"), 255);
}

}  // namespace
}  // namespace zt
