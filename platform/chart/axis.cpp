#include "platform/chart/axis.h"

#include <cmath>
#include <limits>

namespace zt::chart {

namespace {
bool hasExtent(double minimum, double maximum) {
    return std::isfinite(minimum) && std::isfinite(maximum) && maximum > minimum;
}
}  // namespace

double Axis::toPixel(double value, double start, double length) const {
    if (!hasExtent(Minimum, Maximum)) return std::numeric_limits<double>::quiet_NaN();
    return start + (value - Minimum) / (Maximum - Minimum) * length;
}

double Axis::fromPixel(double pixel, double start, double length) const {
    if (!hasExtent(Minimum, Maximum) || length == 0) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return Minimum + (pixel - start) / length * (Maximum - Minimum);
}

}  // namespace zt::chart
