#include "platform/ui/combo_box.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "platform/ui/control_error.h"

namespace zt::ui {
namespace {

bool sameTextIgnoringCase(const std::string& a, const std::string& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) ==
               std::tolower(static_cast<unsigned char>(y));
    });
}

}  // namespace

ComboBox::ComboBox(std::string name, int index, ComboStyle style)
    : ControlBase(std::move(name), index), style_(style) {
    BackColor = kColorWindow;
}

void ComboBox::AddItem(std::string item, int index) {
    if (index == -1) index = ListCount();
    if (index < 0 || index > ListCount()) throwInvalidProcedureCall();
    items_.insert(items_.begin() + index, std::move(item));
    if (listIndex_ >= index) ++listIndex_;
    notify(ControlProperty::List);
}

void ComboBox::RemoveItem(int index) {
    if (index < 0 || index >= ListCount()) throwInvalidProcedureCall();
    items_.erase(items_.begin() + index);
    if (listIndex_ == index) {
        listIndex_ = -1;
        if (style_ == ComboStyle::DropDownList) edit_.assign({});
    } else if (listIndex_ > index) {
        --listIndex_;
    }
    notify(ControlProperty::List);
}

void ComboBox::Clear() {
    items_.clear();
    listIndex_ = -1;
    edit_.assign({});
    notify(ControlProperty::List);
}

std::string ComboBox::List(int index) const {
    if (index < 0 || index >= ListCount()) return {};
    return items_[static_cast<size_t>(index)];
}

void ComboBox::setList(int index, std::string item) {
    if (index < 0 || index >= ListCount()) {
        throw AutomationError(kErrInvalidPropertyIndex, "Invalid property array index");
    }
    items_[static_cast<size_t>(index)] = std::move(item);
    if (index == listIndex_ && style_ == ComboStyle::DropDownList)
        edit_.assign(items_[static_cast<size_t>(index)]);
    notify(ControlProperty::List);
}

void ComboBox::setListIndex(int index) {
    if (index < -1 || index >= ListCount()) throwInvalidPropertyValue();
    if (index == listIndex_) return;
    listIndex_ = index;
    edit_.assign(index < 0 ? std::string() : items_[static_cast<size_t>(index)]);
    notify(ControlProperty::Text);
    Click.raise();
}

void ComboBox::selectMatchingItem() {
    auto it = std::find_if(items_.begin(), items_.end(), [&](const std::string& item) {
        return sameTextIgnoringCase(item, edit_.text());
    });
    listIndex_ = it == items_.end() ? -1 : static_cast<int>(it - items_.begin());
}

void ComboBox::setText(std::string text) {
    if (style_ == ComboStyle::DropDownList) {
        auto it = std::find_if(items_.begin(), items_.end(), [&](const std::string& item) {
            return sameTextIgnoringCase(item, text);
        });
        if (it == items_.end()) {
            throw AutomationError(kErrTextReadOnly, "'Text' property is read-only");
        }
        setListIndex(static_cast<int>(it - items_.begin()));
        return;
    }
    bool changed = text != edit_.text();
    edit_.assign(std::move(text));
    selectMatchingItem();
    notify(ControlProperty::Text);
    if (changed) Change.raise();
}

bool ComboBox::select(int index) {
    if (!usable() || index < 0 || index >= ListCount()) return false;
    listIndex_ = index;
    edit_.assign(items_[static_cast<size_t>(index)]);
    notify(ControlProperty::Text);
    Click.raise();
    return true;
}

bool ComboBox::key(int keyAscii) {
    KeyPress.raise(keyAscii);
    if (keyAscii == 0 || style_ == ComboStyle::DropDownList) return true;
    if (edit_.applyKey(keyAscii, 0)) {
        selectMatchingItem();
        notify(ControlProperty::Text);
        Change.raise();
    }
    return true;
}

bool ComboBox::type(const std::string& text) {
    if (!usable()) return false;
    for (const std::string& ch : splitCharacters(text))
        key(keyCodeOf(ch));
    return true;
}

bool ComboBox::pressKey(int keyAscii) {
    if (!usable()) return false;
    return key(keyAscii);
}

bool ComboBox::enter(const std::string& text) {
    if (!usable()) return false;
    edit_.selectAll();
    if (text.empty() && style_ != ComboStyle::DropDownList) return key(kKeyBack);
    return type(text);
}

bool ComboBox::focus() {
    if (!usable()) return false;
    GotFocus.raise();
    return true;
}

bool ComboBox::leave() {
    if (!usable()) return false;
    LostFocus.raise();
    return true;
}

}  // namespace zt::ui
