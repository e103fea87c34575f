// A whole capture through the control as it is wired: the sheets choose the channels, Start
// asks the simulated host, each reply is drawn as it arrives and the finished graph is drawn
// whole and enters the history.
#include <gtest/gtest.h>

#include "control/graph_control.h"
#include "control/graph_control_interface.h"
#include "core/chart_refs.h"
#include "run/run_states.h"
#include "sim/sim_common_library.h"
#include "sim/sim_host.h"

namespace zt {
namespace {

class ControlRunTest : public ::testing::Test {
  protected:
    void SetUp() override {
        control.advise(&host);
        SYS_INFO sys = library.sim().link().sysInfo();
        PARAMETER_INFO parameter;
        control.SetSysInfo(1, sys, parameter);
        control.ChgLineStatus(1);
        ui::SpreadSheet& ch = control.surface().sprChannel;
        ch.chooseListItem(1, 2, "01");
        ch.chooseListItem(1, 3, "*Output frequency");
        ch.chooseListItem(5, 2, "01");
        ch.chooseListItem(5, 3, "*RUN");
        host.runRecords = 100;
        host.countsPerUnit = [this](int channel) {
            const Conversion c = control.conversionTable()[static_cast<std::size_t>(channel)];
            return 1 / (c.gain * static_cast<double>(c.decimalFactor));
        };
    }
    const chart::Series& frequency() { return control.chartRefs().series(1, 0); }

    sim::SimCommonLibrary library;
    ztGraphControl control{library};
    sim::SimHost host{[this](int32_t id, DispatchKind kind, std::vector<DispatchValue>& args) {
        return dispatch(control, id, kind, args);
    }};
};

TEST_F(ControlRunTest, EachReplyAddsOnlyItsRecordsToTheDisplayedGraph) {
    host.recordsPerBlock = 1;
    control.surface().cmdStart.click();
    ASSERT_EQ(control.runState(), Sampling);
    for (int reply = 1; reply <= 20; ++reply) {
        host.deliverBlock();
        ASSERT_EQ(frequency().pointCount(), reply);
    }
    // The value shown for the newest record is the record's count converted.
    const auto& records = control.state().history.udtGraphResultInfo[0].udtSample;
    const Conversion c = control.conversionTable()[1];
    EXPECT_DOUBLE_EQ(*frequency().valueAt(19), convertRaw(records[19].lngAnalogData[0], c));
    // Two channels at 19200 baud sample every 200 ms at the fastest.
    EXPECT_EQ(control.state().sampSetting.dblSamplingInterval, 200);
    EXPECT_DOUBLE_EQ(*frequency().timeAt(19), 19 * 200.0);
}

TEST_F(ControlRunTest, FinishedGraphIsDrawnWholeAndEntersTheHistory) {
    control.surface().cmdStart.click();
    host.run();
    EXPECT_EQ(control.runState(), OnlineGraph);
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(frequency().pointCount(), kGraphRecords);
    EXPECT_EQ(control.state().graphInfo.udtHistoryState.lngGraphTotal, 1);
    EXPECT_EQ(control.state().history.udtGraphResultInfo[1].udtSample[5],
              control.state().history.udtGraphResultInfo[0].udtSample[5]);
    // Ten divisions show the whole recording of 100 intervals; the frequency reached 60 Hz.
    EXPECT_DOUBLE_EQ(control.chartRefs().timeAxis->Maximum, 20000.0);
    double top = 0;
    for (int i = 0; i < 101; ++i)
        top = std::max(top, *frequency().valueAt(i));
    EXPECT_NEAR(top, 60.0, 0.1);
    EXPECT_TRUE(control.surface().cmdStart.Enabled);
    EXPECT_FALSE(control.surface().cmdStop.Enabled);
}

TEST_F(ControlRunTest, SheetsAreLockedWhileSampling) {
    control.surface().cmdStart.click();
    EXPECT_FALSE(control.surface().sprChannel.chooseListItem(2, 2, "01"));
    host.run();
    control.surface().cmdClear.click();  // delete the graph: settings editable again
    EXPECT_EQ(control.runState(), OnlineReady);
    EXPECT_TRUE(control.surface().sprChannel.chooseListItem(2, 2, "01"));
}

}  // namespace
}  // namespace zt
