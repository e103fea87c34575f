#include "render/chart_renderer.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>
#include <type_traits>

#include "render/chart_painter.h"
#include "render/trace_columns.h"
#include "render/trace_raster.h"

namespace zt::render {

namespace {

using namespace zt::chart;

// Largest picture side drawn, in pixels or points.
constexpr int kMaxSide = 16384;
// Traces whose axis would need more device columns than this are drawn as vector paths.
constexpr int kMaxColumn = 4 * kMaxSide;
// Above this many samples per pixel column a trace is drawn as column spans.
constexpr int kSamplesPerColumn = 3;

// Collects the settings a layer is drawn from, so that a change shows as a different key.
class Key {
  public:
    template <typename T>
    Key& operator<<(const T& v) {
        static_assert(std::is_arithmetic_v<T> || std::is_enum_v<T>);
        bytes_.append(reinterpret_cast<const char*>(&v), sizeof v);
        return *this;
    }
    Key& operator<<(const std::string& s) {
        *this << s.size();
        bytes_ += s;
        return *this;
    }
    Key& operator<<(const Pen& p) { return *this << p.color << p.style << p.width; }
    Key& operator<<(const Area& a) {
        return *this << a.Visible << a.ShowTopBottomLine << a.BorderColor << a.Left << a.Right
                     << a.Top << a.Bottom;
    }
    Key& operator<<(const PictureSize& s) {
        return *this << s.width << s.height << s.scaleX << s.scaleY;
    }
    std::string take() { return std::move(bytes_); }

  private:
    std::string bytes_;
};

std::string backdropKey(const ChartRoot& root, const PictureSize& size) {
    Key k;
    k << size << root.BackColor << root.Width << root.Height;
    for (int i = 0; i < root.Axes.count(); ++i) {
        const Axis& a = root.Axes.at(i);
        k << a.Minimum << a.Maximum << a.Visible << a.Left << a.Length << a.TickCount << a.Kind
          << a.LabelFont.name << a.LabelFont.size << a.LabelFont.bold << a.LabelFont.italic
          << a.LabelColor << a.Title;
    }
    for (int i = 0; i < root.Areas.count(); ++i)
        k << root.Areas.at(i);
    for (int i = 0; i < root.Shapes.count(); ++i) {
        const Shape& s = root.Shapes.at(i);
        k << s.Visible << s.FillColor << s.Size;
    }
    for (int i = 0; i < root.Grids.count(); ++i) {
        const Grid& g = root.Grids.at(i);
        k << g.Visible << g.LineColor1 << g.LineColor2 << g.Divisions << g.Left << g.Right << g.Top
          << g.Bottom;
    }
    return k.take();
}

uint32_t argb(Color c) {
    const auto u = static_cast<uint32_t>(c);
    return 0xFF000000u | ((u & 0xFF) << 16) | (u & 0xFF00) | ((u >> 16) & 0xFF);
}

int devicePixel(double v) {
    return static_cast<int>(std::lround(std::clamp(std::isnan(v) ? 0.0 : v, -1e6, 1e6)));
}

}  // namespace

// An image with a cairo surface over its pixels.
class RenderCanvas {
  public:
    Image image;
    cairo_surface_t* surface = nullptr;

    RenderCanvas(int width, int height) {
        image.width = width;
        image.height = height;
        image.pixels.assign(static_cast<size_t>(width) * static_cast<size_t>(height), 0);
        surface = cairo_image_surface_create_for_data(
            reinterpret_cast<unsigned char*>(image.pixels.data()), CAIRO_FORMAT_ARGB32, width,
            height, width * 4);
    }
    ~RenderCanvas() { cairo_surface_destroy(surface); }
    RenderCanvas(const RenderCanvas&) = delete;
    RenderCanvas& operator=(const RenderCanvas&) = delete;

    bool ok() const { return cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS; }
    PixelView view() { return {image.pixels.data(), image.width, image.height, image.width}; }
};

// One series' trace as last drawn: its pixel columns, and how it is drawn.
class SeriesTrace {
  public:
    enum class Mode { None, Raster, Stroke, Vector };

    explicit SeriesTrace(const Series& s) : series_(s) {}

    // Brings the trace up to date with its series; returns the device columns whose drawing
    // changed.
    ColumnRange update(const Axis* time, const PictureSize& size) {
        const Series& s = series_;
        const ColumnRange all{0, size.width - 1};
        double lo = 0, hi = 0;
        if (!time || !traceDrawable(s) || !traceValueRange(s, lo, hi)) {
            const bool was = mode_ != Mode::None;
            mode_ = Mode::None;
            key_.clear();
            return was ? all : ColumnRange{};
        }
        time_ = time;
        Key k;
        k << size << s.kind() << s.LinePen << s.PointMarkers.Visible << s.PointMarkers.Size
          << s.area() << lo << hi << time->Minimum << time->Maximum << time->Left << time->Length;
        std::string key = k.take();
        ColumnRange changed;
        const bool rebuild = key != key_ || mode_ == Mode::None ||
                             s.rewriteRevision() > revision_ || s.pointCount() < count_;
        if (rebuild) {
            key_ = std::move(key);
            setUp(*time, size, lo, hi);
            changed = all;
        }
        if (rebuild || s.revision() != revision_) {
            ColumnRange grown =
                columns_.extend(s.times(), s.values(), s.pointCount(), s.timesSorted());
            // Wide pens and antialiased lines reach into the neighbouring columns.
            const int reach = style_.penX + 2;
            grown.first -= reach;
            grown.last += reach;
            changed.add(grown);
            revision_ = s.revision();
            count_ = s.pointCount();
            const Mode before = mode_;
            chooseMode(*time);
            // A trace drawn as vector paths has no columns to say where it changed.
            if (mode_ != before || mode_ == Mode::Vector) changed = all;
        }
        return changed;
    }

    void draw(RenderCanvas& canvas, cairo_t* cr, const PictureSize& size, ColumnRange range) const {
        if (mode_ == Mode::None || range.empty()) return;
        if (mode_ == Mode::Raster) {
            cairo_surface_flush(canvas.surface);
            rasterTrace(canvas.view(), columns_, style_, range);
            cairo_surface_mark_dirty_rectangle(canvas.surface, range.first, 0,
                                               range.last - range.first + 1, canvas.image.height);
            return;
        }
        cairo_save(cr);
        cairo_rectangle(cr, range.first, 0, range.last - range.first + 1, canvas.image.height);
        cairo_clip(cr);
        cairo_scale(cr, size.scaleX, size.scaleY);
        if (mode_ == Mode::Vector) {
            paintTrace(cr, series_, *time_, size.scaleX);
        } else {
            clipToTraceArea(cr, series_, *time_);
            // The samples whose lines may cross the range: those inside it and one either side.
            const ColumnGeometry& g = columns_.geometry();
            const auto timeAt = [&](double x) {
                return g.timeFrom + (x - g.xFrom) / (g.xTo - g.xFrom) * (g.timeTo - g.timeFrom);
            };
            const auto& spans = samples_.spans;
            const auto byTime = [](const TraceSpan& span, double t) { return span.time < t; };
            const double from = timeAt(range.first - style_.penX - 2.0);
            const double to = timeAt(range.last + 1 + style_.penX + 2.0);
            size_t first = static_cast<size_t>(
                std::lower_bound(spans.begin(), spans.end(), from, byTime) - spans.begin());
            size_t end = static_cast<size_t>(
                std::lower_bound(spans.begin(), spans.end(), to, byTime) - spans.begin());
            first = first > 0 ? first - 1 : 0;
            end = std::min(end + 1, spans.size());
            strokeSamples(cr, series_, *time_, samples_, series_.kind() == SeriesKind::Pulse,
                          g.columnTo - g.columnFrom, first, end);
        }
        cairo_restore(cr);
    }

  private:
    void setUp(const Axis& time, const PictureSize& size, double lo, double hi) {
        const Series& s = series_;
        const Area& area = s.area();
        ColumnGeometry g;
        g.timeFrom = time.Minimum;
        g.timeTo = time.Maximum;
        g.xFrom = time.Left * size.scaleX;
        g.xTo = (double(time.Left) + time.Length) * size.scaleX;
        const double first = std::floor(g.xFrom);
        const double end = std::ceil(g.xTo);
        geometryOk_ = first >= -kMaxColumn && end <= kMaxColumn && end > first;
        if (geometryOk_) {
            g.columnFrom = static_cast<int>(first);
            g.columnTo = static_cast<int>(end);
        }
        const bool step = s.kind() == SeriesKind::Pulse;
        columns_.reset(g, step);

        const double pen = std::clamp(s.LinePen.width, 1, 20);
        style_ = RasterStyle{};
        style_.valueLow = lo;
        style_.valueHigh = hi;
        style_.yLow = area.Bottom * size.scaleY;
        style_.yHigh = area.Top * size.scaleY;
        if (step) {
            style_.bandTop = devicePixel(std::floor(area.Top * size.scaleY));
            style_.bandBottom = devicePixel(std::ceil(area.Bottom * size.scaleY));
        }
        style_.clipLeft = devicePixel(std::max(area.Left, time.Left) * size.scaleX);
        style_.clipRight = devicePixel(area.Right * size.scaleX);
        style_.clipTop = devicePixel((double(area.Top) - 1) * size.scaleY);
        style_.clipBottom = devicePixel((double(area.Bottom) + 1) * size.scaleY);
        style_.penX = std::max(1, devicePixel(pen * size.scaleX));
        style_.penY = std::max(1, devicePixel(pen * size.scaleY));
        style_.color = argb(s.LinePen.color);
    }

    void chooseMode(const Axis& time) {
        const Series& s = series_;
        if (!geometryOk_) {
            mode_ = Mode::Vector;
            return;
        }
        const long long spanned = columns_.spannedColumns();
        const bool dense = !s.timesSorted() ||
                           columns_.visibleSamples() > kSamplesPerColumn * std::max(spanned, 1LL);
        const bool step = s.kind() == SeriesKind::Pulse;
        if (dense || (step && !s.PointMarkers.Visible)) {
            mode_ = Mode::Raster;
            return;
        }
        // Few samples: an antialiased line through them.
        const ColumnGeometry& g = columns_.geometry();
        TraceWindow window;
        window.timeFrom = time.Minimum;
        window.timeTo = time.Maximum;
        window.columns = g.columnTo - g.columnFrom;
        window.step = step;
        samples_ = reduceTrace(s.times(), s.values(), s.pointCount(), true, window);
        mode_ = samples_.perColumn ? Mode::Raster : Mode::Stroke;
    }

    const Series& series_;
    const Axis* time_ = nullptr;
    std::string key_;
    uint64_t revision_ = 0;
    int count_ = 0;
    bool geometryOk_ = false;
    Mode mode_ = Mode::None;
    ColumnTrace columns_;
    RasterStyle style_;
    ReducedTrace samples_;
};

PictureSize pictureSize(const ChartRoot& root, const RenderOptions& options) {
    const long long chartWidth = static_cast<long long>(root.Width) + 20;
    const long long chartHeight = root.Height;
    if (chartWidth <= 0 || chartHeight <= 0 || chartWidth > kMaxSide || chartHeight > kMaxSide) {
        return {};
    }
    PictureSize size;
    size.width = options.width > 0 ? options.width : static_cast<int>(chartWidth);
    size.height = options.height > 0 ? options.height : static_cast<int>(chartHeight);
    if (size.width > kMaxSide || size.height > kMaxSide) return {};
    size.scaleX = static_cast<double>(size.width) / static_cast<double>(chartWidth);
    size.scaleY = static_cast<double>(size.height) / static_cast<double>(chartHeight);
    return size;
}

ChartRenderer::ChartRenderer(const ChartRoot& root, RenderOptions options)
    : root_(root), options_(options) {}

ChartRenderer::~ChartRenderer() = default;

const Image& ChartRenderer::draw() {
    const PictureSize size = pictureSize(root_, options_);
    if (size.width == 0) {
        size_ = {};
        backdrop_.reset();
        traces_.reset();
        frame_.reset();
        return empty_;
    }
    const ColumnRange all{0, size.width - 1};
    ColumnRange dirty;
    if (!(size == size_) || !frame_) {
        size_ = size;
        backdrop_ = std::make_unique<RenderCanvas>(size.width, size.height);
        traces_ = std::make_unique<RenderCanvas>(size.width, size.height);
        frame_ = std::make_unique<RenderCanvas>(size.width, size.height);
        if (!backdrop_->ok() || !traces_->ok() || !frame_->ok()) {
            backdrop_.reset();
            traces_.reset();
            frame_.reset();
            return empty_;
        }
        backdropKey_.clear();
        series_.clear();
    }

    if (std::string key = backdropKey(root_, size); key != backdropKey_) {
        backdropKey_ = std::move(key);
        cairo_t* cr = cairo_create(backdrop_->surface);
        cairo_scale(cr, size.scaleX, size.scaleY);
        paintBackdrop(cr, root_);
        cairo_destroy(cr);
        cairo_surface_flush(backdrop_->surface);
        dirty = all;
    }

    const std::vector<const Series*> order = drawingOrder(root_);
    if (series_.size() != order.size()) {
        series_.clear();
        for (const Series* s : order)
            series_.push_back(std::make_unique<SeriesTrace>(*s));
    }
    const Axis* time = traceTimeAxis(root_);
    for (auto& trace : series_)
        dirty.add(trace->update(time, size));

    dirty.first = std::max(dirty.first, 0);
    dirty.last = std::min(dirty.last, size.width - 1);
    if (!dirty.empty()) {
        // The backdrop under the changed columns, then every trace over it in drawing order.
        cairo_surface_flush(traces_->surface);
        const size_t width = static_cast<size_t>(dirty.last - dirty.first + 1);
        for (int y = 0; y < size.height; ++y) {
            const size_t at = static_cast<size_t>(y) * static_cast<size_t>(size.width) +
                              static_cast<size_t>(dirty.first);
            std::memcpy(&traces_->image.pixels[at], &backdrop_->image.pixels[at],
                        width * sizeof(uint32_t));
        }
        cairo_surface_mark_dirty(traces_->surface);
        cairo_t* cr = cairo_create(traces_->surface);
        for (const auto& trace : series_)
            trace->draw(*traces_, cr, size, dirty);
        cairo_destroy(cr);
        cairo_surface_flush(traces_->surface);
    }

    // Labels and overlays are few and cheap: drawn afresh over a copy of the traces.
    std::memcpy(frame_->image.pixels.data(), traces_->image.pixels.data(),
                frame_->image.pixels.size() * sizeof(uint32_t));
    cairo_surface_mark_dirty(frame_->surface);
    cairo_t* cr = cairo_create(frame_->surface);
    cairo_scale(cr, size.scaleX, size.scaleY);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
    paintTraceLabels(cr, root_);
    paintOverlays(cr, root_);
    cairo_destroy(cr);
    cairo_surface_flush(frame_->surface);
    return frame_->image;
}

Image renderImageOnce(const ChartRoot& root, const RenderOptions& options) {
    const PictureSize size = pictureSize(root, options);
    if (size.width == 0) return {};
    RenderCanvas canvas(size.width, size.height);
    if (!canvas.ok()) return {};
    cairo_t* cr = cairo_create(canvas.surface);
    cairo_save(cr);
    cairo_scale(cr, size.scaleX, size.scaleY);
    paintBackdrop(cr, root);
    cairo_restore(cr);
    const Axis* time = traceTimeAxis(root);
    const ColumnRange all{0, size.width - 1};
    for (const Series* s : drawingOrder(root)) {
        SeriesTrace trace(*s);
        trace.update(time, size);
        trace.draw(canvas, cr, size, all);
    }
    cairo_scale(cr, size.scaleX, size.scaleY);
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_BUTT);
    paintTraceLabels(cr, root);
    paintOverlays(cr, root);
    const bool ok = cairo_status(cr) == CAIRO_STATUS_SUCCESS;
    cairo_destroy(cr);
    cairo_surface_flush(canvas.surface);
    if (!ok) return {};
    return std::move(canvas.image);
}

}  // namespace zt::render
