// Hosts that call back into the control from inside their ReqCommand handler: they change the
// reply record they handed over, press Stop or Start, go offline, deliver replies or terminate
// the control. Each run must end once, with one stop command, and never touch freed memory.
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "run/run_states.h"
#include "run_fixture.h"

namespace zt::testing {
namespace {

// A host sink whose handler for one command runs a scripted action, once.
struct ScriptedSink : GraphHostSink {
    std::vector<int32_t> commands;
    int32_t actOn = 0;
    std::function<void()> action;

    void ReqCommand(int32_t command) override {
        commands.push_back(command);
        if (command == actOn && action) {
            auto act = std::move(action);
            action = nullptr;
            act();
        }
    }
};

// Records of 1,000 ms each: the 102nd completes the graph.
GRAPH_RESULT_INFO reply(int count) {
    return GRAPH_RESULT_INFO{
        std::vector<SampleRecord>(static_cast<std::size_t>(count), record(1000, 7))};
}

class HostReentry : public ::testing::Test, public RunFixture {
  public:
    void SetUp() override {
        setChannel(1, 1, 201);
        setting().dblSamplingInterval = 100;
        setting().dblSamplingTime = 10000;
        control.advise(&sink);
    }

    ScriptedSink sink;
    GRAPH_RESULT_INFO data = reply(150);
};

struct StopHandlerCase {
    const char* name;
    std::function<void(HostReentry&)> action;
    int16_t state;            // run state afterwards
    std::size_t recordsLeft;  // size of the host's record afterwards
    int graphs;               // graphs entered into the history
};

class StopHandler : public HostReentry, public ::testing::WithParamInterface<StopHandlerCase> {};

TEST_P(StopHandler, RunEndsOnceAndTheHostsRecordIsLeftAsTheHandlerMadeIt) {
    control.surface().cmdStart.click();
    ASSERT_EQ(control.runState(), Sampling);
    sink.actOn = kCommandStop;
    sink.action = [this] { GetParam().action(*this); };
    control.SetSamplingData(data, 0);
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(control.runState(), GetParam().state);
    EXPECT_EQ(control.StatusU(), 0);
    EXPECT_EQ(data.udtSample.size(), GetParam().recordsLeft);
    EXPECT_EQ(graphsEntered, GetParam().graphs);
    EXPECT_EQ(graphLength(), 102);
    EXPECT_FALSE(control.run().runInProgress());
}

INSTANTIATE_TEST_SUITE_P(
    Misbehaviours, StopHandler,
    ::testing::Values(
        StopHandlerCase{"EmptiesTheRecord", [](HostReentry& h) { h.data.udtSample.clear(); },
                        OnlineGraph, 0, 1},
        StopHandlerCase{"ShrinksTheRecord",
                        [](HostReentry& h) {
                            h.data.udtSample.resize(3);
                            h.data.udtSample.shrink_to_fit();
                        },
                        OnlineGraph, 3, 1},
        StopHandlerCase{"GrowsTheRecord", [](HostReentry& h) { h.data.udtSample.resize(20000); },
                        OnlineGraph, 20000, 1},
        StopHandlerCase{"PressesStop", [](HostReentry& h) { h.control.surface().cmdStop.click(); },
                        OnlineGraph, 48, 1},
        StopHandlerCase{"PressesStart",
                        [](HostReentry& h) { h.control.surface().cmdStart.click(); }, OnlineGraph,
                        48, 1},
        StopHandlerCase{"GoesOffline", [](HostReentry& h) { h.control.ChgLineStatus(0); },
                        OfflineReady, 48, 1},
        StopHandlerCase{"DeliversAnotherReply",
                        [](HostReentry& h) {
                            GRAPH_RESULT_INFO more = reply(5);
                            h.control.SetSamplingData(more, 0);
                            EXPECT_EQ(more.udtSample.size(), 5u);
                        },
                        OnlineGraph, 48, 1},
        StopHandlerCase{"Terminates", [](HostReentry& h) { h.control.Terminate(); }, Sampling, 48,
                        0}),
    [](const ::testing::TestParamInfo<StopHandlerCase>& p) { return p.param.name; });

TEST_F(HostReentry, OfflineStopHandlerOutsideARunRaisesOneStop) {
    sink.actOn = kCommandStop;
    sink.action = [this] { control.ChgLineStatus(0); };
    control.ChgLineStatus(0);
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{78}));
    EXPECT_EQ(control.runState(), OfflineReady);
}

TEST_F(HostReentry, StartPressedAgainInsideTheStartRequestIsIgnored) {
    sink.actOn = kCommandStart;
    sink.action = [this] { control.surface().cmdStart.click(); };
    control.surface().cmdStart.click();
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{77}));
    EXPECT_EQ(control.runState(), Sampling);
}

TEST_F(HostReentry, StopInsideTheStartRequestAbandonsTheStart) {
    sink.actOn = kCommandStart;
    sink.action = [this] { control.run().cmdStop_Click(); };
    control.surface().cmdStart.click();
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(control.runState(), OnlineReady);
    EXPECT_EQ(control.StatusU(), 0);
    EXPECT_EQ(graphsEntered, 0);
    control.SetSamplingData(data, 0);
    EXPECT_EQ(data.udtSample.size(), 150u);
}

TEST_F(HostReentry, GoingOfflineInsideTheStartRequestLeavesTheControlOffline) {
    sink.actOn = kCommandStart;
    sink.action = [this] { control.ChgLineStatus(0); };
    control.surface().cmdStart.click();
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(control.runState(), OfflineReady);
    EXPECT_EQ(control.StatusU(), 0);
    EXPECT_FALSE(control.surface().cmdStop.Enabled);
}

TEST_F(HostReentry, FirstReplyDeliveredInsideTheStartRequestIsTaken) {
    sink.actOn = kCommandStart;
    sink.action = [this] {
        GRAPH_RESULT_INFO first = reply(30);
        control.SetSamplingData(first, 0);
        EXPECT_TRUE(first.udtSample.empty());
    };
    control.surface().cmdStart.click();
    EXPECT_EQ(control.runState(), Sampling);
    EXPECT_EQ(graphLength(), 30);
    control.SetSamplingData(data, 0);
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{77, 78}));
    EXPECT_EQ(graphLength(), 102);
    EXPECT_EQ(data.udtSample.size(), 78u);
}

TEST_F(HostReentry, TerminateInsideTheStartRequestEndsEverything) {
    sink.actOn = kCommandStart;
    sink.action = [this] { control.Terminate(); };
    control.surface().cmdStart.click();
    EXPECT_TRUE(control.terminated());
    EXPECT_EQ(control.runState(), OnlineReady);
    control.SetSamplingData(data, 0);
    EXPECT_EQ(data.udtSample.size(), 150u);
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{77}));
}

TEST_F(HostReentry, StartHandlerThatFailsLeavesTheControlReadyForTheNextStart) {
    sink.actOn = kCommandStart;
    sink.action = [] { throw std::runtime_error("host failure"); };
    EXPECT_THROW(control.surface().cmdStart.click(), std::runtime_error);
    EXPECT_EQ(control.runState(), OnlineReady);
    EXPECT_FALSE(control.run().runInProgress());
    control.surface().cmdStart.click();
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{77, 77}));
    EXPECT_EQ(control.runState(), Sampling);
}

TEST_F(HostReentry, ContinuousRunHandsTheRestOfEachReplyToTheNextSweep) {
    setting().intSamplingMode = 1;
    control.surface().cmdStart.click();
    GRAPH_RESULT_INFO big = reply(250);  // sweeps end at records 101 and 203
    control.SetSamplingData(big, 0);
    EXPECT_TRUE(big.udtSample.empty());
    EXPECT_EQ(graphsEntered, 2);
    EXPECT_EQ(graphLength(), 46);
    EXPECT_EQ(sink.commands, (std::vector<int32_t>{77}));
}

}  // namespace
}  // namespace zt::testing
