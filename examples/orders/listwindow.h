// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "listrows.h"

#include <QtWidgets/QDialog>

class KorGrid;
class QLabel;
class QMenuBar;
class QStatusBar;

namespace kor {
class Database;
}

namespace orders {

class FilterPane;
class OrderStore;
class Places;

//! The list of the orders with its filter: a window of its own beside that of the order, which opens what is chosen
//! here.
class ListWindow : public QDialog
{
    Q_OBJECT

public:
    //! Without places, window and filter are as they are first.
    ListWindow(const OrderStore &store, kor::Database &database, Places *places = nullptr);
    ~ListWindow() override;

    //! Comes to the front; when it was closed, with the orders of the filter as it was left.
    void present();
    //! Reads the orders of the filter. False when a field is wrong, the database does not answer, or the clerk stopped
    //! it; the list stays as it was then.
    bool refresh();
    //! An order was saved or removed: its row follows.
    void follow(qint64 id);
    //! A customer was: the rows of their orders do, and the customers of the filter.
    void followCustomer(qint64 id);

    void done(int result) override;

Q_SIGNALS:
    void orderChosen(qint64 id);

private:
    void makeMenus();
    void restore();
    void keep();
    void clearFilter();
    [[nodiscard]] std::optional<OrderList> read(const OrderFilter &filter);
    //! Fills the grid; with the first of the orders only when the clerk stops that.
    void fill(QList<ListedOrder> orders);
    void sortAgain();
    void followAll(const QList<qint64> &ids);
    void followMissed();
    void sayMissed();
    void showSums();
    void exportRows();
    void printToPdf();
    void savePdf(const QString &fileName);
    void say(const QString &text);

    const OrderStore &m_store;
    Places *m_places;
    QMenuBar *m_menus;
    FilterPane *m_filter;
    KorGrid *m_grid;
    ListRows *m_rows;
    QStatusBar *m_status;
    QLabel *m_sums;
    OrderFilter m_shown; //!< whose orders are shown
    QStringList m_limits;
    qint64 m_all = 0;
    bool m_isBusy = false;  //!< a long work is under way
    QList<qint64> m_missed; //!< orders that were saved meanwhile
};

} // namespace orders
