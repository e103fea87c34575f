// A spreadsheet control without a screen: a grid of typed cells with headers, an active cell,
// an editor, locking and the notifications a hosted grid sends its owner. Code sets it up
// through the property-style members; a person (or a test acting as one) works it through the
// user actions, which do only what a person at the screen could do.
//
// Addressing: cells are (col, row); column 0 and row 0 are the headers, data cells start at 1.
// Code that names a cell outside the grid gets zt::AutomationError; a user action aimed outside
// the grid, at a hidden or disabled sheet, or at a cell it cannot edit does nothing and returns
// false.
//
// Events are raised only by user actions; nothing code does raises an event (as with the
// hosted control, writing a cell or a selection by code notifies nobody). The sheet's observer
// (the window showing it) is told of every cell written while drawing is on, and of the whole
// grid once when drawing comes back on after changes.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/ui/control_base.h"
#include "platform/ui/control_error.h"
#include "platform/ui/event.h"
#include "platform/ui/spread_cell.h"

namespace zt::ui {

// Automation error codes of the grid beyond the shared ones.
inline constexpr int32_t kErrInvalidIndex = kErrInvalidPropertyIndex;
inline constexpr int32_t kErrOutOfMemory = 7;

// Key codes the sheet itself acts on.
inline constexpr int kKeyEnter = 13;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeyLeft = 37;
inline constexpr int kKeyUp = 38;
inline constexpr int kKeyRight = 39;
inline constexpr int kKeyDown = 40;

// Size limits of the grid; the cells are held sparsely, so only written cells cost memory.
inline constexpr int kMaxSheetCols = 10000;
inline constexpr int kMaxSheetRows = 1000000;
// Most cells one lock call or one text dump covers.
inline constexpr int64_t kMaxRangeCells = 1000000;

// Sizes a column or row has until code sets one.
inline constexpr float kDefaultColWidth = 1200;
inline constexpr float kDefaultRowHeight = 250;

class SpreadSheet : public ControlBase {
  public:
    // The hosted control starts with 500 columns and 500 rows.
    explicit SpreadSheet(std::string name, int maxCols = 500, int maxRows = 500);

    // ---- Grid -------------------------------------------------------------------------
    int MaxCols() const { return maxCols_; }
    int MaxRows() const { return maxRows_; }
    // Shrinking drops the cells, sizes and a pending edit beyond the new edge and pulls the
    // active cell back inside; growing adds default cells.
    void SetMaxCols(int cols);
    void SetMaxRows(int rows);

    // Column 0 / row 0 are the header column and row. Sizes in twips, 0 or more.
    float ColWidth(int col) const;
    void SetColWidth(int col, float twips);
    float RowHeight(int row) const;
    void SetRowHeight(int row, float twips);

    // ---- Drawing ----------------------------------------------------------------------
    // ReDraw off suspends painting; changes made meanwhile are painted once when it is
    // switched back on.
    bool ReDraw() const { return redraw_; }
    void SetReDraw(bool on);
    // How often drawing was switched off (from on) and back on (from off).
    int redrawSuspendCount() const { return suspendCount_; }
    int redrawResumeCount() const { return resumeCount_; }
    // How often the sheet repainted: once per change while drawing is on, once per resume
    // after changes made while it was off. Lets a test see that a batch of writes ran with
    // drawing suspended.
    int repaintCount() const { return repaintCount_; }

    // ---- Active cell and editor -------------------------------------------------------
    int ActiveCol() const { return activeCol_; }
    int ActiveRow() const { return activeRow_; }
    // A data cell (1-based); a pending edit elsewhere is kept as typed (committed silently).
    void SetActiveCell(int col, int row);
    // True while a person's edit of the active cell is open.
    bool EditMode() const { return edit_.has_value(); }
    // On: opens the editor on the active cell when a person could edit it (Edit or Number
    // cell, not locked), else stays off. Off: keeps what was typed, silently.
    void SetEditMode(bool on);

    // ---- Cells (code) -----------------------------------------------------------------
    // Text, colours and alignment also apply to header cells; everything else needs a data
    // cell. A write to the cell under edit first closes the editor, keeping what was typed.
    CellType cellType(int col, int row) const;
    // Changing the kind keeps the shown text: a Number cell reads a value from it, a ComboBox
    // starts with an empty list and no selection.
    void setCellType(int col, int row, CellType type);

    // What a person sees (header cells: their label; columns default to "A", "B", ...,
    // rows to "1", "2", ...). While a cell is being edited, its text, value and number read
    // what has been typed so far.
    std::string text(int col, int row) const;
    // ComboBox: selects the first item equal to `text` (case-sensitive), or keeps the text
    // with no selection when no item matches. Number: a number is clamped to the bounds and
    // shown with the decimals; other text is held as it is, with no value.
    void setText(int col, int row, std::string text);

    // The cell's value as the control reports it: Number: the value in plain digits ("100",
    // "0.5"), or the held text when it is not a number; ComboBox: the selected index ("0",
    // "1", ...), "" with no selection; other kinds: the text.
    std::string value(int col, int row) const;

    // Number cells: the value, empty while the cell holds text that is not a number.
    // Other kinds: the text read as a number.
    std::optional<double> number(int col, int row) const;
    // Number cells only; clamped to the bounds. NaN and infinities are refused.
    void setNumber(int col, int row, double value);
    NumberFormat numberFormat(int col, int row) const;
    // Number cells only; min <= max, decimals 0 to 15. A held value is re-shown with the new
    // decimals (not re-clamped: bounds apply to values entered from now on).
    void setNumberFormat(int col, int row, const NumberFormat& format);

    // ComboBox cells. Replacing or clearing the list keeps the shown text and selects the
    // first item equal to it, if any.
    const std::vector<std::string>& listItems(int col, int row) const;
    void setListItems(int col, int row, std::vector<std::string> items);
    void addListItem(int col, int row, std::string item);
    void clearListItems(int col, int row);
    // -1 when nothing is selected (also for the other kinds).
    int selectedIndex(int col, int row) const;
    // -1 clears the selection and the shown text.
    void setSelectedIndex(int col, int row, int index);

    // Edit cells: the most bytes a person can type, 0 for no limit (code writes are not cut).
    int maxLength(int col, int row) const;
    void setMaxLength(int col, int row, int bytes);

    bool locked(int col, int row) const;
    void setLocked(int col, int row, bool locked);
    // Every data cell of the rectangle between the two corners (any order), both included;
    // more than kMaxRangeCells cells are refused with kErrOutOfMemory.
    void lockRange(int col1, int row1, int col2, int row2, bool locked);
    // Every data cell of the sheet.
    void lockAll(bool locked);

    int32_t backColor(int col, int row) const;
    void setBackColor(int col, int row, int32_t color);
    int32_t foreColor(int col, int row) const;
    void setForeColor(int col, int row, int32_t color);
    HAlign hAlign(int col, int row) const;
    void setHAlign(int col, int row, HAlign align);
    VAlign vAlign(int col, int row) const;
    void setVAlign(int col, int row, VAlign align);

    // True when a person could change the cell: a data cell, not locked, and of a kind a
    // person edits (ComboBox, Number, Edit).
    bool editableByPerson(int col, int row) const;

    // ---- Events -----------------------------------------------------------------------
    // A person picked a list item (raised on every pick, also of the item already selected;
    // the selection is already in the cell).
    Event<int, int> ComboSelChange;
    // A person's edit of a cell was committed and changed the cell (the new text and value
    // are already in it). Not raised for list picks or code writes.
    Event<int, int> Change;
    // A key went down on the sheet; raised after the sheet's own handling of the key, so a
    // handler sees the cell as the key left it (changing the code has no effect).
    Event<int&, int> KeyDown;
    // A character key (Enter, Escape); raised after KeyDown.
    Event<int&> KeyPress;
    // A person clicked a cell (headers included); a data cell is already the active cell.
    Event<int, int> Click;
    // The pointer rests over a cell: the handler fills the tip text and may clear the flag
    // (it starts set, with an empty text) to show none.
    Event<int, int, std::string&, bool&> TextTipFetch;
    // Editing on the sheet ended because the person moved the focus away.
    Event<> Leave;

    // ---- User actions -----------------------------------------------------------------
    // Each returns whether a person could do it; when not, nothing happens. Moving to another
    // cell, leaving the sheet and Enter commit a pending edit (Change when the cell changed).
    // A Change handler run by such a commit may reshape the sheet: the action then goes on
    // only as far as the target cell still allows.

    // Data cell (locked ones too): commits an edit elsewhere, makes the cell active (without
    // opening the editor), raises Click. Header cell: commits a pending edit, raises Click; the
    // active cell stays.
    bool clickCell(int col, int row);
    // Unlocked ComboBox data cell with that item: activates the cell, selects the item and
    // raises ComboSelChange.
    bool chooseListItem(int col, int row, int index);
    bool chooseListItem(int col, int row, const std::string& item);
    // Unlocked Edit or Number data cell: activates it, opens the editor (keeping the text to
    // go back to on Escape) and replaces what it shows with `text` (an Edit cell's length
    // limit cuts it). Nothing is committed yet; on commit a Number cell reads the typed text
    // as setText does (a number is clamped and formatted, other text is held).
    bool typeIntoCell(int col, int row, const std::string& text);
    // A key on the active cell, handled by the sheet first, then reported:
    //   Enter: commits a pending edit (Change), then KeyDown, then KeyPress(13); the active
    //          cell stays.
    //   Escape: drops a pending edit, restoring the text from before it, then KeyDown, then
    //          KeyPress(27).
    //   Up/Down: commit a pending edit and move the active cell one row (not past the edge),
    //          then KeyDown.
    //   Left/Right: move the active cell one column (not past the edge), then KeyDown;
    //          while editing they move the caret in the editor instead.
    //   Other keys (1 to 255): KeyDown only.
    bool pressKey(int keyCode, int shift = 0);
    // The focus leaves the sheet: commits a pending edit (Change), then raises Leave.
    bool leaveSheet();
    // The pointer rests over a cell (headers included): the tip shown, empty when none.
    std::string hoverCell(int col, int row);

    // ---- Text dump --------------------------------------------------------------------
    // The sheet as a person sees it. First line: the name and size ("sprTrigger 1x5", with
    // ", hidden" / ", disabled"); then the header row, a rule, and one line per data row.
    // Columns are separated by " | " and padded to their widest entry; each cell shows its
    // text, "[text]" when locked, followed by " {BBGGRR}" when its background is not white.
    std::string render() const;

  private:
    struct PendingEdit {
        int col = 0;
        int row = 0;
        std::string oldText;
        std::optional<double> oldNumber;
    };

    bool inGrid(int col, int row) const;
    bool editing(int col, int row) const;
    bool isDataCell(int col, int row) const;
    void requireCell(int col, int row) const;
    void requireDataCell(int col, int row) const;
    const Cell& cellAt(int col, int row) const;
    Cell& cellFor(int col, int row);
    Cell& dataCellOfType(int col, int row, CellType type);
    const Cell& dataCellOfType(int col, int row, CellType type) const;
    // Closes the editor when it is open on (col, row).
    void closeEditOn(int col, int row);
    // Closes the editor keeping what was typed; raises Change when `notify` and the cell
    // changed.
    void commitEdit(bool notify);
    void cancelEdit();
    // A person moves to a data cell: an edit elsewhere is committed first.
    void moveTo(int col, int row);
    // Counts a repaint and tells the observer: the cell (col, row), or the whole grid for -1.
    void changed(int col = -1, int row = -1);
    void dropOutside();

    int maxCols_;
    int maxRows_;
    std::map<std::pair<int, int>, Cell> cells_;
    std::map<int, float> colWidths_;
    std::map<int, float> rowHeights_;
    bool redraw_ = true;
    bool dirty_ = false;
    int suspendCount_ = 0;
    int resumeCount_ = 0;
    int repaintCount_ = 0;
    int activeCol_ = 1;
    int activeRow_ = 1;
    std::optional<PendingEdit> edit_;
};

// Column header label the control shows by default: "A" ... "Z", "AA", ...
std::string defaultColumnLabel(int col);
// Header label of (col, row) until code writes one: the column letters in row 0, the row
// number in column 0, empty in the corner.
std::string defaultHeaderText(int col, int row);

}  // namespace zt::ui
