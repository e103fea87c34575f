// Combo box: a list of texts with an edit field (drop-down combo) or without one (drop-down
// list, whose text is always the selected item).
//
// As on the host platform:
// - Setting ListIndex in code to another value selects that item, shows its text and raises
//   Click; -1 selects nothing and empties the text. A value outside -1 .. ListCount - 1 is
//   refused with "Invalid property value".
// - A person picking an item raises Click every time, also for the item already selected.
// - Change is raised when the edit field's text changes by typing or by setText, never by a
//   selection from the list. Typing or setting a text selects the item of exactly that text
//   (compared without regard to case) without Click, or none.
// - AddItem, RemoveItem and Clear raise nothing. Clear also empties the text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ui/control_base.h"
#include "platform/ui/edit_text.h"
#include "platform/ui/event.h"

namespace zt::ui {

enum class ComboStyle { DropDownCombo = 0, SimpleCombo = 1, DropDownList = 2 };

class ComboBox : public ControlBase {
  public:
    static constexpr std::string_view kKind = "ComboBox";
    ComboBox(std::string name, int index = -1, ComboStyle style = ComboStyle::DropDownCombo);

    ComboStyle Style() const { return style_; }

    // Appends, or inserts before `index` (0 .. ListCount); other indexes are refused with
    // "Invalid procedure call or argument". A selection moves along with its item.
    void AddItem(std::string item, int index = -1);
    // Refuses an index outside 0 .. ListCount - 1 like AddItem. Removing the selected item
    // leaves nothing selected (a drop-down list then shows no text).
    void RemoveItem(int index);
    void Clear();
    int ListCount() const { return static_cast<int>(items_.size()); }
    // The item's text; "" outside the list, as the host platform answers.
    std::string List(int index) const;
    // Refuses an index outside the list with "Invalid property array index".
    void setList(int index, std::string item);

    int ListIndex() const { return listIndex_; }
    void setListIndex(int index);

    const std::string& text() const { return edit_.text(); }
    // Drop-down list: selects the item of that text (Click when it changes), and refuses a
    // text that is no item with "'Text' property is read-only". Other styles: see above.
    void setText(std::string text);
    int SelStart() const { return edit_.selStart(); }
    int SelLength() const { return edit_.selLength(); }
    void setSelStart(int start) { edit_.setSelStart(start); }
    void setSelLength(int length) { edit_.setSelLength(length); }

    Event<> Click;
    Event<> Change;
    Event<int&> KeyPress;
    Event<> GotFocus;
    Event<> LostFocus;

    // A person picks item `index` from the list; false when the box is hidden or disabled or
    // the index is not in the list.
    bool select(int index);
    // A person types into the edit field at the caret, one key per character (KeyPress, then
    // Change). A drop-down list has no edit field: its keys raise KeyPress only.
    bool type(const std::string& text);
    bool pressKey(int keyAscii);
    // A person clears the edit field and types `text` (the selection covers the whole text).
    bool enter(const std::string& text);
    bool focus();
    bool leave();

  private:
    bool key(int keyAscii);
    void selectMatchingItem();

    ComboStyle style_;
    std::vector<std::string> items_;
    int listIndex_ = -1;
    EditText edit_;
};

}  // namespace zt::ui
