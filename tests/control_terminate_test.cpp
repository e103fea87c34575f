// A host that keeps calling after Terminate: every member through dispatch is refused with an
// error, direct calls and a person's actions change nothing and never reach the released
// chart.
#include <gtest/gtest.h>

#include "run/run_states.h"
#include "run_fixture.h"

namespace zt::testing {
namespace {

class AfterTerminate : public ::testing::Test, public RunFixture {
  protected:
    void SetUp() override {
        setChannel(1, 1, 201);
        setting().dblSamplingInterval = 100;
        setting().dblSamplingTime = 10000;
        control.surface().cmdStart.click();
        host.run();
        ASSERT_EQ(control.runState(), OnlineGraph);
        control.Terminate();
    }
};

TEST_F(AfterTerminate, NoChartReferenceIsHeld) {
    const ChartRefs& refs = control.chartRefs();
    EXPECT_FALSE(refs.held());
    for (std::size_t i = 1; i <= 8; ++i) {
        EXPECT_EQ(refs.area[i], nullptr);
        EXPECT_EQ(refs.plotData[i], nullptr);
        EXPECT_EQ(refs.pulseData[i], nullptr);
        EXPECT_EQ(refs.vertAxis[i], nullptr);
        EXPECT_EQ(refs.scaleBack[i], nullptr);
    }
    EXPECT_EQ(refs.timeBase, nullptr);
    EXPECT_EQ(refs.timeAxis, nullptr);
    EXPECT_EQ(refs.triggerCursor, nullptr);
    EXPECT_EQ(refs.triggerStateLabel, nullptr);
}

TEST_F(AfterTerminate, EveryMemberIsRefusedThroughDispatch) {
    for (const InterfaceMember& m : kGraphControlMembers) {
        for (DispatchKind kind :
             {DispatchKind::Method, DispatchKind::PropertyGet, DispatchKind::PropertyPut}) {
            const uint8_t bit = kind == DispatchKind::Method        ? kMethod
                                : kind == DispatchKind::PropertyGet ? kGet
                                                                    : kPut;
            if ((m.kinds & bit) == 0) continue;
            std::vector<DispatchValue> none;
            const DispatchResult r = dispatch(control, m.dispId, kind, none);
            EXPECT_EQ(r.status, kDispDisconnected) << m.name;
            EXPECT_NE(r.error.find("terminated"), std::string::npos) << m.name;
        }
    }
}

TEST_F(AfterTerminate, DirectCallsAndUserActionsChangeNothing) {
    const auto history = control.state().history.udtGraphResultInfo[1].udtSample;
    SYS_INFO sys = lib.sim().link().sysInfo();
    PARAMETER_INFO parameter;
    INV_STATUS status;
    control.SetSysInfo(1, sys, parameter);
    control.SetSysStatus(1, sys, status);
    control.ChgLineStatus(0);
    control.ChgLineStatus(1);
    control.EventResCommand(1);
    GRAPH_RESULT_INFO reply{{record(1000), record(1000)}};
    control.SetSamplingData(reply, 0);
    control.SetSamplingData(reply, -1);
    GRAPH_REQUEST request = control.GetGraphRequest();
    control.SetGraphRequest(request);
    control.Show();
    control.Resize();
    control.HeightU(9000);
    control.WidthU(9000);
    control.showComErrDlg(1, 5);
    INIFILE_ITEM ini;
    control.SetIniFileItem(ini);
    MONI_ITEM moni;
    control.SetMonitorItem(moni, 1);
    std::string buffer = "kept";
    EXPECT_FALSE(control.GetInifileString("x.ini", "S", "K", buffer));
    EXPECT_EQ(buffer, "kept");
    control.advise(&host);

    GraphSurface& s = control.surface();
    EXPECT_FALSE(s.cmdStart.click());
    EXPECT_FALSE(s.cmdClear.click());
    EXPECT_FALSE(s.sprChannel.chooseListItem(2, 2, "01"));
    EXPECT_FALSE(s.tbsGraphOp.click(2));
    control.run().cmdStart_Click();
    control.run().cmdStop_Click();
    control.run().cmdClear_Click();

    EXPECT_EQ(control.runState(), OnlineGraph);
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(reply.udtSample.size(), 2u);
    EXPECT_TRUE(boxTexts().empty());
    EXPECT_EQ(control.HeightU(), kMinControlSize);
    EXPECT_EQ(control.state().history.udtGraphResultInfo[1].udtSample, history);
    EXPECT_EQ(control.state().chSetting[2].lngTargetNo, kNoStation);
}

TEST(Terminate, DuringARunTheHostsRepliesAreRefused) {
    RunFixture f;
    f.setChannel(1, 1, 201);
    f.control.surface().cmdStart.click();
    f.host.run(2);
    f.control.Terminate();
    EXPECT_TRUE(f.host.deliverBlock());
    ASSERT_EQ(f.host.errors().size(), 1u);
    EXPECT_EQ(f.host.errors()[0].status, kDispDisconnected);
    EXPECT_EQ(f.host.commands(), (std::vector<int32_t>{77}));
    EXPECT_EQ(f.graphLength(), 20);
}

}  // namespace
}  // namespace zt::testing
