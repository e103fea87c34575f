#include "store/sample_line_scan.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <string_view>

namespace zt {
namespace {

// The record line rule written out plainly: seven fields of an optional '-' and 1 to 18 digits
// that fit their field, single commas between them, then LF, CR LF or the end of the text.
// Returns the record and where the next line starts.
std::optional<std::pair<SampleRecord, std::size_t>> plainRecordLine(std::string_view text) {
    SampleRecord r;
    std::size_t i = 0;
    for (int field = 0; field < 7; ++field) {
        const bool negative = i < text.size() && text[i] == '-';
        if (negative) ++i;
        const std::size_t digits = i;
        while (i < text.size() && text[i] >= '0' && text[i] <= '9')
            ++i;
        if (i == digits || i - digits > 18) return std::nullopt;
        int64_t v = 0;
        std::from_chars(text.data() + digits, text.data() + i, v);
        if (negative) v = -v;
        const bool wide = field == 0 || field >= 3;
        const int64_t low = wide ? std::numeric_limits<int32_t>::min() : INT16_MIN;
        const int64_t high = wide ? std::numeric_limits<int32_t>::max() : INT16_MAX;
        if (v < low || v > high) return std::nullopt;
        if (field == 0) r.lngDiffTime = static_cast<int32_t>(v);
        if (field == 1) r.intFaultData = static_cast<int16_t>(v);
        if (field == 2) r.intDigitalData = static_cast<int16_t>(v);
        if (field >= 3)
            r.lngAnalogData[static_cast<std::size_t>(field - 3)] = static_cast<int32_t>(v);
        if (field < 6) {
            if (i >= text.size() || text[i] != ',') return std::nullopt;
            ++i;
        }
    }
    if (i < text.size() && text[i] == '\r') ++i;
    if (i < text.size()) {
        if (text[i] != '\n') return std::nullopt;
        ++i;
    }
    return std::make_pair(r, i);
}

// Lines near every edge the reader has: digit counts around eight and eighteen, the limits of
// 16 and 32 bits, signs and blanks it refuses, lines around 64 bytes long, odd line ends.
std::string randomField(std::mt19937& rng) {
    static const char* const odd[] = {"",
                                      "-",
                                      "+5",
                                      " 5",
                                      "5 ",
                                      "32767",
                                      "32768",
                                      "-32768",
                                      "-32769",
                                      "2147483647",
                                      "-2147483648",
                                      "2147483648",
                                      "99999999",
                                      "100000000",
                                      "-99999999",
                                      "000000000000000001",
                                      "0000000000000000001",
                                      "\"7\"",
                                      "1e3",
                                      "0x10",
                                      "5\r",
                                      "--5"};
    switch (rng() % 4) {
        case 0:
            return odd[rng() % std::size(odd)];
        default: {
            std::string s = rng() % 3 == 0 ? "-" : "";
            const int digits = 1 + static_cast<int>(rng() % (rng() % 4 == 0 ? 12 : 6));
            for (int i = 0; i < digits; ++i)
                s += static_cast<char>('0' + rng() % 10);
            return s;
        }
    }
}

std::string randomLine(std::mt19937& rng) {
    const int fields = rng() % 8 == 0 ? static_cast<int>(rng() % 10) : 7;
    std::string line;
    for (int f = 0; f < fields; ++f) {
        if (f > 0) line += rng() % 40 == 0 ? ",," : ",";
        line += randomField(rng);
    }
    static const char* const ends[] = {"\r\n", "\r\n", "\n", "\r", "\r\r\n", " \r\n", ""};
    return line + ends[rng() % std::size(ends)];
}

TEST(SampleLineScanTest, RecordLinesReadAsThePlainRuleSaysAtAnyDistanceFromTheTextEnd) {
    std::mt19937 rng(2026);
    for (int round = 0; round < 40000; ++round) {
        std::string text = randomLine(rng);
        // Followed by nothing, by a little or by more than the reader looks ahead.
        const int tail = static_cast<int>(rng() % 4) * 30;
        for (int i = 0; i < tail; ++i)
            text += "0123456789,\r\n-"[rng() % 14];
        const auto expected = plainRecordLine(text);
        SampleRecord got;
        got.lngDiffTime = 12345;  // a line that is refused leaves the record as it was
        const SampleRecord before = got;
        const char* after = scanRecordLine(text.data(), text.data() + text.size(), got);
        ASSERT_EQ(after != nullptr, expected.has_value()) << "line: " << text;
        if (expected) {
            EXPECT_EQ(got, expected->first) << "line: " << text;
            EXPECT_EQ(static_cast<std::size_t>(after - text.data()), expected->second)
                << "line: " << text;
        } else {
            EXPECT_EQ(got, before) << "line: " << text;
        }
    }
}

struct FieldCase {
    std::string text;
    bool stored;
    int32_t value;
};

class SampleFieldScanTest : public testing::TestWithParam<FieldCase> {};

TEST_P(SampleFieldScanTest, AFieldIsStoredOnlyWhenItIsAPlainIntegerThatFits) {
    const FieldCase& c = GetParam();
    const std::string text = c.text + ",9";
    SampleRecord r;
    r.lngAnalogData[0] = -1;
    r.intFaultData = -1;
    const char* end = text.data() + c.text.size();
    EXPECT_EQ(scanRecordField(text.data(), end, text.data() + text.size(), r, 3), end);
    EXPECT_EQ(r.lngAnalogData[0], c.stored ? c.value : -1);
    const bool fits16 = c.value >= INT16_MIN && c.value <= INT16_MAX;
    scanRecordField(text.data(), end, text.data() + text.size(), r, 1);
    EXPECT_EQ(r.intFaultData, c.stored && fits16 ? c.value : -1);
}

INSTANTIATE_TEST_SUITE_P(Fields, SampleFieldScanTest,
                         testing::Values(FieldCase{"42", true, 42}, FieldCase{" -42 ", true, -42},
                                         FieldCase{"+42", true, 42}, FieldCase{"\t7\r", true, 7},
                                         FieldCase{"123456789", true, 123456789},
                                         FieldCase{"-2147483648", true, INT32_MIN},
                                         FieldCase{"2147483648", false, 0},
                                         FieldCase{"000000000000000042", true, 42},
                                         FieldCase{"0000000000000000042", false, 0},
                                         FieldCase{"4 2", false, 0}, FieldCase{"", false, 0},
                                         FieldCase{"-", false, 0}, FieldCase{"1.5", false, 0},
                                         FieldCase{"32768", true, 32768}));

TEST(SampleLineScanTest, AQuotedFieldIsLeftToTheQuoteAwareReading) {
    const std::string text = " \"1,2\",3";
    SampleRecord r;
    EXPECT_EQ(
        scanRecordField(text.data(), text.data() + text.size(), text.data() + text.size(), r, 0),
        nullptr);
    EXPECT_EQ(r, SampleRecord{});
}

}  // namespace
}  // namespace zt
