// Engineering values of raw counts as the graph shows them.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tests/plot_fixture.h"

namespace zt {
namespace {

using testing::PlotFixture;

struct ConversionCase {
    std::string name;
    int channel;
    int32_t item;
    bool isSigned;
    bool direct;
    std::string model;
    float base;
    int16_t decimals;
    int32_t raw;
    double expected;
};

void PrintTo(const ConversionCase& c, std::ostream* os) {
    *os << c.name;
}
class AnalogValue : public ::testing::TestWithParam<ConversionCase> {};

TEST_P(AnalogValue, IsRawCountTimesGainTimesDecimalFactor) {
    const ConversionCase& c = GetParam();
    PlotFixture f;
    f.use(c.channel, c.item);
    f.inputs.signedItem[static_cast<size_t>(c.channel)] = c.isSigned;
    f.inputs.directValue[static_cast<size_t>(c.channel)] = c.direct;
    f.inputs.modelText = c.model;
    f.state->sampData[static_cast<size_t>(c.channel)].sngBaseValue = c.base;
    f.state->sampData[static_cast<size_t>(c.channel)].intDecPoint = c.decimals;
    f.records()[0].lngAnalogData[static_cast<size_t>(c.channel - 1)] = c.raw;
    f.draw();
    EXPECT_EQ(f.value(c.channel, 0), c.expected);
}

// The decimal factor is a single-precision number.
const double kTenth = static_cast<double>(0.1f);

INSTANTIATE_TEST_SUITE_P(
    Plot, AnalogValue,
    ::testing::Values(
        // Base 8190 over 4095 counts: 2 units per count.
        ConversionCase{"SignedFfffIsMinusOne", 2, 202, true, false, "", 8190, 1, 0xFFFF,
                       -1 * 2.0 * kTenth},
        ConversionCase{"UnsignedFfffIs65535", 2, 202, false, false, "", 8190, 1, 0xFFFF,
                       65535 * 2.0 * kTenth},
        ConversionCase{"SignedUsesLow16BitsOnly", 1, 202, true, false, "", 4095, 0, 0x7FFF0005, 5},
        ConversionCase{"Model901SpeedItemGain", 1, 201, false, true, "901", 60, 0, 30, 60},
        ConversionCase{"Model901ZeroBaseGivesZero", 1, 201, false, true, "901", 0, 0, 30, 0},
        ConversionCase{"OtherModelSpeedItemIsRaw", 1, 201, false, true, "900", 60, 2, 1234,
                       1234 * static_cast<double>(0.01f)},
        ConversionCase{"DirectStationCurrentScale", 3, 202, false, true, "", 4096, 0, 100, 100},
        ConversionCase{"PositionItemIs32Bit", 1, 222, true, true, "", 0, 0, 0x12345678, 305419896},
        ConversionCase{"PositionItemNegative32Bit", 3, 226, true, true, "", 0, 0, -70000, -70000},
        ConversionCase{"PositionUpperHalfIsRaw", 2, 222, true, true, "", 0, 0, 0xFFFF, 65535},
        ConversionCase{"PositionWithoutStationFlagIsSigned16", 1, 222, true, false, "", 0, 0,
                       0xFFFF, -1}),
    [](const auto& p) { return p.param.name; });

TEST(PlotDigital, EachChannelTakesItsOwnBit) {
    PlotFixture f;
    f.records()[0].intDigitalData = static_cast<int16_t>(0x8002);
    f.draw();
    EXPECT_EQ(f.value(5, 0), 0);
    EXPECT_EQ(f.value(6, 0), 1);
    EXPECT_EQ(f.value(7, 0), 0);
    EXPECT_EQ(f.value(8, 0), 0);
}

TEST(PlotTwoChannelItem, UpperHalvesAreNotDrawn) {
    PlotFixture f;
    for (int c = 1; c <= 4; ++c) {
        f.use(c, c <= 2 ? 222 : 226);
        f.inputs.directValue[static_cast<size_t>(c)] = true;
    }
    f.draw();
    for (int c = 1; c <= 4; ++c) {
        const chart::Series& s = f.refs.series(c, kDisplayedGraph);
        EXPECT_EQ(s.pointCount(), kGraphRecords);
        const bool upper = c == 2 || c == 4;
        EXPECT_EQ(s.LinePen.style, upper ? chart::PenStyle::Null : chart::PenStyle::Solid) << c;
        EXPECT_EQ(s.Label.Text, upper ? "" : "CH" + std::to_string(c)) << c;
    }
}

}  // namespace
}  // namespace zt
