// Marks the scale and cursor controls add to the picture: each scale column's unit and the
// handles of cursors A and B. Drawn over the chart, after everything else.
#pragma once

#include <cairo.h>

#include "platform/chart/chart_root.h"

namespace zt::render {

// The unit text (the axis title) of each shown vertical scale, inside its column just below
// the top, in black or white, whichever reads better on the column's back colour.
void paintScaleUnits(cairo_t* cr, const chart::ChartRoot& root);

// The 20-pixel handles of the shown cursors, lettered A and B: above the grid, left of time
// cursor A's line and right of B's; at the chart's right edge, above value cursor A's line
// and below B's.
void paintCursorHandles(cairo_t* cr, const chart::ChartRoot& root);

}  // namespace zt::render
