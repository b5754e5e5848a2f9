// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ordercursor.h"
#include "orderform.h"

#include <QtWidgets/QMainWindow>

#include <functional>
#include <memory>

class QAction;

namespace kor {
class SqlDatabase;
}

namespace orders {

class ListWindow;
class OrderStore;
class Places;
class RecordWindow;

//! The order desk's window: menu, form and status bar over one store.
class OrderWindow : public QMainWindow
{
    Q_OBJECT

public:
    //! Without places, windows stand where they are put first.
    explicit OrderWindow(OrderStore &store, Places *places = nullptr);
    ~OrderWindow() override;

    [[nodiscard]] OrderForm &form() { return *m_form; }
    //! Opens the search; the order chosen there is shown.
    void search();
    //! Opens the report on what was sold.
    void report();
    //! Opens the customers, or the products, on the one that the order has.
    void keepCustomers();
    void keepProducts();
    //! Opens what the clerk can set.
    void settings();
    //! Opens the list of the orders beside this window, or brings it to the front.
    ListWindow &list();

Q_SIGNALS:
    //! An order was saved, or is gone.
    void orderChanged(qint64 id);
    //! A customer was.
    void customerChanged(qint64 id);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    //! A command of a menu, and of a button of the form; null for none.
    QAction *addCommand(QMenu *menu, const QString &text, const QKeySequence &key, const char *button,
                        const std::function<void()> &work);
    void makeOrderMenu();
    void makeMoveMenu();
    void makeOtherMenus();
    void guarded(const std::function<void()> &work);
    [[nodiscard]] bool mayLeave();
    [[nodiscard]] bool save();
    //! Saves over what another desk may have saved meanwhile; the clerk decides. False when they went back to the form.
    [[nodiscard]] bool saveChanged(Order ours);
    [[nodiscard]] bool decide(const Order &loaded, const Order &theirs, Order &ours);
    [[nodiscard]] bool saveDeleted(Order ours);
    void showSaved(const Order &saved);
    void remove();
    void addLine();
    void removeLine();
    void pasteLines();
    void exportLines();
    void printToPdf();
    void printOnPaper();
    void openOrder(qint64 id);
    void go(std::optional<qint64> id);
    void startNew();
    void showOrder(std::optional<qint64> id);
    void keepRecords(const QString &name, RecordWindow &window, std::optional<qint64> first);
    void usePreferences(const Preferences &preferences);
    void updateState();
    void about();

    OrderStore &m_store;
    Places *m_places;
    std::unique_ptr<kor::SqlDatabase> m_database;
    OrderForm *m_form;
    Preferences m_preferences;
    OrderCursor m_cursor;
    QAction *m_save = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_undo = nullptr;
    std::unique_ptr<ListWindow> m_list; //!< once it was opened
};

} // namespace orders
