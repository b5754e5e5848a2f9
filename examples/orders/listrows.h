// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "orderlist.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

class KorGrid;
class QHeaderView;
class QTableView;

namespace orders {

//! The columns of a list of orders. The running number stands in the fixed one.
enum class ListColumn { Place, Number, Date, Customer, Terms, Delivery, Priority, Net, Total, Due, Remarks };

//! What a column of an order says.
[[nodiscard]] QString textOf(const ListedOrder &order, ListColumn column);

//! Orders as the rows of a grid, to be read and chosen from. They are sorted by the column whose title has the arrow; a
//! click on another title sorts by that one.
class ListRows : public QObject
{
    Q_OBJECT

public:
    ListRows(KorGrid *grid, QObject *parent);

    //! Shows these orders, sorted as those before. The cursor stays on its order, as far as that is among them. False
    //! when it was stopped; the first of the orders are shown then, and no others are there.
    bool setOrders(QList<ListedOrder> orders, const MayGoOn &mayGoOn);
    //! As they are shown.
    [[nodiscard]] const QList<ListedOrder> &orders() const { return m_orders; }
    //! The order with the cursor.
    [[nodiscard]] std::optional<qint64> current() const;
    void goTo(qint64 id);

    //! These orders were saved or removed, and this is how those of them are that are to be shown now. One that is
    //! there is changed in its row, so that nothing moves under the clerk's eyes; a new one comes to its place, or
    //! behind a long list, of which no row is moved.
    void follow(const QList<qint64> &saved, const QList<ListedOrder> &shown);

    //! What the arrow says.
    [[nodiscard]] ListColumn sortColumn() const;
    [[nodiscard]] Qt::SortOrder sortOrder() const;
    void setSort(ListColumn column, Qt::SortOrder order);
    //! Sorts by the column with the cursor; the other way round when it is that one already.
    void sortByCurrent();

Q_SIGNALS:
    //! Enter, or a double click.
    void chosen(qint64 id);
    //! Another order is asked for by the arrow in the titles.
    void sortAsked();

private:
    void addColumns();
    void sort();
    void showRow(int row, const ListedOrder &order);
    void add(const QList<ListedOrder> &orders);
    void remove(const QList<qsizetype> &places);
    void choose();
    [[nodiscard]] qsizetype placeOf(qint64 id) const;

    KorGrid *m_grid;
    QTableView *m_view;
    QHeaderView *m_titles;
    QList<ListedOrder> m_orders;
    std::optional<qint64> m_stood; //!< the order with the cursor when a title was pressed, which moves it
    bool m_isOnTitles = false;     //!< the last press of the mouse
};

} // namespace orders
