// Communication error boxes as the user reads them.
#include <gtest/gtest.h>

#include "core/comm_error_text.h"
#include "run_fixture.h"

namespace zt::testing {
namespace {

struct ErrorCase {
    int32_t node;
    int32_t code;
    const char* text;
};

class ComErrDlg : public ::testing::TestWithParam<ErrorCase> {};

TEST_P(ComErrDlg, ShowsTheStationAndTheClassifiedError) {
    RunFixture f;
    f.lib.sim().setMessage(7, "Communication Error Code: 0x");
    f.control.showComErrDlg(GetParam().node, GetParam().code);
    ASSERT_EQ(f.lib.boxes().boxes().size(), 1u);
    EXPECT_EQ(f.lib.boxes().boxes()[0].text, GetParam().text);
    EXPECT_EQ(f.lib.boxes().boxes()[0].style, 48);
    EXPECT_EQ(f.lib.boxes().boxes()[0].title, "Graph");
}

INSTANTIATE_TEST_SUITE_P(
    Codes, ComErrDlg,
    ::testing::Values(
        ErrorCase{3, 5, "NODE:3\r\nUnexpected error occurred.\r\nError Code:0x81000005"},
        ErrorCase{3, -1, "NODE:3\r\nUnexpected error occurred.\r\nError Code:0xFFFFFFFF"},
        ErrorCase{0, 0x0FFFFFFF, "NODE:0\r\nUnexpected error occurred.\r\nError Code:0x8FFFFFFF"},
        ErrorCase{2, static_cast<int32_t>(0x9ABC0000),
                  "NODE:2\r\nCommunication Error Code: 0x9ABC0000\r\nUnknown error occurred."}));

TEST(ComErrDlg, LibraryDescriptionBackslashNPairsBecomeLineBreaks) {
    RunFixture f;
    HostServices host(f.lib, Font{});
    std::string description;
    bool unknown = true;
    f.lib.sim().GetCommErrorText(static_cast<int32_t>(0x80040001), description, unknown);
    ASSERT_NE(description.find("\\n"), std::string::npos);
    const std::string text = communicationErrorText(host, static_cast<int32_t>(0x80040001));
    EXPECT_EQ(text.find("\\n"), std::string::npos);
    EXPECT_NE(text.find("0x80040001\r\n"), std::string::npos);
}

TEST(SamplingErrorText, UnexpectedCodeStandsAlone) {
    RunFixture f;
    HostServices host(f.lib, Font{});
    EXPECT_EQ(samplingErrorText(host, 0x12), "Unexpected error occurred.\r\nError Code:0x81000012");
}

}  // namespace
}  // namespace zt::testing
