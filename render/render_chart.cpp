#include "render/render_chart.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <cairo.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "render/chart_painter.h"
#include "render/chart_renderer.h"
#include "render/png_writer.h"

namespace zt::render {

namespace {

struct SurfaceDeleter {
    void operator()(cairo_surface_t* s) const { cairo_surface_destroy(s); }
};
struct ContextDeleter {
    void operator()(cairo_t* c) const { cairo_destroy(c); }
};
using SurfacePtr = std::unique_ptr<cairo_surface_t, SurfaceDeleter>;
using ContextPtr = std::unique_ptr<cairo_t, ContextDeleter>;

RenderStatus failure(std::string what) {
    return RenderStatus{false, std::move(what)};
}

std::string describe(cairo_status_t status) {
    return cairo_status_to_string(status);
}

RenderStatus paintOn(cairo_surface_t* surface, const chart::ChartRoot& root,
                     const PictureSize& size) {
    ContextPtr cr(cairo_create(surface));
    cairo_scale(cr.get(), size.scaleX, size.scaleY);
    paintChart(cr.get(), root, size.scaleX);
    if (cairo_status(cr.get()) != CAIRO_STATUS_SUCCESS) {
        return failure("drawing failed: " + describe(cairo_status(cr.get())));
    }
    return {};
}

}  // namespace

RenderStatus writePng(const Image& image, std::string_view path) {
    if (path.empty()) return failure("no file name");
    const std::string bytes =
        encodePng(image.pixels.data(), image.width, image.height, image.width);
    if (bytes.empty()) return failure("the picture has no size");
    if (!writeFile(path, bytes)) return failure(std::string(path) + ": cannot be written");
    return {};
}

uint32_t Image::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) return 0;
    return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
}

Image renderChartImage(const chart::ChartRoot& root, const RenderOptions& options) {
    return renderImageOnce(root, options);
}

RenderStatus renderChart(const chart::ChartRoot& root, const RenderOptions& options,
                         std::string_view path, Format format) {
    const PictureSize size = pictureSize(root, options);
    if (size.width == 0) return failure("the chart has no drawable size");
    if (path.empty()) return failure("no file name");
    const std::string file(path);
    if (format == Format::Png) {
        const Image image = renderImageOnce(root, options);
        if (image.width == 0) return failure("drawing failed");
        return writePng(image, path);
    }

    SurfacePtr surface;
    switch (format) {
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

    cairo_surface_finish(surface.get());
    const cairo_status_t status = cairo_surface_status(surface.get());
    if (status != CAIRO_STATUS_SUCCESS) return failure(file + ": " + describe(status));
    return {};
}

}  // namespace zt::render
