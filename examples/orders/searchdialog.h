// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "foundlist.h"

#include <QtWidgets/QDialog>

namespace orders {

class OrderStore;

//! The orders, by a part of their number or of their customer's name.
[[nodiscard]] SearchSubject ordersToSearch(const OrderStore &store);
//! The customers, by a part of their name or tax number.
[[nodiscard]] SearchSubject customersToSearch(const OrderStore &store);

//! Finds one of many while the clerk types.
class SearchDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SearchDialog(SearchSubject subject, QWidget *parent = nullptr);

    //! Searches for a text, which the clerk may type over.
    void search(const QString &text);
    //! The one that the clerk chose.
    [[nodiscard]] qint64 chosen() const;

private:
    FoundList *m_list;
};

} // namespace orders
