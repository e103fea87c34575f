#include "platform/ui/check_box.h"

#include "platform/ui/control_error.h"

namespace zt::ui {

void CheckBox::setValue(int value) {
    if (value < kUnchecked || value > kGrayed) throwInvalidPropertyValue();
    if (value == value_) return;
    value_ = value;
    notify(ControlProperty::Value);
    Click.raise();
}

bool CheckBox::click() {
    if (!usable()) return false;
    value_ = value_ == kChecked ? kUnchecked : kChecked;
    notify(ControlProperty::Value);
    Click.raise();
    return true;
}

}  // namespace zt::ui
