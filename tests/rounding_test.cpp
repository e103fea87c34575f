#include "platform/text/rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zt::text {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct RoundCase {
    double value;
    double rounded;
};

class RoundHalfEvenTest : public testing::TestWithParam<RoundCase> {};

TEST_P(RoundHalfEvenTest, TiesGoToEven) {
    EXPECT_EQ(roundHalfEven(GetParam().value), GetParam().rounded) << GetParam().value;
}

INSTANTIATE_TEST_SUITE_P(Table, RoundHalfEvenTest,
                         testing::Values(RoundCase{2.5, 2}, RoundCase{3.5, 4}, RoundCase{-2.5, -2},
                                         RoundCase{-3.5, -4}, RoundCase{0.5, 0}, RoundCase{1.5, 2},
                                         RoundCase{2.5000001, 3}, RoundCase{2.4999999, 2},
                                         RoundCase{-0.4, 0}, RoundCase{3.6, 4},
                                         RoundCase{1e300, 1e300},
                                         RoundCase{4503599627370497.0, 4503599627370497.0}));

TEST(RoundHalfEvenTest, NonFiniteValuesPassThrough) {
    EXPECT_EQ(roundHalfEven(kInf), kInf);
    EXPECT_EQ(roundHalfEven(-kInf), -kInf);
    EXPECT_TRUE(std::isnan(roundHalfEven(kNaN)));
}

TEST(RoundHalfEvenTest, TriggerPositionRoundsToTens) {
    // value / 10, round half to even, times 10
    auto position = [](double value) { return roundHalfEven(value / 10) * 10; };
    EXPECT_EQ(position(15), 20);
    EXPECT_EQ(position(25), 20);
    EXPECT_EQ(position(84), 80);
    EXPECT_EQ(position(35), 40);
    EXPECT_EQ(position(90), 90);
}

TEST(ToInt16Test, RangeEdges) {
    EXPECT_EQ(toInt16(-32768.5), -32768);
    EXPECT_EQ(toInt16(-32768.0), -32768);
    EXPECT_EQ(toInt16(32767.4), 32767);
    EXPECT_EQ(toInt16(32767.5), std::nullopt);
    EXPECT_EQ(toInt16(-32768.50001), std::nullopt);
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt16(-3.5), -4);
    EXPECT_EQ(toInt16(kNaN), std::nullopt);
    EXPECT_EQ(toInt16(kInf), std::nullopt);
    EXPECT_EQ(toInt16(-kInf), std::nullopt);
}

TEST(ToInt32Test, RangeEdges) {
    EXPECT_EQ(toInt32(-2147483648.5), std::numeric_limits<int32_t>::min());
    EXPECT_EQ(toInt32(2147483647.4), std::numeric_limits<int32_t>::max());
    EXPECT_EQ(toInt32(2147483647.5), std::nullopt);
    EXPECT_EQ(toInt32(-2147483648.6), std::nullopt);
    EXPECT_EQ(toInt32(1e300), std::nullopt);
    EXPECT_EQ(toInt32(kNaN), std::nullopt);
    EXPECT_EQ(toInt32(100000.5), 100000);
    EXPECT_EQ(toInt32(100001.5), 100002);
}

TEST(SaturatedTest, NeverFails) {
    EXPECT_EQ(toInt16Saturated(kNaN), 0);
    EXPECT_EQ(toInt16Saturated(1e9), 32767);
    EXPECT_EQ(toInt16Saturated(-kInf), -32768);
    EXPECT_EQ(toInt16Saturated(32767.5), 32767);
    EXPECT_EQ(toInt16Saturated(-2.5), -2);
    EXPECT_EQ(toInt32Saturated(kNaN), 0);
    EXPECT_EQ(toInt32Saturated(kInf), std::numeric_limits<int32_t>::max());
    EXPECT_EQ(toInt32Saturated(-1e300), std::numeric_limits<int32_t>::min());
    EXPECT_EQ(toInt32Saturated(7.5), 8);
}

struct TextCase {
    const char* text;
    std::optional<int32_t> value;
};

class TextToIntTest : public testing::TestWithParam<TextCase> {};

TEST_P(TextToIntTest, RoundsDecimalDigitsHalfToEven) {
    EXPECT_EQ(toInt32(GetParam().text, HostLocale{}), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Table, TextToIntTest,
    testing::Values(TextCase{"2.5", 2}, TextCase{"3.5", 4}, TextCase{"2.50001", 3},
                    TextCase{"1,000", 1000}, TextCase{"(5)", -5}, TextCase{"-2.5", -2},
                    TextCase{"0.5", 0}, TextCase{"0.51", 1}, TextCase{"0.05", 0},
                    TextCase{"1e3", 1000}, TextCase{"25e-1", 2}, TextCase{"&HFFFF", -1},
                    TextCase{"2147483647.4", 2147483647}, TextCase{"2147483647.5", std::nullopt},
                    TextCase{"-2147483648.5", -2147483647 - 1}, TextCase{"1e30", std::nullopt},
                    TextCase{"abc", std::nullopt}, TextCase{"", std::nullopt}, TextCase{"1e-30", 0},
                    TextCase{"1000000000000000000000.5", std::nullopt}));

TEST(TextToIntTest, SixteenBitRange) {
    HostLocale locale;
    EXPECT_EQ(toInt16("32767.5", locale), std::nullopt);
    EXPECT_EQ(toInt16("-32768.5", locale), -32768);
    EXPECT_EQ(toInt16("32767.49", locale), 32767);
    EXPECT_EQ(toInt16("40000", locale), std::nullopt);
    EXPECT_EQ(toInt16("&H8000", locale), -32768);
}

TEST(TextToIntTest, CommaDecimalLocale) {
    HostLocale comma;
    comma.decimalSeparator = ",";
    comma.thousandsSeparator = ".";
    EXPECT_EQ(toInt32("2,5", comma), 2);
    EXPECT_EQ(toInt32("3,5", comma), 4);
    EXPECT_EQ(toInt32("1.000", comma), 1000);
}

}  // namespace
}  // namespace zt::text
