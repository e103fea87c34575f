// Check box with the values 0 (unchecked), 1 (checked) and 2 (grayed).
//
// As on the host platform, every change of the value raises Click, whether made in code or by
// a person. A person's click turns a checked box off and any other box on.
#pragma once

#include <string>
#include <string_view>

#include "platform/ui/control_base.h"
#include "platform/ui/event.h"

namespace zt::ui {

inline constexpr int kUnchecked = 0;
inline constexpr int kChecked = 1;
inline constexpr int kGrayed = 2;

class CheckBox : public ControlBase {
  public:
    static constexpr std::string_view kKind = "CheckBox";
    using ControlBase::ControlBase;

    Observed<std::string> Caption{*this, ControlProperty::Caption};
    Event<> Click;

    int value() const { return value_; }
    // A value other than 0, 1 or 2 is refused with "Invalid property value".
    void setValue(int value);
    // A person's click; false when the box is hidden or disabled.
    bool click();

  private:
    int value_ = kUnchecked;
};

}  // namespace zt::ui
