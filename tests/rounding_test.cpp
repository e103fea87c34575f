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

TEST(RoundHalfEvenTest, NonFiniteValuesPassThroughAndTriggerPositionsRoundToTens) {
    EXPECT_EQ(roundHalfEven(-kInf), -kInf);
    EXPECT_TRUE(std::isnan(roundHalfEven(kNaN)));
    auto position = [](double value) { return roundHalfEven(value / 10) * 10; };
    EXPECT_EQ(position(15), 20);
    EXPECT_EQ(position(25), 20);
    EXPECT_EQ(position(84), 80);
}

struct RangeCase {
    double value;
    std::optional<int16_t> int16;
    std::optional<int32_t> int32;
    int16_t saturated16;
    int32_t saturated32;
};

class RangeTest : public testing::TestWithParam<RangeCase> {};

TEST_P(RangeTest, RoundsHalfToEvenWithinRangeAndSaturatesOutside) {
    const RangeCase& c = GetParam();
    EXPECT_EQ(toInt16(c.value), c.int16) << c.value;
    EXPECT_EQ(toInt32(c.value), c.int32) << c.value;
    EXPECT_EQ(toInt16Saturated(c.value), c.saturated16) << c.value;
    EXPECT_EQ(toInt32Saturated(c.value), c.saturated32) << c.value;
}

constexpr int32_t kMin32 = std::numeric_limits<int32_t>::min();
constexpr int32_t kMax32 = std::numeric_limits<int32_t>::max();

INSTANTIATE_TEST_SUITE_P(
    Table, RangeTest,
    testing::Values(RangeCase{2.5, 2, 2, 2, 2}, RangeCase{-3.5, -4, -4, -4, -4},
                    RangeCase{-32768.5, -32768, -32768, -32768, -32768},
                    RangeCase{32767.4, 32767, 32767, 32767, 32767},
                    RangeCase{32767.5, std::nullopt, 32768, 32767, 32768},
                    RangeCase{-32768.50001, std::nullopt, -32769, -32768, -32769},
                    RangeCase{100001.5, std::nullopt, 100002, 32767, 100002},
                    RangeCase{2147483647.4, std::nullopt, kMax32, 32767, kMax32},
                    RangeCase{2147483647.5, std::nullopt, std::nullopt, 32767, kMax32},
                    RangeCase{-2147483648.5, std::nullopt, kMin32, -32768, kMin32},
                    RangeCase{-2147483648.6, std::nullopt, std::nullopt, -32768, kMin32},
                    RangeCase{kNaN, std::nullopt, std::nullopt, 0, 0},
                    RangeCase{kInf, std::nullopt, std::nullopt, 32767, kMax32},
                    RangeCase{-kInf, std::nullopt, std::nullopt, -32768, kMin32}));

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

TEST(TextToIntTest, SixteenBitRangeAndCommaDecimalLocale) {
    HostLocale locale;
    EXPECT_EQ(toInt16("32767.5", locale), std::nullopt);
    EXPECT_EQ(toInt16("-32768.5", locale), -32768);
    EXPECT_EQ(toInt16("&H8000", locale), -32768);
    HostLocale comma;
    comma.decimalSeparator = ",";
    comma.thousandsSeparator = ".";
    EXPECT_EQ(toInt32("3,5", comma), 4);
    EXPECT_EQ(toInt32("1.000", comma), 1000);
}

}  // namespace
}  // namespace zt::text
