// The demo's display options act on the captured graph as a person would and the summary shows
// the readouts; show prints the operation panel's three panels.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "cli/commands.h"

namespace zt::cli {
namespace {

namespace fs = std::filesystem;

class DemoDisplayTest : public ::testing::Test {
  protected:
    void TearDown() override { fs::remove_all(dir); }
    int run(Args args) {
        args.insert(args.end(), {"--out", dir.string()});
        return runDemo(args, out, err);
    }
    fs::path dir =
        fs::temp_directory_path() /
        ("zt_demo_display_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()));
    std::ostringstream out, err;
};

TEST_F(DemoDisplayTest, CursorsPrintTheSheetsReadoutRowsAndTimes) {
    ASSERT_EQ(run({"--optimize", "--cursors", "time:0.15,0.55"}), 0) << err.str();
    const std::string text = out.str();
    for (const char* line :
         {"            Cursor A      Cursor B    Eff. value    Max. value    Min. value\n",
          "  CH2         28.95A        11.17A        21.56A        29.62A        10.65A\n",
          "  CH5             ON            ON           ---           ---           ---\n",
          "  Cursor A: 9000 ms\n", "  Cursor B: 33000 ms\n",
          "  Between cursor A and B: 24000 ms\n"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
    }
}

TEST_F(DemoDisplayTest, ScaleScrollValueCursorsAndLightScheme) {
    ASSERT_EQ(run({"--hscale", "3000", "--scroll", "5", "--scale", "1:10", "--cursors", "value:0,1",
                   "--scheme", "light"}),
              0)
        << err.str();
    // 10 Hz per division with the middle value of the 0 to 120 Hz axis kept in the middle:
    // the zero goes one division below the plot, which runs from 10 to 110 Hz.
    EXPECT_NE(out.str().find("  CH1       110.00Hz       10.00Hz"), std::string::npos) << out.str();
}

TEST_F(DemoDisplayTest, OptionsThatAreNotUnderstoodOrNotUsable) {
    EXPECT_EQ(run({"--cursors", "time:0.5"}), 2);
    EXPECT_EQ(run({"--scale", "9:10"}), 2);
    EXPECT_EQ(run({"--scheme", "pink"}), 2);
    EXPECT_EQ(run({"--scroll", "3"}), 1);  // the whole recording fits in ten divisions
    EXPECT_NE(err.str().find("scroll bar"), std::string::npos) << err.str();
}

TEST(ShowTest, PrintsTheThreeOperationPanels) {
    std::ostringstream out, err;
    ASSERT_EQ(runShow({"--configured"}, out, err), 0);
    const std::string text = out.str();
    for (const char* line :
         {"  Scale panel (shown, enabled)\n", "    (*) All  enabled\n",
          "  [ Optimize VertScale ]  disabled\n", "  Cursor panel (out of sight, disabled)\n",
          "    [ ] Cursor Display  disabled\n", "    Cursor A: --- ms\n",
          "  History panel (out of sight, disabled)\n"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
    }
}

}  // namespace
}  // namespace zt::cli
