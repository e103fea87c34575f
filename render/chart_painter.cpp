#include "render/chart_painter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "platform/chart/chart_design.h"
#include "render/display_marks.h"
#include "render/trace_columns.h"

namespace zt::render {

namespace {

using namespace zt::chart;

// Coordinates beyond this many pixels outside the picture are pulled in before reaching
// cairo, whose fixed-point coordinates cannot hold arbitrary doubles.
constexpr double kFar = 1e5;
constexpr double kSeriesLabelPx = 12;
constexpr size_t kSpansPerStroke = 8;

double clampCoord(double v) {
    return std::isnan(v) ? -kFar : std::clamp(v, -kFar, kFar);
}

// Cairo takes UTF-8 only; any other byte (texts of the host are ANSI) is shown as '?'.
std::string validUtf8(const std::string& text) {
    std::string out;
    out.reserve(text.size());
    size_t i = 0;
    while (i < text.size()) {
        const auto c = static_cast<unsigned char>(text[i]);
        const size_t len = c < 0x80           ? 1
                           : (c >> 5) == 0x6  ? 2
                           : (c >> 4) == 0xE  ? 3
                           : (c >> 3) == 0x1E ? 4
                                              : 0;
        bool ok = len > 0 && i + len <= text.size() && c != 0xC0 && c != 0xC1 && c < 0xF5;
        for (size_t k = 1; ok && k < len; ++k) {
            ok = (static_cast<unsigned char>(text[i + k]) & 0xC0) == 0x80;
        }
        if (ok && c != 0) {
            out.append(text, i, len);
            i += len;
        } else {
            out += '?';
            ++i;
        }
    }
    return out;
}

void setColor(cairo_t* cr, Color c) {
    const auto u = static_cast<uint32_t>(c);
    cairo_set_source_rgb(cr, (u & 0xFF) / 255.0, ((u >> 8) & 0xFF) / 255.0,
                         ((u >> 16) & 0xFF) / 255.0);
}

// Black or white, whichever reads better on `back`.
Color contrastOn(Color back) {
    const auto u = static_cast<uint32_t>(back);
    const double luma = 0.299 * (u & 0xFF) + 0.587 * ((u >> 8) & 0xFF) + 0.114 * ((u >> 16) & 0xFF);
    return luma > 128 ? 0x000000 : 0xFFFFFF;
}

void selectFont(cairo_t* cr, const std::string& face, double px) {
    cairo_select_font_face(cr, face.empty() ? "sans-serif" : face.c_str(), CAIRO_FONT_SLANT_NORMAL,
                           CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, std::clamp(px, 1.0, 200.0));
}

double pointsToPixels(float points) {
    return std::isfinite(points) ? points * 4.0 / 3.0 : 12.0;
}

enum class Align { Left, Centre, Right };

// Draws `text` with its vertical middle at `y`.
void drawText(cairo_t* cr, const std::string& raw, double x, double y, Align align) {
    if (raw.empty()) return;
    const std::string text = validUtf8(raw);
    cairo_text_extents_t ext;
    cairo_text_extents(cr, text.c_str(), &ext);
    double left = x;
    if (align == Align::Centre) left = x - ext.x_advance / 2;
    if (align == Align::Right) left = x - ext.x_advance;
    cairo_move_to(cr, clampCoord(left), clampCoord(y - (ext.y_bearing + ext.height / 2)));
    cairo_show_text(cr, text.c_str());
}

std::string number(double v) {
    if (std::fabs(v) < 1e-12) v = 0;
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.6g", v);
    return buf;
}

void strokeLine(cairo_t* cr, double x1, double y1, double x2, double y2) {
    cairo_move_to(cr, clampCoord(x1), clampCoord(y1));
    cairo_line_to(cr, clampCoord(x2), clampCoord(y2));
    cairo_stroke(cr);
}

void clipTo(cairo_t* cr, double left, double top, double right, double bottom) {
    left = clampCoord(left);
    top = clampCoord(top);
    cairo_rectangle(cr, left, top, std::max(clampCoord(right) - left, 0.0),
                    std::max(clampCoord(bottom) - top, 0.0));
    cairo_clip(cr);
}

const Shape* backOf(const ChartRoot& root, const Axis& axis) {
    for (int i = 0; i < root.Shapes.count(); ++i) {
        if (&root.Shapes.at(i).axis() == &axis) return &root.Shapes.at(i);
    }
    return nullptr;
}

void paintScaleColumn(cairo_t* cr, const ChartRoot& root, const Axis& axis) {
    const Area* area = axis.area();
    if (!axis.Visible || !area) return;
    const double top = area->Top;
    const double bottom = area->Bottom;
    Color textColor = axis.LabelColor;
    if (const Shape* back = backOf(root, axis); back && back->Visible) {
        setColor(cr, back->FillColor);
        cairo_rectangle(cr, clampCoord(axis.Left), clampCoord(top),
                        std::min<double>(std::max(back->Size, 0), kFar), clampCoord(bottom - top));
        cairo_fill(cr);
        textColor = contrastOn(back->FillColor);
    }
    if (!(axis.Maximum > axis.Minimum)) return;
    const int ticks = axis.Kind == AxisKind::TwoLevel ? 2 : std::clamp(axis.TickCount, 2, 101);
    setColor(cr, textColor);
    selectFont(cr, axis.LabelFont.name, pointsToPixels(axis.LabelFont.size));
    const double fontPx = pointsToPixels(axis.LabelFont.size);
    for (int i = 0; i < ticks; ++i) {
        const double value = axis.Minimum + (axis.Maximum - axis.Minimum) * i / (ticks - 1);
        double y = bottom - (bottom - top) * i / (ticks - 1);
        // Keep the end labels inside the column.
        y = std::clamp(y, top + fontPx / 2, std::max(bottom - fontPx / 2, top + fontPx / 2));
        drawText(cr, number(value), double(axis.Left) + axis.Length - 4, y, Align::Right);
        cairo_move_to(cr, double(axis.Left) + axis.Length - 3,
                      bottom - (bottom - top) * i / (ticks - 1) + 0.5);
        cairo_rel_line_to(cr, 3, 0);
        cairo_set_line_width(cr, 1);
        cairo_stroke(cr);
    }
}

void paintGrid(cairo_t* cr, const Grid& grid) {
    if (!grid.Visible) return;
    const int divisions = std::clamp(grid.Divisions, 1, 100);
    const double w = double(grid.Right) - grid.Left;
    const double h = double(grid.Bottom) - grid.Top;
    cairo_set_line_width(cr, 1);
    setColor(cr, grid.LineColor1);
    for (int i = 1; i < divisions; ++i) {
        const double x = std::round(grid.Left + w * i / divisions) + 0.5;
        const double y = std::round(grid.Top + h * i / divisions) + 0.5;
        strokeLine(cr, x, grid.Top, x, grid.Bottom);
        strokeLine(cr, grid.Left, y, grid.Right, y);
    }
    setColor(cr, grid.LineColor2);
    cairo_rectangle(cr, clampCoord(grid.Left + 0.5), clampCoord(grid.Top + 0.5),
                    clampCoord(std::max(w - 1, 0.0)), clampCoord(std::max(h - 1, 0.0)));
    cairo_stroke(cr);
}

void paintAreaBorders(cairo_t* cr, const ChartRoot& root) {
    cairo_set_line_width(cr, 1);
    for (int i = 0; i < root.Areas.count(); ++i) {
        const Area& a = root.Areas.at(i);
        if (!a.Visible || !a.ShowTopBottomLine) continue;
        setColor(cr, a.BorderColor);
        strokeLine(cr, a.Left, a.Top + 0.5, a.Right, a.Top + 0.5);
        strokeLine(cr, a.Left, a.Bottom - 0.5, a.Right, a.Bottom - 0.5);
    }
}

void paintTimeAxis(cairo_t* cr, const Axis& axis, const Grid& grid) {
    if (!axis.Visible || !(axis.Maximum > axis.Minimum)) return;
    const int ticks = std::clamp(axis.TickCount, 2, 101);
    const double fontPx = pointsToPixels(axis.LabelFont.size);
    const double y = double(grid.Bottom) + 4 + fontPx / 2;
    setColor(cr, axis.LabelColor);
    selectFont(cr, axis.LabelFont.name, fontPx);
    for (int i = 0; i < ticks; ++i) {
        const double value = axis.Minimum + (axis.Maximum - axis.Minimum) * i / (ticks - 1);
        drawText(cr, number(value), axis.Left + double(axis.Length) * i / (ticks - 1), y,
                 Align::Centre);
    }
    drawText(cr, axis.Title, double(axis.Left) - 8 - fontPx, y, Align::Right);
}

// Maps values and times of one series to chart pixels.
struct Mapping {
    const Axis& time;
    double valueMin;
    double valueMax;
    double top;
    double bottom;

    double x(double t) const {
        return clampCoord(time.Left +
                          (t - time.Minimum) / (time.Maximum - time.Minimum) * time.Length);
    }
    double y(double v) const {
        return clampCoord(bottom - (v - valueMin) / (valueMax - valueMin) * (bottom - top));
    }
};

}  // namespace

// The value range a series is drawn against; false when it cannot be drawn.
bool traceValueRange(const Series& s, double& lo, double& hi) {
    lo = s.axis().Minimum;
    hi = s.axis().Maximum;
    if (std::isfinite(lo) && std::isfinite(hi) && hi > lo) return true;
    if (s.kind() == SeriesKind::Pulse) {
        // An on/off train whose axis has no range yet still fills its band.
        lo = 0;
        hi = 1;
        return true;
    }
    return false;
}

bool traceDrawable(const Series& s) {
    return s.Visible && s.LinePen.style != PenStyle::Null && s.pointCount() > 0 && s.area().Visible;
}

void strokeSamples(cairo_t* cr, const Series& s, const Axis& time, const ReducedTrace& reduced,
                   bool step, int columns, size_t from, size_t to) {
    const std::vector<TraceSpan>& spans = reduced.spans;
    to = std::min(to, spans.size());
    // Paths are cut every kSpansPerStroke spans counted from the first, so that a part drawn
    // alone matches the same part of the whole.
    from -= from % kSpansPerStroke;
    double lo = 0, hi = 0;
    if (from >= to || !traceDrawable(s) || !traceValueRange(s, lo, hi)) return;
    const Area& area = s.area();
    const Mapping m{time, lo, hi, double(area.Top), double(area.Bottom)};
    setColor(cr, s.LinePen.color);
    cairo_set_line_width(cr, std::clamp(s.LinePen.width, 1, 20));
    cairo_set_line_join(cr, CAIRO_LINE_JOIN_BEVEL);
    double lastY = 0;
    for (size_t i = from; i < to; ++i) {
        const double x = m.x(spans[i].time);
        const double y = m.y(spans[i].first);
        if (i == from) {
            cairo_move_to(cr, x, y);
        } else {
            if (step) cairo_line_to(cr, x, lastY);
            cairo_line_to(cr, x, y);
            // Short paths rasterise much faster than one path over the whole width.
            if ((i - from) % kSpansPerStroke == 0) {
                cairo_stroke(cr);
                cairo_move_to(cr, x, y);
            }
        }
        lastY = y;
    }
    cairo_stroke(cr);

    if (s.PointMarkers.Visible && static_cast<int>(spans.size()) <= columns / 4) {
        const double size = std::clamp(s.PointMarkers.Size, 1, 40) / 2.0;
        for (size_t i = from; i < to; ++i) {
            cairo_rectangle(cr, m.x(spans[i].time) - size / 2, m.y(spans[i].first) - size / 2, size,
                            size);
        }
        cairo_fill(cr);
    }
}

void clipToTraceArea(cairo_t* cr, const Series& s, const Axis& time) {
    const Area& area = s.area();
    clipTo(cr, std::max(area.Left, time.Left), double(area.Top) - 1, area.Right,
           double(area.Bottom) + 1);
}

void paintTrace(cairo_t* cr, const Series& s, const Axis& time, double deviceScale) {
    double lo = 0, hi = 0;
    if (!traceDrawable(s) || !traceValueRange(s, lo, hi)) return;
    const Area& area = s.area();
    const Mapping m{time, lo, hi, double(area.Top), double(area.Bottom)};
    TraceWindow window;
    window.timeFrom = time.Minimum;
    window.timeTo = time.Maximum;
    window.columns = static_cast<int>(std::ceil(std::clamp(time.Length * deviceScale, 0.0, 1e5)));
    window.step = s.kind() == SeriesKind::Pulse;
    const ReducedTrace reduced =
        reduceTrace(s.times(), s.values(), s.pointCount(), s.timesSorted(), window);
    const std::vector<TraceSpan>& spans = reduced.spans;
    if (spans.empty()) return;

    cairo_save(cr);
    clipToTraceArea(cr, s, time);
    if (reduced.perColumn) {
        setColor(cr, s.LinePen.color);
        const double penWidth = std::clamp(s.LinePen.width, 1, 20);
        // One filled bar per pixel column from its lowest to its highest value, stretched to
        // meet the previous column's last value: the trace as a person sees it, at a cost of
        // one rectangle per column.
        const double columnWidth = penWidth / deviceScale;
        double lastY = m.y(spans.front().first);
        for (const TraceSpan& span : spans) {
            const double x = m.x(span.time);
            const double top = std::min(m.y(span.high), lastY) - penWidth / 2;
            const double bottom = std::max(m.y(span.low), lastY) + penWidth / 2;
            cairo_rectangle(cr, x - columnWidth / 2, top, columnWidth, bottom - top);
            lastY = m.y(span.last);
        }
        cairo_fill(cr);
    } else {
        strokeSamples(cr, s, time, reduced, window.step, window.columns, 0, spans.size());
    }
    cairo_restore(cr);
}

namespace {

void applyPen(cairo_t* cr, const Pen& pen) {
    setColor(cr, pen.color);
    cairo_set_line_width(cr, std::clamp(pen.width, 1, 20));
}

void paintSeriesLabels(cairo_t* cr, const Series& s, const Axis& time, const Grid& grid) {
    double lo = 0, hi = 0;
    if (!s.Visible || s.pointCount() == 0 || s.Label.Text.empty() || !traceValueRange(s, lo, hi)) {
        return;
    }
    const auto on = s.labelSwitches().onIndices();
    if (on.empty()) return;
    const Area& area = s.area();
    const Mapping m{time, lo, hi, double(area.Top), double(area.Bottom)};
    cairo_save(cr);
    clipTo(cr, time.Left, grid.Top, double(time.Left) + time.Length + 20, grid.Bottom);
    setColor(cr, s.Label.TextColor);
    selectFont(cr, "sans-serif", kSeriesLabelPx);
    for (int32_t index : on) {
        const auto t = s.timeAt(index);
        const auto v = s.valueAt(index);
        if (!t || !v || !std::isfinite(*v) || *t < time.Minimum || *t > time.Maximum) continue;
        const double yOffset =
            (kSeriesLabelPx / 2 + 2) * (s.Label.Placement == LabelPlacement::Above ? -1 : 1);
        drawText(cr, s.Label.Text, m.x(*t) + 2, m.y(*v) + yOffset, Align::Left);
    }
    cairo_restore(cr);
}

}  // namespace

void paintOverlays(cairo_t* cr, const ChartRoot& root) {
    for (int i = 0; i < root.Lines.count(); ++i) {
        const Line& l = root.Lines.at(i);
        if (!l.Visible || l.LinePen.style == PenStyle::Null) continue;
        applyPen(cr, l.LinePen);
        const double dx = l.X1 == l.X2 ? 0.5 : 0;
        const double dy = l.Y1 == l.Y2 ? 0.5 : 0;
        strokeLine(cr, l.X1 + dx, l.Y1 + dy, l.X2 + dx, l.Y2 + dy);
    }
    for (int i = 0; i < root.Cursors.count(); ++i) {
        const Cursor& c = root.Cursors.at(i);
        if (!c.Visible || c.LinePen.style == PenStyle::Null) continue;
        const int32_t x = c.pixelX();
        if (x == Cursor::kOffGraph) continue;
        applyPen(cr, c.LinePen);
        strokeLine(cr, x + 0.5, c.grid().Top, x + 0.5, c.grid().Bottom);
    }
    for (int i = 0; i < root.Labels.count(); ++i) {
        const Label& l = root.Labels.at(i);
        if (!l.Visible) continue;
        setColor(cr, l.TextColor);
        selectFont(cr, "sans-serif", pointsToPixels(l.FontSize));
        drawText(cr, l.Text, l.X, l.Y, Align::Centre);
    }
    // The scale columns' unit texts and the cursor handles: over the traces in every picture.
    paintScaleUnits(cr, root);
    paintCursorHandles(cr, root);
}

// Series in drawing order: the time base, the overlay graphs, then the displayed graphs.
std::vector<const Series*> drawingOrder(const ChartRoot& root) {
    std::vector<const Series*> order;
    auto addIf = [&](const Collection<Series>& from, std::string_view name) {
        if (from.contains(name)) order.push_back(&from[name]);
    };
    addIf(root.PlotDataCollection, design::kTimeBaseSeries);
    for (int pass = 1; pass >= 0; --pass) {
        for (int i = 0; i < 4; ++i) {
            addIf(root.PlotDataCollection,
                  design::kPlotSeriesNames[static_cast<size_t>(pass * 4 + i)]);
            addIf(root.PulseDataCollection,
                  design::kPulseSeriesNames[static_cast<size_t>(pass * 4 + i)]);
        }
    }
    return order;
}

const Axis* traceTimeAxis(const ChartRoot& root) {
    if (!root.Axes.contains(design::kTimeAxis)) return nullptr;
    const Axis& time = root.Axes[design::kTimeAxis];
    if (!(time.Maximum > time.Minimum) || !std::isfinite(time.Maximum) ||
        !std::isfinite(time.Minimum)) {
        return nullptr;
    }
    return &time;
}

void paintBackdrop(cairo_t* cr, const ChartRoot& root) {
    setColor(cr, root.BackColor);
    cairo_paint(cr);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
    const Grid* grid = root.Grids.contains(design::kGrid) ? &root.Grids[design::kGrid] : nullptr;
    const Axis* time =
        root.Axes.contains(design::kTimeAxis) ? &root.Axes[design::kTimeAxis] : nullptr;
    for (int i = 0; i < root.Axes.count(); ++i) {
        if (!root.Axes.at(i).horizontal()) paintScaleColumn(cr, root, root.Axes.at(i));
    }
    if (grid) paintGrid(cr, *grid);
    paintAreaBorders(cr, root);
    if (time && grid) paintTimeAxis(cr, *time, *grid);
}

void paintTraceLabels(cairo_t* cr, const ChartRoot& root) {
    const Axis* time = traceTimeAxis(root);
    if (!time || !root.Grids.contains(design::kGrid)) return;
    const Grid& grid = root.Grids[design::kGrid];
    for (const Series* s : drawingOrder(root))
        paintSeriesLabels(cr, *s, *time, grid);
}

void paintChart(cairo_t* cr, const ChartRoot& root, double deviceScale) {
    if (!(deviceScale > 0) || !std::isfinite(deviceScale)) deviceScale = 1;
    paintBackdrop(cr, root);
    if (const Axis* time = traceTimeAxis(root)) {
        for (const Series* s : drawingOrder(root))
            paintTrace(cr, *s, *time, deviceScale);
    }
    paintTraceLabels(cr, root);
    paintOverlays(cr, root);
}

}  // namespace zt::render
