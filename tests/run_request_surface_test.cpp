// The request record, the host's scaling data and the start refusals, all through the public
// members and the Start button as a host and a person use them.
#include <gtest/gtest.h>

#include <cmath>

#include "run/run_states.h"
#include "run_fixture.h"

namespace zt::testing {
namespace {

int16_t le16(const std::array<uint8_t, kGraphRequestBytes>& b, std::size_t at) {
    return static_cast<int16_t>(b[at] | (b[at + 1] << 8));
}
int32_t le32(const std::array<uint8_t, kGraphRequestBytes>& b, std::size_t at) {
    return static_cast<int32_t>(
        static_cast<uint32_t>(b[at]) | (static_cast<uint32_t>(b[at + 1]) << 8) |
        (static_cast<uint32_t>(b[at + 2]) << 16) | (static_cast<uint32_t>(b[at + 3]) << 24));
}

struct SpeedFields {
    int16_t speed;
    double mask;
    double interval;
    int16_t maskHalf;     // offset 42
    int32_t maskOut;      // offset 44
    int32_t intervalOut;  // offset 48
};

class RequestSpeedFields : public ::testing::TestWithParam<SpeedFields> {};

TEST_P(RequestSpeedFields, OffsetsFortyToFiftyOneFollowTheSpeed) {
    const SpeedFields c = GetParam();
    RunFixture f;
    f.setChannel(1, 1, 201);
    GRAPH_REQUEST filled = f.control.GetGraphRequest();
    filled.intUnit = {1, 2, 3, 4};
    filled.lngBaseValue = {5, 6, 7, 8};
    filled.lngReserved = {1, 2, 3, 4};
    f.control.SetGraphRequest(filled);
    f.setting().intSamplingSpeed = c.speed;
    f.setting().dblMask = c.mask;
    f.setting().dblSamplingInterval = c.interval;
    const auto bytes = encode(f.control.GetGraphRequest());
    EXPECT_EQ(le16(bytes, 40), c.speed);
    EXPECT_EQ(le16(bytes, 42), c.maskHalf);
    EXPECT_EQ(le32(bytes, 44), c.maskOut);
    EXPECT_EQ(le32(bytes, 48), c.intervalOut);
    // The host's fields are cleared for the next completion.
    for (std::size_t at = 52; at < 84; ++at)
        EXPECT_EQ(bytes[at], 0) << at;
}

INSTANTIATE_TEST_SUITE_P(Speeds, RequestSpeedFields,
                         ::testing::Values(SpeedFields{0, 7, 150.5, 0, 0, 150},
                                           SpeedFields{0, 7, 151.5, 0, 0, 152},
                                           SpeedFields{1, 4, 100, 2, 4, 0},    // 2.5 to even
                                           SpeedFields{1, 6, 100, 4, 6, 0},    // 3.5 to even
                                           SpeedFields{1, 2.5, 100, 2, 2, 0},  // mask 2.5 -> 2
                                           SpeedFields{2, 4, 100, 0, 0, 0}));

TEST(RequestCompletion, BaseValuesFollowTheItemTheModelAndTheDirectValueFlag) {
    RunFixture f;
    // Station 1: general drive; 2: model 0x057...; 3: values taken without conversion.
    const int32_t targets[5] = {0, 2, 2, 1, 3};
    for (int c = 1; c <= 4; ++c)
        f.control.state().chSetting[static_cast<std::size_t>(c)].lngTargetNo = targets[c];
    GRAPH_REQUEST r;
    r.intAnalogItem = {202, 207, 202, 209};
    r.lngBaseValue = {300, 200, 300, 1234};
    r.intUnit = {2, 0, 2, 3};
    r.intDecPoint = {1, 0, 2, 3};
    r.intMaskHalf = 77;
    f.control.SetGraphRequest(r);
    const GraphState& s = f.control.state();
    EXPECT_FALSE(s.directValue[1]);
    EXPECT_FALSE(s.directValue[3]);
    EXPECT_TRUE(s.directValue[4]);
    EXPECT_FALSE(s.directValue[5]);                  // no station
    EXPECT_EQ(s.sampData[1].sngBaseValue, 100.0f);   // 300 / sqrt(3) / sqrt(3)
    EXPECT_EQ(s.sampData[2].sngBaseValue, 141.0f);   // 200 / sqrt(2)
    EXPECT_EQ(s.sampData[3].sngBaseValue, 173.0f);   // 300 / sqrt(3)
    EXPECT_EQ(s.sampData[4].sngBaseValue, 1000.0f);  // unit 3, also for a direct value
    EXPECT_EQ(s.sampData[3].intDecPoint, 2);
    EXPECT_EQ(s.sampData[4].sngUnit, 3.0f);
    EXPECT_EQ(s.request.intMaskHalf, 77);

    f.control.state().chSetting[1].lngTargetNo = 3;  // direct: the value as sent
    f.control.SetGraphRequest(r);
    EXPECT_EQ(f.control.state().sampData[1].sngBaseValue, 300.0f);
}

struct FullScale {
    int32_t item;
    bool direct;
    int32_t count;
};

// Items the vector drive on station 2 offers, chosen on the channel sheet.
class FullScaleCount : public ::testing::TestWithParam<FullScale> {};

TEST_P(FullScaleCount, GainIsTheBaseValueOverTheItemsFullScaleCount) {
    const FullScale c = GetParam();
    RunFixture f;
    f.setChannel(1, 2, c.item);
    f.lib.sim().setModelText("E8-V");
    GraphState& s = f.control.state();
    ASSERT_EQ(s.chSetting[1].lngSamplingItem, c.item);
    s.directValue[1] = c.direct;
    s.sampData[1].sngBaseValue = 1000;
    const double gain = f.control.conversionTable()[1].gain;
    if (c.count == 1)
        EXPECT_EQ(gain, 1.0) << c.item;
    else
        EXPECT_DOUBLE_EQ(gain, 1000.0 / c.count) << c.item;
}

INSTANTIATE_TEST_SUITE_P(OfferedItems, FullScaleCount,
                         ::testing::Values(FullScale{201, true, 1}, FullScale{202, true, 4096},
                                           FullScale{206, true, 4096}, FullScale{213, true, 4096},
                                           FullScale{207, true, 7094}, FullScale{208, true, 7094},
                                           FullScale{209, true, 4095}, FullScale{210, true, 4095},
                                           FullScale{211, true, 1}, FullScale{212, true, 4096},
                                           FullScale{242, true, 16384}, FullScale{201, false, 1},
                                           FullScale{203, false, 4095}, FullScale{208, false, 4095},
                                           FullScale{211, false, 4095}, FullScale{212, false, 4095},
                                           FullScale{242, false, 16384}));

TEST(FullScaleCount, EveryListedItemOfBothTables) {
    struct Row {
        std::vector<int32_t> items;
        int32_t withFlag, withoutFlag;
    };
    const Row rows[] = {
        {{201, 229, 230, 231, 232}, 1, 1},
        {{202, 203, 204, 206, 212, 213, 237, 238}, 4096, 4095},
        {{207, 208}, 7094, 4095},
        {{209, 210}, 4095, 4095},
        {{211, 235, 236, 240, 241}, 1, 4095},
        {{233, 234, 245, 246, 247}, 32768, 32767},
        {{243, 244}, 1, 32767},
        {{242}, 16384, 16384},
        {{0, 205, 222, 248, 32768}, 1, 1},
    };
    for (const Row& r : rows) {
        for (int32_t item : r.items) {
            EXPECT_EQ(fullScaleCount(item, true, false), r.withFlag) << item;
            EXPECT_EQ(fullScaleCount(item, false, false), r.withoutFlag) << item;
        }
    }
    for (int32_t item : {201, 229, 230, 231, 232})
        EXPECT_EQ(fullScaleCount(item, true, true), 120) << item;
}

TEST(FullScaleCount, ModelNineHundredOneGivesItemTwoHundredOneACountOfOneHundredTwenty) {
    RunFixture f;
    f.setChannel(1, 1, 201);
    f.lib.sim().setModelText("901");
    GraphState& s = f.control.state();
    s.directValue[1] = true;
    s.sampData[1].sngBaseValue = 60;
    EXPECT_DOUBLE_EQ(f.control.conversionTable()[1].gain, 2.0);  // 120 / 60
    s.sampData[1].sngBaseValue = 0;
    EXPECT_DOUBLE_EQ(f.control.conversionTable()[1].gain, 0.0);
}

struct Refusal {
    const char* name;
    void (*arrange)(RunFixture&);
    const char* message;
};

class StartRefusal : public ::testing::TestWithParam<Refusal> {};

TEST_P(StartRefusal, ShowsItsMessageAndAsksTheHostForNothing) {
    RunFixture f;
    f.setChannel(1, 1, 201);
    f.setting().dblSamplingInterval = 200;
    f.setting().dblSamplingTime = 20000;
    GetParam().arrange(f);
    f.control.surface().cmdStart.click();
    EXPECT_EQ(f.boxTexts(), (std::vector<std::string>{GetParam().message}));
    EXPECT_TRUE(f.host.commands().empty());
    EXPECT_EQ(f.control.runState(), OnlineReady);
}

// High-speed sampling on a drive asked for its ability (series A or E, model 0x017, settings
// fields 9 and 10 = 1 and 0).
void highSpeed(RunFixture& f, int station) {
    f.setChannel(1, station, 201);
    f.setting().intSamplingSpeed = 1;
    f.setting().dblMask = 3;
    f.setting().dblSamplingTime = 1000;
    f.control.state().iniFileItem.lngData[9] = 1;
    f.control.state().iniFileItem.lngData[10] = 0;
}

INSTANTIATE_TEST_SUITE_P(
    Checks, StartRefusal,
    ::testing::Values(
        Refusal{"ProgrammableController",
                [](RunFixture& f) {
                    highSpeed(f, 1);
                    f.lib.sim().link().setOperatingState(1, 5);
                },
                "Unavailable to perform since programmable controller function is activated.\r\n"
                "Deactivate the programmable controller function, and try again."},
        Refusal{"NoHighSpeedAbility", [](RunFixture& f) { highSpeed(f, 5); },
                "It doesn't correspond to a high-speed sampling in the connected inverter.\r\n"
                "Sampling is stopped."},
        Refusal{"LibraryCheckResult",
                [](RunFixture& f) {
                    highSpeed(f, 5);
                    f.control.state().iniFileItem.lngData[9] = 0;
                },
                "Err"},
        Refusal{"FaultTargetAboveThirtyOne",
                [](RunFixture& f) {
                    f.setting().intTriggerType = 2;
                    f.setting().intTriggerBoot = 0;
                    f.setting().intTriggerTarget = 32;
                },
                "Selected station number is not connected. Choose another trigger station "
                "number."},
        Refusal{"FaultTargetBelowZero",
                [](RunFixture& f) {
                    f.setting().intTriggerType = 2;
                    f.setting().intTriggerBoot = 0;
                    f.setting().intTriggerTarget = -1;
                },
                "Selected station number is not connected. Choose another trigger station "
                "number."}),
    [](const ::testing::TestParamInfo<Refusal>& p) { return p.param.name; });

}  // namespace
}  // namespace zt::testing
