// One cell of a spreadsheet control: its kind, what it holds and how it looks, and the rules
// by which a number cell turns text into a value and a value into shown text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zt::ui {

inline constexpr int32_t kColorWhite = 0xFFFFFF;
inline constexpr int32_t kColorBlack = 0x000000;

enum class CellType {
    StaticText,  // shown text only; a person can never edit it
    ComboBox,    // drop-down list: a person picks an item, typing is not possible
    Number,      // a person types a number; bounded and shown with fixed decimals
    Edit,        // plain text, optionally limited in length (the control's default kind)
};

// General: text to the left, numbers to the right (the control's default).
enum class HAlign { General, Left, Center, Right };
enum class VAlign { Top, Center, Bottom };

struct NumberFormat {
    // The control's defaults: eight integer digits either side of zero, two decimals.
    double min = -99999999.99;
    double max = 99999999.99;
    int decimals = 2;
};

// Decimal places a number cell accepts.
inline constexpr int kMaxDecimals = 15;

struct Cell {
    CellType type = CellType::Edit;
    // What a person sees in the cell.
    std::string text;
    // Number cells: the value while the text is a number; empty while the cell holds
    // something else (letters a person typed, or a placeholder such as "---").
    std::optional<double> number;
    // ComboBox cells: the list and the selected item, -1 for none.
    std::vector<std::string> items;
    int selected = -1;
    NumberFormat format;
    // Edit cells: the most bytes a person can type, 0 for no limit.
    int maxLength = 0;
    bool locked = false;
    int32_t backColor = kColorWhite;
    int32_t foreColor = kColorBlack;
    HAlign hAlign = HAlign::General;
    VAlign vAlign = VAlign::Top;
};

// A number as a person may type it: optional blanks around, optional sign, digits with at most
// one '.', optional exponent. Anything else (letters, "---", empty, "inf", out of the double
// range) is not a number.
std::optional<double> parseCellNumber(std::string_view text);

// `value` shown with `decimals` places and '.' (no grouping); a rounded zero is shown unsigned.
std::string formatCellNumber(double value, int decimals);

// `value` as the shortest text that reads back to the same double ("100", "0.5").
std::string plainNumberText(double value);

}  // namespace zt::ui
