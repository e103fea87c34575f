// Change notifications of the control models: what a window showing them is told, and when.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/chart/chart_root.h"
#include "platform/ui/check_box.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/command_button.h"
#include "platform/ui/control_array.h"
#include "platform/ui/option_button.h"
#include "platform/ui/scroll_bar.h"
#include "platform/ui/spread_sheet.h"
#include "platform/ui/surface.h"
#include "platform/ui/tab_strip.h"
#include "platform/ui/text_box.h"

namespace zt::ui {
namespace {

using P = ControlProperty;

struct Recorder : ControlObserver {
    std::vector<std::pair<std::string, P>> changes;
    std::vector<std::pair<int, int>> cells;
    void controlChanged(ControlBase& c, P what) override {
        changes.emplace_back(displayName(c), what);
    }
    void cellChanged(ControlBase&, int col, int row) override { cells.emplace_back(col, row); }
};

TEST(ControlNotification, PropertiesReportChangesOnlyWhenTheValueDiffers) {
    CommandButton b("cmdStart");
    Recorder r;
    b.observe(&r);
    b.Enabled = false;
    b.Enabled = false;
    b.Left = 105;
    b.Left += 10;
    b.Caption = "Start";
    b.Caption = std::string("Start");
    b.Visible = true;  // unchanged
    const std::vector<std::pair<std::string, P>> expected{{"cmdStart", P::Enabled},
                                                          {"cmdStart", P::Left},
                                                          {"cmdStart", P::Left},
                                                          {"cmdStart", P::Caption}};
    EXPECT_EQ(r.changes, expected);
    EXPECT_FLOAT_EQ(b.Left, 115);
    EXPECT_EQ(b.Caption, "Start");
    EXPECT_EQ(b.Caption + "!", "Start!");
    EXPECT_FALSE(b.Caption.empty());
}

TEST(ControlNotification, NothingIsReportedWithoutOrAfterRemovingTheObserver) {
    CheckBox box("chkCursor");
    Recorder r;
    box.Enabled = false;
    box.observe(&r);
    box.observe(nullptr);
    box.setValue(kChecked);
    EXPECT_TRUE(r.changes.empty());
}

TEST(ControlNotification, ValueChangesAreReportedBeforeTheEventRuns) {
    ControlArray<OptionButton> opt("optCursor", 2);
    Recorder r;
    opt[0].observe(&r);
    opt[1].observe(&r);
    opt[0].setValue(true);
    std::vector<std::pair<std::string, P>> seenInClick;
    opt[1].Click.connect([&] { seenInClick = r.changes; });
    opt[1].click();
    const std::vector<std::pair<std::string, P>> expected{
        {"optCursor(0)", P::Value}, {"optCursor(0)", P::Value}, {"optCursor(1)", P::Value}};
    EXPECT_EQ(seenInClick, expected);
}

TEST(ControlNotification, BoxesStripsAndBarsReportTheirContent) {
    Recorder r;
    ComboBox combo("cboVertScale");
    TextBox text("txtComment");
    TabStrip tabs("tbsGraphOp");
    HScrollBar bar("hsbGraph");
    for (ControlBase* c : std::vector<ControlBase*>{&combo, &text, &tabs, &bar})
        c->observe(&r);
    combo.AddItem("100");
    combo.enter("50");
    text.type("x");
    tabs.Tabs.Add("Scale");
    tabs.Tabs.Add("Cursor");
    tabs.click(2);
    bar.setMax(10);
    bar.lineRight();
    const std::vector<std::pair<std::string, P>> expected{
        {"cboVertScale", P::List}, {"cboVertScale", P::Text}, {"cboVertScale", P::Text},
        {"txtComment", P::Text},   {"tbsGraphOp", P::List},   {"tbsGraphOp", P::List},
        {"tbsGraphOp", P::Value},  {"hsbGraph", P::Value},    {"hsbGraph", P::Value}};
    EXPECT_EQ(r.changes, expected);
}

TEST(ControlNotification, SheetReportsCellsAndOneGridRefreshAfterSuspendedDrawing) {
    SpreadSheet sheet("sprTrigger", 1, 5);
    Recorder r;
    sheet.observe(&r);
    sheet.setText(1, 2, "Rise");
    sheet.setBackColor(1, 3, 0xC0C0C0);
    sheet.setLocked(1, 4, true);
    const std::vector<std::pair<int, int>> cells{{1, 2}, {1, 3}, {1, 4}};
    EXPECT_EQ(r.cells, cells);
    r.cells.clear();
    sheet.SetReDraw(false);
    sheet.setText(1, 1, "Inside");
    sheet.SetMaxRows(4);
    EXPECT_TRUE(r.cells.empty());
    EXPECT_TRUE(r.changes.empty());
    sheet.SetReDraw(true);
    const std::vector<std::pair<std::string, P>> grid{{"sprTrigger", P::Cells}};
    EXPECT_EQ(r.changes, grid);
}

TEST(ControlNotification, ChartReportsRedrawsAndNewPoints) {
    chart::ChartRoot root;
    int changes = 0;
    root.Changes.listen([&] { ++changes; });
    root.Redraw();
    chart::Series& s = root.PlotDataCollection.at(0);
    const double values[] = {1, 2};
    const double times[] = {0, 100};
    s.setPointRange(0, 2, values, times);
    s.setPointCount(0);
    EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace zt::ui
