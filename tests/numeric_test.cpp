#include "platform/text/numeric.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace zt::text {
namespace {

struct NumericCase {
    const char* text;
    bool numeric;
};

class IsNumericTest : public testing::TestWithParam<NumericCase> {};

TEST_P(IsNumericTest, FollowsTheLocaleNumberGrammar) {
    EXPECT_EQ(isNumeric(GetParam().text, HostLocale{}), GetParam().numeric) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Table, IsNumericTest,
    testing::Values(
        NumericCase{" 12 ", true}, NumericCase{"12\r\n", true}, NumericCase{"   ", false},
        NumericCase{"1 2", false},  // blanks
        NumericCase{"1-", true}, NumericCase{"(1)", true}, NumericCase{"()", false},
        NumericCase{"(1", false}, NumericCase{"--1", false}, NumericCase{"-", false},  // signs
        NumericCase{".5", true}, NumericCase{"5.", true}, NumericCase{".", false},
        NumericCase{"1.2.3", false}, NumericCase{"459.-", true},  // points
        NumericCase{"1,0,0", true}, NumericCase{",100", false},
        NumericCase{"1.5,0", false},  // thousands
        NumericCase{"$1", true}, NumericCase{"1$", true}, NumericCase{"$1$", false},
        NumericCase{"-$1", true},  // currency
        NumericCase{"1E+2", true}, NumericCase{"1e+", false}, NumericCase{"1e2.5", false},
        NumericCase{"1d2", false}, NumericCase{"1e400", false},
        NumericCase{"1e-400", true},                  // exponent
        NumericCase{"1.79769313486232E+308", false},  // past the largest double
        NumericCase{"1.79769313486231E+308", true}, NumericCase{"&hff", true},
        NumericCase{"&O17", true}, NumericCase{"&H", false}, NumericCase{"0x10", false},
        NumericCase{"&O8", false}, NumericCase{"&H1FFFFFFFF", false},  // hexadecimal and octal
        NumericCase{"1/1/2000", false}, NumericCase{"12abc", false}, NumericCase{"", false}));

struct ParseCase {
    const char* text;
    double value;
};

class ParseNumberTest : public testing::TestWithParam<ParseCase> {};

TEST_P(ParseNumberTest, GivesTheValue) {
    std::optional<double> value = parseNumber(GetParam().text, HostLocale{});
    ASSERT_TRUE(value.has_value()) << GetParam().text;
    EXPECT_DOUBLE_EQ(*value, GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Table, ParseNumberTest,
    testing::Values(ParseCase{" 12 ", 12}, ParseCase{"1-", -1}, ParseCase{"(5)", -5},
                    ParseCase{"1,000", 1000}, ParseCase{"$1.5", 1.5}, ParseCase{".5e-1", 0.05},
                    ParseCase{"&HFFFF", -1}, ParseCase{"&H10", 16}, ParseCase{"&O17", 15},
                    ParseCase{"&H8000", -32768}, ParseCase{"&H10000", 65536},
                    ParseCase{"&HFFFFFFFF", -1}, ParseCase{"-&H10", -16}, ParseCase{"0.1", 0.1},
                    ParseCase{"123456789012345678901234567890", 1.2345678901234568e29},
                    ParseCase{"1e-400", 0}, ParseCase{"-0", 0}));

TEST(ParseNumberTest, HugeAndBrokenInputsStayBounded) {
    const HostLocale l;
    EXPECT_FALSE(parseNumber(std::string(100000, '9'), l).has_value());  // beyond the range
    EXPECT_EQ(parseNumber("0." + std::string(100000, '0') + "1", l), 0.0);
    EXPECT_FALSE(parseNumber("1e99999999999999999999", l).has_value());
    EXPECT_EQ(parseNumber("1e-99999999999999999999", l), 0.0);
    EXPECT_FALSE(parseNumber(std::string("1\0"
                                         "2",
                                         3),
                             l)
                     .has_value());
    EXPECT_FALSE(parseNumber("\xFF\xFE", l).has_value());
}

TEST(ParseNumberTest, FollowsTheLocaleSeparatorsAndEmptyOnesNeverMatch) {
    HostLocale german;
    german.decimalSeparator = ",";
    german.thousandsSeparator = ".";
    german.currencySymbol = "\xE2\x82\xAC";
    EXPECT_EQ(parseNumber("1.000,5", german), 1000.5);
    EXPECT_EQ(parseNumber("1.5", german), 15);  // "." groups thousands here
    EXPECT_EQ(parseNumber("12,5 \xE2\x82\xAC", german), 12.5);
    EXPECT_FALSE(isNumeric("$1", german));
    HostLocale bare;
    bare.decimalSeparator.clear();
    bare.thousandsSeparator.clear();
    EXPECT_EQ(parseNumber("12", bare), 12);
    EXPECT_FALSE(isNumeric("1.5", bare));
}

struct ValCase {
    const char* text;
    double value;
};

class ValTest : public testing::TestWithParam<ValCase> {};

TEST_P(ValTest, ReadsTheLeadingNumber) {
    EXPECT_DOUBLE_EQ(val(GetParam().text), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Table, ValTest,
                         testing::Values(ValCase{" 2 45 7", 2457}, ValCase{"24 and 57", 24},
                                         ValCase{"1,000", 1}, ValCase{"$5", 0}, ValCase{"1d2", 100},
                                         ValCase{"-3.5kg", -3.5}, ValCase{"1.2.3", 1.2},
                                         ValCase{"", 0}, ValCase{"&HFFFF", -1},
                                         ValCase{"&H10000", 65536},
                                         ValCase{"&H1FFFFFFFF", 8589934591.0}, ValCase{"&X1", 0},
                                         ValCase{"50.5%", 50.5}, ValCase{"1e+", 1},
                                         ValCase{"+-7", 0}, ValCase{"\t\r\n12", 12},
                                         ValCase{"\xE3\x80\x80"
                                                 "3",
                                                 3},
                                         ValCase{"12,34", 12}, ValCase{"1 e 2", 100}));

TEST(ValTest, OverflowGivesInfinityOfItsSign) {
    EXPECT_EQ(val("1e999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(val("-1e999"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(val("1e-999"), 0.0);
    EXPECT_EQ(val(std::string(5000, '1')), std::numeric_limits<double>::infinity());
    EXPECT_EQ(val("\xFF"
                  "5"),
              0.0);
}

}  // namespace
}  // namespace zt::text
