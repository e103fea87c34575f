// The editable text of a text box or of a combo box's edit field: the text, the caret and the
// selection, and the effect of one key. Text is UTF-8; positions and lengths count characters.
// Bytes that are not valid UTF-8 are kept as they are and never split from their sequence.
#pragma once

#include <string>
#include <vector>

namespace zt::ui {

inline constexpr int kKeyBack = 8;
inline constexpr int kKeyReturn = 13;

class EditText {
  public:
    const std::string& text() const { return text_; }
    // Replaces the whole text; the caret goes to the start and nothing is selected.
    void assign(std::string text);
    int length() const;

    int selStart() const { return selStart_; }
    int selLength() const { return selLength_; }
    std::string selText() const;
    // Out-of-range positions and lengths are clamped to the text.
    void setSelStart(int start);
    void setSelLength(int length);
    void selectAll();
    // Replaces the selection and puts the caret after the inserted text.
    void replaceSelection(const std::string& text);

    // Applies one typed key: a printable character replaces the selection unless that would
    // make the text longer than `maxLength` characters (0: no limit); backspace deletes the
    // selection or the character before the caret; other control keys change nothing.
    // Returns whether the text changed.
    bool applyKey(int key, int maxLength);

  private:
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
};

// The characters of a UTF-8 text, one string each.
std::vector<std::string> splitCharacters(const std::string& text);
// The key code of one character: its code point; a stray byte gives its own value.
int keyCodeOf(const std::string& character);

}  // namespace zt::ui
