#include "platform/ui/option_button.h"

#include <algorithm>
#include <utility>

namespace zt::ui {

OptionGroup::~OptionGroup() {
    for (OptionButton* button : members_)
        button->group_ = nullptr;
}

OptionButton* OptionGroup::selected() const {
    auto it = std::find_if(members_.begin(), members_.end(),
                           [](const OptionButton* b) { return b->value(); });
    return it == members_.end() ? nullptr : *it;
}

int OptionGroup::selectedIndex() const {
    const OptionButton* button = selected();
    return button ? button->Index() : -1;
}

OptionButton::OptionButton(std::string name, int index) : ControlBase(std::move(name), index) {}

OptionButton::OptionButton(std::string name, int index, OptionGroup& group)
    : ControlBase(std::move(name), index), group_(&group) {
    group.members_.push_back(this);
}

OptionButton::~OptionButton() {
    if (!group_) return;
    auto& members = group_->members_;
    members.erase(std::remove(members.begin(), members.end(), this), members.end());
}

void OptionButton::select() {
    if (group_) {
        for (OptionButton* other : group_->members_) {
            if (other != this && other->value_) {
                other->value_ = false;
                other->notify(ControlProperty::Value);
            }
        }
    }
    if (!value_) {
        value_ = true;
        notify(ControlProperty::Value);
    }
}

void OptionButton::setValue(bool value) {
    if (!value) {
        if (value_) {
            value_ = false;
            notify(ControlProperty::Value);
        }
        return;
    }
    if (value_) return;
    select();
    Click.raise();
}

bool OptionButton::click() {
    if (!usable()) return false;
    select();
    Click.raise();
    return true;
}

}  // namespace zt::ui
