#include "view/sheet_view.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidget>

#include <set>
#include <utility>

#include "view/view_units.h"

namespace zt::view {

namespace {

using ui::ControlProperty;

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

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
        });
        QObject::connect(table()->horizontalHeader(), &QHeaderView::sectionClicked, table(),
                         [this](int col) { act([this, col] { m_.clickCell(col + 1, 0); }); });
        QObject::connect(table()->verticalHeader(), &QHeaderView::sectionClicked, table(),
                         [this](int row) { act([this, row] { m_.clickCell(0, row + 1); }); });
        // A person's edit of a cell: typed into the sheet and committed with Enter.
        QObject::connect(table(), &QTableWidget::itemChanged, table(),
                         [this](QTableWidgetItem* it) {
                             if (refreshing_) return;
                             const int col = it->column() + 1;
                             const int row = it->row() + 1;
                             const std::string typed = it->text().toStdString();
                             act([&] {
                                 if (m_.typeIntoCell(col, row, typed)) m_.pressKey(ui::kKeyEnter);
                             });
                             dirty_.insert({col, row});
                             flush();
                         });
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
        if (editable && type != ui::CellType::ComboBox) flags |= Qt::ItemIsEditable;
        it->setFlags(flags);
        showListCell(col, row, editable && type == ui::CellType::ComboBox);
        refreshing_ = was;
    }

    // A list cell a person can pick from shows a drop-down list; other cells show text only.
    void showListCell(int col, int row, bool pickable) {
        auto* combo = qobject_cast<QComboBox*>(table()->cellWidget(row - 1, col - 1));
        if (!pickable) {
            if (combo) table()->removeCellWidget(row - 1, col - 1);
            return;
        }
        if (!combo) {
            combo = new QComboBox;
            combo->setObjectName(QStringLiteral("cell_%1_%2").arg(col).arg(row));
            QObject::connect(combo, &QComboBox::activated, combo, [this, col, row](int index) {
                act([this, col, row, index] { m_.chooseListItem(col, row, index); });
                dirty_.insert({col, row});
                flush();
            });
            table()->setCellWidget(row - 1, col - 1, combo);
        }
        const QSignalBlocker quiet(combo);
        const std::vector<std::string>& items = m_.listItems(col, row);
        bool same = combo->count() == static_cast<int>(items.size());
        for (int i = 0; same && i < combo->count(); ++i)
            same = combo->itemText(i) == qs(items[static_cast<size_t>(i)]);
        if (!same) {
            combo->clear();
            for (const std::string& item : items)
                combo->addItem(qs(item));
        }
        combo->setCurrentIndex(m_.selectedIndex(col, row));
        if (m_.selectedIndex(col, row) < 0) {
            combo->setPlaceholderText(qs(m_.text(col, row)));
        }
        QPalette pal = combo->palette();
        pal.setColor(QPalette::Button, toQColor(m_.backColor(col, row), table()->palette()));
        pal.setColor(QPalette::Base, toQColor(m_.backColor(col, row), table()->palette()));
        combo->setPalette(pal);
    }

    ui::SpreadSheet& m_;
    std::set<std::pair<int, int>> dirty_;
    bool headersDirty_ = false;
    bool gridDirty_ = true;
    bool refreshing_ = false;
};

}  // namespace

std::unique_ptr<ControlView> makeSheetView(ui::SpreadSheet& sheet, QWidget* parent,
                                           ViewHost& host) {
    return std::make_unique<SheetView>(sheet, parent, host);
}

}  // namespace zt::view
