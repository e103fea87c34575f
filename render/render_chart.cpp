#include "render/render_chart.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <cairo.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "render/chart_painter.h"

namespace zt::render {

namespace {

// Largest picture side drawn, in pixels or points.
constexpr int kMaxSide = 16384;

struct SurfaceDeleter {
    void operator()(cairo_surface_t* s) const { cairo_surface_destroy(s); }
};
struct ContextDeleter {
    void operator()(cairo_t* c) const { cairo_destroy(c); }
};
using SurfacePtr = std::unique_ptr<cairo_surface_t, SurfaceDeleter>;
using ContextPtr = std::unique_ptr<cairo_t, ContextDeleter>;

struct Size {
    int width = 0;
    int height = 0;
    double scaleX = 1;
    double scaleY = 1;
};

// The picture's size and its scale from chart pixels; a zero size when there is nothing to
// draw.
Size pictureSize(const chart::ChartRoot& root, const RenderOptions& options) {
    const long long chartWidth = static_cast<long long>(root.Width) + 20;
    const long long chartHeight = root.Height;
    if (chartWidth <= 0 || chartHeight <= 0 || chartWidth > kMaxSide || chartHeight > kMaxSide) {
        return {};
    }
    Size size;
    size.width = options.width > 0 ? options.width : static_cast<int>(chartWidth);
    size.height = options.height > 0 ? options.height : static_cast<int>(chartHeight);
    if (size.width > kMaxSide || size.height > kMaxSide) return {};
    size.scaleX = static_cast<double>(size.width) / static_cast<double>(chartWidth);
    size.scaleY = static_cast<double>(size.height) / static_cast<double>(chartHeight);
    return size;
}

RenderStatus failure(std::string what) {
    return RenderStatus{false, std::move(what)};
}

std::string describe(cairo_status_t status) {
    return cairo_status_to_string(status);
}

RenderStatus paintOn(cairo_surface_t* surface, const chart::ChartRoot& root, const Size& size) {
    ContextPtr cr(cairo_create(surface));
    cairo_scale(cr.get(), size.scaleX, size.scaleY);
    paintChart(cr.get(), root, size.scaleX);
    if (cairo_status(cr.get()) != CAIRO_STATUS_SUCCESS) {
        return failure("drawing failed: " + describe(cairo_status(cr.get())));
    }
    return {};
}

}  // namespace

uint32_t Image::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) return 0;
    return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
}

Image renderChartImage(const chart::ChartRoot& root, const RenderOptions& options) {
    const Size size = pictureSize(root, options);
    if (size.width == 0) return {};
    SurfacePtr surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return {};
    if (!paintOn(surface.get(), root, size)) return {};
    cairo_surface_flush(surface.get());
    Image image;
    image.width = size.width;
    image.height = size.height;
    image.pixels.resize(static_cast<size_t>(size.width) * static_cast<size_t>(size.height));
    const unsigned char* data = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    for (int y = 0; y < size.height; ++y) {
        std::memcpy(&image.pixels[static_cast<size_t>(y) * static_cast<size_t>(size.width)],
                    data + static_cast<ptrdiff_t>(y) * stride,
                    static_cast<size_t>(size.width) * sizeof(uint32_t));
    }
    return image;
}

RenderStatus renderChart(const chart::ChartRoot& root, const RenderOptions& options,
                         std::string_view path, Format format) {
    const Size size = pictureSize(root, options);
    if (size.width == 0) return failure("the chart has no drawable size");
    if (path.empty()) return failure("no file name");
    const std::string file(path);

    SurfacePtr surface;
    switch (format) {
        case Format::Png:
            surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height));
            break;
        case Format::Svg:
            surface.reset(cairo_svg_surface_create(file.c_str(), size.width, size.height));
            break;
        case Format::Pdf:
            surface.reset(cairo_pdf_surface_create(file.c_str(), size.width, size.height));
            break;
        default:
            return failure("unknown format");
    }
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
        return failure(file + ": " + describe(cairo_surface_status(surface.get())));
    }
    if (RenderStatus painted = paintOn(surface.get(), root, size); !painted) return painted;

    cairo_status_t status = CAIRO_STATUS_SUCCESS;
    if (format == Format::Png) {
        status = cairo_surface_write_to_png(surface.get(), file.c_str());
    } else {
        cairo_surface_finish(surface.get());
        status = cairo_surface_status(surface.get());
    }
    if (status != CAIRO_STATUS_SUCCESS) return failure(file + ": " + describe(status));
    return {};
}

}  // namespace zt::render
