// The file members as a host calls them: run states that allow them, the import's question,
// the channel check with its events, the restored history selection, and project loads.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "config/sheet_rows.h"
#include "control/graph_control.h"
#include "run/run_states.h"
#include "sim/sim_common_library.h"

namespace zt {
namespace {

namespace fs = std::filesystem;

class FileMembersTest : public ::testing::Test {
  protected:
    FileMembersTest() {
        dir = fs::temp_directory_path() /
              ("zt_file_members_" +
               std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(dir);
        fs::create_directories(dir);
        SYS_INFO stations = lib.sim().link().sysInfo();
        PARAMETER_INFO parameter;
        control->SetSysInfo(1, stations, parameter);
        control->ChgLineStatus(1);
    }
    ~FileMembersTest() override { fs::remove_all(dir); }
    std::string path(const std::string& name) { return (dir / name).string(); }
    std::string write(const std::string& name, const std::string& text) {
        std::ofstream(path(name), std::ios::binary) << text;
        return path(name);
    }
    std::vector<std::string> boxTexts() {
        std::vector<std::string> texts;
        for (const auto& b : lib.boxes().boxes())
            texts.push_back(b.text);
        return texts;
    }

    fs::path dir;
    sim::SimCommonLibrary lib;
    std::unique_ptr<ztGraphControl> control = std::make_unique<ztGraphControl>(lib);
    SYS_INFO sys;
};

TEST_F(FileMembersTest, ExportOutsideTheReadyAndGraphStatesWritesNothing) {
    ASSERT_EQ(control->runState(), OnlineNoChannel);
    EXPECT_EQ(control->ExportFile(path("a.gp3")), 0);
    EXPECT_FALSE(fs::exists(path("a.gp3")));
    control->run().changeRunState(ChannelSet);
    ASSERT_EQ(control->runState(), OnlineReady);
    EXPECT_EQ(control->ExportFile(path("a.gp3")), 0);
    EXPECT_GT(fs::file_size(path("a.gp3")), 5u * 10000 * 14);
}

TEST_F(FileMembersTest, ImportAsksBeforeDroppingGraphs) {
    const std::string file = write("g.gp3", "[COMMON]\r\nSamplingInterval=20\r\n");
    control->state().graphInfo.udtHistoryState.lngGraphTotal = 2;
    lib.boxes().answerNext(kResultCancel);
    EXPECT_EQ(control->ImportFile(file, sys), 0);
    EXPECT_EQ(control->state().graphInfo.udtHistoryState.lngGraphTotal, 2);
    EXPECT_EQ(boxTexts(), std::vector<std::string>{"The sampling data is deleted."});
    EXPECT_EQ(lib.boxes().boxes().back().style, kStyleConfirm);

    lib.boxes().answerNext(7);
    EXPECT_EQ(control->ImportFile(file, sys), -1);

    lib.boxes().answerNext(kResultOk);
    EXPECT_EQ(control->ImportFile(file, sys), 0);
    EXPECT_EQ(control->state().sampSetting.dblSamplingInterval, 20);
    EXPECT_EQ(control->state().graphInfo.udtHistoryState.lngGraphTotal, 0);
}

TEST_F(FileMembersTest, ImportWithAnUnknownItemShowsErrAndResets) {
    const std::string file =
        write("bad.gp3", "[CHANNEL_01]\r\nTargetNo=1\r\nSamplingItem=123456\r\n");
    EXPECT_EQ(control->ImportFile(file, sys), 0);
    EXPECT_EQ(boxTexts(), std::vector<std::string>{"Err"});
    EXPECT_EQ(control->state().chSetting[1].lngSamplingItem, 123456);
    EXPECT_EQ(control->runState(), OnlineNoChannel);
}

TEST_F(FileMembersTest, ImportRestoresTheHistorySelectionAndOverlay) {
    std::string text =
        "[COMMON]\r\nGraphTotal=3\r\nCurrentGraph=2\r\nOverWriteState=6\r\nCursorState=2\r\n"
        "[DATA_01]\r\nComment= \r\nH=\r\n[DATA_02]\r\nComment=second \r\nH=\r\n5,0,0,1,2,3,4\r\n";
    const std::string file = write("h.gp3", text);
    EXPECT_EQ(control->ImportFile(file, sys), 0);
    EXPECT_TRUE(boxTexts().empty());
    const GraphSurface& s = control->surface();
    EXPECT_TRUE(s.optHistory[1].value());
    EXPECT_EQ(s.chkOverWrite[1].value(), ui::kChecked);
    EXPECT_EQ(control->state().graphInfo.udtHistoryState.lngOverWriteState, 6);
    EXPECT_EQ(s.lblHistValue[0].Caption, "1");
    EXPECT_EQ(s.txtComment.text(), "second");
    EXPECT_EQ(s.chkCursor.value(), ui::kChecked);
    EXPECT_TRUE(s.optCursor[1].value());
    EXPECT_EQ(control->state().history.udtGraphResultInfo[2].udtSample[0].lngAnalogData[3], 4);
}

TEST_F(FileMembersTest, ImportDuringSamplingIsRefused) {
    control->run().changeRunState(ChannelSet);
    control->run().changeRunState(RunStarted);
    ASSERT_EQ(control->runState(), Sampling);
    EXPECT_EQ(control->ImportFile(write("x.gp3", ""), sys), -1);
}

TEST_F(FileMembersTest, ExportThenImportThroughTheControlKeepsTheGraphs) {
    control->run().changeRunState(ChannelSet);
    GraphState& s = control->state();
    for (int slot = 1; slot <= 5; ++slot) {
        s.history.strComments[slot] = "run " + std::to_string(slot);
        s.history.udtGraphResultInfo[slot].udtSample[9999].lngAnalogData[0] = -slot;
    }
    s.graphInfo.udtHistoryState = HISTORYSTATE{1, 5, 16};
    for (int ch = 1; ch <= 8; ++ch)
        s.chSetting[ch].lngSamplingItem = 32768;  // "None", offered on every channel
    ASSERT_EQ(control->ExportFile(path("rt.gp3")), 0);

    auto other = std::make_unique<ztGraphControl>(lib);
    lib.boxes().clear();
    ASSERT_EQ(other->ImportFile(path("rt.gp3"), sys), 0);
    EXPECT_TRUE(boxTexts().empty());
    for (int slot = 1; slot <= 5; ++slot) {
        EXPECT_EQ(other->state().history.strComments[slot], "run " + std::to_string(slot));
        EXPECT_EQ(other->state().history.udtGraphResultInfo[slot].udtSample[9999].lngAnalogData[0],
                  -slot);
    }
    EXPECT_EQ(other->state().graphInfo.udtHistoryState, (HISTORYSTATE{1, 5, 16}));
    EXPECT_EQ(other->surface().chkOverWrite[4].value(), ui::kChecked);
}

TEST_F(FileMembersTest, NothingInAGraphFileMakesTheImportFail) {
    std::mt19937 rng(5);
    const std::vector<std::string> keys = {
        "SamplingSpeed", "SamplingInterval", "SamplingMask",   "SamplingTime", "TriggerType",
        "TriggerLevel",  "TriggerPosition",  "HorzScale",      "HscrollPos",   "ChNumber",
        "GraphTotal",    "CurrentGraph",     "OverWriteState", "CursorState",  "TargetNo",
        "SamplingItem",  "VertScale",        "ZeroPos",        "DecPoint",     "Comment"};
    const std::vector<std::string> values = {"",     "-1",     "1e308", "NaN", "99999999999",
                                             "0,5",  "&HFFFF", "3",     "1",   "\"x\"",
                                             "-0.0", "40",     "(2)",   "1d2", "2147483648"};
    for (int round = 0; round < 30; ++round) {
        std::string text;
        for (const char* section : {"[COMMON]", "[CHANNEL_01]", "[CHANNEL_05]", "[DATA_01]"}) {
            text += std::string(section) + "\r\n";
            for (int k = 0; k < 12; ++k)
                text += keys[rng() % keys.size()] + "=" + values[rng() % values.size()] + "\r\n";
        }
        lib.boxes().answerNext(kResultOk);
        EXPECT_EQ(control->ImportFile(write("f.gp3", text), sys), 0) << text;
    }
}

TEST_F(FileMembersTest, ProjectLoadInAnOfflineStateSendsItsEvent) {
    VERSION_INFO version;
    PROGRAM_VERSION program;
    control->run().changeRunState(ChannelSet);
    ASSERT_EQ(control->SaveKivFile(path("p.ztp"), version), 0);
    control->ChgLineStatus(0);
    const int16_t before = control->runState();
    ASSERT_GE(before, OfflineNoChannel);
    EXPECT_EQ(control->LoadKivFile(path("missing.ztp"), version, program), -1);
    EXPECT_EQ(control->state().version.strMainVersion, "");
    EXPECT_EQ(control->LoadKivFile(path("p.ztp"), version, program), 0);
    EXPECT_EQ(control->state().version.strMainVersion, "4.00");
}

TEST_F(FileMembersTest, ProjectLoadWhileAGraphIsShownOnlineKeepsThatStatesLocks) {
    VERSION_INFO version;
    PROGRAM_VERSION program;
    control->run().changeRunState(ChannelSet);
    control->run().changeRunState(GraphLoaded);
    ASSERT_EQ(control->runState(), OnlineGraph);
    ASSERT_TRUE(control->surface().sprChannel.locked(1, kRowStation));
    ASSERT_EQ(control->SaveKivFile(path("p.ztp"), version), 0);
    EXPECT_EQ(control->LoadKivFile(path("p.ztp"), version, program), 0);
    EXPECT_EQ(control->runState(), OnlineGraph);
    EXPECT_TRUE(control->surface().sprChannel.locked(1, kRowStation));
    EXPECT_FALSE(control->surface().cmdStop.Enabled);
}

}  // namespace
}  // namespace zt
