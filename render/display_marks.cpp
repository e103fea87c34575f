#include "render/display_marks.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "platform/chart/chart_design.h"

namespace zt::render {

namespace {

using namespace zt::chart;

constexpr double kHandle = 20;
constexpr double kUnitPx = 11;

void useColor(cairo_t* cr, Color c) {
    const auto u = static_cast<uint32_t>(c);
    cairo_set_source_rgb(cr, (u & 0xFF) / 255.0, ((u >> 8) & 0xFF) / 255.0,
                         ((u >> 16) & 0xFF) / 255.0);
}

Color readableOn(Color back) {
    const auto u = static_cast<uint32_t>(back);
    const double luma = 0.299 * (u & 0xFF) + 0.587 * ((u >> 8) & 0xFF) + 0.114 * ((u >> 16) & 0xFF);
    return luma > 128 ? 0x000000 : 0xFFFFFF;
}

bool printable(const std::string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) >= 0x20 && static_cast<unsigned char>(c) < 0x7F;
    });
}

void centredText(cairo_t* cr, const std::string& text, double x, double y) {
    cairo_text_extents_t ext;
    cairo_text_extents(cr, text.c_str(), &ext);
    cairo_move_to(cr, x - ext.x_advance / 2, y - (ext.y_bearing + ext.height / 2));
    cairo_show_text(cr, text.c_str());
}

void handle(cairo_t* cr, double left, double top, Color color, const char* letter) {
    if (!std::isfinite(left) || !std::isfinite(top) || std::fabs(left) > 1e5 ||
        std::fabs(top) > 1e5)
        return;
    useColor(cr, color);
    cairo_rectangle(cr, left, top, kHandle, kHandle);
    cairo_fill(cr);
    useColor(cr, readableOn(color));
    cairo_select_font_face(cr, "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    cairo_set_font_size(cr, 13);
    centredText(cr, letter, left + kHandle / 2, top + kHandle / 2);
}

}  // namespace

void paintScaleUnits(cairo_t* cr, const ChartRoot& root) {
    cairo_save(cr);
    cairo_select_font_face(cr, "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    cairo_set_font_size(cr, kUnitPx);
    for (int i = 0; i < root.Axes.count(); ++i) {
        const Axis& axis = root.Axes.at(i);
        if (axis.horizontal() || !axis.Visible || !axis.area() || !printable(axis.Title)) continue;
        Color back = root.BackColor;
        for (int k = 0; k < root.Shapes.count(); ++k)
            if (&root.Shapes.at(k).axis() == &axis && root.Shapes.at(k).Visible)
                back = root.Shapes.at(k).FillColor;
        const double top = axis.area()->Top;
        const double bottom = axis.area()->Bottom;
        // Half a division below the top, where no tick label stands.
        const double y = top + (bottom - top) / 20;
        useColor(cr, readableOn(back));
        cairo_text_extents_t ext;
        cairo_text_extents(cr, axis.Title.c_str(), &ext);
        cairo_move_to(cr, axis.Left + 4, y - (ext.y_bearing + ext.height / 2));
        cairo_show_text(cr, axis.Title.c_str());
    }
    cairo_restore(cr);
}

void paintCursorHandles(cairo_t* cr, const ChartRoot& root) {
    cairo_save(cr);
    for (std::string_view name : {design::kCursorA, design::kCursorB}) {
        if (!root.Cursors.contains(name)) continue;
        const Cursor& c = root.Cursors[name];
        if (!c.Visible) continue;
        const int32_t x = c.pixelX();
        if (x == Cursor::kOffGraph) continue;
        const bool a = name == design::kCursorA;
        handle(cr, a ? x - kHandle : x + 1.0, c.grid().Top - kHandle, c.LinePen.color,
               a ? "A" : "B");
    }
    for (std::string_view name : {design::kValueCursorA, design::kValueCursorB}) {
        if (!root.Lines.contains(name)) continue;
        const Line& l = root.Lines[name];
        if (!l.Visible) continue;
        const bool a = name == design::kValueCursorA;
        handle(cr, root.Width - kHandle, a ? l.Y1 - kHandle : l.Y1 + 1.0, l.LinePen.color,
               a ? "A" : "B");
    }
    cairo_restore(cr);
}

}  // namespace zt::render
