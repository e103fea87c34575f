// Paints the chart model onto a cairo context whose user space is the chart's pixels.
#pragma once

#include <cairo.h>

#include "platform/chart/chart_root.h"

namespace zt::render {

// `deviceScale` is device pixels per chart pixel horizontally; it sets how many pixel columns
// a trace is reduced to.
void paintChart(cairo_t* cr, const chart::ChartRoot& root, double deviceScale);

}  // namespace zt::render
