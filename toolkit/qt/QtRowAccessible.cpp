/// @file
/// Qt's own table for item views reads the selection model and headers that our views don't rely on; this one
/// asks the control. Only cells that somebody asked for exist, until the rows change.
#include "toolkit/qt/QtRowAccessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>
#include <algorithm>

#include "toolkit/qt/QtRowView.h"

namespace vapp_qt {

namespace {

class CellAccessible : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    CellAccessible(QtRowView* view, int row, int column) : m_view(view), m_row(row), m_column(column) {}

    [[nodiscard]] bool isValid() const override {
        return m_view && m_view->Control() != nullptr && Index().isValid();
    }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override {
        return m_view ? m_view->window()->windowHandle() : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override { return table(); }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid()) return {};
        return m_view->model()->data(Index(), Qt::AccessibleTextRole).toString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Cell; }
    [[nodiscard]] QAccessible::State state() const override;

    [[nodiscard]] bool isSelected() const override {
        return isValid() && m_view->Control()->Selection().Contains(m_row);
    }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    [[nodiscard]] int columnIndex() const override { return m_column; }
    [[nodiscard]] int rowIndex() const override { return m_row; }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* table() const override {
        return m_view ? QAccessible::queryAccessibleInterface(m_view.data()) : nullptr;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                       : nullptr;
    }

private:
    [[nodiscard]] QModelIndex Index() const {
        return m_view->model() != nullptr ? m_view->model()->index(m_row, m_column) : QModelIndex();
    }

    QPointer<QtRowView> m_view;
    int m_row;
    int m_column;
};

QRect CellAccessible::rect() const {
    if (!isValid()) return {};
    const QRect place = m_view->visualRect(Index());
    return {m_view->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State CellAccessible::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.multiSelectable = true;
    state.focusable = true;
    state.readOnly = true;
    state.selected = isSelected();
    state.focused = m_view->hasFocus() && m_column == 0 && m_view->Control()->FocusedRow() == m_row;
    state.offscreen = !m_view->viewport()->rect().intersects(m_view->visualRect(Index()));
    state.invisible = !m_view->isVisible();
    return state;
}

class TableAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit TableAccessible(QtRowView* view) : QAccessibleWidget(view, QAccessible::Table) {}
    ~TableAccessible() override { ForgetCells(); }

    [[nodiscard]] int childCount() const override { return rowCount() * columnCount(); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        const int columns = columnCount();
        return columns > 0 && index >= 0 ? cellAt(index / columns, index % columns) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override;
    [[nodiscard]] int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
    [[nodiscard]] QString columnDescription(int column) const override {
        return View() != nullptr ? View()->model()->headerData(column, Qt::Horizontal).toString() : QString();
    }
    [[nodiscard]] QString rowDescription(int /*row*/) const override { return {}; }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedRowCount() const override {
        return Control() != nullptr ? static_cast<int>(Control()->Selection().GetCount()) : 0;
    }
    [[nodiscard]] int columnCount() const override {
        return Control() != nullptr ? View()->model()->columnCount() : 0;
    }
    [[nodiscard]] int rowCount() const override {
        return Control() != nullptr ? View()->model()->rowCount() : 0;
    }
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override;
    [[nodiscard]] bool isColumnSelected(int /*column*/) const override { return false; }
    [[nodiscard]] bool isRowSelected(int row) const override {
        return Control() != nullptr && Control()->Selection().Contains(row);
    }
    bool selectRow(int row) override;
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int row) override;
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override { ForgetCells(); }

private:
    [[nodiscard]] QtRowView* View() const { return static_cast<QtRowView*>(object()); }
    [[nodiscard]] QtRowControl* Control() const {
        return View() != nullptr && View()->model() != nullptr ? View()->Control() : nullptr;
    }
    void ForgetCells();

    mutable QHash<qint64, QAccessible::Id> m_cells;
};

int TableAccessible::indexOfChild(const QAccessibleInterface* child) const {
    auto* cell = const_cast<QAccessibleInterface*>(child)->tableCellInterface();
    return cell != nullptr ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
}

QAccessibleInterface* TableAccessible::childAt(int x, int y) const {
    if (Control() == nullptr) return nullptr;
    const QModelIndex index = View()->indexAt(View()->viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? cellAt(index.row(), index.column()) : nullptr;
}

QAccessibleInterface* TableAccessible::focusChild() const {
    return Control() != nullptr ? cellAt(Control()->FocusedRow(), 0) : nullptr;
}

QAccessibleInterface* TableAccessible::cellAt(int row, int column) const {
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
    const qint64 key = (static_cast<qint64>(row) << 32U) + column;
    if (const auto known = m_cells.constFind(key); known != m_cells.constEnd()) {
        return QAccessible::accessibleInterface(known.value());
    }
    auto* cell = new CellAccessible(View(), row, column);
    m_cells.insert(key, QAccessible::registerAccessibleInterface(cell));
    return cell;
}

// Those on the screen: "all of a million rows" as objects would end the program that asks.
QList<QAccessibleInterface*> TableAccessible::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    if (Control() == nullptr) return cells;
    const int top = Control()->TopRow();
    for (int row = top; row <= top + Control()->PageRows(); ++row) {
        for (int column = 0; column < columnCount() && isRowSelected(row); ++column) {
            if (QAccessibleInterface* cell = cellAt(row, column)) cells.append(cell);
        }
    }
    return cells;
}

QList<int> TableAccessible::selectedRows() const {
    QList<int> rows;
    if (Control() == nullptr) return rows;
    for (const RowSelection::Range& range : Control()->Selection().GetRanges()) {
        for (int row = range.first; row <= range.last; ++row)
            rows.append(row);
    }
    return rows;
}

bool TableAccessible::selectRow(int row) {
    if (row < 0 || row >= rowCount()) return false;
    Control()->Click(row, {.shift = false, .control = !isRowSelected(row)});
    return true;
}

bool TableAccessible::unselectRow(int row) {
    if (!isRowSelected(row)) return false;
    Control()->Click(row, {.shift = false, .control = true});
    return true;
}

void TableAccessible::ForgetCells() {
    const QHash<qint64, QAccessible::Id> cells = std::exchange(m_cells, {});
    for (const QAccessible::Id id : cells)
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
    auto* view = qobject_cast<QtRowView*>(object);
    return view != nullptr ? new TableAccessible(view) : nullptr;
}

}  // namespace

void gInstallRowAccessibility() {
    QAccessible::installFactory(&MakeAccessible);
}

}  // namespace vapp_qt
