// Paints the chart model onto a cairo context whose user space is the chart's pixels.
#pragma once

#include <cairo.h>

#include <cstddef>
#include <vector>

#include "platform/chart/chart_root.h"
#include "render/trace_columns.h"

namespace zt::render {

// `deviceScale` is device pixels per chart pixel horizontally; it sets how many pixel columns
// a trace is reduced to. Everything is drawn as vector paths.
void paintChart(cairo_t* cr, const chart::ChartRoot& root, double deviceScale);

// The parts of a picture, for drawing them separately. In order: the backdrop (background,
// scale columns, grid, area borders, time labels), the traces in drawing order, their labels,
// the overlays (lines, cursors, free texts).
void paintBackdrop(cairo_t* cr, const chart::ChartRoot& root);
void paintTraceLabels(cairo_t* cr, const chart::ChartRoot& root);
void paintOverlays(cairo_t* cr, const chart::ChartRoot& root);

// Series in drawing order: the time base, the overlay graphs, then the displayed graphs.
std::vector<const chart::Series*> drawingOrder(const chart::ChartRoot& root);
// The time axis traces are drawn against; nullptr when it has no usable range.
const chart::Axis* traceTimeAxis(const chart::ChartRoot& root);
// True when the series has something to draw.
bool traceDrawable(const chart::Series& s);
// The value range a series is drawn against; false when it cannot be drawn.
bool traceValueRange(const chart::Series& s, double& lo, double& hi);

// One trace as vector paths: pixel columns as filled bars, or the samples as a line.
void paintTrace(cairo_t* cr, const chart::Series& s, const chart::Axis& time, double deviceScale);
// Limits drawing to where a series' trace may appear.
void clipToTraceArea(cairo_t* cr, const chart::Series& s, const chart::Axis& time);
// Strokes spans `from` … `to` - 1 of a trace that was not reduced to columns as an antialiased
// line (held values for an on/off train when `step`), with its point markers.
void strokeSamples(cairo_t* cr, const chart::Series& s, const chart::Axis& time,
                   const ReducedTrace& reduced, bool step, int columns, size_t from, size_t to);

}  // namespace zt::render
