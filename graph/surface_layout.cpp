#include "graph/surface_layout.h"

#include <algorithm>

#include "core/message_catalogue.h"

namespace zt {

namespace {

constexpr float kButtonWidth = 975;
constexpr float kButtonHeight = 315;
constexpr float kButtonGap = 120;

// Channel sheet placement when shown; it hides above the surface.
constexpr float kSheetTop = 650;
constexpr float kChannelSheetHeight = 2190;
constexpr float kChannelHeaderWidth = 950;
// Trigger and sampling sheets, side by side on the second tab.
constexpr float kTriggerSheetLeft = 20;
constexpr float kSamplingSheetLeft = 2700;

void place(ui::ControlBase& c, float left, float top, float width, float height) {
    c.Left = left;
    c.Top = top;
    c.Width = width;
    c.Height = height;
}

void hidePanel(ui::PictureBox& panel) {
    panel.Left = -panel.Width;
    panel.Enabled = false;
}

}  // namespace

void placeRunButtons(GraphSurface& s, HostServices& host) {
    place(s.cmdStart, 105, 0, kButtonWidth, kButtonHeight);
    place(s.cmdStop, s.cmdStart.Left + kButtonWidth + kButtonGap, 0, kButtonWidth, kButtonHeight);
    place(s.cmdClear, s.cmdStop.Left + kButtonWidth + kButtonGap, 0, kButtonWidth, kButtonHeight);
    s.cmdStart.Caption = host.text(msg::kStart);
    s.cmdStart.Enabled = false;
    s.cmdStop.Caption = host.text(msg::kStop);
    s.cmdStop.Enabled = false;  // nothing to stop until a run starts
    s.cmdClear.Caption = host.text(msg::kClear);
    s.cmdOptVert.Caption = host.text(msg::kOptimizeVertScale);
    s.lblHighSampItem.Visible = false;
    s.lblHighSampItem.Caption = host.text(msg::kHighSpeedItemNote);
    place(s.lblHighSampItem, s.cmdClear.Left + kButtonWidth + kButtonGap, 0, 0, kButtonHeight);
}

void setUpScaleControls(GraphSurface& s, HostServices& host) {
    s.cboVertScale.Clear();
    s.cboVertScale.Enabled = false;
    s.cboHorzScale.Clear();
    s.cboHorzScale.Enabled = false;
    s.updZero.Enabled = false;
    s.updZero.TabStop = false;
    s.fraVertScale.Caption = host.text(msg::kVerticalAxis);
    s.fraHorzScale.Caption = host.text(msg::kHorizontalAxis);
    s.lblHorzUnit.Caption = host.text(msg::kMsPerDiv);
    s.fraScaleChange.Caption = host.text(msg::kScaleDisplay);
    s.optScale[0].Caption = host.text(msg::kScaleOne);
    s.optScale[1].Caption = host.text(msg::kScaleAll);
    s.optScale[0].Enabled = false;
    s.optScale[1].Enabled = false;
    s.cmdOptVert.Enabled = false;
    s.hsbGraph.Enabled = false;
    s.hsbGraph.Height = 255;
}

void setUpCursorControls(GraphSurface& s, HostServices& host) {
    s.hsbGraph.SmallChange = 1;
    s.hsbGraph.LargeChange = 5;
    s.optScale[1].setValue(true);
    s.chkCursor.Caption = host.text(msg::kCursorDisplay);
    s.chkCursor.Enabled = false;
    s.optCursor[0].Caption = host.text(msg::kVerticalAxis);
    s.optCursor[1].Caption = host.text(msg::kHorizontalAxis);
    s.optCursor[0].setValue(true);
    for (ui::CommandButton* handle : {&s.cmdVertA, &s.cmdVertB, &s.cmdHorzA, &s.cmdHorzB}) {
        handle->Width = 300;
        handle->Height = 300;
        handle->Visible = false;
        handle->Enabled = false;
    }
    s.cmdVertA.Top = kChartTop;
    s.cmdVertB.Top = kChartTop;
}

void buildSheetTabs(GraphSurface& s, HostServices& host) {
    place(s.tabSpread, 0, 300, 2000, 2500);
    s.tabSpread.TabFixedWidth = 1800;
    s.tabSpread.TabFixedHeight = 300;
    s.tabSpread.Tabs.Clear();
    s.tabSpread.Tabs.Add(host.text(msg::kChannelTab));
    s.tabSpread.Tabs.Add(host.text(msg::kTriggerSamplingTab));
    s.tabSpread.select(1);
    showSelectedSheets(s);
}

void buildOperationPanel(GraphSurface& s, HostServices& host, int historyMax) {
    const msg::Message cursorCaptions[] = {msg::kCursorA, msg::kCursorB, msg::kBetweenCursors};
    for (int i = 0; i < 3; ++i) {
        s.lblCursor[i].Caption = host.text(cursorCaptions[i]);
        s.lblCursor[i].Width = 1950;
        s.lblCursor[i].Height = 250;
        s.lblCursorTime[i].Caption = host.text(msg::kNoValue);
        s.lblCursorTime[i].Width = 700;
        s.lblCursorTime[i].Height = 250;
        s.lblms[i].Caption = host.text(msg::kMs);
        s.lblms[i].Width = 400;
        s.lblms[i].Height = 240;
    }
    s.picCursor.Width = 5055;
    s.picCursor.Height = 820;

    s.lblComment.Caption = host.text(msg::kComment);
    s.lblComment.Width = 950;
    s.lblComment.Height = 300;
    s.txtComment.Width = 2100;
    s.txtComment.Height = 340;
    s.txtComment.Enabled = false;
    s.txtComment.BackColor = ui::kColorButtonFace;
    s.lblCurrentGraph.Caption = host.text(msg::kGraphDisplayedNow);
    s.lblOtherGraph.Caption = host.text(msg::kGraphOverwriting);
    s.lblOtherGraph.Visible = true;
    s.lblNew.Caption = host.text(msg::kNew);
    s.lblOld.Caption = host.text(msg::kOld);
    for (int i = 0; i < 2; ++i) {
        s.lblHistoryCount[i].Caption = host.text(msg::kPreviousGraph);
        s.lblHistoryCount[i].Width = 1680;
        s.lblHistoryCount[i].Height = 340;
        s.lblHistory[i].Caption = host.text(msg::kDisplaying);
        s.lblHistory[i].Width = 900;
        s.lblHistory[i].Height = 340;
        s.lblHistValue[i].Caption = host.text(msg::kNoValue);
        s.lblHistValue[i].Width = 400;
        s.lblHistValue[i].Height = 270;
    }
    s.lblHistory[1].Top = 2990;
    s.lblHistoryCount[1].Top = 2950;
    s.lblHistValue[1].Top = 2920;
    for (int i = 0; i < std::min(historyMax, kHistoryButtons); ++i) {
        s.chkOverWrite[i].Visible = true;
        s.chkOverWrite[i].Enabled = false;
        s.optHistory[i].Enabled = false;
    }

    s.tbsGraphOp.Left = 10;
    s.tbsGraphOp.Height = kOperationPanelHeight;
    s.tbsGraphOp.Tabs.Clear();
    s.tbsGraphOp.Tabs.Add(host.text(msg::kScaleTab));
    s.tbsGraphOp.Tabs.Add(host.text(msg::kCursorTab));
    s.tbsGraphOp.Tabs.Add(host.text(msg::kHistoryTab));
    s.picScale.Left = s.tbsGraphOp.Left + 10;
    hidePanel(s.picCursor);
    hidePanel(s.picHistory);

    // Tab order, from 0.
    int order = 0;
    for (ui::ControlBase* c : std::initializer_list<ui::ControlBase*>{
             &s.tabSpread, &s.sprChannel, &s.sprTrigger, &s.sprSampling, &s.cmdStart, &s.cmdStop,
             &s.cmdClear, &s.cmdVertA, &s.cmdVertB, &s.cmdHorzA, &s.cmdHorzB, &s.tbsGraphOp,
             &s.optScale[0], &s.optScale[1], &s.cboVertScale, &s.cmdOptVert, &s.chkCursor,
             &s.optCursor[0], &s.optCursor[1]}) {
        c->TabIndex = order++;
    }
    for (ui::OptionButton& b : s.optHistory)
        b.TabIndex = order++;
    s.txtComment.TabIndex = order++;
    for (ui::CheckBox& b : s.chkOverWrite)
        b.TabIndex = order++;
    s.hsbGraph.TabIndex = order++;
    s.cboHorzScale.TabIndex = order++;
}

void showSelectedPanel(GraphSurface& s) {
    ui::PictureBox* panels[] = {&s.picScale, &s.picCursor, &s.picHistory};
    for (ui::PictureBox* panel : panels)
        hidePanel(*panel);
    const int tab = s.tbsGraphOp.SelectedIndex();
    if (tab < 1 || tab > 3) return;
    ui::PictureBox& shown = *panels[tab - 1];
    shown.Left = s.tbsGraphOp.Left + 10;
    shown.Enabled = true;
    if (tab == 1) s.fraScaleChange.Enabled = true;
}

void showSelectedSheets(GraphSurface& s) {
    const bool channelTab = s.tabSpread.SelectedIndex() == 1;
    ui::SpreadSheet* sheets[] = {&s.sprChannel, &s.sprTrigger, &s.sprSampling};
    for (ui::SpreadSheet* sheet : sheets)
        sheet->SetReDraw(false);
    if (channelTab) {
        s.sprTrigger.Visible = false;
        s.sprSampling.Visible = false;
        s.sprChannel.Left = 0;
        s.sprChannel.Top = kSheetTop;
        s.sprChannel.Visible = true;
    } else {
        s.sprChannel.Visible = false;
        s.sprChannel.Top = -kChannelSheetHeight;
        s.sprTrigger.Left = kTriggerSheetLeft;
        s.sprTrigger.Top = kSheetTop;
        s.sprSampling.Left = kSamplingSheetLeft;
        s.sprSampling.Top = kSheetTop;
        s.sprTrigger.Visible = true;
        s.sprSampling.Visible = true;
    }
    for (ui::SpreadSheet* sheet : sheets)
        sheet->SetReDraw(true);
}

void resizeSurface(GraphSurface& s, float innerWidth, float innerHeight,
                   const HostEnvironment& env) {
    // Channel sheet: the eight channel columns share the width less the label column.
    s.sprChannel.SetReDraw(false);
    const float sheetWidth = std::max(innerWidth - 165, kChannelHeaderWidth);
    const float columnWidth = (sheetWidth - kChannelHeaderWidth) / 8;
    s.sprChannel.SetColWidth(0, kChannelHeaderWidth);
    for (int col = 1; col <= 8; ++col)
        s.sprChannel.SetColWidth(col, columnWidth);
    s.sprChannel.Width = kChannelHeaderWidth + 8 * columnWidth + 120;
    s.sprChannel.Height = kChannelSheetHeight;
    s.sprChannel.SetReDraw(true);

    s.tabSpread.Width = innerWidth;
    s.tbsGraphOp.Height = kOperationPanelHeight;
    s.lblHighSampItem.Width = std::max(0.0f, innerWidth - s.lblHighSampItem.Left);

    // The scroll bar and the operation panel fill the space under the chart.
    const float chartHeight =
        std::max(0.0f, innerHeight - kOperationPanelHeight - s.hsbGraph.Height - kChartTop);
    s.hsbGraph.Top = kChartTop + chartHeight;
    s.hsbGraph.Left = 320.0f * static_cast<float>(env.twipsPerPixelX);
    s.hsbGraph.Width = std::max(0.0f, innerWidth - 20 - s.hsbGraph.Left);
    s.tbsGraphOp.Top = s.hsbGraph.Top + s.hsbGraph.Height;
    s.tbsGraphOp.Width = innerWidth - 20;
}

}  // namespace zt
