#include "graph/chart_setup.h"

#include "core/channel_colors.h"
#include "platform/chart/chart_design.h"

namespace zt {

namespace d = chart::design;

void configureChart(const ChartRefs& r, ChannelSettings& chSetting,
                    const std::optional<Font>& axisFont) {
    r.timeBase->Visible = true;
    r.root->BackColor = d::kBackground;
    r.root->Width = d::kStartWidth;

    r.grid->LineColor1 = d::kGridColor;
    r.grid->LineColor2 = d::kGridColor;
    r.grid->Visible = true;
    r.grid->Left = d::kMarginAllScales;

    r.timeBase->LinePen.color = d::kGridColor;
    r.timeBase->LinePen.width = 1;
    r.timeBaseArea->Left = d::kMarginAllScales;

    for (int s = 1; s <= 8; ++s) {
        for (chart::Series* series : {r.plotData[s], r.pulseData[s]}) {
            series->Visible = true;
            series->PointMarkers.Visible = false;
            series->PointMarkers.Size = 8;
        }
    }
    for (int c = 1; c <= 8; ++c) {
        r.area[c]->ShowTopBottomLine = true;
        r.area[c]->Left = d::kMarginAllScales;
        chart::Axis& axis = *r.vertAxis[c];
        const bool analog = c <= 4;
        axis.Kind = analog ? chart::AxisKind::Value : chart::AxisKind::TwoLevel;
        if (!analog) axis.TickCount = 2;
        r.scaleBack[c]->Size = d::kScaleColumnWidth;
    }

    r.vertAxis[9]->Visible = false;
    r.timeAxis->Visible = true;
    r.timeAxis->TickCount = 11;
    r.timeAxis->Minimum = 0;
    r.timeAxis->Maximum = 0;

    // Cursors and edge lines hidden; the trigger mark is placed at 0 and hidden until a graph
    // with a valid trigger is drawn.
    for (chart::Cursor* cursor : {r.cursorA, r.cursorB}) {
        cursor->Visible = false;
        cursor->LinePen.color = d::kCursorColor;
    }
    for (chart::Line* line : {r.valueCursorA, r.valueCursorB, r.edgeLineA, r.edgeLineB}) {
        line->Visible = false;
        line->LinePen.color = d::kCursorColor;
    }
    r.triggerCursor->Visible = true;
    r.triggerCursor->setPosition(0);
    r.triggerCursor->Visible = false;
    placeEdgeLines(r);

    r.triggerStateLabel->Visible = false;
    r.triggerStateLabel->FontSize = 20;
    r.triggerStateLabel->TextColor = d::kTextColor;

    for (int c = 1; c <= 8; ++c)
        chSetting[static_cast<size_t>(c)].lngGraphColor =
            kDefaultChannelColor[static_cast<size_t>(c)];

    if (axisFont) setAxisFont(r, *axisFont);
}

void setAxisFont(const ChartRefs& r, const Font& font) {
    for (int c = 1; c <= 8; ++c) {
        r.vertAxis[c]->LabelFont.name = font.name;
        r.vertAxis[c]->LabelFont.size = font.size;
    }
    r.timeAxis->LabelFont.name = font.name;
    r.timeAxis->LabelFont.size = font.size;
}

void setScaleMargin(const ChartRefs& r, int16_t intChNumber) {
    const int32_t margin = intChNumber != 0 ? d::kMarginOneScale : d::kMarginAllScales;
    for (int c = 1; c <= 8; ++c)
        r.area[c]->Left = margin;
    r.timeBaseArea->Left = margin;
    r.grid->Left = margin;
    r.timeAxis->Left = margin;
    r.timeAxis->Length = r.root->Width - margin;
    placeEdgeLines(r);
}

void resetVerticalAxes(const ChartRefs& r) {
    for (int c = 1; c <= 8; ++c) {
        r.vertAxis[c]->Minimum = 0;
        r.vertAxis[c]->Maximum = 0;
        r.vertAxis[c]->Visible = false;
        r.scaleBack[c]->FillColor = kDefaultChannelColor[static_cast<size_t>(c)];
    }
}

void placeEdgeLines(const ChartRefs& r) {
    for (chart::Line* line : {r.edgeLineA, r.edgeLineB}) {
        line->X1 = r.grid->Left;
        line->X2 = r.grid->Left;
        line->Y1 = r.grid->Top;
        line->Y2 = r.grid->Bottom;
    }
}

}  // namespace zt
