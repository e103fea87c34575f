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
    testing::Values(DoubleCase{5.6789E-11, "5.6789E-11"}, DoubleCase{5.6789E-12, "5.6789E-12"},
                    // below 1E-04 the exponent form is used however few the digits
                    DoubleCase{0.0001, "0.0001"}, DoubleCase{0.00013912, "0.00013912"},
                    DoubleCase{0.00001, "1E-05"}, DoubleCase{0.000025, "2.5E-05"},
                    DoubleCase{0.0000000123456, "1.23456E-08"}, DoubleCase{-0.00001, "-1E-05"},
                    DoubleCase{1E-15, "1E-15"}, DoubleCase{999999999999999.0, "999999999999999"},
                    DoubleCase{1E+15, "1E+15"}, DoubleCase{M_PI, "3.14159265358979"},
                    DoubleCase{0.1 + 0.2, "0.3"}, DoubleCase{-0.0, "0"},
                    DoubleCase{-1.5E-100, "-1.5E-100"}, DoubleCase{1.005, "1.005"},
                    DoubleCase{-std::numeric_limits<double>::infinity(), "-1.#INF"},
                    DoubleCase{std::numeric_limits<double>::quiet_NaN(), "1.#QNAN"},
                    DoubleCase{std::numeric_limits<double>::max(), "1.79769313486232E+308"},
                    DoubleCase{std::numeric_limits<double>::denorm_min(),
                               "4.94065645841247E-324"}));

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
                    SingleCase{1E+08f, "1E+08"}, SingleCase{12345678.0f, "1.234568E+07"},
                    SingleCase{0.1f, "0.1"}, SingleCase{-0.0f, "0"}, SingleCase{0.00001f, "1E-05"},
                    SingleCase{0.0001f, "0.0001"}, SingleCase{0.000005f, "5E-06"},
                    // exact binary ties round away from zero
                    SingleCase{-12345685.0f, "-1.234569E+07"}));

TEST(NumberTextTest, UsesTheLocaleDecimalSeparator) {
    HostLocale spanish;
    spanish.decimalSeparator = ",";
    spanish.thousandsSeparator = ".";
    EXPECT_EQ(doubleToText(1.2E+15, spanish), "1,2E+15");
    EXPECT_EQ(doubleToText(1234567.25, spanish), "1234567,25");
    EXPECT_EQ(singleToText(12.34f, spanish), "12,34");
}

TEST(NumberTextTest, StrIntegerAndHexForms) {
    EXPECT_EQ(doubleToStr(2.5), " 2.5");
    EXPECT_EQ(doubleToStr(-2.5), "-2.5");
    EXPECT_EQ(doubleToStr(-0.0), " 0");
    EXPECT_EQ(singleToStr(0.5f), " 0.5");
    EXPECT_EQ(integerToStr(7), " 7");
    EXPECT_EQ(integerText(-312), "-312");
    EXPECT_EQ(integerText(std::numeric_limits<int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(hexText(0), "0");
    EXPECT_EQ(hexText(-1), "FFFFFFFF");
    EXPECT_EQ(hexText(static_cast<int32_t>(0x81000005u)), "81000005");
    EXPECT_EQ(hexText(0x00ABCDEF), "ABCDEF");
    EXPECT_EQ(hexText16(-1), "FFFF");
}

}  // namespace
}  // namespace zt::text
