#include "view/surface_view.h"

#include <QResizeEvent>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <exception>

#include "core/graph_state.h"
#include "view/panel_design.h"
#include "view/view_units.h"

namespace zt::view {

namespace {

// The chart's top on the surface, twips (its left edge is the surface's).
constexpr float kChartTopTwips = 3250;

bool isPanel(const ui::ControlBase& c) {
    return dynamic_cast<const ui::PictureBox*>(&c) != nullptr;
}

bool isBackdrop(const ui::ControlBase& c) {
    return dynamic_cast<const ui::Frame*>(&c) != nullptr ||
           dynamic_cast<const ui::TabStrip*>(&c) != nullptr || isPanel(c);
}

// The width (or height) of all of a sheet's columns (rows) with the header and the border.
float sheetExtent(const ui::SpreadSheet& sheet, bool across) {
    float sum = 420;
    const int n = across ? sheet.MaxCols() : sheet.MaxRows();
    for (int i = 0; i <= n; ++i)
        sum += across ? sheet.ColWidth(i) : sheet.RowHeight(i);
    return sum;
}

}  // namespace

SurfaceView::SurfaceView(ztGraphControl& control, QWidget* parent)
    : QWidget(parent), control_(control) {
    setObjectName("ztGraphControl");
    setAutoFillBackground(true);
    GraphSurface& s = control_.surface();
    const std::vector<ui::ControlBase*>& all = s.registry.controls();

    // Back to front: tab strips, the chart, panels and frames, then everything else, so that
    // a control lies over the strip, panel or frame it sits on, and the cursor handles over
    // the chart.
    const auto build = [&](ui::ControlBase* c) {
        auto view = makeControlView(*c, parentFor(*c), *this);
        if (view) views_.push_back(std::move(view));
    };
    for (ui::ControlBase* c : all) {
        if (dynamic_cast<ui::TabStrip*>(c)) build(c);
    }
    operationStrip_ = widgetOf("tbsGraphOp");
    chart_ = new ChartView(
        control_.chartRoot(), [this](const auto& a) { act(a); },
        control_.environment().twipsPerPixelX, control_.environment().twipsPerPixelY, this);
    for (ui::ControlBase* c : all) {
        if (isPanel(*c)) build(c);
    }
    for (ui::ControlBase* c : all) {
        if (isBackdrop(*c) && !isPanel(*c) && !dynamic_cast<ui::TabStrip*>(c)) build(c);
    }
    for (ui::ControlBase* c : all) {
        if (!isBackdrop(*c)) build(c);
    }
    for (auto& v : views_)
        v->showAll();
    for (auto& v : views_)
        v->flush();
    catchUp();
}

SurfaceView::~SurfaceView() {
    views_.clear();  // the views stop observing before their widgets go
}

QWidget* SurfaceView::widgetOf(std::string_view name, int index) const {
    for (const auto& v : views_) {
        if (v->model().Name() == name && v->model().Index() == index) return v->widget();
    }
    if (name == "CBGraph1") return chart_;
    return nullptr;
}

QWidget* SurfaceView::parentFor(const ui::ControlBase& c) const {
    if (isPanel(c) && operationStrip_) return operationStrip_;
    if (auto place = designPlace(c.Name(), c.Index())) {
        if (QWidget* panel = widgetOf(place->panel)) return panel;
    }
    return const_cast<SurfaceView*>(this);
}

QRect SurfaceView::placeOf(const ui::ControlBase& c) const {
    if (isPanel(c) && operationStrip_) {
        // A page fills the strip below its tabs; its Left (relative to the strip) moves it
        // out of sight when it is not the selected one.
        const float stripLeft = control_.surface().tbsGraphOp.Left;
        const int tabs = operationStrip_->findChild<QTabBar*>()
                             ? operationStrip_->findChild<QTabBar*>()->sizeHint().height()
                             : 24;
        const int w = std::max(0, operationStrip_->width() - 8);
        const int h = std::max(0, operationStrip_->height() - tabs - 6);
        // A page moved to minus its own width (0 for a page the component never sized) is out
        // of sight.
        const bool shown = c.Left + c.Width > 0;
        const int x = toPixels(c.Left - stripLeft) + 3;
        return {shown ? x : -w - 10, tabs + 2, w, h};
    }
    if (auto place = designPlace(c.Name(), c.Index())) {
        const DesignRect& r = place->rect;
        return {toPixels(r.left), toPixels(r.top), toPixels(r.width), toPixels(r.height)};
    }
    int w = toPixels(c.Width);
    int h = toPixels(c.Height);
    if (const auto* sheet = dynamic_cast<const ui::SpreadSheet*>(&c)) {
        // A sheet the component never sized shows all its cells.
        if (w == 0) w = toPixels(sheetExtent(*sheet, true));
        if (h == 0) h = toPixels(sheetExtent(*sheet, false));
    }
    return {toPixels(c.Left), toPixels(c.Top), w, h};
}

void SurfaceView::placePanels() {
    GraphSurface& s = control_.surface();
    for (ui::PictureBox* panel : {&s.picScale, &s.picCursor, &s.picHistory}) {
        if (QWidget* w = widgetOf(panel->Name())) w->setGeometry(placeOf(*panel));
    }
}

void SurfaceView::act(const std::function<void()>& action) {
    ++depth_;
    try {
        action();
    } catch (const std::exception& e) {
        if (onError) onError(e.what());
    }
    --depth_;
    if (depth_ > 0) return;  // an action run inside another (a message box's event loop)
    catchUp();
    if (afterAction) afterAction();
}

void SurfaceView::scheduleFlush() {
    if (flushQueued_ || depth_ > 0) return;
    // A change outside any action (none is expected): shown once the event loop runs.
    flushQueued_ = true;
    QTimer::singleShot(0, this, [this] {
        flushQueued_ = false;
        catchUp();
    });
}

void SurfaceView::catchUp() {
    for (auto& v : views_)
        v->flush();
    placePanels();
    const QRect chartPlace(0, toPixels(kChartTopTwips), chart_->chartSize().width(),
                           chart_->chartSize().height());
    if (chart_->geometry() != chartPlace) chart_->setGeometry(chartPlace);
    chart_->update();
    switch (control_.surface().registry.mousePointer) {
        case ui::MousePointer::SizeWE:
            chart_->setCursor(Qt::SizeHorCursor);
            break;
        case ui::MousePointer::SizeNS:
            chart_->setCursor(Qt::SizeVerCursor);
            break;
        case ui::MousePointer::Hourglass:
            chart_->setCursor(Qt::WaitCursor);
            break;
        default:
            chart_->unsetCursor();
            break;
    }
}

QSize SurfaceView::minimumSizeHint() const {
    return {toPixels(kMinControlSize), toPixels(kMinControlSize)};
}

QSize SurfaceView::sizeHint() const {
    return {toPixels(control_.WidthU()), toPixels(control_.HeightU())};
}

void SurfaceView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    act([this, event] {
        control_.WidthU(toTwips(event->size().width()));
        control_.HeightU(toTwips(event->size().height()));
    });
}

}  // namespace zt::view
