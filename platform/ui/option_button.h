// Option buttons and the group within which at most one of them is selected.
//
// As on the host platform: a change of Value to True in code clears the other buttons of the
// group and raises Click of this button only; setting True on a selected button, or False on
// any, raises nothing. A person's click on a visible, enabled button selects it and raises
// Click every time, also when the button was already selected.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ui/control_base.h"
#include "platform/ui/event.h"

namespace zt::ui {

class OptionButton;

// The buttons that exclude one another (on the host, those sharing a container).
class OptionGroup {
  public:
    OptionGroup() = default;
    ~OptionGroup();
    OptionGroup(const OptionGroup&) = delete;
    OptionGroup& operator=(const OptionGroup&) = delete;

    // The selected button, nullptr when none is.
    OptionButton* selected() const;
    // Index() of the selected button, -1 when none is.
    int selectedIndex() const;
    const std::vector<OptionButton*>& members() const { return members_; }

  private:
    friend class OptionButton;
    std::vector<OptionButton*> members_;
};

class OptionButton : public ControlBase {
  public:
    static constexpr std::string_view kKind = "OptionButton";
    // A control array of option buttons gives its elements one group of their own.
    using ArrayGroup = OptionGroup;

    // A button alone in its group.
    OptionButton(std::string name, int index = -1);
    OptionButton(std::string name, int index, OptionGroup& group);
    ~OptionButton() override;

    Observed<std::string> Caption{*this, ControlProperty::Caption};
    Event<> Click;

    bool value() const { return value_; }
    void setValue(bool value);
    // A person's click; false when the button is hidden or disabled.
    bool click();

    OptionGroup* group() const { return group_; }

  private:
    friend class OptionGroup;
    void select();

    OptionGroup* group_ = nullptr;
    bool value_ = false;
};

}  // namespace zt::ui
