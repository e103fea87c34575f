#include "platform/profile/private_profile.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace zt::profile {
namespace {

namespace fs = std::filesystem;

// Each test works in a folder of its own that is removed afterwards.
class ProfileFileTest : public ::testing::Test {
  protected:
    void SetUp() override {
        std::random_device random;
        dir_ = fs::temp_directory_path() /
               ("zt_profile_" + std::to_string(random()) + "_" + std::to_string(random()));
        fs::create_directories(dir_);
        file_ = (dir_ / "test.ini").string();
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(dir_, ec);
    }

    void put(const std::string& bytes) const { writeBytes(file_, bytes); }
    std::string bytes() const { return readBytes(file_); }

    static void writeBytes(const std::string& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    }
    static std::string readBytes(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }

    // GetPrivateProfileStringA into a 256-byte buffer; the text up to the returned length.
    std::string get(const char* section, const char* key, const char* def = "dflt",
                    uint32_t* returned = nullptr) const {
        char buffer[256];
        const uint32_t n =
            GetPrivateProfileStringA(section, key, def, buffer, sizeof buffer, file_.c_str());
        if (returned != nullptr) *returned = n;
        EXPECT_EQ(buffer[n], '\0');
        return std::string(buffer, n);
    }

    fs::path dir_;
    std::string file_;
};

// ---------------------------------------------------------------------------------------------
// Reading single values

const char* const kReadFile =
    "; leading comment\r\n"
    "orphan=1\r\n"
    "[Main]\r\n"
    "  Speed = 12  \r\n"
    "Empty=\r\n"
    "Quoted=  \"  a \"  \r\n"
    "Mixed=\"a'\r\n"
    "Eq=b=c\r\n"
    "Inline=v ;x\r\n"
    "  ;Commented=1\r\n"
    "120,0,5,-312,4000,0,0\r\n"
    "Dup=first\r\n"
    "dup=second\r\n"
    "\r\n"
    "[ Spaced ]\n"
    "k=spaced\r"
    "[Main]\n\r"
    "Later=1\r\n"
    "[a]b] tail\r\n"
    "k=ab\r\n"
    "[Open\r\n"
    "inOpen=1\r\n"
    "[]\r\n"
    "e=4\r\n";

struct ReadCase {
    const char* section;
    const char* key;
    const char* expected;
};

class ProfileRead : public ProfileFileTest, public ::testing::WithParamInterface<ReadCase> {};

TEST_P(ProfileRead, FindsValueOrDefault) {
    put(kReadFile);
    const ReadCase& c = GetParam();
    uint32_t returned = 0;
    EXPECT_EQ(get(c.section, c.key, "dflt", &returned), c.expected);
    EXPECT_EQ(returned, std::string(c.expected).size());
}

INSTANTIATE_TEST_SUITE_P(
    Values, ProfileRead,
    ::testing::Values(ReadCase{"Main", "Speed", "12"},         // key and value trimmed
                      ReadCase{"mAIN", "SPEED", "12"},         // names ignore case
                      ReadCase{" Main ", " Speed ", "12"},     // spaces around parameters
                      ReadCase{"Main", "Empty", ""},           // empty value, not the default
                      ReadCase{"Main", "Quoted", "  a "},      // outer quotes removed
                      ReadCase{"Main", "Mixed", "\"a'"},       // unmatched quotes stay
                      ReadCase{"Main", "Eq", "b=c"},           // split at the first '='
                      ReadCase{"Main", "Inline", "v ;x"},      // no inline comments
                      ReadCase{"Main", ";Commented", "dflt"},  // comment line
                      ReadCase{"Main", "120,0,5,-312,4000,0,0", "dflt"},  // line without '='
                      ReadCase{"Main", "dup", "first"},                   // first key wins
                      ReadCase{"Main", "Later", "dflt"},  // second [Main] is never searched
                      ReadCase{"Spaced", "k", "spaced"},  // header trimmed; LF and CR end lines
                      ReadCase{"a]b", "k", "ab"},         // name ends at the last ']'
                      ReadCase{"a", "k", "dflt"},
                      ReadCase{"Open", "inOpen", "dflt"},     // an unclosed header opens nothing
                      ReadCase{"a]b", "inOpen", "1"},         // ...its lines stay where they are
                      ReadCase{"a]b", "[Open", "dflt"},       // ...and it is no key
                      ReadCase{"", "orphan", "1"},            // lines before the first header
                      ReadCase{"", "e", "dflt"},              // "[]" is hidden behind them
                      ReadCase{"Missing", "Speed", "dflt"},   // missing section
                      ReadCase{"Main", "Missing", "dflt"}));  // missing key

TEST_F(ProfileFileTest, MissingFileGivesTheDefaultWithoutTrailingSpaces) {
    uint32_t returned = 0;
    EXPECT_EQ(get("A", "a", "one two  ", &returned), "one two");
    EXPECT_EQ(returned, 7u);
    EXPECT_EQ(get("A", "a", "  d\t "), "  d\t");
    EXPECT_EQ(get("A", "a", nullptr, &returned), "");
    EXPECT_EQ(returned, 0u);
    EXPECT_FALSE(fs::exists(file_));
}

TEST_F(ProfileFileTest, Utf8MarkHidesTheFirstHeader) {
    put("\xEF\xBB\xBF[A]\r\na=1\r\n[B]\r\nb=2\r\n");
    EXPECT_EQ(get("A", "a"), "dflt");
    EXPECT_EQ(get("B", "b"), "2");
}

struct SizeCase {
    uint32_t size;
    const char* text;
    uint32_t returned;
};

class ProfileTruncation : public ProfileFileTest, public ::testing::WithParamInterface<SizeCase> {};

TEST_P(ProfileTruncation, CutsToSizeMinusOne) {
    put("[s]\r\nname1=val1\r\n");
    char buffer[8] = "kumquat";
    const SizeCase& c = GetParam();
    EXPECT_EQ(GetPrivateProfileStringA("s", "name1", "default", buffer, c.size, file_.c_str()),
              c.returned);
    EXPECT_STREQ(buffer, c.text);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ProfileTruncation,
                         ::testing::Values(SizeCase{0, "kumquat", 0}, SizeCase{1, "", 0},
                                           SizeCase{2, "v", 1}, SizeCase{4, "val", 3},
                                           SizeCase{5, "val1", 4}, SizeCase{8, "val1", 4}));

TEST_F(ProfileFileTest, LongValueIsCutToTheBuffer) {
    std::string value(20000, 'x');
    for (std::size_t i = 0; i < value.size(); ++i)
        value[i] = static_cast<char>('a' + i % 26);
    put("[Graph]\r\nLong=" + value + "\r\nAfter=1\r\n");
    std::vector<char> buffer(12800, '\x01');
    EXPECT_EQ(GetPrivateProfileStringA("Graph", "Long", "GetPrivateProfileReadError", buffer.data(),
                                       12800, file_.c_str()),
              12799u);
    EXPECT_EQ(std::string(buffer.data()), value.substr(0, 12799));
    EXPECT_EQ(findProfileString("Graph", "Long", file_), value);
    EXPECT_EQ(get("Graph", "After"), "1");
}

TEST_F(ProfileFileTest, ValueLengthWrapsAtSixteenBits) {
    put("[A]\r\nfull=" + std::string(65536, 'x') + "\r\none=" + std::string(65537, 'y') + "\r\n");
    EXPECT_EQ(get("A", "full"), "");
    EXPECT_EQ(get("A", "one"), "y");
}

// ---------------------------------------------------------------------------------------------
// Name lists

TEST_F(ProfileFileTest, NullSectionListsSectionsNullKeyListsKeysOfTheFirstSection) {
    put("x=0\r\n[s]\r\nname1=val1\r\nname2=\r\nname3\r\n;c=1\r\nNAME1=x\r\n[Section2]\r\n[S]\r\nz="
        "1\r\n");
    uint32_t returned = 0;
    EXPECT_EQ(get(nullptr, "ignored", "dflt", &returned), std::string("s\0Section2\0S\0", 13));
    EXPECT_EQ(returned, 13u);
    EXPECT_EQ(get("s", nullptr), std::string("name1\0name2\0NAME1\0", 18));
    EXPECT_EQ(get("none", nullptr), "dflt");
    EXPECT_EQ(get("", nullptr), std::string("x\0", 2));
}

TEST_F(ProfileFileTest, EmptyKeyListGivesTheDefaultWithItsTrailingBlanks) {
    put("[U]\r\nKey\r\n;c=1\r\n[S]\r\nk=1\r\n");
    uint32_t returned = 0;
    EXPECT_EQ(get("U", nullptr, "def  ", &returned), "def  ");
    EXPECT_EQ(returned, 5u);
    EXPECT_EQ(get("Missing", nullptr, "def  "), "def  ");
    EXPECT_EQ(get("U", "Key", "def  "), "def");  // a lookup still trims
    // A buffer of two bytes holds no name: the default takes its place.
    char buffer[4] = "xxx";
    EXPECT_EQ(GetPrivateProfileStringA("S", nullptr, "d", buffer, 2, file_.c_str()), 1u);
    EXPECT_STREQ(buffer, "d");
    EXPECT_EQ(GetPrivateProfileStringA("S", nullptr, "d", buffer, 3, file_.c_str()), 1u);
    EXPECT_EQ(std::string(buffer, 3), std::string("k\0\0", 3));
}

TEST_F(ProfileFileTest, EmptyHeaderIsNeverListedNorSearched) {
    put("[]\r\ne=4\r\n");
    EXPECT_EQ(get("", "e"), "dflt");
    EXPECT_EQ(get(nullptr, nullptr), "");
}

struct ListCase {
    uint32_t size;
    std::string bytes;  // the buffer's first `size` bytes after the call
    uint32_t returned;
};

class ProfileListTruncation : public ProfileFileTest,
                              public ::testing::WithParamInterface<ListCase> {};

TEST_P(ProfileListTruncation, CutsToSizeMinusTwoWithDoubleNul) {
    put("[section1]\r\n[section2]\r\n[section3]\r\n");
    const ListCase& c = GetParam();
    std::vector<char> buffer(40, '\x0c');
    EXPECT_EQ(
        GetPrivateProfileStringA(nullptr, nullptr, nullptr, buffer.data(), c.size, file_.c_str()),
        c.returned);
    EXPECT_EQ(std::string(buffer.data(), c.size), c.bytes);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, ProfileListTruncation,
    ::testing::Values(ListCase{29, std::string("section1\0section2\0section3\0\0\x0c", 29), 27},
                      ListCase{16, std::string("section1\0secti\0\0", 16), 14},
                      ListCase{1, std::string("\0", 1), 0}));

// ---------------------------------------------------------------------------------------------
// Writing

struct WriteCase {
    const char* name;
    std::string before;
    const char* section;
    const char* key;
    const char* value;
    std::string after;
};

class ProfileWrite : public ProfileFileTest, public ::testing::WithParamInterface<WriteCase> {};

TEST_P(ProfileWrite, EditsInPlace) {
    const WriteCase& c = GetParam();
    put(c.before);
    EXPECT_TRUE(WritePrivateProfileStringA(c.section, c.key, c.value, file_.c_str()));
    EXPECT_EQ(bytes(), c.after);
}

const std::string kMixed = "; c\n[A]\r\nfoo = 1\nTestKey=a\r  [B]\nx=1\r\r\ny=2";

INSTANTIATE_TEST_SUITE_P(
    Cases, ProfileWrite,
    ::testing::Values(
        WriteCase{"ReplaceKeepsOtherBytesAndSpelling", kMixed, "a", "TESTKEY", "b",
                  "; c\n[A]\r\nfoo = 1\nTestKey=b\r\n  [B]\nx=1\r\r\ny=2"},
        WriteCase{"ReplaceLastLineAddsLineEnd", kMixed, "B", "Y", "3",
                  "; c\n[A]\r\nfoo = 1\nTestKey=a\r  [B]\nx=1\r\r\ny=3\r\n"},
        WriteCase{"ReplaceRewritesSpacing", kMixed, "A", "foo", " 2 ",
                  "; c\n[A]\r\nfoo= 2 \r\nTestKey=a\r  [B]\nx=1\r\r\ny=2"},
        WriteCase{"ReplaceFirstOfDuplicates", "[A]\r\nk=1\r\nk=2\r\n", "A", "k", "3",
                  "[A]\r\nk=3\r\nk=2\r\n"},
        WriteCase{"NewKeyAfterLastKeyBeforeComments", "[A]\r\na=1\r\n;c\r\n\r\n[B]\r\nb=1\r\n", "A",
                  "c", "3", "[A]\r\na=1\r\nc=3\r\n;c\r\n\r\n[B]\r\nb=1\r\n"},
        WriteCase{"NewKeyBeforeDataLines", "[D]\r\nComment= \r\nh1,h2=\r\n1,2\r\n3,4\r\n", "D", "k",
                  "v", "[D]\r\nComment= \r\nh1,h2=\r\nk=v\r\n1,2\r\n3,4\r\n"},
        WriteCase{"NewKeyUnderBareHeader", "[A]\r\n; note\r\n[B]\r\n", "A", "k", "v",
                  "[A]\r\nk=v\r\n; note\r\n[B]\r\n"},
        WriteCase{"NewKeyAfterKeyWithoutLineEnd", "[A]\na=1", "A", "b", "2", "[A]\na=1\r\nb=2\r\n"},
        WriteCase{"NewKeyInFirstOfDuplicateSections", "[A]\r\na=1\r\n[A]\r\nb=1\r\n", "A", "b", "2",
                  "[A]\r\na=1\r\nb=2\r\n[A]\r\nb=1\r\n"},
        WriteCase{"NewSectionAtEnd", "[A]\na=1\n", "B", "b", "2", "[A]\na=1\n[B]\r\nb=2\r\n"},
        WriteCase{"NewSectionInEmptyFile", "", " B ", " b ", "2", "[B]\r\nb=2\r\n"},
        WriteCase{"ValueIsVerbatim", "[A]\r\n", "A", "k", " \"v\" ", "[A]\r\nk= \"v\" \r\n"},
        WriteCase{"EmptyValue", "[A]\r\nk=1\r\n", "A", "k", "", "[A]\r\nk=\r\n"},
        WriteCase{"CommentKeyAddsCommentLine", "[A]\r\n;k=1\r\n", "A", ";k", "1",
                  "[A]\r\n;k=1\r\n;k=1\r\n"},
        WriteCase{"DeleteKey", "[A]\r\na=1\nb=2\rc=3\r\n", "A", "B", nullptr,
                  "[A]\r\na=1\nc=3\r\n"},
        WriteCase{"DeleteSectionKeepsComments",
                  "[A]\r\n;c\r\na=1\r\n\r\n120,0\r\nb=2\r\n[B]\r\nb=1\r\n", "a", nullptr, "x",
                  ";c\r\n\r\n120,0\r\n[B]\r\nb=1\r\n"}),
    [](const auto& param) { return std::string(param.param.name); });

TEST_F(ProfileFileTest, NewSectionCollectsKeysInWriteOrder) {
    for (const char* key : {"z", ";y", "a", ";b", ";c"}) {
        ASSERT_TRUE(WritePrivateProfileStringA("S", key, "1", file_.c_str()));
    }
    EXPECT_EQ(bytes(), "[S]\r\nz=1\r\na=1\r\n;c=1\r\n;b=1\r\n;y=1\r\n");
}

TEST_F(ProfileFileTest, MissingFileIsCreatedWithExactBytes) {
    EXPECT_TRUE(WritePrivateProfileStringA("Sec", "key", "value", file_.c_str()));
    EXPECT_EQ(bytes(), "[Sec]\r\nkey=value\r\n");
    EXPECT_EQ(get("sec", "KEY"), "value");
}

TEST_F(ProfileFileTest, WritesThatCannotHappenCreateOrChangeNothing) {
    const std::string nested = (dir_ / "no_such_dir" / "x.ini").string();
    EXPECT_FALSE(WritePrivateProfileStringA("S", "k", "v", nested.c_str()));
    EXPECT_FALSE(WritePrivateProfileStringA(nullptr, "k", "v", file_.c_str()));
    EXPECT_FALSE(WritePrivateProfileStringA("S", "k", "v", ""));
    EXPECT_FALSE(WritePrivateProfileStringA("S", "k", "v", nullptr));
    EXPECT_TRUE(WritePrivateProfileStringA("S", "k", nullptr, file_.c_str()));
    EXPECT_TRUE(WritePrivateProfileStringA("S", nullptr, nullptr, file_.c_str()));
    EXPECT_EQ(std::distance(fs::directory_iterator(dir_), fs::directory_iterator()), 0);
    put("[A]\na=1");
    EXPECT_FALSE(WritePrivateProfileStringA(nullptr, "a", "2", file_.c_str()));
    EXPECT_EQ(bytes(), "[A]\na=1");
}

TEST_F(ProfileFileTest, ListingAndDeletingMatchTheSectionNameAsGiven) {
    put("[S]\r\na=1\r\n=x\r\nb=2\r\n");
    EXPECT_EQ(get("S", nullptr), std::string("a\0\0b\0", 5));  // an empty name is listed
    EXPECT_EQ(get(" S ", nullptr), "dflt");                    // no blanks removed here
    EXPECT_EQ(get(" S ", "a"), "1");                           // but for a lookup they are
    EXPECT_TRUE(WritePrivateProfileStringA(" S ", nullptr, nullptr, file_.c_str()));
    EXPECT_TRUE(WritePrivateProfileStringA("S", " a ", nullptr, file_.c_str()));
    EXPECT_EQ(bytes(), "[S]\r\na=1\r\n=x\r\nb=2\r\n");
    EXPECT_TRUE(WritePrivateProfileStringA("S", "a", nullptr, file_.c_str()));
    EXPECT_EQ(bytes(), "[S]\r\n=x\r\nb=2\r\n");
    // A list that starts with an empty name gives the default.
    EXPECT_EQ(get("S", nullptr), "dflt");
    // Empty names in a row (blank lines between them or not) are one entry; any other line
    // between them keeps them apart.
    put("[S]\r\nx=1\r\n=a\r\n\r\n=b\r\ny=2\r\n=c\r\n;c\r\n=d\r\n");
    EXPECT_EQ(get("S", nullptr), std::string("x\0\0y\0\0\0", 7));
}

TEST_F(ProfileFileTest, WritingTheNameOfALineWithoutEqualsSignTakesThatLine) {
    put("[S]\r\nKey\r\nb=2\r\n");
    EXPECT_EQ(get("S", "Key"), "dflt");
    EXPECT_TRUE(WritePrivateProfileStringA("S", "key", "v", file_.c_str()));
    EXPECT_EQ(bytes(), "[S]\r\nKey=v\r\nb=2\r\n");
    EXPECT_EQ(get("S", "KEY"), "v");
}

// ---------------------------------------------------------------------------------------------
// The graph text file: keyed writes, each DATA section created by its Comment write and then
// followed by lines appended with plain file output.

const char* const kDataHeader =
    "Difference time,Fault data,Digital data,Analog data1,Analog data2,Analog data3,Analog "
    "data4";

std::string dataLine(int g, int i) {
    return std::to_string(120 + g) + ",0," + std::to_string(i % 16) + "," +
           std::to_string(-312 * g) + "," + std::to_string(i) + ",0,0\r\n";
}

TEST_F(ProfileFileTest, GraphFileShapeWritesAndReadsBack) {
    constexpr int kLines = 10000;
    std::string expected;
    auto write = [&](const std::string& s, const std::string& k, const std::string& v) {
        ASSERT_TRUE(writeProfileString(s, k, v, file_));
        expected += (expected.find("[" + s + "]") == std::string::npos ? "[" + s + "]\r\n" : "") +
                    k + "=" + v + "\r\n";
    };
    write("COMMON_HEADER", "DecPoint", ".");
    for (const char* k : {"SamplingSpeed", "SamplingMode", "HScrollPos"})
        write("COMMON", k, std::string(k).substr(0, 3));
    for (int ch = 1; ch <= 8; ++ch)
        write("CHANNEL_0" + std::to_string(ch), "Unit", std::to_string(ch));
    for (int g = 1; g <= 5; ++g) {
        write("DATA_0" + std::to_string(g), "Comment", "graph " + std::to_string(g) + " ");
        std::string appended = std::string(kDataHeader) + "=\r\n";
        for (int i = 0; i < kLines; ++i)
            appended += dataLine(g, i);
        std::ofstream(file_, std::ios::binary | std::ios::app) << appended;
        expected += appended;
    }
    ASSERT_EQ(bytes(), expected);

    EXPECT_EQ(get("COMMON", "HscrollPos"), "HSc");
    EXPECT_EQ(get("CHANNEL_08", "Unit"), "8");
    for (int g = 1; g <= 5; ++g) {
        EXPECT_EQ(getProfileString("DATA_0" + std::to_string(g), "Comment",
                                   "GetPrivateProfileReadError", file_, 12800),
                  "graph " + std::to_string(g));
    }
    EXPECT_EQ(get("DATA_03", kDataHeader), "");
    EXPECT_EQ(get("DATA_05", "121,0,0,-312,0,0,0"), "dflt");
    EXPECT_EQ(get("DATA_04", nullptr),
              "Comment" + std::string(1, '\0') + kDataHeader + std::string(1, '\0'));

    // A keyed write after the tables changes only its own line.
    ASSERT_TRUE(writeProfileString("COMMON", "SamplingMode", "1", file_));
    const std::string before = "SamplingMode=Sam\r\n";
    expected.replace(expected.find(before), before.size(), "SamplingMode=1\r\n");
    EXPECT_EQ(bytes(), expected);
}

TEST_F(ProfileFileTest, OldSingleDataLayoutReads) {
    std::string text = "[COMMON_HEADER]\r\nDecPoint= , \r\n[DATA]\r\n";
    text += std::string(kDataHeader) + "=\r\n";
    for (int i = 0; i < 100; ++i)
        text += dataLine(1, i);
    put(text);
    EXPECT_EQ(get("COMMON_HEADER", "DecPoint"), ",");
    EXPECT_EQ(get("DATA", kDataHeader), "");
    EXPECT_EQ(get("DATA_01", "Comment"), "dflt");
}

}  // namespace
}  // namespace zt::profile
