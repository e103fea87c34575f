// Whole sampling runs followed as a host sees them: commands raised, states, replies consumed.
#include <gtest/gtest.h>

#include "run/run_states.h"
#include "run_fixture.h"
#include "sim/drive_catalogue.h"

namespace zt::testing {
namespace {

class SamplingRun : public ::testing::Test, public RunFixture {
  protected:
    void SetUp() override {
        setChannel(1, 1, 201);
        setting().dblSamplingInterval = 100;
        setting().dblSamplingTime = 10000;
    }
};

TEST_F(SamplingRun, UntriggeredSingleRunEndsWhenTheGraphCoversTheSamplingTime) {
    ASSERT_EQ(control.runState(), OnlineReady);
    control.surface().cmdStart.click();
    EXPECT_EQ(control.runState(), Sampling);
    EXPECT_EQ(control.StatusU(), 1);
    EXPECT_TRUE(control.surface().cmdStop.Enabled);
    EXPECT_FALSE(control.surface().cmdStart.Enabled);

    host.recordsPerBlock = 7;
    host.run();
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(control.runState(), OnlineGraph);
    EXPECT_EQ(control.StatusU(), 0);
    EXPECT_EQ(graphsEntered, 1);
    // 1,000 ms per record: the 102nd record is the first whose graph time exceeds 10,000 ms.
    EXPECT_EQ(graphLength(), 102);
    EXPECT_EQ(drawn.back().second, 102);
    EXPECT_TRUE(host.errors().empty());
}

TEST_F(SamplingRun, DrawingReceivesOnlyTheRecordsOfEachReply) {
    control.surface().cmdStart.click();
    host.recordsPerBlock = 1;
    host.run(5);
    ASSERT_EQ(drawn.size(), 5u);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(drawn[static_cast<std::size_t>(i)], std::make_pair(i, i + 1));
}

TEST_F(SamplingRun, ContinuousRunStartsTheNextSweepWithTheRestOfTheReply) {
    setting().intSamplingMode = 1;
    control.surface().cmdStart.click();
    host.recordsPerBlock = 25;
    host.run(5);  // records 0 to 124; the sweep ends at record 101
    EXPECT_EQ(graphsEntered, 1);
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77}));
    EXPECT_EQ(control.runState(), Sampling);
    EXPECT_EQ(graphLength(), 23);
    EXPECT_EQ(drawn.back(), std::make_pair(0, 23));
    host.run(4);
    EXPECT_EQ(graphsEntered, 2);  // second sweep ended at record 203
}

TEST_F(SamplingRun, HighSpeedRunSamplesAtTheMaskInterval) {
    setting().intSamplingSpeed = 1;
    setting().dblMask = 3;
    setting().dblSamplingTime = 1000;
    control.surface().cmdStart.click();
    EXPECT_EQ(host.intervalTenths(), 20);  // (3 + 1) x 0.5 ms
    host.recordsPerBlock = 100;
    host.run();
    EXPECT_EQ(graphLength(), 502);
}

TEST_F(SamplingRun, ErrorCodeMidRunEndsTheRunAfterTheMessage) {
    host.failAtBlock(3, sim::kErrTimeout);
    control.surface().cmdStart.click();
    host.run();
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(control.runState(), OnlineGraph);
    EXPECT_EQ(graphsEntered, 1);
    ASSERT_EQ(boxTexts().size(), 1u);
    EXPECT_NE(boxTexts()[0].find("Communication Error Code: 0x80040001"), std::string::npos);
    EXPECT_TRUE(boxTexts()[0].ends_with("\r\n\r\nSampling is stopped"));
}

TEST_F(SamplingRun, BufferOverflowIsReportedAndStopsTheRun) {
    host.failAtBlock(0, -1);
    control.surface().cmdStart.click();
    host.run();
    ASSERT_EQ(boxTexts().size(), 1u);
    EXPECT_EQ(boxTexts()[0], "A buffer overflow occurred\r\n\r\nSampling is stopped");
    EXPECT_EQ(control.runState(), OnlineGraph);
}

TEST_F(SamplingRun, StartRefusedByTheHostKeepsTheStateAndTheStatus) {
    host.refuseStart = true;
    control.surface().cmdStart.click();
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77}));
    EXPECT_EQ(control.runState(), OnlineReady);
    EXPECT_EQ(control.StatusU(), 1);
    EXPECT_FALSE(host.deliverBlock());
}

TEST_F(SamplingRun, GoingOfflineDuringARunStopsItAndIgnoresLateReplies) {
    control.surface().cmdStart.click();
    host.run(3);
    control.ChgLineStatus(0);
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(control.runState(), OfflineReady);
    EXPECT_EQ(control.StatusU(), 0);
    EXPECT_EQ(graphsEntered, 1);
    // Blocks still in flight after the stop belong to no graph: they are left untaken, an
    // error code shows nothing and nothing more is raised.
    GRAPH_RESULT_INFO late{{record(1000, 5)}};
    control.SetSamplingData(late, 0);
    control.SetSamplingData(late, sim::kErrTimeout);
    EXPECT_EQ(graphLength(), 30);
    EXPECT_EQ(late.udtSample.size(), 1u);
    EXPECT_TRUE(boxTexts().empty());
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(graphsEntered, 1);
}

struct MidRunCall {
    const char* name;
    void (*call)(ztGraphControl&);
    int16_t state;  // state right after the call, and after the run
};

class RunAfterAHostCall : public SamplingRun, public ::testing::WithParamInterface<MidRunCall> {};

TEST_P(RunAfterAHostCall, RepliesAreStillTakenUntilTheControlStopsTheRun) {
    control.surface().cmdStart.click();
    host.run(3);
    GetParam().call(control);
    EXPECT_EQ(control.runState(), GetParam().state);
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77}));
    EXPECT_EQ(control.StatusU(), 0);
    host.run();
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(graphLength(), 102);
    EXPECT_EQ(graphsEntered, 1);
    EXPECT_EQ(control.runState(), GetParam().state);
    EXPECT_EQ(control.state().history.udtGraphResultInfo[0].udtSample[101].lngDiffTime, 1000);
}

INSTANTIATE_TEST_SUITE_P(
    HostCalls, RunAfterAHostCall,
    ::testing::Values(
        MidRunCall{"CommandAnswered", [](ztGraphControl& c) { c.EventResCommand(1); }, OnlineGraph},
        MidRunCall{"LineOnline", [](ztGraphControl& c) { c.ChgLineStatus(1); }, OnlineReady}),
    [](const ::testing::TestParamInfo<MidRunCall>& p) { return p.param.name; });

TEST_F(SamplingRun, LineOfflineAfterACommandAnswerEndsTheRunWithItsGraph) {
    control.surface().cmdStart.click();
    host.run(3);
    control.EventResCommand(1);
    control.ChgLineStatus(0);
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(graphsEntered, 1);
    EXPECT_EQ(control.runState(), OfflineGraph);
    EXPECT_FALSE(host.sampling());
}

TEST_F(SamplingRun, StopButtonEndsTheRunWithTheGraphSoFar) {
    control.surface().cmdStart.click();
    host.run(2);
    EXPECT_TRUE(control.surface().cmdStop.click());
    EXPECT_EQ(host.commands(), (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(control.runState(), OnlineGraph);
    EXPECT_TRUE(control.surface().cmdStart.Enabled);
    EXPECT_TRUE(control.surface().optHistory[0].Enabled);
    EXPECT_FALSE(control.surface().optHistory[1].Enabled);
}

TEST_F(SamplingRun, StationNotReadyRefusesTheStartWithItsError) {
    lib.sim().link().setCommError(1, sim::kErrNoResponse);
    control.surface().cmdStart.click();
    EXPECT_TRUE(host.commands().empty());
    ASSERT_EQ(boxTexts().size(), 1u);
    EXPECT_TRUE(boxTexts()[0].starts_with("NODE:1\r\n"));
}

TEST_F(SamplingRun, HostReceivesTheRequestWithTheHostFieldsTaken) {
    setChannel(2, 2, 209);  // motor speed, offered by the vector drive on station 2
    setting().dblSamplingInterval = 200;
    setting().dblSamplingTime = 20000;
    control.surface().cmdStart.click();
    const GRAPH_REQUEST& r = host.request();
    EXPECT_EQ(r.intAnalogCount, 2);
    EXPECT_EQ(r.intAnalogItem[1], 209);
    EXPECT_EQ(r.lngInterval, 200);
    EXPECT_EQ(r.intTriggerStation, 255);
    // Item 209 with unit 3 would be 1000; the catalogue's unit for it is not 3.
    EXPECT_EQ(control.state().sampData[2].sngBaseValue, 1800.0f);
    EXPECT_EQ(control.state().sampData[1].intDecPoint, 2);
}

}  // namespace
}  // namespace zt::testing
