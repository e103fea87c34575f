#include "platform/text/date_time_text.h"
#include "platform/text/twips.h"

#include <gtest/gtest.h>

#include <climits>

namespace zt::text {
namespace {

std::tm fields(int year, int month, int day, int hour, int minute, int second, int weekday = 0) {
    std::tm t{};
    t.tm_year = year - 1900;
    t.tm_mon = month - 1;
    t.tm_mday = day;
    t.tm_hour = hour;
    t.tm_min = minute;
    t.tm_sec = second;
    t.tm_wday = weekday;
    return t;
}

struct PatternCase {
    const char* pattern;
    const char* text;
};

class DateTimePatternTest : public testing::TestWithParam<PatternCase> {};

TEST_P(DateTimePatternTest, FormatsTokens) {
    std::tm t = fields(2024, 3, 5, 14, 7, 9, 2);
    EXPECT_EQ(formatDateTimePattern(t, GetParam().pattern, HostLocale{}), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Table, DateTimePatternTest,
    testing::Values(PatternCase{"M/d/yyyy", "3/5/2024"}, PatternCase{"yyyy/MM/dd", "2024/03/05"},
                    PatternCase{"dd.MM.yy", "05.03.24"}, PatternCase{"y", "24"},
                    PatternCase{"h:mm:ss tt", "2:07:09 PM"}, PatternCase{"hh:mm t", "02:07 P"},
                    PatternCase{"H:mm:ss", "14:07:09"}, PatternCase{"HH'h'mm", "14h07"},
                    PatternCase{"dddd, MMMM d", "Tuesday, March 5"},
                    PatternCase{"ddd MMM", "Tue Mar"}, PatternCase{"'it''s' H", "it's 14"},
                    PatternCase{"'open", "open"}, PatternCase{"", ""}));

TEST(DateTimeTextTest, DateBlankTime) {
    HostLocale us;
    EXPECT_EQ(dateTimeText(fields(2024, 12, 31, 0, 5, 0), us), "12/31/2024 12:05:00 AM");
    EXPECT_EQ(dateTimeText(fields(2024, 12, 31, 12, 0, 0), us), "12/31/2024 12:00:00 PM");
    HostLocale japan;
    japan.shortDatePattern = "yyyy/MM/dd";
    japan.timePattern = "H:mm:ss";
    EXPECT_EQ(dateTimeText(fields(2001, 2, 3, 4, 5, 6), japan), "2001/02/03 4:05:06");
    HostLocale designators = us;
    designators.amDesignator = "\xE5\x8D\x88\xE5\x89\x8D";  // 午前
    designators.timePattern = "tt h:mm";
    EXPECT_EQ(
        formatDateTimePattern(fields(2001, 2, 3, 9, 5, 6), designators.timePattern, designators),
        "\xE5\x8D\x88\xE5\x89\x8D 9:05");
}

TEST(DateTimeTextTest, OutOfRangeFieldsAreClamped) {
    std::tm bad{};
    bad.tm_mon = 99;
    bad.tm_mday = -4;
    bad.tm_wday = 50;
    bad.tm_hour = 77;
    bad.tm_year = INT_MAX;
    EXPECT_EQ(formatDateTimePattern(bad, "MMMM dddd d H", HostLocale{}), "December Saturday 1 23");
    EXPECT_FALSE(formatDateTimePattern(bad, "yyyy", HostLocale{}).empty());
}

TEST(TwipsTest, ConvertsWithGuardedScale) {
    EXPECT_DOUBLE_EQ(twipsToPixels(3250, 15), 3250.0 / 15);
    EXPECT_DOUBLE_EQ(pixelsToTwips(20, 15), 300);
    EXPECT_DOUBLE_EQ(twipsToPixels(300, -5), 20);
    EXPECT_DOUBLE_EQ(pixelsToTwips(2, std::numeric_limits<double>::quiet_NaN()), 30);
}

}  // namespace
}  // namespace zt::text
