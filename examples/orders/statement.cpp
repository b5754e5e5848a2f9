// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "statement.h"

#include <QtSql/QSqlError>

#include <utility>

namespace orders {

namespace {

//! What a clerk can make of a failure of SQLite; the numbers are its primary result codes.
QString reasonOf(const QSqlError &error)
{
    constexpr int primary = 0xff;
    switch (error.nativeErrorCode().toInt() & primary) {
    case 5:
    case 6:
        return QStringLiteral("Z bazy korzysta teraz inny program albo inne stanowisko. Spróbuj ponownie za chwilę.");
    case 8: return QStringLiteral("Pliku bazy nie wolno zmieniać (jest tylko do odczytu).");
    case 10: return QStringLiteral("Dysku z plikiem bazy nie udało się odczytać lub zapisać.");
    case 11:
    case 26: return QStringLiteral("Plik nie jest bazą danych albo jest uszkodzony.");
    case 13: return QStringLiteral("Na dysku z plikiem bazy nie ma już miejsca. Zwolnij miejsce i spróbuj ponownie.");
    case 14: return QStringLiteral("Pliku bazy nie da się otworzyć.");
    case 19: return QStringLiteral("Baza nie przyjęła tych danych.");
    default: return QStringLiteral("Baza danych zgłosiła błąd.");
    }
}

} // namespace

StoreError::StoreError(const QString &text) : std::runtime_error(text.toStdString()), m_text(text) {}

StoreError::StoreError(const QString &doing, const QString &reason)
    : StoreError(doing + QStringLiteral(" nie powiodło się.\n") + reason)
{
}

StoreError::StoreError(const QString &doing, const QSqlError &error)
    : StoreError(doing, reasonOf(error) + QStringLiteral("\n\n(") + error.text().simplified() + u')')
{
}

QSqlQuery run(const QSqlDatabase &connection, const QString &doing, const QString &statement,
              const QVariantList &values)
{
    QSqlQuery query(connection);
    query.setForwardOnly(true);
    bool works = query.prepare(statement);
    for (const QVariant &value : values) {
        // The toolkit would bind a null QString, which is an empty text, as NULL.
        const bool isText = value.metaType() == QMetaType(QMetaType::QString);
        query.addBindValue(isText && value.value<QString>().isNull() ? QVariant(QStringLiteral("")) : value);
    }
    works = works && query.exec();
    if (!works)
        throw StoreError(doing, query.lastError());
    return query;
}

Transaction::Transaction(const QSqlDatabase &connection, QString doing)
    : m_connection(connection), m_doing(std::move(doing))
{
    // At once as a writer: one that reads first and writes later could be refused in between.
    run(m_connection, m_doing, QStringLiteral("BEGIN IMMEDIATE"));
}

Transaction::~Transaction()
{
    if (!m_done)
        QSqlQuery(m_connection).exec(QStringLiteral("ROLLBACK"));
}

void Transaction::commit()
{
    run(m_connection, m_doing, QStringLiteral("COMMIT"));
    m_done = true;
}

} // namespace orders
