#include "platform/text/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zt::text {
namespace {

struct DoubleCase {
    double value;
    const char* text;
};

class DoubleToTextTest : public testing::TestWithParam<DoubleCase> {};

TEST_P(DoubleToTextTest, MatchesPlatformText) {
    EXPECT_EQ(doubleToText(GetParam().value, HostLocale{}), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, DoubleToTextTest,
    testing::Values(
        DoubleCase{0.56789, "0.56789"}, DoubleCase{5.6789E-11, "0.000000000056789"},
        DoubleCase{5.6789E-12, "5.6789E-12"}, DoubleCase{1E-05, "0.00001"},
        DoubleCase{1E-14, "0.00000000000001"}, DoubleCase{1E-15, "1E-15"},
        DoubleCase{1E+14, "100000000000000"}, DoubleCase{999999999999999.0, "999999999999999"},
        DoubleCase{1E+15, "1E+15"}, DoubleCase{1.2E+15, "1.2E+15"}, DoubleCase{1.5E+20, "1.5E+20"},
        DoubleCase{M_PI, "3.14159265358979"}, DoubleCase{12.345678901234567, "12.3456789012346"},
        DoubleCase{1.0 / 3.0, "0.333333333333333"}, DoubleCase{0.1 + 0.2, "0.3"},
        DoubleCase{2.50, "2.5"}, DoubleCase{100, "100"}, DoubleCase{-0.0, "0"},
        DoubleCase{0.0, "0"}, DoubleCase{-2.5, "-2.5"}, DoubleCase{1E+100, "1E+100"},
        DoubleCase{-1.5E-100, "-1.5E-100"}, DoubleCase{0.0001, "0.0001"},
        DoubleCase{1.005, "1.005"}, DoubleCase{99999.9, "99999.9"},
        DoubleCase{99999999.9, "99999999.9"},
        DoubleCase{std::numeric_limits<double>::infinity(), "1.#INF"},
        DoubleCase{-std::numeric_limits<double>::infinity(), "-1.#INF"},
        DoubleCase{std::numeric_limits<double>::quiet_NaN(), "1.#QNAN"},
        DoubleCase{std::numeric_limits<double>::max(), "1.79769313486232E+308"},
        DoubleCase{std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"}));

struct SingleCase {
    float value;
    const char* text;
};

class SingleToTextTest : public testing::TestWithParam<SingleCase> {};

TEST_P(SingleToTextTest, MatchesPlatformText) {
    EXPECT_EQ(singleToText(GetParam().value, HostLocale{}), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, SingleToTextTest,
    testing::Values(SingleCase{3.14159265f, "3.141593"}, SingleCase{654322.23456f, "654322.3"},
                    SingleCase{0.000005f, "0.000005"}, SingleCase{1E+08f, "1E+08"},
                    SingleCase{12345678.0f, "1.234568E+07"}, SingleCase{1.234E+16f, "1.234E+16"},
                    SingleCase{1234.56789f, "1234.568"}, SingleCase{0.1f, "0.1"},
                    SingleCase{10.0f, "10"}, SingleCase{-0.0f, "0"}, SingleCase{0.5f, "0.5"},
                    // exact binary ties round away from zero
                    SingleCase{12345685.0f, "1.234569E+07"},
                    SingleCase{-12345685.0f, "-1.234569E+07"}));

TEST(NumberTextTest, UsesTheLocaleDecimalSeparator) {
    HostLocale spanish;
    spanish.decimalSeparator = ",";
    spanish.thousandsSeparator = ".";
    EXPECT_EQ(doubleToText(0.5, spanish), "0,5");
    EXPECT_EQ(doubleToText(1.2E+15, spanish), "1,2E+15");
    EXPECT_EQ(doubleToText(1234567.25, spanish), "1234567,25");
    EXPECT_EQ(singleToText(12.34f, spanish), "12,34");
}

TEST(NumberTextTest, StrFormHasLeadingBlankAndPoint) {
    EXPECT_EQ(doubleToStr(2.5), " 2.5");
    EXPECT_EQ(doubleToStr(-2.5), "-2.5");
    EXPECT_EQ(doubleToStr(0.0), " 0");
    EXPECT_EQ(doubleToStr(-0.0), " 0");
    EXPECT_EQ(singleToStr(0.5f), " 0.5");
    EXPECT_EQ(integerToStr(7), " 7");
    EXPECT_EQ(integerToStr(-7), "-7");
}

TEST(NumberTextTest, IntegersArePlainSignedDecimal) {
    EXPECT_EQ(integerText(0), "0");
    EXPECT_EQ(integerText(-312), "-312");
    EXPECT_EQ(integerText(4000), "4000");
    EXPECT_EQ(integerText(std::numeric_limits<int64_t>::min()), "-9223372036854775808");
}

TEST(NumberTextTest, HexadecimalIsUpperCaseWithoutLeadingZeros) {
    EXPECT_EQ(hexText(0), "0");
    EXPECT_EQ(hexText(255), "FF");
    EXPECT_EQ(hexText(-1), "FFFFFFFF");
    EXPECT_EQ(hexText(static_cast<int32_t>(0x81000005u)), "81000005");
    EXPECT_EQ(hexText(5 | static_cast<int32_t>(0x81000000u)), "81000005");
    EXPECT_EQ(hexText(std::numeric_limits<int32_t>::min()), "80000000");
    EXPECT_EQ(hexText(0x00ABCDEF), "ABCDEF");
    EXPECT_EQ(hexText16(-1), "FFFF");
    EXPECT_EQ(hexText16(16), "10");
}

TEST(NumberTextTest, SignificantDigitsRoundAndNormalise) {
    SignificantDigits sd = significantDigits(-1234.5, 15);
    EXPECT_TRUE(sd.negative);
    EXPECT_EQ(sd.digits, "12345");
    EXPECT_EQ(sd.exponent, 3);
    sd = significantDigits(9.9999999, 7);
    EXPECT_EQ(sd.digits, "1");
    EXPECT_EQ(sd.exponent, 1);
    sd = significantDigits(-0.0, 15);
    EXPECT_FALSE(sd.negative);
    EXPECT_TRUE(sd.digits.empty());
    EXPECT_TRUE(significantDigits(std::nan(""), 15).digits.empty());
    EXPECT_EQ(significantDigits(1.25, 2).digits, "13");
    EXPECT_EQ(significantDigits(-9.5, 1).digits, "1");
    EXPECT_EQ(significantDigits(-9.5, 1).exponent, 1);
}

}  // namespace
}  // namespace zt::text
