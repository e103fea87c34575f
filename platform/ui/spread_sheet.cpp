#include "platform/ui/spread_sheet.h"

#include <algorithm>
#include <cmath>

#include "platform/zt_common.h"

namespace zt::ui {

namespace {

const Cell& blankCell() {
    static const Cell cell;
    return cell;
}

const std::vector<std::string>& noItems() {
    static const std::vector<std::string> items;
    return items;
}

const char* typeName(CellType type) {
    switch (type) {
        case CellType::StaticText:
            return "static text";
        case CellType::ComboBox:
            return "combo box";
        case CellType::Number:
            return "number";
        case CellType::Edit:
            return "edit";
    }
    return "?";
}

[[noreturn]] void badValue(const std::string& what) {
    throw AutomationError(kErrInvalidPropertyValue, "Invalid property value: " + what);
}

int indexOf(const std::vector<std::string>& items, const std::string& text) {
    const auto it = std::find(items.begin(), items.end(), text);
    return it == items.end() ? -1 : static_cast<int>(it - items.begin());
}

// A number entered into a number cell: clamped to the bounds, shown with the decimals.
void storeNumber(Cell& cell, double value) {
    value = std::clamp(value, cell.format.min, cell.format.max);
    cell.number = value;
    cell.text = formatCellNumber(value, cell.format.decimals);
}

// Text entered into a number cell: a number is stored as one, anything else is held as text.
void storeNumberText(Cell& cell, std::string text) {
    if (const auto n = parseCellNumber(text)) {
        storeNumber(cell, *n);
    } else {
        cell.number.reset();
        cell.text = std::move(text);
    }
}

void selectMatching(Cell& cell) {
    cell.selected = indexOf(cell.items, cell.text);
}

}  // namespace

std::string defaultColumnLabel(int col) {
    std::string label;
    for (int n = col; n > 0; n = (n - 1) / 26) {
        label.insert(label.begin(), static_cast<char>('A' + (n - 1) % 26));
    }
    return label;
}

std::string defaultHeaderText(int col, int row) {
    if (row == 0 && col > 0) return defaultColumnLabel(col);
    if (col == 0 && row > 0) return std::to_string(row);
    return {};
}

SpreadSheet::SpreadSheet(std::string name, int maxCols, int maxRows)
    : ControlBase(std::move(name)), maxCols_(0), maxRows_(0) {
    SetMaxCols(maxCols);
    SetMaxRows(maxRows);
}

// ---- Grid ---------------------------------------------------------------------------------

void SpreadSheet::SetMaxCols(int cols) {
    if (cols < 0 || cols > kMaxSheetCols) badValue("MaxCols " + std::to_string(cols));
    maxCols_ = cols;
    dropOutside();
}

void SpreadSheet::SetMaxRows(int rows) {
    if (rows < 0 || rows > kMaxSheetRows) badValue("MaxRows " + std::to_string(rows));
    maxRows_ = rows;
    dropOutside();
}

void SpreadSheet::dropOutside() {
    if (edit_ && !inGrid(edit_->col, edit_->row)) edit_.reset();
    std::erase_if(cells_, [this](const auto& entry) {
        return !inGrid(entry.first.first, entry.first.second);
    });
    std::erase_if(colWidths_, [this](const auto& entry) { return entry.first > maxCols_; });
    std::erase_if(rowHeights_, [this](const auto& entry) { return entry.first > maxRows_; });
    activeCol_ = std::clamp(activeCol_, 1, std::max(1, maxCols_));
    activeRow_ = std::clamp(activeRow_, 1, std::max(1, maxRows_));
    changed();
}

float SpreadSheet::ColWidth(int col) const {
    if (col < 0 || col > maxCols_) {
        throw AutomationError(kErrInvalidIndex, "Column out of range: " + std::to_string(col));
    }
    const auto it = colWidths_.find(col);
    return it == colWidths_.end() ? kDefaultColWidth : it->second;
}

void SpreadSheet::SetColWidth(int col, float twips) {
    ColWidth(col);  // range check
    if (!std::isfinite(twips) || twips < 0) badValue("column width");
    colWidths_[col] = twips;
    changed();
}

float SpreadSheet::RowHeight(int row) const {
    if (row < 0 || row > maxRows_) {
        throw AutomationError(kErrInvalidIndex, "Row out of range: " + std::to_string(row));
    }
    const auto it = rowHeights_.find(row);
    return it == rowHeights_.end() ? kDefaultRowHeight : it->second;
}

void SpreadSheet::SetRowHeight(int row, float twips) {
    RowHeight(row);  // range check
    if (!std::isfinite(twips) || twips < 0) badValue("row height");
    rowHeights_[row] = twips;
    changed();
}

// ---- Drawing ------------------------------------------------------------------------------

void SpreadSheet::SetReDraw(bool on) {
    if (on == redraw_) return;
    redraw_ = on;
    if (!on) {
        ++suspendCount_;
        return;
    }
    ++resumeCount_;
    const bool repaint = dirty_;
    dirty_ = false;
    if (repaint) {
        ++repaintCount_;
        notify(ControlProperty::Cells);
    }
}

void SpreadSheet::changed(int col, int row) {
    if (!redraw_) {
        dirty_ = true;
        return;
    }
    ++repaintCount_;
    if (ControlObserver* o = observer()) {
        if (col >= 0) {
            o->cellChanged(*this, col, row);
        } else {
            o->controlChanged(*this, ControlProperty::Cells);
        }
    }
}

// ---- Addressing ---------------------------------------------------------------------------

bool SpreadSheet::inGrid(int col, int row) const {
    return col >= 0 && col <= maxCols_ && row >= 0 && row <= maxRows_;
}

bool SpreadSheet::isDataCell(int col, int row) const {
    return inGrid(col, row) && col >= 1 && row >= 1;
}

void SpreadSheet::requireCell(int col, int row) const {
    if (!inGrid(col, row)) {
        throw AutomationError(kErrInvalidIndex, Name() + ": no cell (" + std::to_string(col) +
                                                    ", " + std::to_string(row) + ")");
    }
}

void SpreadSheet::requireDataCell(int col, int row) const {
    requireCell(col, row);
    if (col == 0 || row == 0) {
        throw AutomationError(kErrInvalidIndex, Name() + ": (" + std::to_string(col) + ", " +
                                                    std::to_string(row) + ") is a header cell");
    }
}

const Cell& SpreadSheet::cellAt(int col, int row) const {
    requireCell(col, row);
    const auto it = cells_.find({col, row});
    return it == cells_.end() ? blankCell() : it->second;
}

Cell& SpreadSheet::cellFor(int col, int row) {
    requireCell(col, row);
    closeEditOn(col, row);
    changed(col, row);
    auto [it, added] = cells_.try_emplace({col, row});
    if (added && (col == 0 || row == 0)) it->second.text = defaultHeaderText(col, row);
    return it->second;
}

bool SpreadSheet::editing(int col, int row) const {
    return edit_ && edit_->col == col && edit_->row == row;
}

const Cell& SpreadSheet::dataCellOfType(int col, int row, CellType type) const {
    requireDataCell(col, row);
    const Cell& cell = cellAt(col, row);
    if (cell.type != type) {
        throw AutomationError(kErrInvalidPropertyValue,
                              Name() + ": (" + std::to_string(col) + ", " + std::to_string(row) +
                                  ") is not a " + typeName(type) + " cell");
    }
    return cell;
}

Cell& SpreadSheet::dataCellOfType(int col, int row, CellType type) {
    static_cast<const SpreadSheet&>(*this).dataCellOfType(col, row, type);
    return cellFor(col, row);
}

// ---- Active cell and editor ---------------------------------------------------------------

void SpreadSheet::SetActiveCell(int col, int row) {
    requireDataCell(col, row);
    if (edit_ && !editing(col, row)) commitEdit(false);
    activeCol_ = col;
    activeRow_ = row;
}

void SpreadSheet::SetEditMode(bool on) {
    if (!on) {
        commitEdit(false);
        return;
    }
    if (edit_ || !editableByPerson(activeCol_, activeRow_)) return;
    const Cell& cell = cellAt(activeCol_, activeRow_);
    if (cell.type == CellType::ComboBox) return;  // a list has no text editor
    edit_ = PendingEdit{activeCol_, activeRow_, cell.text, cell.number};
}

void SpreadSheet::closeEditOn(int col, int row) {
    if (edit_ && edit_->col == col && edit_->row == row) commitEdit(false);
}

void SpreadSheet::commitEdit(bool notify) {
    if (!edit_) return;
    const PendingEdit e = *edit_;
    edit_.reset();
    auto it = cells_.find({e.col, e.row});
    if (it == cells_.end()) return;  // an untouched default cell: nothing was typed
    Cell& cell = it->second;
    if (cell.type == CellType::Number) storeNumberText(cell, cell.text);
    const bool differs = cell.text != e.oldText || cell.number != e.oldNumber;
    changed(e.col, e.row);
    if (notify && differs) Change.raise(e.col, e.row);
}

void SpreadSheet::cancelEdit() {
    if (!edit_) return;
    const PendingEdit e = *edit_;
    edit_.reset();
    auto it = cells_.find({e.col, e.row});
    if (it == cells_.end()) return;
    it->second.text = e.oldText;
    it->second.number = e.oldNumber;
    changed(e.col, e.row);
}

void SpreadSheet::moveTo(int col, int row) {
    if (edit_ && !editing(col, row)) commitEdit(true);
    // A Change handler may have shrunk the grid or opened an editor on another cell; the
    // editor is only ever open on the active cell.
    if (!isDataCell(col, row)) return;
    if (edit_ && !editing(col, row)) commitEdit(false);
    activeCol_ = col;
    activeRow_ = row;
}

// ---- Cells --------------------------------------------------------------------------------

CellType SpreadSheet::cellType(int col, int row) const {
    requireDataCell(col, row);
    return cellAt(col, row).type;
}

void SpreadSheet::setCellType(int col, int row, CellType type) {
    requireDataCell(col, row);
    Cell& cell = cellFor(col, row);
    if (cell.type == type) return;
    cell.type = type;
    cell.items.clear();
    cell.selected = -1;
    cell.number.reset();
    if (type == CellType::Number) storeNumberText(cell, cell.text);
}

std::string SpreadSheet::text(int col, int row) const {
    const Cell& cell = cellAt(col, row);
    if ((col == 0 || row == 0) && !cells_.contains({col, row})) {
        return defaultHeaderText(col, row);
    }
    return cell.text;
}

void SpreadSheet::setText(int col, int row, std::string text) {
    requireCell(col, row);
    if (col == 0 || row == 0) {
        cellFor(col, row).text = std::move(text);
        return;
    }
    Cell& cell = cellFor(col, row);
    switch (cell.type) {
        case CellType::Number:
            storeNumberText(cell, std::move(text));
            break;
        case CellType::ComboBox:
            cell.text = std::move(text);
            selectMatching(cell);
            break;
        case CellType::StaticText:
        case CellType::Edit:
            cell.text = std::move(text);
            break;
    }
}

std::string SpreadSheet::value(int col, int row) const {
    const Cell& cell = cellAt(col, row);
    if (col == 0 || row == 0 || editing(col, row)) return text(col, row);
    switch (cell.type) {
        case CellType::Number:
            return cell.number ? plainNumberText(*cell.number) : cell.text;
        case CellType::ComboBox:
            return cell.selected < 0 ? std::string() : std::to_string(cell.selected);
        case CellType::StaticText:
        case CellType::Edit:
            break;
    }
    return cell.text;
}

std::optional<double> SpreadSheet::number(int col, int row) const {
    const Cell& cell = cellAt(col, row);
    if (col > 0 && row > 0 && cell.type == CellType::Number && !editing(col, row)) {
        return cell.number;
    }
    return parseCellNumber(text(col, row));
}

void SpreadSheet::setNumber(int col, int row, double value) {
    if (!std::isfinite(value)) badValue("number");
    storeNumber(dataCellOfType(col, row, CellType::Number), value);
}

NumberFormat SpreadSheet::numberFormat(int col, int row) const {
    return dataCellOfType(col, row, CellType::Number).format;
}

void SpreadSheet::setNumberFormat(int col, int row, const NumberFormat& format) {
    if (!std::isfinite(format.min) || !std::isfinite(format.max) || format.min > format.max ||
        format.decimals < 0 || format.decimals > kMaxDecimals) {
        badValue("number format");
    }
    Cell& cell = dataCellOfType(col, row, CellType::Number);
    cell.format = format;
    if (cell.number) cell.text = formatCellNumber(*cell.number, format.decimals);
}

const std::vector<std::string>& SpreadSheet::listItems(int col, int row) const {
    requireDataCell(col, row);
    const auto it = cells_.find({col, row});
    if (it == cells_.end() || it->second.type != CellType::ComboBox) return noItems();
    return it->second.items;
}

void SpreadSheet::setListItems(int col, int row, std::vector<std::string> items) {
    Cell& cell = dataCellOfType(col, row, CellType::ComboBox);
    cell.items = std::move(items);
    selectMatching(cell);
}

void SpreadSheet::addListItem(int col, int row, std::string item) {
    Cell& cell = dataCellOfType(col, row, CellType::ComboBox);
    cell.items.push_back(std::move(item));
    selectMatching(cell);
}

void SpreadSheet::clearListItems(int col, int row) {
    setListItems(col, row, {});
}

int SpreadSheet::selectedIndex(int col, int row) const {
    requireDataCell(col, row);
    const Cell& cell = cellAt(col, row);
    return cell.type == CellType::ComboBox ? cell.selected : -1;
}

void SpreadSheet::setSelectedIndex(int col, int row, int index) {
    const Cell& current = dataCellOfType(col, row, CellType::ComboBox);
    if (index < -1 || index >= static_cast<int>(current.items.size())) {
        badValue("list index " + std::to_string(index));
    }
    Cell& cell = cellFor(col, row);
    cell.selected = index;
    cell.text = index < 0 ? std::string() : cell.items[static_cast<size_t>(index)];
}

int SpreadSheet::maxLength(int col, int row) const {
    return dataCellOfType(col, row, CellType::Edit).maxLength;
}

void SpreadSheet::setMaxLength(int col, int row, int bytes) {
    if (bytes < 0) badValue("maximum length");
    dataCellOfType(col, row, CellType::Edit).maxLength = bytes;
}

bool SpreadSheet::locked(int col, int row) const {
    requireDataCell(col, row);
    return cellAt(col, row).locked;
}

void SpreadSheet::setLocked(int col, int row, bool isLocked) {
    requireDataCell(col, row);
    cellFor(col, row).locked = isLocked;
}

void SpreadSheet::lockRange(int col1, int row1, int col2, int row2, bool isLocked) {
    requireDataCell(col1, row1);
    requireDataCell(col2, row2);
    if (col1 > col2) std::swap(col1, col2);
    if (row1 > row2) std::swap(row1, row2);
    const int64_t count = int64_t{col2 - col1 + 1} * (row2 - row1 + 1);
    if (count > kMaxRangeCells) {
        throw AutomationError(kErrOutOfMemory, Name() + ": range too large to lock");
    }
    for (int c = col1; c <= col2; ++c) {
        for (int r = row1; r <= row2; ++r)
            setLocked(c, r, isLocked);
    }
}

void SpreadSheet::lockAll(bool isLocked) {
    if (maxCols_ > 0 && maxRows_ > 0) lockRange(1, 1, maxCols_, maxRows_, isLocked);
}

int32_t SpreadSheet::backColor(int col, int row) const {
    return cellAt(col, row).backColor;
}
void SpreadSheet::setBackColor(int col, int row, int32_t color) {
    cellFor(col, row).backColor = color;
}
int32_t SpreadSheet::foreColor(int col, int row) const {
    return cellAt(col, row).foreColor;
}
void SpreadSheet::setForeColor(int col, int row, int32_t color) {
    cellFor(col, row).foreColor = color;
}
HAlign SpreadSheet::hAlign(int col, int row) const {
    return cellAt(col, row).hAlign;
}
void SpreadSheet::setHAlign(int col, int row, HAlign align) {
    cellFor(col, row).hAlign = align;
}
VAlign SpreadSheet::vAlign(int col, int row) const {
    return cellAt(col, row).vAlign;
}
void SpreadSheet::setVAlign(int col, int row, VAlign align) {
    cellFor(col, row).vAlign = align;
}

bool SpreadSheet::editableByPerson(int col, int row) const {
    if (!isDataCell(col, row)) return false;
    const Cell& cell = cellAt(col, row);
    return !cell.locked && cell.type != CellType::StaticText;
}

// ---- User actions -------------------------------------------------------------------------

bool SpreadSheet::clickCell(int col, int row) {
    if (!usable() || !inGrid(col, row)) return false;
    if (isDataCell(col, row)) {
        moveTo(col, row);
    } else {
        commitEdit(true);
    }
    // A Change handler run by the commit may have removed the cell: nothing left to click.
    if (inGrid(col, row)) Click.raise(col, row);
    return true;
}

bool SpreadSheet::chooseListItem(int col, int row, int index) {
    if (!usable() || !editableByPerson(col, row)) return false;
    const Cell& cell = cellAt(col, row);
    if (cell.type != CellType::ComboBox || index < 0 ||
        index >= static_cast<int>(cell.items.size())) {
        return false;
    }
    moveTo(col, row);
    // A Change handler run by the move may have reshaped the cell.
    if (!isDataCell(col, row) || index >= static_cast<int>(listItems(col, row).size())) {
        return false;
    }
    setSelectedIndex(col, row, index);
    ComboSelChange.raise(col, row);
    return true;
}

bool SpreadSheet::chooseListItem(int col, int row, const std::string& item) {
    if (!isDataCell(col, row)) return false;
    const int index = indexOf(listItems(col, row), item);
    return index >= 0 && chooseListItem(col, row, index);
}

bool SpreadSheet::typeIntoCell(int col, int row, const std::string& typed) {
    if (!usable() || !editableByPerson(col, row)) return false;
    if (cellAt(col, row).type == CellType::ComboBox) return false;  // drop-down lists only pick
    moveTo(col, row);
    if (!editableByPerson(col, row) || cellAt(col, row).type == CellType::ComboBox) return false;
    if (!edit_) SetEditMode(true);
    // The editor is open on (col, row) now; write without closing it.
    Cell& cell = cells_[{col, row}];
    cell.text = typed;
    if (cell.type == CellType::Edit && cell.maxLength > 0 &&
        cell.text.size() > static_cast<size_t>(cell.maxLength)) {
        cell.text.resize(static_cast<size_t>(cell.maxLength));
    }
    changed(col, row);
    return true;
}

bool SpreadSheet::pressKey(int keyCode, int shift) {
    if (!usable() || keyCode < 1 || keyCode > 255) return false;
    const int lastCol = std::max(1, maxCols_);
    const int lastRow = std::max(1, maxRows_);
    switch (keyCode) {
        case kKeyEnter:
            commitEdit(true);
            break;
        case kKeyEscape:
            cancelEdit();
            break;
        case kKeyUp:
            moveTo(activeCol_, std::max(1, activeRow_ - 1));
            break;
        case kKeyDown:
            moveTo(activeCol_, std::min(lastRow, activeRow_ + 1));
            break;
        case kKeyLeft:
            if (!edit_) moveTo(std::max(1, activeCol_ - 1), activeRow_);
            break;
        case kKeyRight:
            if (!edit_) moveTo(std::min(lastCol, activeCol_ + 1), activeRow_);
            break;
        default:
            break;
    }
    int code = keyCode;
    KeyDown.raise(code, shift);
    if (keyCode == kKeyEnter || keyCode == kKeyEscape) {
        int ascii = keyCode;
        KeyPress.raise(ascii);
    }
    return true;
}

bool SpreadSheet::leaveSheet() {
    if (!usable()) return false;
    commitEdit(true);
    Leave.raise();
    return true;
}

std::string SpreadSheet::hoverCell(int col, int row) {
    if (!usable() || !inGrid(col, row)) return {};
    std::string tip;
    bool show = true;
    TextTipFetch.raise(col, row, tip, show);
    return show ? tip : std::string();
}

}  // namespace zt::ui
