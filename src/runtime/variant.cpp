// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "runtime/held.h"
#include "runtime/serial.h"

#include <KorDaoUC/currency.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QDateTime>

#include <utility>

namespace kor {

namespace {

//! Up to here a Double holds every integer, and no other integer is the same Double.
constexpr qint64 exactInDouble = qint64(1) << 53;

bool isBeyondDouble(qint64 value) { return value > exactInDouble || value < -exactInDouble; }

} // namespace

VariantType variantType(const QVariant &value)
{
    if (value.isNull())
        return value.isValid() ? VariantType::Null : VariantType::Empty;
    switch (value.typeId()) {
    case QMetaType::Bool: return VariantType::Boolean;
    case QMetaType::UChar: return VariantType::Byte;
    case QMetaType::Short: return VariantType::Integer;
    case QMetaType::Int: return VariantType::Long;
    case QMetaType::LongLong: return isBeyondDouble(held<qint64>(value)) ? VariantType::LongLong : VariantType::Other;
    case QMetaType::Float: return VariantType::Single;
    case QMetaType::Double: return VariantType::Double;
    case QMetaType::QDate:
    case QMetaType::QDateTime: return isInCalendar(momentOf(value).date) ? VariantType::Date : VariantType::Other;
    case QMetaType::QString: return VariantType::String;
    default: break;
    }
    if (value.metaType() == QMetaType::fromType<Currency>())
        return VariantType::Currency;
    if (value.metaType() == QMetaType::fromType<Missing>())
        return VariantType::Missing;
    return VariantType::Other;
}

bool isMissing(const QVariant &value) { return value.metaType() == QMetaType::fromType<Missing>(); }

namespace {

template <typename Wide>
QVariant wholeVariant(Wide value)
{
    if (std::in_range<int>(value))
        return QVariant(static_cast<int>(value));
    if (std::in_range<qint64>(value) && isBeyondDouble(static_cast<qint64>(value)))
        return QVariant::fromValue(static_cast<qint64>(value));
    return QVariant(static_cast<double>(value));
}

QVariant normalizedOther(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::SChar: return QVariant::fromValue(static_cast<short>(held<signed char>(value)));
    case QMetaType::Char: return QVariant::fromValue(static_cast<short>(held<char>(value)));
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong: return wholeVariant(value.toULongLong());
    case QMetaType::Long:
    case QMetaType::LongLong: return wholeVariant(value.toLongLong());
    case QMetaType::QDate:
    case QMetaType::QDateTime: return null(); // invalid, or of a year that no Date holds
    case QMetaType::QChar: return QString(value.toChar());
    case QMetaType::QTime: return value.toTime().isValid() ? dateVariant({dayZero(), value.toTime()}) : null();
    default: break;
    }
    if (value.metaType().flags() & QMetaType::IsEnumeration)
        return wholeVariant(value.toLongLong());
    return value.canConvert<QString>() ? QVariant(value.toString()) : QVariant();
}

} // namespace

QVariant normalized(const QVariant &value)
{
    switch (variantType(value)) {
    case VariantType::Null: return null();
    case VariantType::Other: return normalizedOther(value);
    case VariantType::Date: return dateVariant(momentOf(value));
    default: return value;
    }
}

} // namespace kor
