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

#include <utility>

namespace orders {

namespace {

QString orderTotal(const FoundOrder &order)
{
    if (!order.total)
        return {};
    return kor::Format(static_cast<double>(*order.total) / 100, u"#,##0.00") + QStringLiteral(" zł");
}

} // namespace

SearchSubject ordersToSearch(const OrderStore &store)
{
    SearchSubject subject;
    subject.title = QStringLiteral("Szukaj zamówienia");
    subject.label = QStringLiteral("&Numer lub klient:");
    subject.accept = QStringLiteral("&Pokaż");
    subject.columns = QStringList{QStringLiteral("Numer"), QStringLiteral("Data"), QStringLiteral("Klient"),
                                  QStringLiteral("Wartość")};
    subject.wideColumn = 2;
    subject.rightColumn = 3;
    subject.nothing = QStringLiteral("Nie znaleziono zamówień.");
    subject.find = [&store](const QString &text, int atMost) {
        QList<SearchSubject::Row> rows;
        for (const FoundOrder &found : store.find(text, atMost)) {
            rows.append({found.id, QStringList{found.number, kor::Format(found.date, u"Short Date"), found.customer,
                                               orderTotal(found)}});
        }
        return rows;
    };
    return subject;
}

SearchSubject customersToSearch(const OrderStore &store)
{
    SearchSubject subject;
    subject.title = QStringLiteral("Wybierz klienta");
    subject.label = QStringLiteral("&Nazwa lub NIP:");
    subject.accept = QStringLiteral("&Wybierz");
    subject.columns = QStringList{QStringLiteral("Klient"), QStringLiteral("Miejscowość"), QStringLiteral("NIP")};
    subject.nothing = QStringLiteral("Nie znaleziono klientów.");
    subject.mostShown = 10000; // all of them: the list is there to be looked through
    subject.find = [&store](const QString &text, int atMost) {
        QList<SearchSubject::Row> rows;
        for (const FoundCustomer &found : store.findCustomers(text, atMost))
            rows.append({found.id, QStringList{found.name, found.city, found.nip}});
        return rows;
    };
    return subject;
}

SearchDialog::SearchDialog(SearchSubject subject, QWidget *parent)
    : QDialog(parent),
      m_subject(std::move(subject)),
      m_text(new QLineEdit),
      m_list(new QTreeWidget),
      m_count(new QLabel)
{
    setWindowTitle(m_subject.title);
    resize(720, 420);

    auto *label = new QLabel(m_subject.label);
    label->setBuddy(m_text);
    m_text->setClearButtonEnabled(true);
    m_text->installEventFilter(this);

    m_list->setHeaderLabels(m_subject.columns);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(m_subject.wideColumn, QHeaderView::Stretch);
    if (m_subject.rightColumn >= 0)
        m_list->headerItem()->setTextAlignment(m_subject.rightColumn, Qt::AlignRight | Qt::AlignVCenter);

    auto *buttons = new QDialogButtonBox;
    m_go = buttons->addButton(m_subject.accept, QDialogButtonBox::AcceptRole);
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

void SearchDialog::search(const QString &text)
{
    m_text->setText(text);
    m_text->selectAll();
}

qint64 SearchDialog::chosen() const
{
    const QTreeWidgetItem *item = m_list->currentItem();
    return item ? item->data(0, Qt::UserRole).value<qint64>() : 0;
}

void SearchDialog::find()
{
    m_list->clear();
    try {
        fill(m_subject.find(m_text->text(), m_subject.mostShown));
    } catch (const StoreError &error) {
        m_count->setText(error.text());
    }
    m_go->setEnabled(m_list->currentItem());
}

void SearchDialog::fill(const QList<SearchSubject::Row> &rows)
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
    m_list->setCurrentItem(m_list->topLevelItem(0));
    if (items.isEmpty())
        m_count->setText(m_subject.nothing);
    else if (items.size() == m_subject.mostShown)
        m_count->setText(QStringLiteral("Pokazano pierwsze %1; wpisz więcej, aby zawęzić.").arg(m_subject.mostShown));
    else
        m_count->setText(QStringLiteral("Znaleziono: %1").arg(items.size()));
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
