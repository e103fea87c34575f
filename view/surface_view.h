// The component's pane: a widget for every control on the component's surface and the chart,
// placed as the surface places them (twips turned into pixels), with the operation panel's
// pages inside the operation tab strip. Its size is the control's: a resize of the pane goes
// to the control through WidthU and HeightU, and the pane never shrinks below the control's
// minimum.
#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "control/graph_control.h"
#include "view/chart_view.h"
#include "view/control_views.h"

namespace zt::view {

class SurfaceView : public QWidget, public ViewHost {
  public:
    SurfaceView(ztGraphControl& control, QWidget* parent = nullptr);
    ~SurfaceView() override;

    ztGraphControl& control() const { return control_; }
    ChartView* chart() const { return chart_; }
    // The widget of a control, nullptr when there is none.
    QWidget* widgetOf(std::string_view name, int index = -1) const;

    QRect placeOf(const ui::ControlBase& control) const override;
    void act(const std::function<void()>& action) override;
    void scheduleFlush() override;

    // Called after every action, with the component idle again (the host uses it to start
    // delivering replies once a run has started).
    std::function<void()> afterAction;
    // A failure the component let through to the host (an automation error).
    std::function<void(const std::string&)> onError;

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    // Shows what the last action changed: held-back sheet cells, the chart's place and the
    // pointer shape.
    void catchUp();
    QWidget* parentFor(const ui::ControlBase& control) const;
    void placePanels();

    ztGraphControl& control_;
    std::vector<std::unique_ptr<ControlView>> views_;
    ChartView* chart_ = nullptr;
    QWidget* operationStrip_ = nullptr;
    int depth_ = 0;
    bool flushQueued_ = false;
};

}  // namespace zt::view
