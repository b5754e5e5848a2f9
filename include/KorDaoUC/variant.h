// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QMetaType>
#include <QtCore/QVariant>

#include <cstddef>

namespace kor {

//! The marker that stands for an argument the caller left out. Controls treat it as Null.
struct Missing {
    friend bool operator==(Missing, Missing) { return true; }
};

//! The kinds of value that a Variant may hold.
//!
//! A Variant is a QVariant with this mapping: Empty = invalid; Null = std::nullptr_t; Boolean = bool; Byte = uchar;
//! Integer = short; Long = int; Single = float; Double = double; Currency = kor::Currency; Date = QDate, or QDateTime
//! when it carries a time; String = QString; Missing = kor::Missing. LongLong = qint64, but only for integers beyond
//! 2^53, which a Double would run together. Whatever else a host hands in (a smaller qint64, QByteArray, QTime, a
//! registered type, a date outside the years 100 to 9999) is Other until it is brought into one of these by
//! normalized().
enum class VariantType {
    Empty,
    Null,
    Boolean,
    Byte,
    Integer,
    Long,
    LongLong,
    Single,
    Double,
    Currency,
    Date,
    String,
    Missing,
    Other
};

//! The kind of a value; Other for what normalized() would change.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT VariantType variantType(const QVariant &value);

//! The Variant Null: no value. Not Empty, which is a value that was never given. A null QVariant that has a type, as a
//! database hands over its NULL, is Null as well.
[[nodiscard]] inline QVariant null() { return QVariant::fromValue(nullptr); }
//! The marker for an argument that is left out.
[[nodiscard]] inline QVariant missing() { return QVariant::fromValue(Missing{}); }
//! Whether there is no value: Null, or a null QVariant of any type. Empty is none of them.
[[nodiscard]] inline bool isNull(const QVariant &value) { return value.isValid() && value.isNull(); }
//! Whether it is Empty: a value that was never given.
[[nodiscard]] inline bool isEmpty(const QVariant &value) { return !value.isValid(); }
//! Whether it is the marker for an argument that is left out.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT bool isMissing(const QVariant &value);

//! The same value in the mapping above: a 64-bit integer that fits becomes a Long, a larger one a Double, and one that
//! a Double does not hold with all its digits stays a 64-bit integer (above 2^63, which none holds, a Double); a
//! database NULL of any type (a null QVariant with a type) and an invalid date become Null; anything unknown becomes
//! its text, or Empty.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT QVariant normalized(const QVariant &value);

} // namespace kor

Q_DECLARE_METATYPE(kor::Missing)
