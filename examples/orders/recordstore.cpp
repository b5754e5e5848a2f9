// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "recordstore.h"

#include "statement.h"

#include <utility>

namespace orders {

using Kind = RecordOutcome::Kind;

RecordStore::RecordStore(QSqlDatabase connection, RecordTable table)
    : m_connection(std::move(connection)), m_table(std::move(table))
{
    for (const RecordField &field : m_table.fields)
        m_columns << field.column;
}

Record RecordStore::recordIn(const QSqlQuery &query, qint64 id) const
{
    Record record{id, {}};
    for (int at = 0; at < m_columns.size(); ++at) {
        if (query.isNull(at))
            record.values << QVariant();
        else if (m_table.fields.at(at).kind == RecordField::Kind::Text)
            record.values << query.value(at).toString();
        else
            record.values << query.value(at).toLongLong();
    }
    return record;
}

std::optional<Record> RecordStore::record(qint64 id) const
{
    QSqlQuery query =
        run(m_connection, QStringLiteral("Odczytanie danych"),
            QStringLiteral("SELECT %1 FROM %2 WHERE id = ?").arg(m_columns.join(QStringLiteral(", ")), m_table.table),
            {id});
    return query.next() ? std::optional(recordIn(query, id)) : std::nullopt;
}

std::optional<RecordProblem> RecordStore::takenIn(const Record &record, const QString &doing) const
{
    for (qsizetype at = 0; at < m_columns.size(); ++at) {
        if (!m_table.fields.at(at).isOnce || record.values.at(at).isNull())
            continue;
        QSqlQuery query =
            run(m_connection, doing,
                QStringLiteral("SELECT name FROM %1 WHERE %2 = ? AND id <> ?").arg(m_table.table, m_columns.at(at)),
                {record.values.at(at), record.id});
        if (query.next())
            return RecordProblem{
                at, QStringLiteral("%1 „%2” już występuje w bazie: %3.")
                        .arg(m_table.fields.at(at).name(), record.values.at(at).toString(), query.value(0).toString())};
    }
    return std::nullopt;
}

qint64 RecordStore::write(const Record &record, const QString &doing) const
{
    if (record.id != 0) {
        run(m_connection, doing,
            QStringLiteral("UPDATE %1 SET %2 = ? WHERE id = ?")
                .arg(m_table.table, m_columns.join(QStringLiteral(" = ?, "))),
            record.values + QVariantList{record.id});
        return record.id;
    }
    const QStringList marks(m_columns.size(), QStringLiteral("?"));
    QSqlQuery query =
        run(m_connection, doing,
            QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) RETURNING id")
                .arg(m_table.table, m_columns.join(QStringLiteral(", ")), marks.join(QStringLiteral(", "))),
            record.values);
    query.next();
    return query.value(0).toLongLong();
}

RecordOutcome RecordStore::save(const Record &record, const Record &loaded)
{
    const QString doing = QStringLiteral("Zapisanie danych");
    Transaction transaction(m_connection, doing, m_table.table);
    if (record.id != 0) {
        const std::optional<Record> now = this->record(record.id);
        if (!now)
            return {Kind::DeletedMeanwhile, record};
        if (*now != loaded)
            return {Kind::ChangedMeanwhile, *now};
    }
    if (const std::optional<RecordProblem> problem = takenIn(record, doing))
        return {Kind::Refused, record, *problem};
    Record saved = record;
    saved.id = write(record, doing);
    transaction.commit();
    return {Kind::Done, saved};
}

RecordOutcome RecordStore::remove(const Record &loaded)
{
    const QString doing = QStringLiteral("Usunięcie danych");
    // The rows that may name it are kept from coming meanwhile, too.
    Transaction transaction(m_connection, doing, m_table.table + QStringLiteral(", ") + m_table.user);
    const std::optional<Record> now = record(loaded.id);
    if (!now)
        return {Kind::Done, loaded};
    if (*now != loaded)
        return {Kind::ChangedMeanwhile, *now};
    QSqlQuery query =
        run(m_connection, doing,
            QStringLiteral("SELECT count(*) FROM %1 WHERE %2 = ?").arg(m_table.user, m_table.userKey), {loaded.id});
    query.next();
    if (const qint64 users = query.value(0).toLongLong(); users > 0)
        return {Kind::Refused, loaded, {0, m_table.used.arg(users)}};
    query.finish();
    run(m_connection, doing, QStringLiteral("DELETE FROM %1 WHERE id = ?").arg(m_table.table), {loaded.id});
    transaction.commit();
    return {Kind::Done, loaded};
}

} // namespace orders
