#include <gtest/gtest.h>

#include "config_sheet_host.h"

namespace zt::testing {
namespace {

constexpr const char* kPositionCommand = "*Position Command [before the electronic gear]";

TEST(ChannelSheet, ChoosingStationAndItemSetsTheChannelAndEnablesStart) {
    SheetHost h;
    EXPECT_EQ(h.ch.listItems(1, 2), (std::vector<std::string>{"None", "01", "02", "03", "05"}));
    h.setChannel(1, "02", "*Output current");
    EXPECT_EQ(h.channel(1).lngTargetNo, 2);
    EXPECT_EQ(h.channel(1).lngSamplingItem, 202);
    EXPECT_EQ(h.channel(1).intAD, 0);
    EXPECT_EQ(h.sheets.ReturnChCount(), 1);
    EXPECT_EQ(h.sheets.getChNode(), 2);
    EXPECT_EQ(h.events.back(), kEventChannelSet);
}

TEST(ChannelSheet, StationWithoutItemIsNotCounted) {
    SheetHost h;
    h.ch.chooseListItem(6, 2, "05");
    EXPECT_EQ(h.sheets.ReturnChCount(), 0);
    EXPECT_EQ(h.sheets.getChNode(), 0);
    EXPECT_EQ(h.events.back(), kEventChannelsCleared);
    h.ch.chooseListItem(6, 3, "Alarm");
    EXPECT_EQ(h.sheets.getChNode(), 5);
    EXPECT_EQ(h.channel(6).intAD, 1);
}

TEST(ChannelSheet, EditsAreIgnoredWhileAGraphIsShownOrSampling) {
    for (int16_t runState : {2, 5, 6}) {
        SheetHost h;
        h.state.runState = runState;
        h.setChannel(1, "01", "*Output frequency");
        EXPECT_EQ(h.channel(1).lngTargetNo, kNoStation) << runState;
        EXPECT_TRUE(h.events.empty());
    }
}

TEST(ChannelSheet, HighSpeedFollowsChannelOneStationAndSwitchingBackUnlocks) {
    SheetHost h;
    h.ch.chooseListItem(1, 2, "03");
    h.samp.chooseListItem(1, 2, "High Speed");
    for (int c = 2; c <= 8; ++c) {
        EXPECT_EQ(h.ch.text(c, 2), "03");
        EXPECT_TRUE(h.ch.locked(c, 2));
        EXPECT_EQ(h.channel(c).lngTargetNo, 3);
    }
    EXPECT_EQ(h.samp.text(0, 3), "Mask count");
    EXPECT_TRUE(h.surface.lblHighSampItem.Visible);
    EXPECT_EQ(h.samp.hoverCell(0, 3),
              "Sampling Interval is approximately equal to (Mask Count + 1) *0.5ms");

    h.samp.chooseListItem(1, 2, "Monitor");
    for (int c = 2; c <= 8; ++c) {
        EXPECT_EQ(h.ch.text(c, 2), "03");
        EXPECT_FALSE(h.ch.locked(c, 2));
    }
    EXPECT_EQ(h.samp.text(0, 3), "Interval[ms]");
    EXPECT_FALSE(h.surface.lblHighSampItem.Visible);
    EXPECT_EQ(h.samp.hoverCell(0, 3), "");
}

TEST(ChannelSheet, TwoChannelItemTakesOverChannelTwoAndGivesItBack) {
    SheetHost h;
    h.samp.chooseListItem(1, 2, "High Speed");
    h.ch.chooseListItem(1, 2, "03");
    h.ch.chooseListItem(2, 3, "*Motor speed");
    h.state.graphInfo.udtVertScale[2] = {50, 3};

    h.ch.chooseListItem(1, 3, kPositionCommand);
    EXPECT_TRUE(h.ch.locked(2, 3));
    EXPECT_EQ(h.ch.text(2, 3), kPositionCommand);
    EXPECT_EQ(h.ch.backColor(2, 3), 0xA0A0A0);
    EXPECT_EQ(h.state.graphInfo.udtVertScale[2], (VERTSCALE{0.1, 5}));
    EXPECT_EQ(h.channel(2).lngSamplingItem, 222);
    EXPECT_EQ(h.ch.ActiveCol(), 2);

    h.ch.chooseListItem(1, 3, "*Output frequency");
    EXPECT_FALSE(h.ch.locked(2, 3));
    EXPECT_EQ(h.ch.text(2, 3), "*Motor speed");
    EXPECT_EQ(h.ch.backColor(2, 3), ui::kColorWhite);
    EXPECT_EQ(h.state.graphInfo.udtVertScale[2], (VERTSCALE{50, 3}));
    EXPECT_EQ(h.channel(2).lngSamplingItem, 209);
}

TEST(ChannelSheet, TwoChannelNameChosenOnChannelTwoIsOnlyMarkedPink) {
    SheetHost h;
    h.samp.chooseListItem(1, 2, "High Speed");
    h.ch.chooseListItem(1, 2, "03");
    h.ch.chooseListItem(2, 3, kPositionCommand);
    EXPECT_EQ(h.ch.backColor(2, 3), 0xFFC0FF);
    EXPECT_FALSE(h.ch.locked(3, 3));
    EXPECT_EQ(h.ch.text(3, 3), "None");
}

TEST(ChannelRules, OrderCheckFailsOnceForAGapInAGroup) {
    struct Case {
        std::vector<int> channels;
        bool passes;
    };
    const Case cases[] = {{{1, 2, 5}, true}, {{1, 3}, false}, {{5}, true}, {{6}, false}};
    for (const Case& c : cases) {
        SheetHost h;
        for (int ch : c.channels)
            h.setChannel(ch, "01", ch <= 4 ? "Input power" : "Alarm");
        EXPECT_EQ(h.sheets.ascendingOrderCheck(), c.passes);
        const auto& boxes = h.library.boxes().boxes();
        ASSERT_EQ(boxes.size(), c.passes ? 0u : 1u);
        if (!c.passes) {
            EXPECT_EQ(boxes[0].text,
                      "Make setting in ascending order from CH1 for analog data.\r\n"
                      "Make setting in ascending order from CH5 for digital data.");
            EXPECT_EQ(boxes[0].style, 48);
        }
    }
}

TEST(ChannelSheet, InitializeAsksFirstAndCancelKeepsEverything) {
    SheetHost h;
    h.setChannel(1, "01", "Input power");
    const ChannelSettings before = h.state.chSetting;
    h.library.boxes().answerNext(kResultCancel);
    EXPECT_FALSE(h.sheets.initializeSettings());
    EXPECT_EQ(h.state.chSetting, before);
    EXPECT_EQ(h.ch.text(1, 2), "01");

    EXPECT_TRUE(h.sheets.initializeSettings());
    EXPECT_EQ(h.channel(1).lngTargetNo, kNoStation);
    EXPECT_EQ(h.ch.text(1, 2), "None");
    EXPECT_EQ(h.state.sampSetting.intTriggerBoot, kNoTriggerBoot);
    EXPECT_EQ(h.state.graphInfo.udtHorzScale.sngHorzScale, 500);
    EXPECT_EQ(h.events.back(), kEventChannelsCleared);
}

TEST(ChannelSheet, LockingForARunKeepsTheRuleLocksAfterwards) {
    SheetHost h;
    h.samp.chooseListItem(1, 2, "High Speed");
    h.sheets.setSheetsLocked(true);
    EXPECT_FALSE(h.ch.chooseListItem(1, 2, "01"));
    h.sheets.setSheetsLocked(false);
    EXPECT_FALSE(h.ch.locked(1, 2));
    EXPECT_TRUE(h.ch.locked(2, 2));
    EXPECT_TRUE(h.trig.locked(1, 2));

    h.state.runState = 6;
    h.sheets.setSheetsLocked(true);
    h.sheets.refreshStationLists();
    EXPECT_TRUE(h.ch.locked(1, 3));
}

}  // namespace
}  // namespace zt::testing
