// The run-state machine as the buttons and panels show it, and Clear in every state.
#include <gtest/gtest.h>

#include "run/run_states.h"
#include "run_fixture.h"

namespace zt::testing {
namespace {

struct Transition {
    int16_t from;
    int16_t event;
    int16_t to;
};

class RunStateTransitions : public ::testing::TestWithParam<Transition> {};

TEST_P(RunStateTransitions, EventMovesToTheListedState) {
    const Transition t = GetParam();
    EXPECT_EQ(nextRunState(t.from, t.event, {}), t.to);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RunStateTransitions,
    ::testing::Values(Transition{0, 0, 3}, Transition{0, 2, 1}, Transition{0, 4, 2},
                      Transition{0, 1, 0}, Transition{1, 0, 4}, Transition{1, 5, 6},
                      Transition{1, 7, 0}, Transition{1, 8, 2}, Transition{1, 11, 0},
                      Transition{2, 3, 1}, Transition{2, 5, 6}, Transition{2, 6, 2},
                      Transition{3, 1, 0}, Transition{3, 2, 4}, Transition{3, 4, 5},
                      Transition{4, 1, 1}, Transition{4, 7, 3}, Transition{4, 8, 2},
                      Transition{4, 11, 3}, Transition{5, 1, 2}, Transition{5, 3, 4},
                      Transition{6, 0, 4}, Transition{6, 1, 1}, Transition{6, 6, 2},
                      Transition{6, 8, 2}, Transition{6, 5, 6}, Transition{2, 9, 2},
                      Transition{9, 2, 1}, Transition{-3, 0, 3}));

TEST(RunStateRecount, ProjectLoadPicksTheOfflineStateFromGraphsAndChannels) {
    EXPECT_EQ(nextRunState(3, 10, {1, 0}), OfflineGraph);
    EXPECT_EQ(nextRunState(4, 10, {0, 0}), OfflineNoChannel);
    EXPECT_EQ(nextRunState(5, 10, {0, 2}), OfflineReady);
    EXPECT_EQ(nextRunState(1, 10, {1, 2}), OnlineReady);  // not listed: kept
}

TEST(RunStateView, ButtonsFollowTheState) {
    struct Row {
        int16_t state;
        bool start, stop, clear, locked;
        int16_t status;
    };
    for (const Row& r : {Row{0, false, false, true, false, 0}, Row{1, true, false, true, false, 0},
                         Row{2, true, false, true, true, 0}, Row{3, false, false, true, false, 0},
                         Row{4, false, false, true, false, 0}, Row{5, false, false, true, true, 0},
                         Row{6, false, true, false, true, 1}}) {
        const RunStateView v = runStateView(r.state, {});
        EXPECT_EQ(v.startEnabled, r.start) << r.state;
        EXPECT_EQ(v.stopEnabled, r.stop) << r.state;
        EXPECT_EQ(v.clearEnabled, r.clear) << r.state;
        EXPECT_EQ(v.sheetsLocked, r.locked) << r.state;
        EXPECT_EQ(v.statusU, r.status) << r.state;
    }
}

TEST(RunStateView, GraphStatesOpenHistoryUpToTheGraphCountAndTheCursorOptionsWhenChecked) {
    RunViewInputs in;
    in.graphCount = 3;
    in.cursorChecked = true;
    in.selectedChannel = 6;
    const RunStateView v = runStateView(OfflineGraph, in);
    EXPECT_EQ(v.historyEnabledCount, 3);
    EXPECT_TRUE(v.cursorOptionsEnabled);
    EXPECT_FALSE(v.vertScaleEnabled);  // digital channel selected
    EXPECT_TRUE(v.zeroEnabled);
    EXPECT_EQ(v.statusLabel, StatusLabelEffect::Hidden);
    EXPECT_EQ(runStateView(OnlineReady, in).historyEnabledCount, 0);
    EXPECT_EQ(runStateView(Sampling, in).statusLabel, StatusLabelEffect::Unchanged);
}

TEST(LineStatus, OfflineRaisesStopOnlyFromTheOnlineStatesAndSampling) {
    for (int16_t state = 0; state <= 6; ++state) {
        RunFixture f;
        f.control.state().runState = state;
        f.control.ChgLineStatus(0);
        const bool raises = state <= 2 || state == 6;
        EXPECT_EQ(f.host.commands().size(), raises ? 1u : 0u) << state;
        EXPECT_EQ(f.graphsEntered, state == 6 ? 1 : 0) << state;
    }
}

TEST(CommandAnswer, OnlyResultOneCountsAsSuccess) {
    RunFixture f;
    f.setChannel(1, 1, 201);
    f.control.EventResCommand(0);
    EXPECT_EQ(f.control.runState(), OnlineReady);
    f.control.EventResCommand(1);
    EXPECT_EQ(f.control.runState(), OnlineGraph);
}

struct ClearCase {
    int16_t state;
    int16_t after;
    int initializations;
    int graphClears;
};

class ClearButton : public ::testing::TestWithParam<ClearCase> {};

TEST_P(ClearButton, ResetsSettingsOrDeletesDataByState) {
    const ClearCase c = GetParam();
    RunFixture f;
    int initializations = 0, graphClears = 0;
    f.control.run().hooks().initializeSettings = [&] {
        ++initializations;
        return true;
    };
    f.control.run().hooks().clearAllGraphs = [&] { ++graphClears; };
    f.control.state().runState = c.state;
    f.control.state().graphInfo.udtHistoryState.lngGraphTotal = 2;
    f.control.run().cmdClear_Click();
    EXPECT_EQ(f.control.runState(), c.after);
    EXPECT_EQ(initializations, c.initializations);
    EXPECT_EQ(graphClears, c.graphClears);
    if (c.graphClears == 1) {
        ASSERT_EQ(f.boxTexts().size(), 1u);
        EXPECT_EQ(f.boxTexts()[0], "The sampling data is deleted.");
        EXPECT_EQ(f.control.state().graphInfo.udtHistoryState.lngGraphTotal, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryState, ClearButton,
                         ::testing::Values(ClearCase{0, 0, 1, 0}, ClearCase{1, 0, 1, 0},
                                           ClearCase{2, 1, 0, 1}, ClearCase{3, 3, 1, 0},
                                           ClearCase{4, 3, 1, 0}, ClearCase{5, 4, 0, 1},
                                           ClearCase{6, 6, 0, 0}));

TEST(ClearButton, CancelledDeletionKeepsTheGraph) {
    RunFixture f;
    f.control.state().runState = OnlineGraph;
    f.lib.boxes().answerNext(kResultCancel);
    f.control.run().cmdClear_Click();
    EXPECT_EQ(f.control.runState(), OnlineGraph);
}

}  // namespace
}  // namespace zt::testing

namespace zt::testing {
namespace {

TEST(SysInfo, ChannelOnAStationThatIsNotPresentLosesItsStation) {
    RunFixture f;
    f.setChannel(1, 1, 201);
    f.setChannel(2, 4, 202);  // no drive on station 4
    SYS_INFO sys = f.lib.sim().link().sysInfo();
    PARAMETER_INFO parameter;
    f.control.SetSysInfo(2, sys, parameter);
    EXPECT_EQ(f.control.state().chSetting[1].lngTargetNo, 1);
    EXPECT_EQ(f.control.state().chSetting[2].lngTargetNo, kNoStation);
    EXPECT_EQ(f.control.ReturnChCount(), 1);
    EXPECT_EQ(f.control.getChNode(), 1);
}

}  // namespace
}  // namespace zt::testing
