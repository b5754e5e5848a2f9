// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "param/paramrecord.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/variant.h>

#include <algorithm>
#include <limits>

namespace kor {

ParamKind paramKind(const QString &controlType)
{
    if (controlType == u"TEXT")
        return ParamKind::Text;
    if (controlType == u"NUMBER")
        return ParamKind::Number;
    if (controlType == u"DATE")
        return ParamKind::Date;
    if (controlType == u"COMBO")
        return ParamKind::Combo;
    return controlType == u"CLICK" ? ParamKind::Click : ParamKind::None;
}

std::vector<std::pair<ParamColumn::Code, QString>> cellsOf(const ParamRecord &record, const Locale &locale)
{
    return {
        {ParamColumn::Name, record.name},
        {ParamColumn::Symbol, record.symbol},
        {ParamColumn::ControlType, record.controlType},
        {ParamColumn::TextLength, CStr(QVariant::fromValue(record.textLength), locale)},
        {ParamColumn::ValueType, record.valueType},
        {ParamColumn::FieldName, record.fieldName},
        {ParamColumn::ComboSource, record.comboSource},
        {ParamColumn::ComboNullName, record.comboNullName},
        {ParamColumn::MinValue, CStr(record.minValue, locale)},
        {ParamColumn::MaxValue, CStr(record.maxValue, locale)},
        {ParamColumn::Dictionary, record.dictionary},
        {ParamColumn::NumFormat, record.numFormat},
    };
}

QString hiddenTitle(int column)
{
    switch (column) {
    case ParamColumn::Symbol: return QStringLiteral("Symbol");
    case ParamColumn::ControlType: return QStringLiteral("ControlType");
    case ParamColumn::TextLength: return QStringLiteral("TextLength");
    case ParamColumn::ValueType: return QStringLiteral("ValueType");
    case ParamColumn::FieldName: return QStringLiteral("FieldName");
    case ParamColumn::ComboSource: return QStringLiteral("ComboSQL");
    case ParamColumn::ComboNullName: return QStringLiteral("ComboNullValue");
    case ParamColumn::MinValue: return QStringLiteral("MinValue");
    case ParamColumn::MaxValue: return QStringLiteral("MaxValue");
    case ParamColumn::Dictionary: return QStringLiteral("Slownik");
    case ParamColumn::NumFormat: return QStringLiteral("NumFormat");
    default: return {};
    }
}

QString textShown(const QVariant &value, const Locale &locale)
{
    const QVariant known = normalized(value);
    return isNull(known) || isMissing(known) ? QString() : CStr(known, locale);
}

int lengthLimit(const QString &text)
{
    const double length = leadingNumber(text).value_or(0);
    return length > 0 && length <= std::numeric_limits<int>::max() ? static_cast<int>(length) : 0;
}

QString numberMask(const QString &numFormat)
{
    return numFormat.isEmpty() ? QStringLiteral("General Number") : numFormat;
}

int valueWidth(int room, int nameWidth)
{
    const int usual = std::min(static_cast<int>(ParamWidth::Value), room);
    return std::max({room - nameWidth, usual, static_cast<int>(ParamWidth::LeastValue)});
}

QVariant ParamValues::at(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return place < m_values.size() ? m_values[place] : QVariant();
}

void ParamValues::set(int row, const QVariant &value)
{
    const auto place = static_cast<std::size_t>(row);
    if (place >= m_values.size())
        m_values.resize(place + 1);
    m_values[place] = value;
}

} // namespace kor
