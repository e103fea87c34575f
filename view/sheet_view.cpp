#include "view/sheet_view.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QTimer>

#include <set>
#include <utility>

#include "view/control_kinds.h"
#include "view/view_units.h"

namespace zt::view {

namespace {

using ui::ControlProperty;

Qt::Alignment alignmentOf(const ui::SpreadSheet& sheet, int col, int row) {
    Qt::Alignment h = Qt::AlignLeft;
    switch (sheet.hAlign(col, row)) {
        case ui::HAlign::General:
            h = sheet.cellType(col, row) == ui::CellType::Number ? Qt::AlignRight : Qt::AlignLeft;
            break;
        case ui::HAlign::Left:
            h = Qt::AlignLeft;
            break;
        case ui::HAlign::Center:
            h = Qt::AlignHCenter;
            break;
        case ui::HAlign::Right:
            h = Qt::AlignRight;
            break;
    }
    const ui::VAlign v = sheet.vAlign(col, row);
    return h | (v == ui::VAlign::Top      ? Qt::AlignTop
                : v == ui::VAlign::Bottom ? Qt::AlignBottom
                                          : Qt::AlignVCenter);
}

class SheetView;

// Cell editors: a drop-down list for list cells, a line for text and number cells. What a
// person enters goes to the sheet's user actions, never into the table directly; the table
// then shows what the sheet made of it.
class CellDelegate : public QStyledItemDelegate {
  public:
    CellDelegate(SheetView& view, QObject* parent) : QStyledItemDelegate(parent), view_(view) {}
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

  private:
    SheetView& view_;
};

class SheetView : public ControlView {
  public:
    SheetView(ui::SpreadSheet& m, QWidget* parent, ViewHost& host)
        : ControlView(m, new QTableWidget(parent), host), m_(m) {
        table()->setSelectionMode(QAbstractItemView::SingleSelection);
        table()->setEditTriggers(QAbstractItemView::DoubleClicked |
                                 QAbstractItemView::EditKeyPressed |
                                 QAbstractItemView::AnyKeyPressed);
        table()->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        table()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        QObject::connect(table(), &QTableWidget::cellClicked, table(), [this](int row, int col) {
            act([this, row, col] { m_.clickCell(col + 1, row + 1); });
            // A click on a list cell a person can pick from drops its list down.
            if (pickable(col + 1, row + 1)) table()->editItem(table()->item(row, col));
        });
        QObject::connect(table()->horizontalHeader(), &QHeaderView::sectionClicked, table(),
                         [this](int col) { act([this, col] { m_.clickCell(col + 1, 0); }); });
        QObject::connect(table()->verticalHeader(), &QHeaderView::sectionClicked, table(),
                         [this](int row) { act([this, row] { m_.clickCell(0, row + 1); }); });
        table()->setItemDelegate(new CellDelegate(*this, table()));
        // The focus going elsewhere than the table or its editors ends editing on the sheet.
        QObject::connect(qApp, &QApplication::focusChanged, table(),
                         [this](QWidget* from, QWidget* to) {
                             if (!within(from) || within(to)) return;
                             act([this] { m_.leaveSheet(); });
                         });
    }

    void cellChanged(ui::ControlBase&, int col, int row) override {
        if (col >= 1 && row >= 1) {
            dirty_.insert({col, row});
        } else {
            headersDirty_ = true;
        }
        host().scheduleFlush();
    }

    void flush() override {
        if (gridDirty_) {
            showGrid();
            return;
        }
        if (headersDirty_) showHeaders();
        const std::set<std::pair<int, int>> cells = std::exchange(dirty_, {});
        for (const auto& [col, row] : cells)
            showCell(col, row);
    }

  protected:
    void showContent(ControlProperty what) override {
        if (what != ControlProperty::Cells && what != ControlProperty::List) return;
        gridDirty_ = true;
        host().scheduleFlush();
    }
    void showColors() override {}

  public:
    bool pickable(int col, int row) const {
        return col <= m_.MaxCols() && row <= m_.MaxRows() && m_.editableByPerson(col, row) &&
               m_.cellType(col, row) == ui::CellType::ComboBox;
    }
    const ui::SpreadSheet& sheet() const { return m_; }
    // A person picked item `index` of the list of (col, row).
    void pick(int col, int row, int index) {
        act([&] { m_.chooseListItem(col, row, index); });
        dirty_.insert({col, row});
        flush();
    }
    // A person typed `text` into (col, row) and pressed Enter.
    void type(int col, int row, const std::string& text) {
        act([&] {
            if (m_.typeIntoCell(col, row, text)) m_.pressKey(ui::kKeyEnter);
        });
        dirty_.insert({col, row});
        flush();
    }

  private:
    QTableWidget* table() const { return static_cast<QTableWidget*>(widget()); }

    bool within(QWidget* w) const {
        for (; w; w = w->parentWidget()) {
            if (w == table()) return true;
        }
        return false;
    }

    void showGrid() {
        gridDirty_ = false;
        dirty_.clear();
        const bool was = std::exchange(refreshing_, true);
        table()->setColumnCount(m_.MaxCols());
        table()->setRowCount(m_.MaxRows());
        showHeaders();
        for (int col = 1; col <= m_.MaxCols(); ++col)
            table()->setColumnWidth(col - 1, toPixels(m_.ColWidth(col)));
        for (int row = 1; row <= m_.MaxRows(); ++row)
            table()->setRowHeight(row - 1, std::max(toPixels(m_.RowHeight(row)), 1));
        table()->verticalHeader()->setFixedWidth(toPixels(m_.ColWidth(0)));
        table()->horizontalHeader()->setFixedHeight(std::max(toPixels(m_.RowHeight(0)), 1));
        for (int row = 1; row <= m_.MaxRows(); ++row) {
            for (int col = 1; col <= m_.MaxCols(); ++col)
                showCell(col, row);
        }
        refreshing_ = was;
    }

    void showHeaders() {
        headersDirty_ = false;
        QStringList columns;
        for (int col = 1; col <= m_.MaxCols(); ++col)
            columns << qs(m_.text(col, 0));
        QStringList rows;
        for (int row = 1; row <= m_.MaxRows(); ++row)
            rows << qs(m_.text(0, row));
        table()->setHorizontalHeaderLabels(columns);
        table()->setVerticalHeaderLabels(rows);
    }

    void showCell(int col, int row) {
        if (col > m_.MaxCols() || row > m_.MaxRows()) return;
        const bool was = std::exchange(refreshing_, true);
        const QSignalBlocker quiet(table());
        QTableWidgetItem* it = table()->item(row - 1, col - 1);
        if (!it) {
            it = new QTableWidgetItem;
            table()->setItem(row - 1, col - 1, it);
        }
        const QPalette& pal = table()->palette();
        it->setText(qs(m_.text(col, row)));
        it->setBackground(toQColor(m_.backColor(col, row), pal));
        it->setForeground(toQColor(m_.foreColor(col, row), pal));
        it->setTextAlignment(alignmentOf(m_, col, row));
        const ui::CellType type = m_.cellType(col, row);
        const bool editable = m_.editableByPerson(col, row);
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        if (editable && type != ui::CellType::StaticText) flags |= Qt::ItemIsEditable;
        it->setFlags(flags);
        refreshing_ = was;
    }

    ui::SpreadSheet& m_;
    std::set<std::pair<int, int>> dirty_;
    bool headersDirty_ = false;
    bool gridDirty_ = true;
    bool refreshing_ = false;
};

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    const int col = index.column() + 1;
    const int row = index.row() + 1;
    if (!view_.pickable(col, row)) return QStyledItemDelegate::createEditor(parent, option, index);
    auto* combo = new QComboBox(parent);
    combo->setObjectName(QStringLiteral("cell_%1_%2").arg(col).arg(row));
    for (const std::string& item : view_.sheet().listItems(col, row))
        combo->addItem(qs(item));
    combo->setCurrentIndex(view_.sheet().selectedIndex(col, row));
    auto* self = const_cast<CellDelegate*>(this);
    QObject::connect(combo, &QComboBox::activated, combo, [self, combo](int picked) {
        // Picking closes the list and hands the pick to the sheet (setModelData).
        combo->setProperty("picked", picked);
        emit self->commitData(combo);
        emit self->closeEditor(combo);
    });
    QTimer::singleShot(0, combo, [combo] { combo->showPopup(); });
    return combo;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    if (qobject_cast<QComboBox*>(editor)) return;  // set up with the list
    auto* line = qobject_cast<QLineEdit*>(editor);
    if (line) line->setText(qs(view_.sheet().text(index.column() + 1, index.row() + 1)));
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel*,
                                const QModelIndex& index) const {
    const int col = index.column() + 1;
    const int row = index.row() + 1;
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        const QVariant picked = combo->property("picked");
        if (picked.isValid()) view_.pick(col, row, picked.toInt());
        return;
    }
    if (auto* line = qobject_cast<QLineEdit*>(editor))
        view_.type(col, row, line->text().toStdString());
}

}  // namespace

std::unique_ptr<ControlView> makeSheetView(ui::SpreadSheet& sheet, QWidget* parent,
                                           ViewHost& host) {
    return std::make_unique<SheetView>(sheet, parent, host);
}

}  // namespace zt::view
