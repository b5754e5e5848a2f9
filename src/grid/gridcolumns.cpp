// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridcolumns.h"

#include <KorDaoUC/runtimeerror.h>

#include <limits>
#include <utility>

namespace kor {

ColumnType columnType(QStringView keyword)
{
    if (keyword == u"NUMBER")
        return ColumnType::Number;
    if (keyword == u"CLICK")
        return ColumnType::Click;
    if (keyword == u"COMBO")
        return ColumnType::Combo;
    return keyword == u"DATE" ? ColumnType::Date : ColumnType::Text;
}

QString keywordOf(ColumnType type)
{
    switch (type) {
    case ColumnType::Number: return QStringLiteral("NUMBER");
    case ColumnType::Click: return QStringLiteral("CLICK");
    case ColumnType::Combo: return QStringLiteral("COMBO");
    case ColumnType::Date: return QStringLiteral("DATE");
    case ColumnType::Text: break;
    }
    return QStringLiteral("TEXT");
}

int GridColumns::nextNumber(const QString &titleOfFirst, int columnCount)
{
    const int number = titleOfFirst.isEmpty() ? 1 : columnCount;
    // Kept: columns are counted in Integers, title column included
    if (number >= std::numeric_limits<short>::max())
        throw RunTimeError(ErrorNumber::Overflow);
    return number;
}

void GridColumns::store(int number, GridColumn column)
{
    const auto place = static_cast<std::size_t>(number);
    if (place >= m_columns.size())
        m_columns.resize(place + 1);
    m_columns[place] = std::move(column);
}

const GridColumn *GridColumns::find(int number) const
{
    const auto place = static_cast<std::size_t>(number);
    return number >= 0 && place < m_columns.size() && m_columns[place] ? &*m_columns[place] : nullptr;
}

bool GridColumns::isLocked(int number) const
{
    const GridColumn *column = find(number);
    return column && column->isLocked;
}

} // namespace kor
