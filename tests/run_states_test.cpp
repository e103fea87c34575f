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

// Every pair of the table by state and event, as the surface shows it afterwards; the pairs
// not listed keep their state.
TEST(RunStateTransitions, WholeTableThroughTheControl) {
    constexpr int16_t R = -2;  // recount
    constexpr int16_t K = -1;  // kept
    constexpr int16_t table[7][12] = {
        {3, K, 1, K, 2, K, K, K, K, K, K, K}, {4, K, K, K, 2, 6, K, 0, 2, K, K, 0},
        {5, K, K, 1, K, 6, K, K, K, K, K, 0}, {K, 0, 4, K, 5, K, K, K, K, K, R, K},
        {K, 1, K, K, 5, 6, K, 3, 2, K, R, 3}, {K, 2, K, 4, K, K, K, K, K, K, R, 3},
        {4, 1, K, K, K, K, 2, K, 2, K, K, K},
    };
    RunFixture f;
    f.setChannel(1, 1, 201);  // one channel set: a recount without graphs gives 4
    for (int16_t from = 0; from <= 6; ++from) {
        for (int16_t event = -1; event <= 12; ++event) {
            f.control.state().runState = from;
            f.control.run().changeRunState(event);
            const bool listed = event >= 0 && event < 12;
            int16_t to = listed ? table[from][event] : K;
            if (to == K) to = from;
            if (to == R) to = OfflineReady;
            EXPECT_EQ(f.control.runState(), to) << from << " by " << event;
            const GraphSurface& s = f.control.surface();
            EXPECT_EQ(s.cmdStart.Enabled, to == 1 || to == 2) << from << " by " << event;
            EXPECT_EQ(s.cmdStop.Enabled, to == 6) << from << " by " << event;
            EXPECT_EQ(f.control.StatusU(), to == 6 ? 1 : 0) << from << " by " << event;
        }
    }
}

// The enabling of every control of the state table, read from the surface after the event
// that leads into each state.
struct Enabling {
    int16_t from, event, state;
    bool start, stop, clear, locked, scale, cursorCheck, horz, vert, zero, comment, optimize;
    int history;  // history options and overwrite boxes enabled
};

class StateEnabling : public ::testing::TestWithParam<Enabling> {};

TEST_P(StateEnabling, SurfaceFollowsTheStateTable) {
    const Enabling e = GetParam();
    RunFixture f;
    f.setChannel(1, 1, 201);
    f.control.state().graphInfo.udtHistoryState.lngGraphTotal = 2;
    f.control.state().graphInfo.intChNumber = 1;
    f.control.surface().chkCursor.setValue(ui::kChecked);
    f.control.surface().lblHistValue[0].Caption = "kept";
    f.control.surface().optHistory[1].setValue(true);
    f.control.surface().chkOverWrite[1].setValue(ui::kChecked);
    f.statusTexts.clear();
    f.control.state().runState = e.from;
    f.control.run().changeRunState(e.event);
    ASSERT_EQ(f.control.runState(), e.state);
    const GraphSurface& s = f.control.surface();
    EXPECT_EQ(s.cmdStart.Enabled, e.start);
    EXPECT_EQ(s.cmdStop.Enabled, e.stop);
    EXPECT_EQ(s.cmdClear.Enabled, e.clear);
    EXPECT_EQ(s.sprChannel.locked(1, 2), e.locked);
    EXPECT_EQ(s.sprSampling.locked(1, 1), e.locked);
    for (const auto& opt : s.optScale)
        EXPECT_EQ(opt.Enabled, e.scale);
    EXPECT_EQ(s.chkCursor.Enabled, e.cursorCheck);
    for (const auto& opt : s.optCursor)
        EXPECT_EQ(opt.Enabled, e.cursorCheck);  // the cursor box is ticked
    EXPECT_EQ(s.cboHorzScale.Enabled, e.horz);
    // No points to scroll, except where the history refresh of states 2 and 5 draws the
    // selected (empty) graph.
    if (e.state != 2 && e.state != 5) {
        EXPECT_FALSE(s.hsbGraph.Enabled);
    }
    EXPECT_EQ(s.cboVertScale.Enabled, e.vert);
    EXPECT_EQ(s.updZero.Enabled, e.zero);
    for (const auto& opt : s.optHistory)
        EXPECT_EQ(opt.Enabled, opt.Index() < e.history) << opt.Index();
    for (const auto& box : s.chkOverWrite)
        EXPECT_EQ(box.Enabled, box.Index() < e.history) << box.Index();
    const bool emptied = e.state <= 1 || e.state == 3 || e.state == 4;
    EXPECT_EQ(s.lblHistValue[0].Caption.empty(), emptied);
    EXPECT_EQ(s.optHistory[1].value(), !emptied);
    EXPECT_EQ(s.chkOverWrite[1].value() == ui::kChecked, !emptied);
    const bool graphState = e.state == 2 || e.state == 5;
    // The fixture records a hidden status label as an empty text.
    EXPECT_EQ(f.statusTexts,
              graphState ? std::vector<std::string>{""} : std::vector<std::string>{});
    EXPECT_EQ(s.txtComment.Enabled, e.comment);
    EXPECT_EQ(s.txtComment.BackColor, e.comment ? ui::kColorWindow : ui::kColorButtonFace);
    EXPECT_EQ(s.cmdOptVert.Enabled, e.optimize);
    EXPECT_EQ(f.control.StatusU(), e.state == 6 ? 1 : 0);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    EveryState, StateEnabling,
    ::testing::Values(
        //       from ev st start  stop   clear locked scale  cursor horz   vert   zero   comment optim  history
        Enabling{1,   7, 0, false, false, true, false, false, false, false, false, false, false, false, 0},
        Enabling{0,   2, 1, true,  false, true, false, true,  false, false, true,  true,  false, false, 0},
        Enabling{1,   8, 2, true,  false, true, true,  true,  true,  true,  true,  true,  true,  true,  2},
        Enabling{0,   0, 3, false, false, true, false, false, false, false, false, false, false, false, 0},
        Enabling{1,   0, 4, false, false, true, false, true,  false, false, true,  true,  false, false, 0},
        Enabling{2,   0, 5, false, false, true, true,  true,  true,  true,  true,  true,  true,  true,  2},
        Enabling{1,   5, 6, false, true,  false, true, false, false, false, false, false, false, false, 0}));
// clang-format on

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
    // Resetting the settings ends with run event 7 of its own, as the sheets do.
    f.control.run().hooks().initializeSettings = [&] {
        ++initializations;
        f.control.run().changeRunState(ChannelsCleared);
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
