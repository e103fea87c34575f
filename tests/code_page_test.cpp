#include "platform/text/code_page.h"

#include <gtest/gtest.h>

#include <string>

namespace zt::text {
namespace {

// "グラフ" (graph) and "日本語テキスト" in UTF-8 and in code page 932.
const std::string kGraphUtf8 = "\xE3\x82\xB0\xE3\x83\xA9\xE3\x83\x95";
const std::string kGraph932 = "\x83\x4F\x83\x89\x83\x74";
const std::string kJapaneseUtf8 =
    "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xE3\x83\x86\xE3\x82\xAD\xE3\x82\xB9\xE3\x83\x88";

TEST(CodePageTest, JapaneseRoundTripsThrough932) {
    EXPECT_EQ(toAnsi(kGraphUtf8, 932), kGraph932);
    EXPECT_EQ(fromAnsi(kGraph932, 932), kGraphUtf8);
    std::string mixed = "Run 1: " + kJapaneseUtf8 + " ok";
    EXPECT_EQ(fromAnsi(toAnsi(mixed, 932), 932), mixed);
    std::string big;
    for (int i = 0; i < 5000; ++i)
        big += kGraphUtf8;
    EXPECT_EQ(fromAnsi(toAnsi(big, 932), 932), big);
}

struct CountCase {
    std::string utf8;
    int codePage;
    std::size_t bytes;
    std::size_t characters;
};

class ByteCountTest : public testing::TestWithParam<CountCase> {};

TEST_P(ByteCountTest, CountsAnsiBytesAndCharacters) {
    EXPECT_EQ(ansiByteCount(GetParam().utf8, GetParam().codePage), GetParam().bytes);
    EXPECT_EQ(characterCount(GetParam().utf8), GetParam().characters);
}

INSTANTIATE_TEST_SUITE_P(Table, ByteCountTest,
                         testing::Values(CountCase{kGraphUtf8, 932, 6, 3},
                                         CountCase{kJapaneseUtf8, 932, 14, 7},
                                         CountCase{"abc", 932, 3, 3}, CountCase{"", 932, 0, 0},
                                         CountCase{"caf\xC3\xA9", 1252, 4, 4},
                                         CountCase{"\xE2\x82\xAC", 1252, 1, 1},
                                         CountCase{kGraphUtf8, 1252, 3, 3},
                                         // half-width katakana is one byte in 932
                                         CountCase{"\xEF\xBD\xB6", 932, 1, 1},
                                         // a character beyond U+FFFF counts two, and
                                         // is one "?" per half
                                         CountCase{"\xF0\x9F\x98\x80", 932, 2, 2},
                                         // invalid bytes count one each
                                         CountCase{"a\xFF\xC3", 1252, 3, 3}));

TEST(CodePageTest, UnmappableAndInvalidUtf8BecomeQuestionMarks) {
    EXPECT_EQ(toAnsi(kGraphUtf8, 1252), "???");
    EXPECT_EQ(toAnsi("a\xFF"
                     "b",
                     1252),
              "a?b");
    EXPECT_EQ(toAnsi("\xE3\x82", 932), "??");        // truncated sequence
    EXPECT_EQ(toAnsi("\xC0\xAF", 1252), "??");       // overlong form
    EXPECT_EQ(toAnsi("\xED\xA0\x80", 1252), "???");  // encoded surrogate
    EXPECT_EQ(fromAnsi("a\x80", 1252), "a\xE2\x82\xAC");
}

TEST(CodePageTest, CharactersOutsideTheCodePageGetTheirBestFit) {
    EXPECT_EQ(toAnsi("\xC4\x80\xC5\x90", 1252), "AO");          // U+0100, U+0150
    EXPECT_EQ(toAnsi("\xEF\xBC\xB0\xCF\x80", 1252), "Pp");      // fullwidth P, pi
    EXPECT_EQ(toAnsi("\xE2\x91\xA0\xE3\x80\x9C", 1252), "??");  // no fit
    EXPECT_EQ(toAnsi("\xC2\xA9", 932), "c");                    // copyright sign
    // Characters other conversion tables put into 932 but the platform does not.
    EXPECT_EQ(toAnsi("\xE2\x88\x92\xE3\x80\x9C", 932), "??");  // U+2212, U+301C
    EXPECT_EQ(toAnsi("a\xF0\x9F\x98\x80", 1252), "a??");
}

TEST(CodePageTest, InvalidDoubleByteCodesBecomeOneUnknownCharacter) {
    const std::string unknown = "\xE3\x83\xBB";            // U+30FB
    EXPECT_EQ(fromAnsi("\x83", 932), unknown);             // lone lead byte at the end
    EXPECT_EQ(fromAnsi("\x88\x34G", 932), unknown + "G");  // the pair is one character
    EXPECT_EQ(fromAnsi(std::string("\x83\0a", 3), 932), unknown + std::string("\0a", 2));
    EXPECT_EQ(fromAnsi("\xA0\xFD\xFF", 932), "\xEF\xA3\xB0\xEF\xA3\xB1\xEF\xA3\xB3");
    EXPECT_EQ(fromAnsi("\x80", 932), "\xC2\x80");
}

TEST(CodePageTest, Every1252ByteSurvivesARoundTripAndUnknownPagesAre1252) {
    std::string all;
    for (int b = 1; b < 256; ++b)
        all += static_cast<char>(b);
    EXPECT_EQ(toAnsi(fromAnsi(all, 1252), 1252), all);
    EXPECT_EQ(AnsiCodec(-7).codePage(), 1252);
    EXPECT_EQ(AnsiCodec(-7).toAnsi("caf\xC3\xA9"), "caf\xE9");
    EXPECT_EQ(AnsiCodec(1251).toAnsi("\xD0\x96"), "\xC6");  // Cyrillic Zhe
}

TEST(CodePageTest, SlotsAreFilledAndCutByWholeCharacters) {
    std::string wide;  // 65 double-byte characters: 130 bytes
    for (int i = 0; i < 65; ++i)
        wide += "\xE3\x83\x95";
    EXPECT_EQ(fitAnsi("abc", 128, 1252), "abc" + std::string(125, ' '));
    EXPECT_EQ(fitAnsi(kGraphUtf8, 128, 932), kGraphUtf8 + std::string(122, ' '));
    EXPECT_EQ(fitAnsi(std::string(200, 'x'), 128, 1252), std::string(128, 'x'));
    EXPECT_EQ(fitAnsi(wide, 128, 932), wide);  // 128 characters of it are all 65
    const std::string cut = cutAnsi(wide, 128, 932);
    EXPECT_EQ(characterCount(cut), 64u);
    EXPECT_EQ(ansiByteCount(cut, 932), 128u);
    EXPECT_EQ(cutAnsi("a" + kGraphUtf8, 4, 932), "a\xE3\x82\xB0");
    EXPECT_EQ(keepAnsiBytes(kGraphUtf8, 3, 932), "\xE3\x82\xB0\xE3\x83\xBB");
    EXPECT_EQ(leftCharacters(kGraphUtf8, 2), "\xE3\x82\xB0\xE3\x83\xA9");
    EXPECT_EQ(leftCharacters("a\xF0\x9F\x98\x80"
                             "b",
                             2),
              "a");
}

}  // namespace
}  // namespace zt::text
