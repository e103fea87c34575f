// The chart object root: the chart's extent and background, its named collections of objects
// and its mouse events. Constructing it builds the whole design with its start appearance;
// objects are never added or removed afterwards, so references to them stay valid.
#pragma once

#include <cstdint>

#include "platform/chart/area.h"
#include "platform/chart/axis.h"
#include "platform/chart/chart_types.h"
#include "platform/chart/collection.h"
#include "platform/chart/cursor.h"
#include "platform/chart/grid.h"
#include "platform/chart/line.h"
#include "platform/chart/series.h"
#include "platform/chart/shape.h"
#include "platform/chart/text_label.h"
#include "platform/ui/event.h"

namespace zt::chart {

// Mouse event on the chart: button (1 left, 2 right, 4 middle), shift state (1 Shift, 2 Ctrl,
// 4 Alt), x and y in pixels from the chart's top-left corner.
using MouseEvent = ui::Event<int16_t, int16_t, float, float>;

class ChartRoot {
  public:
    ChartRoot();
    ChartRoot(const ChartRoot&) = delete;
    ChartRoot& operator=(const ChartRoot&) = delete;

    // Background colour.
    Color BackColor = 0;
    // Extent in pixels. The plot runs up to x = Width; the picture is Width + 20 wide so that
    // the last time label fits.
    int32_t Width = 1000;
    int32_t Height = 480;

    Collection<Area> Areas{"Areas"};
    Collection<Series> PlotDataCollection{"PlotDataCollection"};
    Collection<Series> PulseDataCollection{"PulseDataCollection"};
    Collection<Axis> Axes{"Axes"};
    Collection<Shape> Shapes{"Shapes"};
    Collection<Cursor> Cursors{"Cursors"};
    Collection<Grid> Grids{"Grids"};
    Collection<Line> Lines{"Lines"};
    Collection<Label> Labels{"Labels"};

    MouseEvent MouseDown;
    MouseEvent MouseMove;
    MouseEvent MouseUp;

    // Told when the chart asks to be drawn again and when a series' points change.
    ChangeSink Changes;

    // Asks for the chart to be drawn again. The model is drawn on demand, so this counts and
    // tells the listener of Changes.
    void Redraw() {
        ++redraws_;
        Changes.changed();
    }
    int redrawCount() const { return redraws_; }

  private:
    int redraws_ = 0;
};

}  // namespace zt::chart
