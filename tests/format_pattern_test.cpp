#include "platform/text/format_pattern.h"

#include <gtest/gtest.h>

#include <limits>

namespace zt::text {
namespace {

struct FormatCase {
    const char* pattern;
    double value;
    const char* text;
};

void PrintTo(const FormatCase& c, std::ostream* os) {
    *os << c.pattern << " " << c.value << " -> " << c.text;
}

class FormatNumberTest : public testing::TestWithParam<FormatCase> {};

TEST_P(FormatNumberTest, MatchesPlatformFormat) {
    EXPECT_EQ(formatNumber(GetParam().value, GetParam().pattern, HostLocale{}), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Digits, FormatNumberTest,
    testing::Values(
        FormatCase{"00", 7, "07"}, FormatCase{"00", 123, "123"}, FormatCase{"00", -7, "-07"},
        FormatCase{"00", 6.5, "07"}, FormatCase{"0", 12, "12"}, FormatCase{"######0", 0, "0"},
        FormatCase{"######0", -2.5, "-3"}, FormatCase{"######0", -0.4, "-0"},
        FormatCase{"######0", 1234567890, "1234567890"}, FormatCase{"######0.0", 2.25, "2.3"},
        FormatCase{"######0.0", 0.04, "0.0"}, FormatCase{"######0.0", -0.04, "-0.0"},
        FormatCase{"######0.0", 9.96, "10.0"}, FormatCase{"########0.0", 99999999.9, "99999999.9"},
        FormatCase{"######0.00", 1.005, "1.01"}, FormatCase{"######0.00", 2.675, "2.68"},
        FormatCase{"######0.000", 1.0 / 3.0, "0.333"},
        FormatCase{"#0.000000", 9.9999999, "10.000000"},
        FormatCase{"0.0000000000", 0.1, "0.1000000000"}));

INSTANTIATE_TEST_SUITE_P(
    OptionalDigitsSectionsLiterals, FormatNumberTest,
    testing::Values(
        FormatCase{"#.##", 0.0995, ".1"}, FormatCase{"#.##", 0.0049, "."},
        FormatCase{".#", -0.1, "-.1"}, FormatCase{"0.0#", 1.25, "1.25"}, FormatCase{"#", 0, ""},
        FormatCase{"######0;---", 0, "0"}, FormatCase{"######0;---", -0.2, "---"},
        FormatCase{"######0.00;---", 1.5, "1.50"}, FormatCase{"\"pos\";\"neg\"", -1, "neg"},
        FormatCase{"0;(0);\"zero\"", 0, "zero"}, FormatCase{"0;(0);\"zero\"", -3, "(3)"},
        FormatCase{"0;;\"zero\"", -3, "-3"}, FormatCase{"0.0;\\-0.0", -0.04, "-0.0"},
        FormatCase{"CH00", 1, "CH01"}, FormatCase{"0 ms", 5, "5 ms"},
        FormatCase{"#,##0.00", -1234.5, "-1,234.50"}, FormatCase{"", 2.5, "2.5"}));

TEST(FormatNumberTest, SinglesGoThroughSevenDigits) {
    HostLocale locale;
    EXPECT_EQ(formatNumber(0.1f, "0.0000000000", locale, NumberKind::Single), "0.1000000000");
    // As a double the same binary value shows its 15-digit form.
    EXPECT_EQ(formatNumber(static_cast<double>(0.1f), "0.0000000000", locale), "0.1000000015");
    EXPECT_EQ(formatNumber(2.5f, "######0", locale, NumberKind::Single), "3");
    EXPECT_EQ(formatNumber(1e300, "0", locale, NumberKind::Single), "1.#INF");
}

TEST(FormatNumberTest, UsesTheLocaleDecimalSeparator) {
    const HostLocale comma{.decimalSeparator = ",", .thousandsSeparator = "."};
    EXPECT_EQ(formatNumber(2.25, "######0.0", comma), "2,3");
    EXPECT_EQ(formatNumber(-0.1, ".#", comma), "-,1");
    EXPECT_EQ(formatNumber(1234567.891, "#,##0.00", comma), "1.234.567,89");
    EXPECT_EQ(formatNumber(0.5, "", comma), "0,5");
}

TEST(FormatNumberTest, BadInputGivesStableText) {
    HostLocale locale;
    EXPECT_EQ(formatNumber(std::numeric_limits<double>::quiet_NaN(), "0.0", locale), "1.#QNAN");
    EXPECT_EQ(formatNumber(std::numeric_limits<double>::infinity(), "00", locale), "1.#INF");
    EXPECT_EQ(formatNumber(1e300, "0", locale), "1" + std::string(300, '0'));
    EXPECT_EQ(formatNumber(1e-300, "0.00", locale), "0.00");
    EXPECT_EQ(formatNumber(-1e-300, "0.00", locale), "-0.00");
    EXPECT_EQ(formatNumber(5, "\"unclosed", locale), "unclosed");
    EXPECT_EQ(formatNumber(5, "0\\", locale), "5");
    EXPECT_EQ(formatNumber(5, "0;1;2;3;4", locale), "5");
    EXPECT_EQ(formatNumber(5, "0..0", locale), "5..0");
}

}  // namespace
}  // namespace zt::text
