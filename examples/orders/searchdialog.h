// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace orders {

class OrderStore;

//! What a search is for, and how its results are shown.
struct SearchSubject {
    struct Row {
        qint64 id = 0;
        QStringList texts; //!< for each column
    };

    QString title;
    QString label;  //!< of the field to type into
    QString accept; //!< on the button
    QStringList columns;
    int wideColumn = 0;
    int rightColumn = -1; //!< the one with amounts
    QString nothing;      //!< in place of the number of results
    int mostShown = 200;  //!< the clerk narrows the search for the others
    std::function<QList<Row>(const QString &text, int atMost)> find;
};

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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void find();
    void fill(const QList<SearchSubject::Row> &rows);

    SearchSubject m_subject;
    QLineEdit *m_text;
    QTreeWidget *m_list;
    QLabel *m_count;
    QPushButton *m_go;
};

} // namespace orders
