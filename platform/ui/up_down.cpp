#include "platform/ui/up_down.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "platform/ui/control_error.h"

namespace zt::ui {

void UpDown::pullIntoRange() {
    int lo = std::min(min_, max_);
    int hi = std::max(min_, max_);
    if (value_ >= lo && value_ <= hi) return;
    value_ = std::clamp(value_, lo, hi);
    notify(ControlProperty::Value);
    Change.raise();
}

void UpDown::setMin(int min) {
    min_ = min;
    pullIntoRange();
}

void UpDown::setMax(int max) {
    max_ = max;
    pullIntoRange();
}

void UpDown::setValue(int value) {
    if (value < std::min(min_, max_) || value > std::max(min_, max_)) {
        throwInvalidPropertyValue();
    }
    if (value == value_) return;
    value_ = value;
    notify(ControlProperty::Value);
    Change.raise();
}

void UpDown::move(bool towardMax) {
    int64_t step = std::llabs(static_cast<int64_t>(Increment));
    int64_t target = towardMax ? max_ : min_;
    int64_t other = towardMax ? min_ : max_;
    int64_t dir = target >= other ? 1 : -1;
    int64_t next = value_ + dir * step;
    bool past = dir > 0 ? next > target : next < target;
    if (past) next = Wrap ? other : target;
    if (next == value_) return;
    value_ = static_cast<int>(next);
    notify(ControlProperty::Value);
    Change.raise();
}

bool UpDown::clickUp() {
    if (!usable()) return false;
    move(true);
    UpClick.raise();
    return true;
}

bool UpDown::clickDown() {
    if (!usable()) return false;
    move(false);
    DownClick.raise();
    return true;
}

}  // namespace zt::ui
