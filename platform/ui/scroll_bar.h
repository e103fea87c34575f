// Horizontal scroll bar. Values are the host platform's 16-bit integers.
//
// As on the host platform:
// - Setting Value in code to another value raises Change; a value outside Min .. Max is refused
//   with "Invalid property value". Min may exceed Max: Min stays at the left end and Max at
//   the right, so values then decrease from left to right.
// - Setting Min or Max so that Value falls outside the range pulls Value into it, raising
//   Change.
// - A person's arrow and page clicks move Value by SmallChange or LargeChange towards Max
//   (right) or Min (left), stopping at the ends, and raise Change when Value moves. Dragging
//   the thumb raises Scroll at every position it passes and Change on release when Value
//   differs from where the drag began.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "platform/ui/control_base.h"
#include "platform/ui/event.h"

namespace zt::ui {

class HScrollBar : public ControlBase {
  public:
    static constexpr std::string_view kKind = "HScrollBar";
    using ControlBase::ControlBase;

    // Steps of the arrow and page clicks; values below 1 count as 1.
    int SmallChange = 1;
    int LargeChange = 1;
    Event<> Change;
    Event<> Scroll;

    int Min() const { return min_; }
    int Max() const { return max_; }
    // Values outside -32768 .. 32767 are refused with "Invalid property value".
    void setMin(int min);
    void setMax(int max);
    int value() const { return value_; }
    void setValue(int value);

    // A person's clicks on the arrows and on the track beside the thumb.
    bool lineLeft();
    bool lineRight();
    bool pageLeft();
    bool pageRight();
    // A person drags the thumb through the given positions (each clamped to the range) and
    // lets go at the last.
    bool drag(std::initializer_list<int> positions);
    bool dragTo(int position) { return drag({position}); }

  private:
    bool inRange(int64_t v) const;
    int clampToRange(int64_t v) const;
    bool step(int amount, bool towardMax);
    void pullIntoRange();

    int min_ = 0;
    int max_ = 32767;
    int value_ = 0;
};

}  // namespace zt::ui
