// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "record.h"

namespace orders {

Record newRecord(const RecordTable &table)
{
    Record record;
    for (const RecordField &field : table.fields) {
        const bool isEmptyText = field.kind == RecordField::Kind::Text && !field.canBeNull;
        record.values << (isEmptyText ? QVariant(QString()) : field.initial);
    }
    return record;
}

QString nameOf(const RecordTable &table, const Record &record)
{
    for (qsizetype at = 0; at < table.fields.size(); ++at) {
        if (table.fields.at(at).kind == RecordField::Kind::Text)
            return record.values.value(at).toString();
    }
    return {};
}

std::optional<RecordProblem> problemOf(const RecordTable &table, const Record &record, const Record &loaded)
{
    for (qsizetype at = 0; at < table.fields.size(); ++at) {
        const RecordField &field = table.fields.at(at);
        if (!field.fault || (record.id != 0 && record.values.at(at) == loaded.values.value(at)))
            continue;
        if (const QString fault = field.fault(record.values.at(at)); !fault.isEmpty())
            return RecordProblem{at, fault};
    }
    return std::nullopt;
}

QList<qsizetype> differences(const Record &loaded, const Record &ours, const Record &theirs)
{
    QList<qsizetype> all;
    for (qsizetype at = 0; at < theirs.values.size(); ++at) {
        if (theirs.values.at(at) != loaded.values.at(at) && theirs.values.at(at) != ours.values.at(at))
            all << at;
    }
    return all;
}

} // namespace orders
