// Drawing of the chart model as a person sees it: to a PNG, SVG or PDF file, or to pixels in
// memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/chart/chart_root.h"

namespace zt::render {

enum class Format { Png, Svg, Pdf };

struct RenderOptions {
    // Size of the picture in pixels (points for SVG and PDF); 0 takes the chart's own size,
    // the root's Width + 20 by its Height. Another size scales the whole chart.
    int width = 0;
    int height = 0;
};

struct RenderStatus {
    bool ok = true;
    std::string error;
    explicit operator bool() const { return ok; }
};

// Pixels as 0xAARRGGBB, row after row.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;
    uint32_t at(int x, int y) const;
};

// Writes the chart to `path`. Failures (a path that cannot be written, a chart of no size)
// are reported in the status, never thrown.
RenderStatus renderChart(const chart::ChartRoot& root, const RenderOptions& options,
                         std::string_view path, Format format);

// Draws the chart into memory; an empty image when the chart has no size. For drawing the same
// chart again and again, a ChartRenderer (render/chart_renderer.h) redraws only what changed.
Image renderChartImage(const chart::ChartRoot& root, const RenderOptions& options);

// Writes a picture as PNG, compressed for speed rather than size.
RenderStatus writePng(const Image& image, std::string_view path);

}  // namespace zt::render
