#include <gtest/gtest.h>

#include "config_sheet_host.h"

namespace zt::testing {
namespace {

TEST(SamplingSheet, IntervalIsClampedToTheChannelCountMinimum) {
    SheetHost h(9600);
    h.setChannel(1, "01", "Input power");
    h.setChannel(2, "01", "DC link bus voltage");
    h.enter(h.samp, 3, "250");
    EXPECT_EQ(h.samp.text(1, 3), "300");
    EXPECT_EQ(h.state.sampSetting.dblSamplingInterval, 300);
    h.enter(h.samp, 3, "70000");
    EXPECT_EQ(h.samp.text(1, 3), "70000");
    h.enter(h.samp, 3, "900000");
    EXPECT_EQ(h.samp.text(1, 3), "120000");
    h.enter(h.samp, 3, "abc");
    EXPECT_EQ(h.samp.text(1, 3), "300");
    EXPECT_TRUE(h.library.boxes().boxes().empty());
}

TEST(SamplingSheet, TimeIsClampedToTheIntervalBounds) {
    struct Case {
        const char* typed;
        const char* shown;
    };
    const Case cases[] = {
        {"50000", "50000"}, {"5", "10000"}, {"2000000", "1000000"}, {"x", "10000"}};
    SheetHost h;
    for (const Case& c : cases) {
        h.enter(h.samp, 4, "12000");
        h.enter(h.samp, 4, c.typed);
        EXPECT_EQ(h.samp.text(1, 4), c.shown) << c.typed;
        EXPECT_EQ(h.state.sampSetting.dblSamplingTime, std::stod(c.shown));
    }
}

TEST(SamplingSheet, HighSpeedRowHoldsTheMaskCount) {
    SheetHost h;
    h.samp.chooseListItem(1, 2, "High Speed");
    h.enter(h.samp, 3, "55");
    EXPECT_EQ(h.samp.text(1, 3), "40");
    EXPECT_EQ(h.state.sampSetting.dblMask, 40);
    EXPECT_EQ(h.state.sampSetting.dblSamplingInterval, 100);
    h.enter(h.samp, 4, "200000");
    EXPECT_EQ(h.samp.text(1, 4), "164000");
    h.enter(h.samp, 4, "1000");
    EXPECT_EQ(h.samp.text(1, 4), "2050");
    h.samp.chooseListItem(1, 2, "Monitor");
    EXPECT_EQ(h.samp.text(1, 3), "100");
}

TEST(TriggerSheet, InsideListsSetChannelsAndUnlocksTheLevelOnlyForAnalog) {
    SheetHost h;
    h.setChannel(2, "01", "Input power");
    h.setChannel(5, "01", "Alarm");
    h.trig.chooseListItem(1, 1, "Inside");
    EXPECT_EQ(h.trig.listItems(1, 2), (std::vector<std::string>{"---", "CH02", "CH05"}));
    EXPECT_EQ(h.trig.listItems(1, 3), (std::vector<std::string>{"Rise", "Fall"}));
    h.trig.chooseListItem(1, 2, "CH05");
    EXPECT_EQ(h.state.sampSetting.intTriggerTarget, 5);
    EXPECT_TRUE(h.trig.locked(1, 4));
    h.trig.chooseListItem(1, 2, "CH02");
    EXPECT_FALSE(h.trig.locked(1, 4));
    h.enter(h.trig, 4, "12.5");
    EXPECT_EQ(h.state.sampSetting.dblTriggerLevel, 12.5);
}

TEST(TriggerSheet, InsideWithoutChannelsLocksTheTarget) {
    SheetHost h;
    h.trig.chooseListItem(1, 1, "Inside");
    EXPECT_TRUE(h.trig.locked(1, 2));
    EXPECT_EQ(h.trig.text(1, 2), "---");
}

TEST(TriggerSheet, FaultStationRaisesTheMinimumIntervalByOneItem) {
    SheetHost h(9600);
    h.setChannel(1, "03", "*Output frequency");
    h.setChannel(2, "03", "*Output current");
    h.setChannel(5, "01", "Alarm");
    h.trig.chooseListItem(1, 1, "Fault");
    EXPECT_EQ(h.trig.text(0, 2), "St.No.");
    EXPECT_EQ(h.trig.listItems(1, 2), (std::vector<std::string>{"---", "01", "03"}));
    EXPECT_EQ(h.sheets.minimumInterval(), 450);
    h.trig.chooseListItem(1, 2, "03");
    EXPECT_EQ(h.sheets.minimumInterval(), 600);
    EXPECT_EQ(h.state.sampSetting.dblSamplingInterval, 600);
}

TEST(TriggerSheet, TargetStationNoLongerUsedFallsBackToNone) {
    SheetHost h;
    h.setChannel(1, "03", "*Output frequency");
    h.trig.chooseListItem(1, 1, "Fault");
    h.trig.chooseListItem(1, 2, "03");
    h.ch.chooseListItem(1, 2, "01");
    EXPECT_EQ(h.trig.text(1, 2), "---");
    EXPECT_EQ(h.state.sampSetting.intTriggerTarget, kNoTriggerTarget);
}

TEST(TriggerSheet, PositionIsRoundedToTensWithoutAMessage) {
    struct Case {
        const char* typed;
        const char* shown;
    };
    const Case cases[] = {{"47", "50"}, {"100", "90"}, {"0", "10"}, {"abc", "10"}, {"25", "20"}};
    SheetHost h;
    h.trig.chooseListItem(1, 1, "Fault");
    for (const Case& c : cases) {
        h.enter(h.trig, 5, c.typed);
        EXPECT_EQ(h.trig.text(1, 5), c.shown) << c.typed;
        h.trig.typeIntoCell(1, 5, c.typed);
        h.trig.leaveSheet();
        EXPECT_EQ(h.trig.text(1, 5), c.shown) << c.typed;
    }
    EXPECT_TRUE(h.library.boxes().boxes().empty());
}

TEST(TriggerSheet, NotUsedLocksEveryRowAndClearsTheTrigger) {
    SheetHost h;
    h.trig.chooseListItem(1, 1, "Fault");
    h.trig.chooseListItem(1, 1, "Not used");
    for (int r = 2; r <= 5; ++r)
        EXPECT_TRUE(h.trig.locked(1, r));
    EXPECT_EQ(h.trig.text(1, 2), "---");
    EXPECT_EQ(h.trig.text(1, 3), "---");
    // The level row is re-evaluated after the change; the position follows the position rule
    // when editing ends.
    EXPECT_EQ(h.trig.text(1, 4), "0.00");
    EXPECT_EQ(h.trig.text(1, 5), "---");
    h.trig.leaveSheet();
    EXPECT_EQ(h.trig.text(1, 5), "10");
    EXPECT_EQ(h.state.sampSetting.intTriggerBoot, kNoTriggerBoot);
    EXPECT_EQ(h.state.sampSetting.lngTriggerPoint, -1);
}

}  // namespace
}  // namespace zt::testing
