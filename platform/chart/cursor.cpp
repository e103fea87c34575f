#include "platform/chart/cursor.h"

#include <cmath>
#include <limits>

#include "platform/chart/axis.h"
#include "platform/chart/series.h"

namespace zt::chart {

void Cursor::setPosition(double time) {
    placed_ = time;
    byIndex_ = false;
}

void Cursor::setPointIndex(int index) {
    placedIndex_ = index;
    byIndex_ = true;
}

void Cursor::setPixelX(double x) {
    setPosition(timeAxis_.fromPixel(x, timeAxis_.Left, timeAxis_.Length));
}

int Cursor::pointIndex() const {
    if (!snap_) return -1;
    if (byIndex_) return snap_->timeAt(placedIndex_) ? placedIndex_ : -1;
    return snap_->nearestPoint(placed_);
}

double Cursor::position() const {
    if (!snap_) return byIndex_ ? std::numeric_limits<double>::quiet_NaN() : placed_;
    return snap_->timeAt(pointIndex()).value_or(std::numeric_limits<double>::quiet_NaN());
}

int32_t Cursor::pixelX() const {
    const double t = position();
    if (!std::isfinite(t) || t < timeAxis_.Minimum || t > timeAxis_.Maximum) return kOffGraph;
    const double x = timeAxis_.toPixel(t, timeAxis_.Left, timeAxis_.Length);
    if (!std::isfinite(x) || std::fabs(x) > 1e9) return kOffGraph;
    return static_cast<int32_t>(std::lround(x));
}

}  // namespace zt::chart
