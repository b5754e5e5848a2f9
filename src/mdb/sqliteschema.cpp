// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "mdb/sqliteschema.h"

#include <KorDaoUC/date.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QDateTime>

#include <algorithm>

namespace kor::mdb {

namespace {

//! What a column is declared as. Exact numbers are not declared at all, or SQLite would round those of many digits.
QString declared(Type type)
{
    switch (type) {
    case Type::Boolean: return QStringLiteral("BOOLEAN");
    case Type::Integer: return QStringLiteral("INTEGER");
    case Type::Currency:
    case Type::Decimal: return {};
    case Type::Single:
    case Type::Double: return QStringLiteral("DOUBLE");
    case Type::Date: return QStringLiteral("DATETIME");
    case Type::Memo: return QStringLiteral("TEXT");
    case Type::Binary: return QStringLiteral("BLOB");
    case Type::Text:
    case Type::Guid: break;
    }
    return QStringLiteral("TEXT COLLATE NOCASE");
}

//! A number if that holds every digit, and otherwise the text.
QVariant exactNumber(QString text)
{
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    bool isWhole = false;
    if (const qint64 whole = text.toLongLong(&isWhole); isWhole)
        return whole;
    constexpr int digitsOfADouble = 15;
    const auto digits = std::count_if(text.begin(), text.end(), [](QChar character) { return character.isDigit(); });
    return digits <= digitsOfADouble ? QVariant(text.toDouble()) : QVariant(text);
}

QString list(const QStringList &names)
{
    QStringList all;
    for (const QString &name : names)
        all << quoted(name);
    return all.join(QStringLiteral(", "));
}

QVariant dateText(double serial)
{
    QVariant date;
    try {
        date = CDate(serial);
    } catch (const RunTimeError &) {
        return {}; // beyond the calendar
    }
    if (date.metaType() == QMetaType(QMetaType::QDate))
        return date.toDate().toString(Qt::ISODate);
    const QDateTime moment = date.toDateTime();
    constexpr int zeroDay[] = {1899, 12, 30};
    const bool isTimeAlone = moment.date() == QDate(zeroDay[0], zeroDay[1], zeroDay[2]);
    return moment.toString(isTimeAlone ? QStringLiteral("HH:mm:ss") : QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace

QString quoted(const QString &name)
{
    QString text = name;
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString createTable(const Table &table, const QList<Relation> &relations)
{
    QStringList parts;
    for (const Column &column : table.columns)
        parts << (quoted(column.name) + u' ' + declared(column.type)).trimmed();
    for (const Index &index : table.indexes) {
        if (index.isPrimary)
            parts << QStringLiteral("PRIMARY KEY (%1)").arg(list(index.columns));
    }
    for (const Relation &relation : relations) {
        if (relation.table == table.name) {
            parts << QStringLiteral("FOREIGN KEY (%1) REFERENCES %2 (%3)")
                         .arg(list(relation.columns), quoted(relation.owner), list(relation.ownerColumns));
        }
    }
    return QStringLiteral("CREATE TABLE %1 (%2)").arg(quoted(table.name), parts.join(QStringLiteral(", ")));
}

QString createIndex(const Table &table, const Index &index, bool isUnique)
{
    return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
        .arg(isUnique ? QStringLiteral("UNIQUE ") : QString(), quoted(table.name + u' ' + index.name),
             quoted(table.name), list(index.columns));
}

QString insertRow(const Table &table)
{
    QStringList places(table.columns.size(), QStringLiteral("?"));
    return QStringLiteral("INSERT INTO %1 VALUES (%2)").arg(quoted(table.name), places.join(QStringLiteral(", ")));
}

QVariant boundValue(Type type, const QVariant &value)
{
    if (!value.isValid())
        return {};
    switch (type) {
    case Type::Boolean: return value.toBool() ? 1 : 0;
    case Type::Date: return dateText(value.toDouble());
    case Type::Single: return QString::number(value.toFloat(), 'g', 7).toDouble();
    case Type::Text:
    case Type::Memo:
    case Type::Guid: {
        // The toolkit would bind a null QString, which is an empty text, as NULL.
        const QString text = value.toString();
        return text.isNull() ? QVariant(QStringLiteral("")) : QVariant(text);
    }
    case Type::Currency:
    case Type::Decimal: return exactNumber(value.toString());
    case Type::Integer:
    case Type::Double:
    case Type::Binary: break;
    }
    return value;
}

} // namespace kor::mdb
