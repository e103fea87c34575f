// Drawing of a chart at screen speed. A renderer stays with one chart and keeps what it drew:
// the backdrop (scales, grid, time labels), the traces over it, and per series the reduction of
// its samples to pixel columns. Each draw() brings the picture up to date with the chart and
// draws again only what changed: new samples at a trace's end cost only their columns, a moved
// cursor only the copy of the traces under it.
#pragma once

#include <cairo.h>

#include <memory>
#include <vector>

#include "platform/chart/chart_root.h"
#include "render/render_chart.h"

namespace zt::render {

class RenderCanvas;
class SeriesTrace;

// The picture's size and its scale from chart pixels.
struct PictureSize {
    int width = 0;
    int height = 0;
    double scaleX = 1;
    double scaleY = 1;
    bool operator==(const PictureSize&) const = default;
};

// The size `options` ask for; a zero size when the chart cannot be drawn at it.
PictureSize pictureSize(const chart::ChartRoot& root, const RenderOptions& options);

class ChartRenderer {
  public:
    // The chart must outlive the renderer.
    explicit ChartRenderer(const chart::ChartRoot& root, RenderOptions options = {});
    ~ChartRenderer();
    ChartRenderer(const ChartRenderer&) = delete;
    ChartRenderer& operator=(const ChartRenderer&) = delete;

    // The chart as it stands now; an empty image when it has no size. The image stays valid
    // until the next draw().
    const Image& draw();

  private:
    const chart::ChartRoot& root_;
    RenderOptions options_;
    PictureSize size_;
    std::unique_ptr<RenderCanvas> backdrop_;
    std::unique_ptr<RenderCanvas> traces_;
    std::unique_ptr<RenderCanvas> frame_;
    std::string backdropKey_;
    std::vector<std::unique_ptr<SeriesTrace>> series_;
    Image empty_;
};

// The whole chart drawn once into a new image, without keeping anything.
Image renderImageOnce(const chart::ChartRoot& root, const RenderOptions& options);

}  // namespace zt::render
