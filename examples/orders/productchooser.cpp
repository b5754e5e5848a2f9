// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "productchooser.h"

#include "linetext.h"
#include "searchdialog.h"

namespace orders {

SearchSubject productsToSearch(const Catalogue &catalogue)
{
    SearchSubject subject;
    subject.title = QStringLiteral("Wybierz towar");
    subject.label = QStringLiteral("&Nazwa lub symbol:");
    subject.accept = QStringLiteral("&Wybierz");
    subject.columns = QStringList{QStringLiteral("Symbol"), QStringLiteral("Towar"), QStringLiteral("J.m."),
                                  QStringLiteral("Cena netto")};
    subject.wideColumn = 1;
    subject.rightColumn = 3;
    subject.found = QStringLiteral("Znalezione towary");
    subject.nothing = QStringLiteral("Nie znaleziono towarów.");
    subject.mostShown = 10000; // all of them: the list is there to be looked through
    subject.find = [&catalogue](const QString &text, int atMost) {
        QList<SearchSubject::Row> rows;
        for (const Product &found : catalogue.find(text, atMost)) {
            rows.append({found.id, QStringList{found.symbol, found.name, found.unitName, amountText(found.netPrice)}});
        }
        return rows;
    };
    return subject;
}

std::optional<Product> chooseProduct(const Catalogue &catalogue, const QString &text, QWidget *parent)
{
    SearchDialog dialog(productsToSearch(catalogue), parent);
    dialog.search(text);
    if (dialog.exec() != QDialog::Accepted || dialog.chosen() == 0)
        return std::nullopt;
    return catalogue.product(dialog.chosen());
}

} // namespace orders
