#include "platform/ui/surface.h"

#include <algorithm>
#include <cctype>

#include "platform/ui/check_box.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/command_button.h"
#include "platform/ui/option_button.h"
#include "platform/ui/scroll_bar.h"
#include "platform/ui/static_controls.h"
#include "platform/ui/tab_strip.h"
#include "platform/ui/text_box.h"
#include "platform/ui/up_down.h"

namespace zt::ui {
namespace {

bool sameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) ==
               std::tolower(static_cast<unsigned char>(y));
    });
}

std::string displayName(std::string_view name, int index) {
    std::string out(name);
    if (index >= 0) {
        // Appended piece by piece: GCC 12 at -O3 warns falsely (-Wrestrict) on a chain of
        // std::string operator+ here.
        out += '(';
        out += std::to_string(index);
        out += ')';
    }
    return out;
}

template <typename T>
bool is(const ControlBase& c) {
    return dynamic_cast<const T*>(&c) != nullptr;
}

}  // namespace

void Surface::add(ControlBase& control) {
    if (find(control.Name(), control.Index())) {
        throw AutomationError(kErrAlreadyLoaded, "Object already loaded");
    }
    controls_.push_back(&control);
}

ControlBase* Surface::find(std::string_view name, int index) const {
    auto it = std::find_if(controls_.begin(), controls_.end(), [&](const ControlBase* c) {
        return c->Index() == index && sameName(c->Name(), name);
    });
    return it == controls_.end() ? nullptr : *it;
}

std::vector<ControlBase*> Surface::inTabOrder() const {
    std::vector<ControlBase*> out = controls_;
    std::stable_sort(out.begin(), out.end(), [](const ControlBase* a, const ControlBase* b) {
        return a->TabIndex < b->TabIndex;
    });
    return out;
}

void Surface::throwMissing(std::string_view name, int index) {
    throw AutomationError(kErrObjectRequired,
                          "Object required: no control " + displayName(name, index));
}

void Surface::throwWrongKind(const ControlBase& control, std::string_view kind) {
    throw AutomationError(kErrTypeMismatch, "Type mismatch: " + displayName(control) + " is a " +
                                                std::string(kindOf(control)) + ", not a " +
                                                std::string(kind));
}

std::string displayName(const ControlBase& control) {
    return displayName(control.Name(), control.Index());
}

std::string_view kindOf(const ControlBase& c) {
    if (is<CommandButton>(c)) return CommandButton::kKind;
    if (is<Label>(c)) return Label::kKind;
    if (is<Frame>(c)) return Frame::kKind;
    if (is<PictureBox>(c)) return PictureBox::kKind;
    if (is<OptionButton>(c)) return OptionButton::kKind;
    if (is<CheckBox>(c)) return CheckBox::kKind;
    if (is<ComboBox>(c)) return ComboBox::kKind;
    if (is<TextBox>(c)) return TextBox::kKind;
    if (is<HScrollBar>(c)) return HScrollBar::kKind;
    if (is<UpDown>(c)) return UpDown::kKind;
    if (is<TabStrip>(c)) return TabStrip::kKind;
    return "Control";
}

}  // namespace zt::ui
