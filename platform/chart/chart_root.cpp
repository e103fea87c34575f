// The chart's design: every object with its place and start appearance.
#include "platform/chart/chart_root.h"

#include <memory>

#include "platform/chart/chart_design.h"

namespace zt::chart {

namespace {

using namespace design;

constexpr int kGridBottom = kStartHeight - kGridBottomGap;

// A digital band half a division tall whose lower edge is the zero line at `zero` divisions
// from the bottom.
void placeBand(Area& area, int zero) {
    const double height = kGridBottom - kGridTop;
    area.Top = kGridTop + static_cast<int>(height * (2 * (10 - zero) - 1) / 20);
    area.Bottom = kGridTop + static_cast<int>(height * (2 * (10 - zero)) / 20);
}

Area& addArea(Collection<Area>& areas, std::string_view name) {
    Area& area = areas.add(std::make_unique<Area>(std::string(name)));
    area.Left = kMarginAllScales;
    area.Right = kStartWidth;
    area.Top = kGridTop;
    area.Bottom = kGridBottom;
    return area;
}

}  // namespace

ChartRoot::ChartRoot() {
    BackColor = kBackground;
    Width = kStartWidth;
    Height = kStartHeight;

    Grid& grid = Grids.add(std::make_unique<Grid>(std::string(kGrid)));
    grid.LineColor1 = kGridColor;
    grid.LineColor2 = kGridColor;
    grid.Left = kMarginAllScales;
    grid.Right = kStartWidth;
    grid.Top = kGridTop;
    grid.Bottom = kGridBottom;

    Area* channelAreas[8];
    for (int c = 0; c < 8; ++c) {
        Area& area = addArea(Areas, kChannelAreas[static_cast<size_t>(c)]);
        area.ShowTopBottomLine = c >= 4;
        if (c >= 4) placeBand(area, 8 - 2 * (c - 4));
        channelAreas[c] = &area;
    }
    Area& timeBaseArea = addArea(Areas, kTimeBaseArea);

    Axis* channelAxes[8];
    for (int c = 0; c < 8; ++c) {
        Axis& axis = Axes.add(std::make_unique<Axis>(
            std::string(kChannelAxes[static_cast<size_t>(c)]), channelAreas[c], false));
        axis.Visible = false;
        axis.Left = (c % 4) * kScaleColumnWidth;
        axis.Length = kScaleColumnWidth;
        if (c >= 4) {
            axis.Kind = AxisKind::TwoLevel;
            axis.TickCount = 2;
            axis.Maximum = 1;
        }
        channelAxes[c] = &axis;
    }
    // The time-base series' values (-125) lie on the bottom of the grid.
    Axis& timeBaseAxis =
        Axes.add(std::make_unique<Axis>(std::string(kTimeBaseAxis), &timeBaseArea, false));
    timeBaseAxis.Visible = false;
    timeBaseAxis.Minimum = -125;
    timeBaseAxis.Maximum = 125;
    Axis& timeAxis = Axes.add(std::make_unique<Axis>(std::string(kTimeAxis), nullptr, true));
    timeAxis.Left = kMarginAllScales;
    timeAxis.Length = kStartWidth - kMarginAllScales;
    timeAxis.Title = "ms";

    for (int s = 0; s < 8; ++s) {
        const int channel = s % 4;
        Series& plot = PlotDataCollection.add(std::make_unique<Series>(
            std::string(kPlotSeriesNames[static_cast<size_t>(s)]), SeriesKind::Plot,
            *channelAreas[channel], *channelAxes[channel]));
        Series& pulse = PulseDataCollection.add(std::make_unique<Series>(
            std::string(kPulseSeriesNames[static_cast<size_t>(s)]), SeriesKind::Pulse,
            *channelAreas[channel + 4], *channelAxes[channel + 4]));
        const bool overlay = s >= 4;
        plot.LinePen.color = overlay ? kOverlayColor : kChannelColors[static_cast<size_t>(channel)];
        plot.Label.TextColor = plot.LinePen.color;
        pulse.LinePen.color =
            overlay ? kOverlayColor : kChannelColors[static_cast<size_t>(channel + 4)];
        pulse.Label.TextColor = pulse.LinePen.color;
    }
    Series& timeBase = PlotDataCollection.add(std::make_unique<Series>(
        std::string(kTimeBaseSeries), SeriesKind::Plot, timeBaseArea, timeBaseAxis));
    for (Collection<Series>* series : {&PlotDataCollection, &PulseDataCollection}) {
        for (int i = 0; i < series->count(); ++i)
            series->at(i).reportChangesTo(&Changes);
    }
    timeBase.LinePen.color = kGridColor;
    timeBase.Label.TextColor = kTextColor;

    for (int c = 0; c < 8; ++c) {
        Shape& back = Shapes.add(std::make_unique<Shape>(
            std::string(kScaleBacks[static_cast<size_t>(c)]), *channelAxes[c]));
        back.FillColor = kChannelColors[static_cast<size_t>(c)];
        back.Size = kScaleColumnWidth;
    }

    for (std::string_view name : {kCursorA, kCursorB, kTriggerCursor}) {
        Cursor& cursor = Cursors.add(std::make_unique<Cursor>(std::string(name), timeAxis, grid));
        cursor.setSnapSeries(&timeBase);
        cursor.LinePen.color = name == kTriggerCursor ? kTriggerColor : kCursorColor;
    }

    for (std::string_view name : {kValueCursorA, kValueCursorB, kEdgeLineB, kEdgeLineA}) {
        Line& line = Lines.add(std::make_unique<Line>(std::string(name)));
        line.LinePen.color = kCursorColor;
        const bool horizontal = name == kValueCursorA || name == kValueCursorB;
        line.X1 = kMarginAllScales;
        line.X2 = horizontal ? kStartWidth : kMarginAllScales;
        line.Y1 = horizontal ? (name == kValueCursorA ? kGridTop : kGridBottom) : kGridTop;
        line.Y2 = horizontal ? line.Y1 : kGridBottom;
    }

    Label& state = Labels.add(std::make_unique<Label>(std::string(kTriggerStateLabel)));
    state.FontSize = 20;
    state.TextColor = kTextColor;
    state.X = timeAxis.Length / 2;
    state.Y = kGridBottom / 2;
}

}  // namespace zt::chart
