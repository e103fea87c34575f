// The two colour schemes the host switches between: dark (the start-up colours) and light.
#include "config/sheet_rows.h"
#include "control/graph_display.h"
#include "core/channel_colors.h"

namespace zt {

namespace {

struct Scheme {
    int32_t background;
    int32_t grid;
    int32_t borders;      // the strips' top and bottom lines
    int32_t triggerMark;  // the trigger cursor's line
    int32_t text;         // trigger mark label, trigger state text, time axis labels
    int32_t cursors;      // cursor and edge lines
    bool channelColors;   // sheet colour row, scale backs and channel series in channel colours
    int32_t plain;        // ... or in these
    int32_t series;
};

constexpr Scheme kDark{0x000000, 0x404000, 0x004000, 0x008000, 0xFFFFFF, 0xE0E0E0, true, 0, 0};
constexpr Scheme kLight{0xFFFFFF, 0xC0C0C0, 0, 0, 0, 0, false, 0xFFFFFF, 0};

}  // namespace

void GraphDisplay::setGraphColor(int32_t mode) {
    if (!alive() || (mode != 0 && mode != 1)) return;
    const Scheme& k = mode == 0 ? kDark : kLight;
    chart_.root->BackColor = k.background;
    chart_.grid->LineColor1 = k.grid;
    chart_.grid->LineColor2 = k.grid;
    chart_.timeBase->LinePen.color = k.grid;
    for (int c = 1; c <= kChannelCount; ++c)
        chart_.area[static_cast<size_t>(c)]->BorderColor = k.borders;
    chart_.timeBaseArea->BorderColor = k.borders;
    chart_.triggerCursor->LinePen.color = k.triggerMark;
    chart_.timeBase->Label.TextColor = k.text;
    chart_.triggerStateLabel->TextColor = k.text;
    chart_.timeAxis->LabelColor = k.text;
    for (chart::Cursor* cursor : {chart_.cursorA, chart_.cursorB})
        cursor->LinePen.color = k.cursors;
    for (chart::Line* line :
         {chart_.valueCursorA, chart_.valueCursorB, chart_.edgeLineA, chart_.edgeLineB})
        line->LinePen.color = k.cursors;

    ui::SpreadSheet& sheet = s_.sprChannel;
    sheet.SetReDraw(false);
    for (int c = 1; c <= kChannelCount; ++c) {
        const auto ch = static_cast<size_t>(c);
        const int32_t own = kDefaultChannelColor[ch];
        sheet.setBackColor(c, kRowColor, k.channelColors ? own : k.plain);
        chart_.scaleBack[ch]->FillColor = k.channelColors ? own : k.plain;
        chart::Series& series = chart_.series(c, 0);
        series.LinePen.color = k.channelColors ? own : k.series;
        series.Label.TextColor = k.channelColors ? own : k.series;
    }
    sheet.SetReDraw(true);
    chart_.root->Redraw();
}

}  // namespace zt
