// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "foundlist.h"

#include "statement.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <utility>

namespace orders {

FoundList::FoundList(SearchSubject subject, QWidget *parent)
    : QWidget(parent),
      m_subject(std::move(subject)),
      m_text(new QLineEdit),
      m_list(new QTreeWidget),
      m_count(new QLabel)
{
    auto *label = new QLabel(m_subject.label);
    label->setBuddy(m_text);
    m_text->setClearButtonEnabled(true);
    m_text->installEventFilter(this);
    m_list->installEventFilter(this);
    m_list->setAccessibleName(m_subject.found);

    m_list->setHeaderLabels(m_subject.columns);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(m_subject.wideColumn, QHeaderView::Stretch);
    if (m_subject.rightColumn >= 0)
        m_list->headerItem()->setTextAlignment(m_subject.rightColumn, Qt::AlignRight | Qt::AlignVCenter);

    auto *top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(m_text);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_list);
    layout->addWidget(m_count);
    setFocusProxy(m_text);

    connect(m_text, &QLineEdit::textChanged, this, [this] { fill([this] { return m_list->topLevelItem(0); }); });
    connect(m_list, &QTreeWidget::currentItemChanged, this, [this] {
        if (!m_isFilling)
            Q_EMIT chosenChanged();
    });
    connect(m_list, &QTreeWidget::itemActivated, this, &FoundList::taken);
    fill([this] { return m_list->topLevelItem(0); });
}

void FoundList::search(const QString &text)
{
    m_text->setText(text);
    m_text->selectAll();
}

void FoundList::refresh()
{
    const qint64 before = chosen();
    const int place = m_list->indexOfTopLevelItem(m_list->currentItem());
    fill([this, before, place] {
        QTreeWidgetItem *same = itemOf(before);
        return same ? same : m_list->topLevelItem(std::min(place, m_list->topLevelItemCount() - 1));
    });
}

qint64 FoundList::chosen() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? item->data(0, Qt::UserRole).value<qint64>() : 0;
}

bool FoundList::choose(qint64 id)
{
    QTreeWidgetItem *item = itemOf(id);
    m_list->setCurrentItem(item);
    return item;
}

QTreeWidgetItem *FoundList::itemOf(qint64 id) const
{
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        if (m_list->topLevelItem(row)->data(0, Qt::UserRole).value<qint64>() == id)
            return m_list->topLevelItem(row);
    }
    return nullptr;
}

//! Reads the list and goes to the item that is told then.
void FoundList::fill(const std::function<QTreeWidgetItem *()> &next)
{
    const qint64 before = chosen();
    {
        const QScopedValueRollback filling(m_isFilling, true);
        m_list->clear();
        try {
            add(m_subject.find(m_text->text(), m_subject.mostShown));
        } catch (const StoreError &error) {
            m_count->setText(error.text());
        }
        m_list->setCurrentItem(next());
    }
    if (chosen() != before)
        Q_EMIT chosenChanged();
}

void FoundList::add(const QList<SearchSubject::Row> &rows)
{
    QList<QTreeWidgetItem *> items;
    for (const SearchSubject::Row &row : rows) {
        auto *item = new QTreeWidgetItem(row.texts);
        item->setData(0, Qt::UserRole, row.id);
        if (m_subject.rightColumn >= 0)
            item->setTextAlignment(m_subject.rightColumn, Qt::AlignRight | Qt::AlignVCenter);
        items << item;
    }
    m_list->addTopLevelItems(items);
    if (items.isEmpty())
        m_count->setText(m_subject.nothing);
    else if (items.size() == m_subject.mostShown)
        m_count->setText(QStringLiteral("Pokazano pierwsze %1; wpisz więcej, aby zawęzić.").arg(m_subject.mostShown));
    else
        m_count->setText(QStringLiteral("Znaleziono: %1").arg(items.size()));
}

bool FoundList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: Q_EMIT taken(); return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (watched != m_text)
            break;
        QApplication::sendEvent(m_list, event); // the arrows walk through the list while the clerk goes on typing
        return true;
    default: break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace orders
