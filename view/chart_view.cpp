#include "view/chart_view.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace zt::view {

namespace {

QImage wrap(const render::Image& image) {
    if (image.width <= 0 || image.height <= 0) return {};
    // 0xAARRGGBB words are exactly Qt's 32-bit ARGB pixels.
    return QImage(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height,
                  image.width * 4, QImage::Format_ARGB32);
}

int16_t buttonsOf(Qt::MouseButtons buttons) {
    int16_t b = 0;
    if (buttons & Qt::LeftButton) b |= 1;
    if (buttons & Qt::RightButton) b |= 2;
    if (buttons & Qt::MiddleButton) b |= 4;
    return b;
}

int16_t shiftOf(Qt::KeyboardModifiers modifiers) {
    int16_t s = 0;
    if (modifiers & Qt::ShiftModifier) s |= 1;
    if (modifiers & Qt::ControlModifier) s |= 2;
    if (modifiers & Qt::AltModifier) s |= 4;
    return s;
}

}  // namespace

ChartView::ChartView(chart::ChartRoot& root, std::function<void(const std::function<void()>&)> act,
                     int twipsX, int twipsY, QWidget* parent)
    : QWidget(parent),
      root_(root),
      act_(std::move(act)),
      renderer_(root),
      twipsX_(twipsX > 0 ? twipsX : 15),
      twipsY_(twipsY > 0 ? twipsY : 15) {
    setObjectName("CBGraph1");
    setAttribute(Qt::WA_OpaquePaintEvent);
    root_.Changes.listen([this] { update(); });
}

ChartView::~ChartView() {
    root_.Changes.listen(nullptr);
}

QSize ChartView::chartSize() const {
    return {std::max(0, root_.Width + 20), std::max(0, root_.Height)};
}

const render::Image& ChartView::drawn() {
    ++draws_;
    return renderer_.draw();
}

QImage ChartView::picture() {
    return wrap(drawn()).copy();
}

void ChartView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QImage image = wrap(drawn());
    if (image.isNull()) {
        p.fillRect(rect(), palette().color(QPalette::Window));
        return;
    }
    p.drawImage(QRect(0, 0, width(), height()), image);
}

void ChartView::forward(chart::MouseEvent& event, QMouseEvent* e, int16_t button) {
    // The widget has the chart's size; a scaled widget would map back to chart pixels. The
    // chart reports the mouse in twips.
    const QSize size = chartSize();
    const double sx = width() > 0 ? static_cast<double>(size.width()) / width() : 1;
    const double sy = height() > 0 ? static_cast<double>(size.height()) / height() : 1;
    const auto x = static_cast<float>(e->position().x() * sx * twipsX_);
    const auto y = static_cast<float>(e->position().y() * sy * twipsY_);
    const int16_t shift = shiftOf(e->modifiers());
    act_([&] { event.raise(button, shift, x, y); });
}

void ChartView::mousePressEvent(QMouseEvent* e) {
    forward(root_.MouseDown, e, buttonsOf(e->button()));
}

void ChartView::mouseMoveEvent(QMouseEvent* e) {
    forward(root_.MouseMove, e, buttonsOf(e->buttons()));
}

void ChartView::mouseReleaseEvent(QMouseEvent* e) {
    forward(root_.MouseUp, e, buttonsOf(e->button()));
}

}  // namespace zt::view
