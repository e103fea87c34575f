// Spin control (up and down arrows) bound to no other control.
//
// As on the host's common control: a person's click on an arrow moves Value by Increment
// towards Max (up) or Min (down). Past the end the value stops there, or with Wrap goes round
// to the other end (any step past the end lands on the other end). When Value moves, Change is
// raised first; then UpClick or DownClick is raised for every click, also when Value could not
// move. Setting Value in code to another value raises Change; a value outside Min .. Max is refused
// with "Invalid property value". Setting Min or Max pulls Value into the new range, raising Change.
#pragma once

#include <string_view>

#include "platform/ui/control_base.h"
#include "platform/ui/event.h"

namespace zt::ui {

class UpDown : public ControlBase {
  public:
    static constexpr std::string_view kKind = "UpDown";
    using ControlBase::ControlBase;

    // Step of one click; its size is taken, 0 does not move.
    int Increment = 1;
    bool Wrap = false;
    Event<> UpClick;
    Event<> DownClick;
    Event<> Change;

    int Min() const { return min_; }
    int Max() const { return max_; }
    void setMin(int min);
    void setMax(int max);
    int value() const { return value_; }
    void setValue(int value);

    bool clickUp();
    bool clickDown();

  private:
    void move(bool towardMax);
    void pullIntoRange();

    int min_ = 0;
    int max_ = 10;
    int value_ = 0;
};

}  // namespace zt::ui
