// The history controls: picking a history graph, laying one over the display, the labels, the
// comment box with its byte limit, and the overwrite boxes' tool tips.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "control/graph_control.h"
#include "sim/sim_common_library.h"

namespace zt {
namespace {

class HistoryDisplayTest : public ::testing::Test {
  protected:
    explicit HistoryDisplayTest(int codePage = 1252) {
        HostEnvironment env;
        env.locale.codePage = codePage;
        control = std::make_unique<ztGraphControl>(lib, env);
    }
    // Three graphs in the history, slot g carrying g in its first record and comment "cN".
    void fillHistory(int total = 3) {
        GraphState& s = control->state();
        for (int g = 1; g <= total; ++g) {
            s.history.udtGraphResultInfo[g].udtSample[0].lngAnalogData[0] = g;
            s.history.strComments[g] = "c" + std::to_string(g);
        }
        s.graphInfo.udtHistoryState.lngGraphTotal = total;
        for (int i = 0; i < 5; ++i) {
            control->surface().optHistory[i].Enabled = i < total;
            control->surface().chkOverWrite[i].Enabled = i < total;
        }
    }
    const HISTORYSTATE& history() { return control->state().graphInfo.udtHistoryState; }
    GraphSurface& surface() { return control->surface(); }

    sim::SimCommonLibrary lib;
    std::unique_ptr<ztGraphControl> control;
};

TEST_F(HistoryDisplayTest, PickingAGraphShowsItsLabelsAndComment) {
    fillHistory();
    ASSERT_TRUE(surface().optHistory[1].click());
    EXPECT_EQ(history().lngCurrentGraph, 2);
    EXPECT_EQ(surface().lblHistValue[0].Caption, "1");
    EXPECT_EQ(surface().lblHistValue[1].Caption, "1");
    EXPECT_EQ(surface().txtComment.text(), "c2");
    EXPECT_TRUE(surface().txtComment.Enabled);
    EXPECT_EQ(surface().txtComment.BackColor, ui::kColorWindow);
}

TEST_F(HistoryDisplayTest, TickingASecondOverwriteBoxUnticksTheFirst) {
    fillHistory();
    ASSERT_TRUE(surface().chkOverWrite[0].click());
    EXPECT_EQ(history().lngOverWriteState, 1);
    ASSERT_TRUE(surface().chkOverWrite[2].click());
    EXPECT_EQ(history().lngOverWriteState, 4);
    EXPECT_EQ(surface().chkOverWrite[0].value(), ui::kUnchecked);
    ASSERT_TRUE(surface().chkOverWrite[2].click());
    EXPECT_EQ(history().lngOverWriteState, 0);
}

TEST_F(HistoryDisplayTest, CommentEditsAreStoredAndFocusSelectsAll) {
    fillHistory();
    surface().optHistory[0].click();
    ui::TextBox& box = surface().txtComment;
    box.setSelStart(2);
    box.setSelText("-x");
    EXPECT_EQ(control->state().history.strComments[1], "c1-x");
    ASSERT_TRUE(box.focus());
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 4);
}

TEST_F(HistoryDisplayTest, NoSelectionShowsDashesAndAnEmptyDisabledBox) {
    fillHistory();
    control->history().refresh();
    EXPECT_EQ(surface().lblHistValue[0].Caption, "---");
    EXPECT_EQ(surface().txtComment.text(), "");
    EXPECT_FALSE(surface().txtComment.Enabled);
    EXPECT_EQ(surface().txtComment.BackColor, ui::kColorButtonFace);
}

TEST_F(HistoryDisplayTest, OverwriteToolTipsShowEachSlotsTimeStamp) {
    GraphState& s = control->state();
    for (int g = 1; g <= 5; ++g)
        s.history.strComments[g] = "11/23/2026 4:0" + std::to_string(g) + ":00 PM";
    SYS_INFO sys;
    INV_STATUS inv;
    control->SetSysStatus(0, sys, inv);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(surface().chkOverWrite[i].ToolTipText, s.history.strComments[i + 1]);
}

TEST_F(HistoryDisplayTest, UntriggeredResultLeavesNoSelection) {
    fillHistory();
    surface().optHistory[0].click();
    control->history().afterNewGraph(NewGraphOutcome::NotTriggered);
    EXPECT_FALSE(surface().optHistory[0].value());
    EXPECT_EQ(history().lngCurrentGraph, 0);
    EXPECT_EQ(surface().lblHistValue[1].Caption, "---");
    EXPECT_FALSE(surface().txtComment.Enabled);
}

class HistoryCommentCp932Test : public HistoryDisplayTest {
  protected:
    HistoryCommentCp932Test() : HistoryDisplayTest(932) {}
};

TEST_F(HistoryCommentCp932Test, EditBeyond128AnsiBytesIsUndoneWithTheCaretPutBack) {
    fillHistory();
    surface().optHistory[0].click();
    ui::TextBox& box = surface().txtComment;
    box.setSelStart(1);
    std::string wide;
    for (int i = 0; i < 65; ++i)
        wide += "\xE3\x81\x82";  // a double-byte character in code page 932
    box.setSelText(wide);
    EXPECT_EQ(box.text(), "c1");
    EXPECT_EQ(control->state().history.strComments[1], "c1");
    EXPECT_EQ(box.SelStart(), 1);

    std::string fits;
    for (int i = 0; i < 63; ++i)
        fits += "\xE3\x81\x82";
    box.setSelStart(2);
    box.setSelText(fits);  // 2 + 126 bytes
    EXPECT_EQ(control->state().history.strComments[1], "c1" + fits);
}

}  // namespace
}  // namespace zt
