// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "database/failure.h"

#include <KorDaoUC/recordset.h>
#include <KorDaoUC/variant.h>

#include <cmath>
#include <functional>

namespace kor {

//! A fraction of a database, which may hold infinity and what is no number. No Variant is one of these, so they are
//! Null: a field shows nothing, and as a key they are found nowhere.
[[nodiscard]] inline QVariant finiteOrNull(double number) { return std::isfinite(number) ? QVariant(number) : null(); }

//! Takes the first two columns of a row: key and name of a dictionary's entry.
using EntryTaker = std::function<void(QVariant &&key, QVariant &&name)>;

//! The walk that every forward-only recordset shares: where it stands and what may be asked there. The classes below
//! it only know how to fetch a row and to look into it.
class ForwardRecordset : public Recordset
{
public:
    [[nodiscard]] int RecordCount() const final;
    [[nodiscard]] bool Eof() const final;
    void MoveNext() final;
    [[nodiscard]] int FieldCount() const final;
    [[nodiscard]] QVariant FieldValue(int index) const final;
    [[nodiscard]] QString FieldName(int index) const final;
    void Close() final;

    //! Gives the entry of this row and of every row behind it, as asking for their fields would, in less time: nobody
    //! else does anything with the database in between. The recordset is closed afterwards, by an error too.
    void giveEntries(const EntryTaker &take);

protected:
    explicit ForwardRecordset(const QString &statement) : m_statement(statement) {}

    //! Stands on the first row. To be called once, by the maker, after construction.
    void begin(int fieldCount);

    //! Whether the connection under the rows is open. Asked before each of the following but release().
    [[nodiscard]] virtual bool isConnected() const = 0;
    //! Fetches one row; false at the end. Throws databaseFailure() when the database fails.
    [[nodiscard]] virtual bool fetch() = 0;
    //! The value of an existing column of the current row, in the types of a Variant.
    [[nodiscard]] virtual QVariant valueAt(int index) const = 0;
    [[nodiscard]] virtual QString nameAt(int index) const = 0;
    //! Gives the entries of the rows behind the current one.
    virtual void giveRest(const EntryTaker &take);
    //! Gives the statement back. Nothing else is asked of the recordset afterwards.
    virtual void release() = 0;

    [[nodiscard]] const QString &statement() const { return m_statement; }
    void requireConnection() const;

private:
    enum class Place { Row, End, Closed };

    void advance();
    void requireOpen() const;
    void requireRow() const;
    void requireField(int index) const;

    QString m_statement;
    Place m_place = Place::Closed;
    int m_reached = 0;
    int m_fieldCount = 0;
};

} // namespace kor
