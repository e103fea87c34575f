#include "platform/ui/text_box.h"

#include <utility>

namespace zt::ui {

TextBox::TextBox(std::string name, int index) : ControlBase(std::move(name), index) {
    BackColor = kColorWindow;
}

void TextBox::setText(std::string text) {
    bool changed = text != edit_.text();
    edit_.assign(std::move(text));
    notify(ControlProperty::Text);
    if (changed) Change.raise();
}

void TextBox::setSelText(const std::string& text) {
    std::string before = edit_.text();
    edit_.replaceSelection(text);
    if (edit_.text() == before) return;
    notify(ControlProperty::Text);
    Change.raise();
}

bool TextBox::key(int keyAscii) {
    KeyPress.raise(keyAscii);
    if (keyAscii == 0 || Locked) return !Locked;
    if (edit_.applyKey(keyAscii, MaxLength)) {
        notify(ControlProperty::Text);
        Change.raise();
    }
    return true;
}

bool TextBox::type(const std::string& text) {
    if (!usable()) return false;
    bool taken = true;
    for (const std::string& ch : splitCharacters(text))
        taken = key(keyCodeOf(ch)) && taken;
    return taken && !Locked;
}

bool TextBox::pressKey(int keyAscii) {
    if (!usable()) return false;
    return key(keyAscii) && !Locked;
}

bool TextBox::focus() {
    if (!usable()) return false;
    GotFocus.raise();
    return true;
}

bool TextBox::leave() {
    if (!usable()) return false;
    LostFocus.raise();
    return true;
}

}  // namespace zt::ui
