// A finished sampling result entering the five-deep history.
#include <gtest/gtest.h>

#include <memory>

#include "store/new_graph.h"

namespace zt {
namespace {

class NewGraphTest : public ::testing::Test {
  protected:
    // Marks slot 0 with a recognisable first record, as a finished run would leave it.
    void finishRun(int16_t mark) {
        state->history.udtGraphResultInfo[0].udtSample[0].lngAnalogData[0] = mark;
    }
    std::unique_ptr<GraphState> state = std::make_unique<GraphState>();
};

TEST_F(NewGraphTest, SixthGraphPushesTheOldestOut) {
    for (int16_t run = 1; run <= 6; ++run) {
        finishRun(run);
        EXPECT_EQ(enterNewGraph(*state, "stamp " + std::to_string(run), 2),
                  NewGraphOutcome::Entered);
    }
    EXPECT_EQ(state->graphInfo.udtHistoryState.lngGraphTotal, 5);
    for (int slot = 1; slot <= 5; ++slot) {
        EXPECT_EQ(state->history.udtGraphResultInfo[slot].udtSample[0].lngAnalogData[0], 7 - slot);
        EXPECT_EQ(state->history.strComments[slot], "stamp " + std::to_string(7 - slot));
    }
}

TEST_F(NewGraphTest, UntriggeredResultOfATriggeredRunStaysOutOfTheHistory) {
    state->sampSetting.intTriggerType = 1;
    state->triggerPhase = 2;
    state->graphInfo.udtHistoryState.lngCurrentGraph = 1;
    finishRun(9);
    EXPECT_EQ(enterNewGraph(*state, "now", 2), NewGraphOutcome::NotTriggered);
    EXPECT_EQ(state->graphInfo.udtHistoryState.lngGraphTotal, 0);
    EXPECT_EQ(state->graphInfo.udtHistoryState.lngCurrentGraph, 0);
    EXPECT_EQ(state->history.udtGraphResultInfo[1].udtSample[0].lngAnalogData[0], 0);
}

TEST_F(NewGraphTest, TriggeredResultEnters) {
    state->sampSetting.intTriggerType = 2;
    state->triggerPhase = 3;
    EXPECT_EQ(enterNewGraph(*state, "now", 1), NewGraphOutcome::Entered);
    EXPECT_EQ(state->graphInfo.udtHistoryState.lngGraphTotal, 1);
}

TEST_F(NewGraphTest, WithNoChannelOnlyTheStampChanges) {
    EXPECT_EQ(enterNewGraph(*state, "11/23/2026 8:05:00 AM", 0), NewGraphOutcome::NoChannels);
    EXPECT_EQ(state->history.strComments[0], "11/23/2026 8:05:00 AM");
    EXPECT_EQ(state->history.strComments[1], "");
    EXPECT_EQ(state->graphInfo.udtHistoryState.lngGraphTotal, 0);
}

}  // namespace
}  // namespace zt
