// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace kor {

class Recordset;

//! One column of the current row. A light value: it looks into its recordset and must not outlive it.
class KORDAOUC_EXPORT Field
{
public:
    Field(const Recordset &recordset, int index) : m_recordset(&recordset), m_index(index) {}

    //! What Recordset::FieldValue() tells of the current row.
    [[nodiscard]] QVariant Value() const;
    //! What Recordset::FieldName() tells.
    [[nodiscard]] QString Name() const;

private:
    const Recordset *m_recordset;
    int m_index;
};

//! The rows that a statement gives, walked once from the first to the last.
//!
//!     for (; !rows->Eof(); rows->MoveNext())
//!         list.AddEntry(rows->Fields(0).Value(), kor::CStr(rows->Fields(1).Value()));
//!
//! A fresh recordset stands on its first row, or at the end when there is none. Every failure is a RunTimeError; one
//! in the middle of reading is raised by MoveNext() and is never taken for the end.
class KORDAOUC_EXPORT Recordset
{
public:
    Recordset() = default;
    virtual ~Recordset();
    Recordset(const Recordset &) = delete;
    Recordset &operator=(const Recordset &) = delete;

    //! The number of rows reached so far, the current one included: 0 for an empty set, at least 1 for any other, and
    //! the number of all rows at the end.
    [[nodiscard]] virtual int RecordCount() const = 0;
    //! Whether the walk has passed the last row. (EOF itself is a macro of the C library.)
    [[nodiscard]] virtual bool Eof() const = 0;
    //! Goes to the next row. Error 3021 at the end, 3146 when the database fails.
    virtual void MoveNext() = 0;

    //! How many columns the rows have.
    [[nodiscard]] virtual int FieldCount() const = 0;
    //! The value of a column, counted from 0, in the types of a Variant: an integer that fits is a Long, a larger one a
    //! Double, one beyond 2^53 a 64-bit integer; fractions and decimals are Double; a text stays a text; NULL of every
    //! type, what is no number, and the infinities are Null. Error 3265 for a column that does not exist, 3021 at the
    //! end.
    [[nodiscard]] virtual QVariant FieldValue(int index) const = 0;
    //! The name of a column, counted from 0, as the statement gives it. Error 3265 for a column that does not exist.
    [[nodiscard]] virtual QString FieldName(int index) const = 0;
    //! A column by its place, counted from 0.
    [[nodiscard]] Field Fields(int index) const { return {*this, index}; }

    //! Gives the statement back to the database. Every later call but Close() itself is error 3420. Destruction closes.
    virtual void Close() = 0;
};

inline QVariant Field::Value() const { return m_recordset->FieldValue(m_index); }
inline QString Field::Name() const { return m_recordset->FieldName(m_index); }

} // namespace kor
