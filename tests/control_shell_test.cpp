// The control as a host sees it right after construction: its size rules, caption, texts,
// message boxes and the settings-file members.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>

#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt {
namespace {

namespace fs = std::filesystem;

class ControlShellTest : public ::testing::Test {
  protected:
    sim::SimCommonLibrary library;
    ztGraphControl control{library};
};

TEST_F(ControlShellTest, StartsIdleWithTheBuiltInRecords) {
    const GraphState& s = control.state();
    EXPECT_EQ(control.runState(), 0);
    EXPECT_EQ(control.StatusU(), 0);
    EXPECT_FALSE(control.m_blnStartErr());
    EXPECT_EQ(s.version.strMainVersion, "1.00");
    EXPECT_EQ(s.version.lngHistoryMax, 5);
    EXPECT_EQ(s.iniFileItem.lngData[1], 19200);
    EXPECT_EQ(s.iniFileItem.lngData[0], 0);
    for (int ch = 1; ch <= kChannelCount; ++ch) {
        EXPECT_EQ(s.chSetting[ch].lngTargetNo, kNoStation) << "channel " << ch;
        EXPECT_EQ(s.sampData[ch].sngSamplingData.size(), 10000u);
    }
    for (const auto& slot : s.history.udtGraphResultInfo)
        EXPECT_EQ(slot.udtSample.size(), 10000u);
}

TEST_F(ControlShellTest, RunButtonsCarryTheirCaptionsAndStartIsDisabled) {
    const GraphSurface& s = control.surface();
    EXPECT_EQ(s.cmdStart.Caption, "Start");
    EXPECT_FALSE(s.cmdStart.Enabled);
    EXPECT_EQ(s.cmdStop.Caption, "Stop");
    EXPECT_EQ(s.cmdClear.Caption, "Clear");
}

struct SizeCase {
    float requested;
    float expected;
};

class ControlSizeTest : public ControlShellTest, public ::testing::WithParamInterface<SizeCase> {};

TEST_P(ControlSizeTest, HeightAndWidthNeverGoBelowTheMinimum) {
    control.HeightU(GetParam().requested);
    control.WidthU(GetParam().requested);
    EXPECT_EQ(control.HeightU(), GetParam().expected);
    EXPECT_EQ(control.WidthU(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ControlSizeTest,
                         ::testing::Values(SizeCase{7499.9f, 7500}, SizeCase{9000, 9000},
                                           SizeCase{0, 7500}, SizeCase{-1e30f, 7500},
                                           SizeCase{std::nanf(""), 7500},
                                           SizeCase{-std::numeric_limits<float>::infinity(), 7500},
                                           SizeCase{7500, 7500}));

TEST_F(ControlShellTest, CtrlFlagAndFontChangeNothing) {
    control.WidthU(9000);
    const float width = control.WidthU();
    const std::string caption = control.surface().cmdStart.Caption;
    const float left = control.surface().cmdStart.Left;
    control.CtrlFlagU(12345);
    control.FontU(Font{"Arial", 20, true});
    EXPECT_EQ(control.WidthU(), width);
    EXPECT_EQ(control.surface().cmdStart.Caption, caption);
    EXPECT_EQ(control.surface().cmdStart.Left, left);
}

TEST_F(ControlShellTest, CaptionComesFromTheHostsMessageTableWhenItHasOne) {
    EXPECT_EQ(control.CaptionU(), "Graph");
    library.sim().setMessage(10000, "Graphe");
    EXPECT_EQ(control.CaptionU(), "Graphe");
}

TEST_F(ControlShellTest, HelpContextIdIsTheComponentsOwn) {
    int32_t help = 0, model = 0, region = 0, sp = 0;
    int16_t option = 0;
    control.GetHelpContextId(help, model, region, option, sp);
    EXPECT_EQ(help, 1400976);
}

TEST_F(ControlShellTest, TerminateDisconnectsTheHostsSink) {
    int raised = 0;
    control.ReqCommand.connect([&](int32_t) { ++raised; });
    control.Terminate();
    EXPECT_TRUE(control.terminated());
    control.ReqCommand.raise(77);
    EXPECT_EQ(raised, 0);
}

class SettingsFileTest : public ControlShellTest {
  protected:
    void SetUp() override {
        dir = fs::temp_directory_path() /
              ("zt_shell_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
               "_" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(dir);
        file = (dir / "host.ini").string();
        std::ofstream(file, std::ios::binary)
            << "[Graph]\r\nEmpty=\r\nName=Drive 1\r\nLong=" << std::string(20000, 'x') << "\r\n";
    }
    void TearDown() override { fs::remove_all(dir); }
    fs::path dir;
    std::string file;
};

TEST_F(SettingsFileTest, MissingKeyReturnsTheReadErrorText) {
    std::string buff = "old";
    EXPECT_FALSE(control.GetInifileString(file, "Graph", "Nothing", buff));
    EXPECT_EQ(buff, "GetPrivateProfileReadError");
}

TEST_F(SettingsFileTest, EmptyValueIsEmptyAndFalse) {
    std::string buff = "old";
    EXPECT_FALSE(control.GetInifileString(file, "Graph", "Empty", buff));
    EXPECT_EQ(buff, "");
}

TEST_F(SettingsFileTest, SectionAndKeyAreFoundWhateverTheirCase) {
    std::string buff;
    EXPECT_TRUE(control.GetInifileString(file, "GRAPH", "name", buff));
    EXPECT_EQ(buff, "Drive 1");
}

TEST_F(SettingsFileTest, LongValueIsCutToTheBuffer) {
    std::string buff;
    EXPECT_TRUE(control.GetInifileString(file, "Graph", "Long", buff));
    EXPECT_EQ(buff, std::string(12799, 'x'));
}

TEST_F(SettingsFileTest, WrittenValueReadsBack) {
    std::string value = "Pump 2";
    EXPECT_TRUE(control.SetInifileString(file, "Graph", "Name", value));
    std::string buff;
    EXPECT_TRUE(control.GetInifileString(file, "Graph", "Name", buff));
    EXPECT_EQ(buff, "Pump 2");
}

TEST_F(SettingsFileTest, WritingIntoAMissingFolderFails) {
    std::string value = "x";
    EXPECT_FALSE(control.SetInifileString((dir / "no" / "such.ini").string(), "S", "K", value));
}

}  // namespace
}  // namespace zt
