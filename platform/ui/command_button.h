// Push button. A person's click raises Click; so does setting the button's value in code.
#pragma once

#include <string>
#include <string_view>

#include "platform/ui/control_base.h"
#include "platform/ui/event.h"

namespace zt::ui {

class CommandButton : public ControlBase {
  public:
    static constexpr std::string_view kKind = "CommandButton";
    using ControlBase::ControlBase;

    Observed<std::string> Caption{*this, ControlProperty::Caption};
    Event<> Click;

    // A person's click: raises Click only while the button is visible and enabled.
    bool click() {
        if (!usable()) return false;
        Click.raise();
        return true;
    }
    // Value = True in code: raises Click whatever the button's state; False does nothing.
    void setValue(bool value) {
        if (value) Click.raise();
    }
};

}  // namespace zt::ui
