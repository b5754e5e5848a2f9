// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "searchdialog.h"

#include "orderstore.h"

#include <KorDaoUC/Format>

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

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
    subject.found = QStringLiteral("Znalezione zamówienia");
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
    subject.found = QStringLiteral("Znalezieni klienci");
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

SearchDialog::SearchDialog(SearchSubject subject, QWidget *parent) : QDialog(parent), m_list(new FoundList(subject))
{
    setWindowTitle(subject.title);
    resize(720, 420);

    auto *buttons = new QDialogButtonBox;
    auto *go = buttons->addButton(subject.accept, QDialogButtonBox::AcceptRole);
    buttons->addButton(QStringLiteral("&Anuluj"), QDialogButtonBox::RejectRole);
    go->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(buttons);

    const auto updateState = [this, go] { go->setEnabled(m_list->chosen() != 0); };
    connect(m_list, &FoundList::chosenChanged, this, updateState);
    connect(m_list, &FoundList::taken, go, &QPushButton::click);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    updateState();
}

void SearchDialog::search(const QString &text) { m_list->search(text); }

qint64 SearchDialog::chosen() const { return m_list->chosen(); }

} // namespace orders
