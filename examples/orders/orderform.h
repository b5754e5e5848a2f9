// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue.h"
#include "loadedform.h"
#include "order.h"
#include "orderpaper.h"
#include "preferences.h"

#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

class KorClick;
class KorColor;
class KorCombo;
class KorDate;
class KorList;
class KorListCheck;
class KorMultiText;
class KorNumber;
class KorUpDown;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kor {
class Database;
}

namespace orders {

class OrderLines;
class OrderStore;

//! The order as the clerk sees it: the controls of the form file, and the way from an order to them and back.
class OrderForm : public QWidget
{
    Q_OBJECT

public:
    //! Builds the form. Raises std::runtime_error when the form file does not fit the program.
    OrderForm(const OrderStore &store, kor::Database &database, QWidget *parent = nullptr);
    ~OrderForm() override;

    //! Shows an order; from now on it counts as unchanged.
    void setOrder(const Order &order);
    //! The order as it stands in the fields now.
    [[nodiscard]] Order order() const;
    //! Whether the clerk has changed anything since setOrder().
    [[nodiscard]] bool isChanged() const;
    //! The order as it was given to setOrder().
    [[nodiscard]] const Order &loaded() const { return m_loaded; }
    //! What a field is called on the form, and how its value is shown there; "" for none.
    [[nodiscard]] QString nameOf(OrderField field) const;
    [[nodiscard]] QString textOf(OrderField field, const Order &order) const;

    void setPosition(const QString &text);
    //! What the clerk has set holds from now on.
    void setPreferences(const Preferences &preferences);
    //! Marks an order with unsaved changes.
    void markUnsaved(bool isUnsaved);
    //! Puts the cursor where a new order begins, or where one must be mended.
    void focusFirstField();
    void focusField(const OrderProblem &problem);
    [[nodiscard]] OrderLines &lines() { return *m_lines; }
    //! Asks for a file and saves the lines there, their sums below them. What to say of it, "" for nothing.
    [[nodiscard]] QString exportLines();
    //! The order in the fields as it is printed. Raises StoreError.
    [[nodiscard]] OrderPaper paper() const;
    //! Reads anew what the form shows of customers and products. What was typed stays, and what was agreed of products.
    //! False when the customer of the order is gone. Raises StoreError.
    [[nodiscard]] bool refreshDictionaries();
    //! All that a line says, for the question whether to delete it.
    [[nodiscard]] QString textOf(const OrderLine &line) const;

    [[nodiscard]] QPushButton *button(const char *name) const;

Q_SIGNALS:
    //! The order in the fields has changed.
    void edited();

private:
    void connectFields();
    void showAddress();
    void showDue();
    void chooseCustomer();
    //! Lists the customers of the checked groups, all of them while none is checked. One customer is always among them.
    void offerCustomers(std::optional<qint64> kept);
    void showOrdersOfCustomer();
    void showSums();
    //! What the fields say, with what they round and can't show.
    [[nodiscard]] Order read() const;
    //! The field's widget; the lines have cells instead.
    [[nodiscard]] QWidget *widgetOf(OrderField field) const;

    const OrderStore &m_store;
    Catalogue m_catalogue;
    LoadedForm m_form;
    Preferences m_preferences;
    Order m_loaded;
    Order m_unchanged; //!< as the fields gave it back
    KorCombo *m_customer = nullptr;
    KorCombo *m_terms = nullptr;
    KorDate *m_date = nullptr;
    KorDate *m_delivery = nullptr;
    KorNumber *m_discount = nullptr;
    KorNumber *m_total = nullptr;
    KorNumber *m_advance = nullptr;
    KorNumber *m_due = nullptr;
    QLineEdit *m_number = nullptr;
    KorClick *m_address = nullptr;
    KorUpDown *m_priority = nullptr;
    KorMultiText *m_remarks = nullptr;
    KorColor *m_color = nullptr;
    KorListCheck *m_groups = nullptr;
    KorList *m_orders = nullptr;
    KorNumber *m_quantity = nullptr;
    KorNumber *m_net = nullptr;
    OrderLines *m_lines = nullptr;
    QLabel *m_position = nullptr;
};

} // namespace orders
