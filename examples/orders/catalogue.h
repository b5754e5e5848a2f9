// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtSql/QSqlDatabase>

#include <optional>

namespace orders {

//! What can be ordered. Prices are whole grosze, net.
struct Product {
    qint64 id = 0;
    QString symbol;
    QString name;
    qint64 unit = 0;
    QString unitName;
    qint64 netPrice = 0;
    int vat = 0;
};

//! The products of the file. All calls raise StoreError.
class Catalogue
{
public:
    explicit Catalogue(QSqlDatabase connection) : m_connection(std::move(connection)) {}

    //! The products whose name or symbol contains the text, without regard to case and accents.
    [[nodiscard]] QList<Product> find(const QString &text, int atMost) const;
    [[nodiscard]] std::optional<Product> product(qint64 id) const;
    //! The product of this symbol, whose letters may be small.
    [[nodiscard]] std::optional<Product> productOf(const QString &symbol) const;
    //! "" for a unit that does not exist.
    [[nodiscard]] QString unitName(qint64 unit) const;

private:
    QSqlDatabase m_connection;
};

} // namespace orders
