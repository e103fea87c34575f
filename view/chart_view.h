// The chart on screen: a widget that shows the chart model as the renderer draws it and hands
// the mouse's presses, moves and releases over it to the chart's mouse events, in the chart's
// own pixels, with the button and the Shift/Ctrl/Alt state.
#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

#include "platform/chart/chart_root.h"
#include "render/chart_renderer.h"

namespace zt::view {

class ChartView : public QWidget {
  public:
    // `act` runs a person's action on the component (see ViewHost::act); mouse positions go to
    // the chart in twips, `twipsX` and `twipsY` per pixel.
    ChartView(chart::ChartRoot& root, std::function<void(const std::function<void()>&)> act,
              int twipsX, int twipsY, QWidget* parent);
    ~ChartView() override;

    // The chart's size in pixels: its width plus room for the last time label, by its height.
    QSize chartSize() const;
    // The picture as it was last put on screen (drawn now if the chart changed since).
    QImage picture();
    // How often the picture was drawn, for measurements.
    int drawCount() const { return draws_; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void forward(chart::MouseEvent& event, QMouseEvent* e, int16_t button);
    const render::Image& drawn();

    chart::ChartRoot& root_;
    std::function<void(const std::function<void()>&)> act_;
    render::ChartRenderer renderer_;
    double twipsX_;
    double twipsY_;
    int draws_ = 0;
};

}  // namespace zt::view
