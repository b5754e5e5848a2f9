// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/accessibletable.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QItemSelectionModel>

#include <algorithm>
#include <utility>

namespace kor {

namespace {

quint64 keyOf(int row, int column)
{
    return (static_cast<quint64>(static_cast<quint32>(row)) << 32) | static_cast<quint32>(column);
}

//! One cell, of whatever table: all that it tells comes from there.
class AccessibleCell final : public QAccessibleInterface,
                             public QAccessibleTableCellInterface,
                             public QAccessibleActionInterface
{
public:
    AccessibleCell(AccessibleTable *table, QObject *view, int row, int column)
        : m_table(table), m_view(view), m_row(row), m_column(column)
    {
    }

    // The cells end with their table, which ends with its view.
    [[nodiscard]] bool isValid() const override { return m_view && m_table->hasCell(m_row, m_column); }
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QWindow *window() const override { return m_table->window(); }
    [[nodiscard]] QAccessibleInterface *parent() const override { return m_table; }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return isValid() ? m_table->cellText(m_row, m_column, kind) : QString();
    }
    // A cell is written in its editor, which judges what is typed.
    void setText(QAccessible::Text, const QString &) override {}
    [[nodiscard]] QRect rect() const override { return isValid() ? m_table->cellRect(m_row, m_column) : QRect(); }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return isValid() ? m_table->cellRole(m_row, m_column) : QAccessible::NoRole;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        if (isValid())
            return m_table->cellState(m_row, m_column);
        QAccessible::State state;
        state.invalid = true;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType kind) override
    {
        if (kind == QAccessible::TableCellInterface && m_row >= 0 && m_column >= 0)
            return static_cast<QAccessibleTableCellInterface *>(this);
        return kind == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }

    [[nodiscard]] bool isSelected() const override { return state().selected; }
    [[nodiscard]] QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        return m_table->hasTitles() ? QList{m_table->cell(-1, m_column)} : QList<QAccessibleInterface *>();
    }
    [[nodiscard]] QList<QAccessibleInterface *> rowHeaderCells() const override
    {
        return m_table->hasTitles() ? QList{m_table->cell(m_row, -1)} : QList<QAccessibleInterface *>();
    }
    [[nodiscard]] int columnIndex() const override { return m_column; }
    [[nodiscard]] int rowIndex() const override { return m_row; }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QAccessibleInterface *table() const override { return m_table; }

    [[nodiscard]] QStringList actionNames() const override
    {
        return isValid() ? m_table->cellActions(m_row, m_column) : QStringList();
    }
    void doAction(const QString &name) override
    {
        if (actionNames().contains(name))
            m_table->actOnCell(m_row, m_column, name); // after which this may be gone
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    AccessibleTable *m_table;
    QPointer<QObject> m_view;
    int m_row;
    int m_column;
};

} // namespace

AccessibleTable::AccessibleTable(QAbstractItemView *view, QAccessible::Role role)
    : AccessibleField(view, role), m_view(view)
{
}

AccessibleTable::~AccessibleTable() { forgetCells(); }

void AccessibleTable::forgetCells()
{
    for (const QAccessible::Id id : std::exchange(m_cells, {}))
        QAccessible::deleteAccessibleInterface(id);
}

// --- cells

bool AccessibleTable::hasCell(int row, int column) const
{
    const int first = -titles();
    return row >= first && column >= first && row < rowCount() && column < columnCount();
}

QAccessible::Role AccessibleTable::cellRole(int row, int column) const
{
    if (row < 0)
        return QAccessible::ColumnHeader;
    return column < 0 ? QAccessible::RowHeader : QAccessible::Cell;
}

QString AccessibleTable::cellText(int row, int column, QAccessible::Text kind) const
{
    if (kind != QAccessible::Name && kind != QAccessible::Value)
        return {};
    if (row < 0)
        return columnDescription(column);
    if (column < 0)
        return rowDescription(row);
    const QModelIndex cell = index(row, column);
    const QVariant read = kind == QAccessible::Name ? cell.data(Qt::AccessibleTextRole) : QVariant();
    return (read.isValid() ? read : cell.data(Qt::DisplayRole)).toString();
}

QAccessible::State AccessibleTable::cellState(int row, int column) const
{
    QAccessible::State state;
    state.disabled = !m_view->isEnabled();
    const QRect place = cellRect(row, column);
    const QRect room(m_view->mapToGlobal(QPoint(0, 0)), m_view->size());
    state.invisible = place.isEmpty() || !m_view->isVisible();
    state.offscreen = state.invisible || !place.intersects(room);
    if (row < 0 || column < 0)
        return state;
    const QModelIndex cell = index(row, column);
    state.focusable = true;
    state.selectable = true;
    state.selected = m_view->selectionModel()->isSelected(cell);
    state.focused = m_view->hasFocus() && m_view->currentIndex() == cell;
    return state;
}

QRect AccessibleTable::cellRect(int row, int column) const
{
    const QRect place = m_view->visualRect(index(row, column));
    return {m_view->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QStringList AccessibleTable::cellActions(int row, int column) const
{
    return row >= 0 && column >= 0 && m_view->isEnabled() ? QStringList(QAccessibleActionInterface::pressAction())
                                                          : QStringList();
}

void AccessibleTable::actOnCell(int row, int column, const QString &) { m_view->setCurrentIndex(index(row, column)); }

QAccessibleInterface *AccessibleTable::cell(int row, int column) const
{
    if (!hasCell(row, column))
        return nullptr;
    QAccessible::Id &known = m_cells[keyOf(row, column)];
    if (QAccessibleInterface *made = known ? QAccessible::accessibleInterface(known) : nullptr)
        return made;
    auto *made = new AccessibleCell(const_cast<AccessibleTable *>(this), m_view, row, column);
    known = QAccessible::registerAccessibleInterface(made);
    return made;
}

int AccessibleTable::indexOfCell(int row, int column) const
{
    return (row + titles()) * (columnCount() + titles()) + column + titles();
}

// --- the interface and its children

void *AccessibleTable::interface_cast(QAccessible::InterfaceType kind)
{
    return kind == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                               : AccessibleField::interface_cast(kind);
}

QAccessible::State AccessibleTable::state() const
{
    QAccessible::State state = AccessibleField::state();
    state.multiSelectable = m_view->selectionMode() != QAbstractItemView::SingleSelection;
    return state;
}

int AccessibleTable::childCount() const { return (rowCount() + titles()) * (columnCount() + titles()); }

QAccessibleInterface *AccessibleTable::child(int index) const
{
    const int columns = columnCount() + titles();
    return index < 0 || columns < 1 ? nullptr : cell(index / columns - titles(), index % columns - titles());
}

int AccessibleTable::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *own = dynamic_cast<const AccessibleCell *>(child);
    return own && own->table() == this ? indexOfCell(own->rowIndex(), own->columnIndex()) : -1;
}

QAccessibleInterface *AccessibleTable::childAt(int x, int y) const
{
    const QModelIndex hit = m_view->indexAt(m_view->viewport()->mapFromGlobal(QPoint(x, y)));
    return hit.isValid() ? cell(hit.row(), hit.column()) : nullptr;
}

QAccessibleInterface *AccessibleTable::focusChild() const
{
    const QModelIndex current = m_view->currentIndex();
    return m_view->hasFocus() && current.isValid() ? cell(current.row(), current.column()) : nullptr;
}

// --- the table

QAccessibleInterface *AccessibleTable::cellAt(int row, int column) const
{
    return row >= 0 && column >= 0 ? cell(row, column) : nullptr;
}

int AccessibleTable::selectedCellCount() const
{
    int count = 0;
    for (const QItemSelectionRange &range : m_view->selectionModel()->selection())
        count += range.width() * range.height();
    return count;
}

QList<QAccessibleInterface *> AccessibleTable::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    for (const QModelIndex &selected : m_view->selectionModel()->selectedIndexes())
        cells << cell(selected.row(), selected.column());
    return cells;
}

QString AccessibleTable::columnDescription(int column) const
{
    return m_view->model()->headerData(column, Qt::Horizontal).toString();
}

QString AccessibleTable::rowDescription(int row) const
{
    return m_view->model()->headerData(row, Qt::Vertical).toString();
}

int AccessibleTable::columnCount() const { return m_view->model()->columnCount(); }
int AccessibleTable::rowCount() const { return m_view->model()->rowCount(); }

QList<int> AccessibleTable::selectedColumns() const
{
    QList<int> columns;
    for (const QModelIndex &top : m_view->selectionModel()->selectedColumns())
        columns << top.column();
    return columns;
}

QList<int> AccessibleTable::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex &first : m_view->selectionModel()->selectedRows())
        rows << first.row();
    return rows;
}

bool AccessibleTable::isColumnSelected(int column) const
{
    return m_view->selectionModel()->isColumnSelected(column, QModelIndex());
}

bool AccessibleTable::isRowSelected(int row) const
{
    return m_view->selectionModel()->isRowSelected(row, QModelIndex());
}

void AccessibleTable::modelChange(QAccessibleTableModelChangeEvent *event)
{
    // Cells stand for their places, so that they outlast what comes and goes; only what is emptied needs none.
    if (event->modelChangeType() == QAccessibleTableModelChangeEvent::ModelReset)
        forgetCells();
}

void tellCurrentCell(QAbstractItemView *view)
{
    if (!QAccessible::isActive())
        return;
    // After the toolkit's own word that the view as a whole has the keyboard.
    QMetaObject::invokeMethod(
        view,
        [view] {
            QAccessibleInterface *table = QAccessible::queryAccessibleInterface(view);
            if (QAccessibleInterface *cell = table ? table->focusChild() : nullptr) {
                QAccessibleEvent event(cell, QAccessible::Focus);
                QAccessible::updateAccessibility(&event);
            }
        },
        Qt::QueuedConnection);
}

} // namespace kor
