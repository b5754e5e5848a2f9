// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace orders {

class OrderStore;
struct FoundOrder;

//! Finds an order by a part of its number or of its customer's name, while the clerk types.
class SearchDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SearchDialog(const OrderStore &store, QWidget *parent = nullptr);

    //! The order the clerk chose.
    [[nodiscard]] qint64 chosen() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void find();
    void fill(const QList<FoundOrder> &orders);

    const OrderStore &m_store;
    QLineEdit *m_text;
    QTreeWidget *m_list;
    QLabel *m_count;
    QPushButton *m_go;
};

} // namespace orders
