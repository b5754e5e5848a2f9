// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/accessiblefield.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtWidgets/QAbstractItemView>

namespace kor {

//! A list, a grid or a calendar as a screen reader meets it: cells by row and column, and titles where there are any.
//!
//! Rows and columns are the model's, -1 is that of the titles. A cell is told of when it is asked for, and stands for
//! its place: what is there by then is what is told. The number of cells costs nothing.
class AccessibleTable : public AccessibleField, public QAccessibleTableInterface
{
public:
    AccessibleTable(QAbstractItemView *view, QAccessible::Role role);
    ~AccessibleTable() override;

    // --- cells

    [[nodiscard]] bool hasCell(int row, int column) const;
    [[nodiscard]] virtual QAccessible::Role cellRole(int row, int column) const;
    [[nodiscard]] virtual QString cellText(int row, int column, QAccessible::Text kind) const;
    [[nodiscard]] virtual QAccessible::State cellState(int row, int column) const;
    [[nodiscard]] virtual QRect cellRect(int row, int column) const;
    [[nodiscard]] virtual QStringList cellActions(int row, int column) const;
    virtual void actOnCell(int row, int column, const QString &action);
    [[nodiscard]] QAccessibleInterface *cell(int row, int column) const;
    [[nodiscard]] int indexOfCell(int row, int column) const;

    // --- the interface and its children

    void *interface_cast(QAccessible::InterfaceType kind) override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;

    // --- the table

    [[nodiscard]] QAccessibleInterface *caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *cellAt(int row, int column) const override;
    [[nodiscard]] int selectedCellCount() const override;
    [[nodiscard]] QList<QAccessibleInterface *> selectedCells() const override;
    [[nodiscard]] QString columnDescription(int column) const override;
    [[nodiscard]] QString rowDescription(int row) const override;
    [[nodiscard]] int selectedColumnCount() const override { return static_cast<int>(selectedColumns().size()); }
    [[nodiscard]] int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    [[nodiscard]] int columnCount() const override;
    [[nodiscard]] int rowCount() const override;
    [[nodiscard]] QList<int> selectedColumns() const override;
    [[nodiscard]] QList<int> selectedRows() const override;
    [[nodiscard]] bool isColumnSelected(int column) const override;
    [[nodiscard]] bool isRowSelected(int row) const override;
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

    //! Whether there are titles, which count as cells: the toolkit numbers them in its notices.
    [[nodiscard]] virtual bool hasTitles() const { return false; }

protected:
    [[nodiscard]] QAbstractItemView *view() const { return m_view; }
    [[nodiscard]] QModelIndex index(int row, int column) const { return m_view->model()->index(row, column); }

private:
    [[nodiscard]] int titles() const { return hasTitles() ? 1 : 0; }
    void forgetCells();

    QAbstractItemView *m_view;
    mutable QHash<quint64, QAccessible::Id> m_cells; //!< those that were asked for
};

//! Tells screen readers that the keyboard is at the current cell of a view that has just been given it.
void tellCurrentCell(QAbstractItemView *view);

} // namespace kor
