// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "searchdialog.h"

#include "orderstore.h"

#include <KorDaoUC/Format>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace orders {

namespace {

constexpr int mostShown = 200;
enum Column { Number, Date, Customer, Total };

QString countText(qsizetype count)
{
    if (count == 0)
        return QStringLiteral("Nie znaleziono zamówień.");
    if (count == mostShown)
        return QStringLiteral("Pokazano %1 najnowszych; wpisz więcej, aby zawęzić.").arg(count);
    return QStringLiteral("Znaleziono: %1").arg(count);
}

} // namespace

SearchDialog::SearchDialog(const OrderStore &store, QWidget *parent)
    : QDialog(parent), m_store(store), m_text(new QLineEdit), m_list(new QTreeWidget), m_count(new QLabel)
{
    setWindowTitle(QStringLiteral("Szukaj zamówienia"));
    resize(720, 420);

    auto *label = new QLabel(QStringLiteral("&Numer lub klient:"));
    label->setBuddy(m_text);
    m_text->setClearButtonEnabled(true);
    m_text->installEventFilter(this);

    m_list->setHeaderLabels(
        {QStringLiteral("Numer"), QStringLiteral("Data"), QStringLiteral("Klient"), QStringLiteral("Wartość")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(Customer, QHeaderView::Stretch);
    m_list->headerItem()->setTextAlignment(Total, Qt::AlignRight | Qt::AlignVCenter);

    auto *buttons = new QDialogButtonBox;
    m_go = buttons->addButton(QStringLiteral("&Pokaż"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QStringLiteral("&Anuluj"), QDialogButtonBox::RejectRole);
    m_go->setDefault(true);

    auto *top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(m_text);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_count, 1);
    bottom->addWidget(buttons);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_list);
    layout->addLayout(bottom);

    connect(m_text, &QLineEdit::textChanged, this, &SearchDialog::find);
    connect(m_list, &QTreeWidget::itemActivated, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    find();
}

qint64 SearchDialog::chosen() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? item->data(Number, Qt::UserRole).value<qint64>() : 0;
}

void SearchDialog::find()
{
    m_list->clear();
    try {
        fill(m_store.find(m_text->text(), mostShown));
    } catch (const StoreError &error) {
        m_count->setText(error.text());
    }
    m_go->setEnabled(m_list->currentItem());
}

void SearchDialog::fill(const QList<FoundOrder> &orders)
{
    QList<QTreeWidgetItem *> items;
    for (const FoundOrder &found : orders) {
        const QString total = kor::Format(static_cast<double>(found.total) / 100, u"#,##0.00") + QStringLiteral(" zł");
        auto *item = new QTreeWidgetItem({found.number, kor::Format(found.date, u"Short Date"), found.customer, total});
        item->setData(Number, Qt::UserRole, found.id);
        item->setTextAlignment(Total, Qt::AlignRight | Qt::AlignVCenter);
        items << item;
    }
    m_list->addTopLevelItems(items);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_count->setText(countText(items.size()));
}

bool SearchDialog::eventFilter(QObject *watched, QEvent *event)
{
    // The arrows walk through the list while the clerk goes on typing.
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: QApplication::sendEvent(m_list, event); return true;
        default: break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace orders
