// The chart's geometry on a resize: its extent in pixels, the grid, the handles, the trigger
// state label, the edge lines, the strips of the scale display shown, then the cursors.
#include <algorithm>
#include <cmath>

#include "control/graph_display.h"
#include "graph/chart_setup.h"
#include "graph/surface_layout.h"
#include "platform/chart/chart_design.h"

namespace zt {

namespace {

constexpr int32_t kGridTop = 20;
constexpr int32_t kGridBottomGap = 30;
constexpr float kChartLeftGap = 20;

int32_t pixels(double twips, int twipsPerPixel) {
    const double px = twips / (twipsPerPixel > 0 ? twipsPerPixel : 15);
    return static_cast<int32_t>(std::clamp(std::floor(px), 0.0, 1e6));
}

}  // namespace

void GraphDisplay::layoutChart(float innerWidth, float innerHeight) {
    if (!alive()) return;
    const int tppX = env_.twipsPerPixelX > 0 ? env_.twipsPerPixelX : 15;
    const int tppY = env_.twipsPerPixelY > 0 ? env_.twipsPerPixelY : 15;
    chartWidth_ = std::max(0.0f, innerWidth - kChartLeftGap);
    chartHeight_ =
        std::max(0.0f, innerHeight - kOperationPanelHeight - s_.hsbGraph.Height - kChartTop);

    chart::ChartRoot& root = *chart_.root;
    root.Width = std::max(0, pixels(chartWidth_, tppX) - 20);
    root.Height = pixels(chartHeight_, tppY);
    chart::Grid& grid = *chart_.grid;
    grid.Top = kGridTop;
    grid.Bottom = std::max(kGridTop + 1, root.Height - kGridBottomGap);
    grid.Right = root.Width;

    const float handleLeft = chartWidth_ - static_cast<float>(20 * tppX);
    s_.cmdHorzA.Left = handleLeft;
    s_.cmdHorzB.Left = handleLeft;

    setScaleMargin(chart_, state_.graphInfo.intChNumber);
    chart_.triggerStateLabel->X = chart_.timeAxis->Length / 2;
    chart_.triggerStateLabel->Y = grid.Bottom / 2;

    const int32_t margin = grid.Left;
    for (int c = 1; c <= kChannelCount; ++c) {
        chart::Area& area = *chart_.area[static_cast<size_t>(c)];
        area.Visible = true;
        area.Left = margin;
        area.Right = root.Width;
        if (isAnalogChannel(c)) {
            area.Top = kGridTop;
            area.Bottom = grid.Bottom;
        }
    }
    chart_.timeBaseArea->Left = margin;
    chart_.timeBaseArea->Right = root.Width;
    chart_.timeBaseArea->Top = kGridTop;
    chart_.timeBaseArea->Bottom = grid.Bottom;
    for (chart::Line* line : {chart_.valueCursorA, chart_.valueCursorB}) {
        line->X1 = margin;
        line->X2 = root.Width;
    }
    // The digital bands follow their zero positions on the new grid.
    redrawVertScales();
    configureScrollBar();
    refreshCursors();
}

}  // namespace zt
