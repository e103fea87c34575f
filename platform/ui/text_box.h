// Single-line text box.
//
// As on the host platform: every change of the text raises Change, whether made in code or by
// typing; setting the same text raises nothing. Each typed key raises KeyPress first; the
// handler may replace the key or cancel it by setting it to 0. A locked box still raises
// KeyPress but keeps its text. MaxLength (0: no limit) bounds typing only, not text set in code.
#pragma once

#include <string>
#include <string_view>

#include "platform/ui/control_base.h"
#include "platform/ui/edit_text.h"
#include "platform/ui/event.h"

namespace zt::ui {

class TextBox : public ControlBase {
  public:
    static constexpr std::string_view kKind = "TextBox";
    TextBox(std::string name, int index = -1);

    int MaxLength = 0;
    bool Locked = false;
    Event<> Change;
    Event<int&> KeyPress;
    Event<> GotFocus;
    Event<> LostFocus;

    const std::string& text() const { return edit_.text(); }
    // Puts the caret at the start; raises Change when the text differs.
    void setText(std::string text);

    // Caret and selection, in characters.
    int SelStart() const { return edit_.selStart(); }
    int SelLength() const { return edit_.selLength(); }
    std::string SelText() const { return edit_.selText(); }
    void setSelStart(int start) { edit_.setSelStart(start); }
    void setSelLength(int length) { edit_.setSelLength(length); }
    // SelText = text in code: replaces the selection, raising Change when the text changes.
    void setSelText(const std::string& text);

    // A person types `text` at the caret, one key per character. False, with nothing typed,
    // when the box is hidden or disabled; false, with only KeyPress raised, when it is locked.
    bool type(const std::string& text);
    // A person presses one key (a character code, 8 backspace, 13 Enter); same results.
    bool pressKey(int keyAscii);
    // The box receives or loses the focus by a person's doing; false when not usable.
    bool focus();
    bool leave();

  private:
    bool key(int keyAscii);

    EditText edit_;
};

}  // namespace zt::ui
