// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "loadedform.h"
#include "orderfilter.h"

#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

class KorCombo;
class KorDate;
class KorListCheck;
class KorNumber;
class QLineEdit;

namespace kor {
class Database;
}

namespace orders {

class OrderStore;

//! The fields of a filter over the orders.
class FilterPane : public QWidget
{
    Q_OBJECT

public:
    //! Builds the form. Raises std::runtime_error when the form file does not fit the program.
    FilterPane(const OrderStore &store, kor::Database &database, QWidget *parent = nullptr);

    [[nodiscard]] OrderFilter filter() const;
    void setFilter(const OrderFilter &filter);
    //! One line for each limit, "Data od: 01.01.2026".
    [[nodiscard]] QStringList texts() const;
    void focusField(FilterField field);
    //! Reads the lists of groups and customers anew; they stay as they are while the database does not answer.
    void refreshLists();

Q_SIGNALS:
    //! The orders of the filter are to be shown.
    void asked();
    void clearAsked();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void offerCustomers();
    [[nodiscard]] QWidget *widgetOf(FilterField field) const;

    const OrderStore &m_store;
    LoadedForm m_form;
    KorDate *m_from;
    KorDate *m_to;
    KorNumber *m_least;
    KorNumber *m_most;
    QLineEdit *m_text;
    KorCombo *m_group;
    KorCombo *m_customer;
    KorListCheck *m_terms;
};

} // namespace orders
