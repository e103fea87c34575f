#include "platform/ui/scroll_bar.h"

#include <algorithm>
#include <cstdint>

#include "platform/ui/control_error.h"

namespace zt::ui {
namespace {

void checkInt16(int v) {
    if (v < INT16_MIN || v > INT16_MAX) throwInvalidPropertyValue();
}

}  // namespace

bool HScrollBar::inRange(int64_t v) const {
    return v >= std::min(min_, max_) && v <= std::max(min_, max_);
}

int HScrollBar::clampToRange(int64_t v) const {
    return static_cast<int>(std::clamp<int64_t>(v, std::min(min_, max_), std::max(min_, max_)));
}

void HScrollBar::pullIntoRange() {
    if (inRange(value_)) return;
    value_ = clampToRange(value_);
    notify(ControlProperty::Value);
    Change.raise();
}

void HScrollBar::setMin(int min) {
    checkInt16(min);
    min_ = min;
    notify(ControlProperty::Value);
    pullIntoRange();
}

void HScrollBar::setMax(int max) {
    checkInt16(max);
    max_ = max;
    notify(ControlProperty::Value);
    pullIntoRange();
}

void HScrollBar::setValue(int value) {
    if (!inRange(value)) throwInvalidPropertyValue();
    if (value == value_) return;
    value_ = value;
    notify(ControlProperty::Value);
    Change.raise();
}

bool HScrollBar::step(int amount, bool towardMax) {
    if (!usable()) return false;
    int64_t delta = std::max(amount, 1);
    bool up = (max_ >= min_) == towardMax;
    int next = clampToRange(static_cast<int64_t>(value_) + (up ? delta : -delta));
    if (next != value_) {
        value_ = next;
        notify(ControlProperty::Value);
        Change.raise();
    }
    return true;
}

bool HScrollBar::lineLeft() {
    return step(SmallChange, false);
}
bool HScrollBar::lineRight() {
    return step(SmallChange, true);
}
bool HScrollBar::pageLeft() {
    return step(LargeChange, false);
}
bool HScrollBar::pageRight() {
    return step(LargeChange, true);
}

bool HScrollBar::drag(std::initializer_list<int> positions) {
    if (!usable()) return false;
    int start = value_;
    for (int p : positions) {
        int next = clampToRange(p);
        if (next == value_) continue;
        value_ = next;
        notify(ControlProperty::Value);
        Scroll.raise();
    }
    if (value_ != start) Change.raise();
    return true;
}

}  // namespace zt::ui
