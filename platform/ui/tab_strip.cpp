#include "platform/ui/tab_strip.h"

#include <utility>

#include "platform/ui/control_error.h"

namespace zt::ui {

size_t TabStrip::checked(int index) const {
    if (index < 1 || index > static_cast<int>(tabs_.size())) throwIndexOutOfBounds();
    return static_cast<size_t>(index - 1);
}

Tab& TabStrip::TabCollection::Add(std::string caption, int index) {
    auto& tabs = strip_.tabs_;
    if (index == 0) index = Count() + 1;
    if (index < 1 || index > Count() + 1) throwIndexOutOfBounds();
    auto it = tabs.insert(tabs.begin() + (index - 1), Tab{std::move(caption), {}, {}});
    if (strip_.selected_ == 0) {
        strip_.selected_ = 1;
    } else if (strip_.selected_ >= index) {
        ++strip_.selected_;
    }
    strip_.notify(ControlProperty::List);
    return *it;
}

void TabStrip::TabCollection::Remove(int index) {
    auto& tabs = strip_.tabs_;
    tabs.erase(tabs.begin() + static_cast<std::ptrdiff_t>(strip_.checked(index)));
    if (strip_.selected_ == index) {
        strip_.selected_ = tabs.empty() ? 0 : 1;
    } else if (strip_.selected_ > index) {
        --strip_.selected_;
    }
    strip_.notify(ControlProperty::List);
}

void TabStrip::TabCollection::Clear() {
    strip_.tabs_.clear();
    strip_.selected_ = 0;
    strip_.notify(ControlProperty::List);
}

Tab& TabStrip::TabCollection::operator()(int index) {
    return strip_.tabs_[strip_.checked(index)];
}

const Tab& TabStrip::TabCollection::operator()(int index) const {
    return strip_.tabs_[strip_.checked(index)];
}

void TabStrip::select(int index) {
    checked(index);
    if (index == selected_) return;
    selected_ = index;
    notify(ControlProperty::Value);
    Click.raise();
}

bool TabStrip::click(int index) {
    if (!usable() || index < 1 || index > static_cast<int>(tabs_.size())) return false;
    selected_ = index;
    notify(ControlProperty::Value);
    Click.raise();
    return true;
}

bool TabStrip::moveMouse(int16_t button, int16_t shift, float x, float y) {
    if (!usable()) return false;
    MouseMove.raise(button, shift, x, y);
    return true;
}

}  // namespace zt::ui
