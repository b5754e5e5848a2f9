// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace orders {

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
    QString found;        //!< what the list of results is called, for who hears it
    QString nothing;      //!< in place of the number of results
    int mostShown = 200;  //!< the clerk narrows the search for the others
    std::function<QList<Row>(const QString &text, int atMost)> find;
};

//! Finds some of many while the clerk types, and lets them walk among these without leaving the field they type into.
class FoundList : public QWidget
{
    Q_OBJECT

public:
    explicit FoundList(SearchSubject subject, QWidget *parent = nullptr);

    //! Searches for a text, which the clerk may type over. Nothing is searched for anew that is searched for already.
    void search(const QString &text);
    //! Reads the list anew. It stays on the row that it is on, or where that was.
    void refresh();
    //! The one that the list is on; 0 for none.
    [[nodiscard]] qint64 chosen() const;
    //! Goes to one of those found. The list is on none when it was not found, which is false.
    bool choose(qint64 id);

Q_SIGNALS:
    //! The list has come to another one, or to none.
    void chosenChanged();
    //! Enter, or a double click.
    void taken();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QTreeWidgetItem *itemOf(qint64 id) const;
    void fill(const std::function<QTreeWidgetItem *()> &next);
    void add(const QList<SearchSubject::Row> &rows);

    SearchSubject m_subject;
    QLineEdit *m_text;
    QTreeWidget *m_list;
    QLabel *m_count;
    bool m_isFilling = false;
};

} // namespace orders
