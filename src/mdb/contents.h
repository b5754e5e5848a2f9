// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>

// What a desktop database holds, whoever reads it.
namespace kor::mdb {

enum class Type { Boolean, Integer, Currency, Decimal, Single, Double, Date, Text, Memo, Binary, Guid };

struct Column {
    QString name;
    Type type = Type::Text;

    bool operator==(const Column &) const = default;
};

struct Index {
    QString name;
    QStringList columns;
    bool isPrimary = false;
    bool isUnique = false;

    bool operator==(const Index &) const = default;
};

struct Table {
    QString name;
    QList<Column> columns;
    QList<Index> indexes;
    qint64 rows = 0; //!< as the file says; fewer are found in a broken one
};

//! Rows of a table that belong to a row of another one.
struct Relation {
    QString table;
    QStringList columns;
    QString owner;
    QStringList ownerColumns;

    bool operator==(const Relation &) const = default;
};

//! A value of each column: NULL is an invalid value; Boolean a bool; Integer a qint64; Currency and Decimal a text with
//! a decimal point; Single a float; Double and Date a double, the date as its day number; Binary a byte array; all else
//! a text.
using Row = QVariantList;

class Contents
{
public:
    virtual ~Contents() = default;
    [[nodiscard]] virtual QList<Table> tables() = 0;
    [[nodiscard]] virtual QList<Relation> relations() = 0;
    //! Calls with each row until that gives false.
    virtual void read(const Table &table, const std::function<bool(const Row &)> &take) = 0;
};

} // namespace kor::mdb
