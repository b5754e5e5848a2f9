// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "export/csv.h"

#include "export/pace.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/variant.h>

#include <algorithm>

namespace kor {

namespace {

constexpr QChar quote = u'"';
const QByteArray byteOrderMark = QByteArrayLiteral("\xef\xbb\xbf");

QByteArray lineOf(const QVariantList &values, QChar separator, const ExportSettings &settings)
{
    QString line;
    for (qsizetype column = 0; column < values.size(); ++column) {
        if (column > 0)
            line += separator;
        line += csvCell(csvText(values.at(column), settings.formulas, settings.locale), separator);
    }
    return (line + QStringLiteral("\r\n")).toUtf8();
}

} // namespace

QChar listSeparator(const Locale &locale) { return locale.decimalSeparator == u',' ? u';' : u','; }

QString csvCell(const QString &text, QChar separator)
{
    const auto needsQuotes = [separator](QChar character) {
        return character == separator || character == quote || character == u'\n' || character == u'\r' ||
               character == u'\t';
    };
    const bool hasBlankAtEnd = !text.isEmpty() && (text.front().isSpace() || text.back().isSpace());
    if (!hasBlankAtEnd && std::none_of(text.begin(), text.end(), needsQuotes))
        return text;
    return quote + QString(text).replace(quote, QStringLiteral("\"\"")) + quote;
}

bool looksLikeFormula(const QString &text, const Locale &locale)
{
    const QString begin = text.trimmed();
    return !begin.isEmpty() && QStringLiteral("=+-@").contains(begin.front()) && !IsNumeric(text, locale);
}

QString csvText(const QVariant &value, CsvFormulas formulas, const Locale &locale)
{
    if (isNull(value) || isEmpty(value))
        return {};
    const QString text = CStr(value, locale);
    const bool isText = variantType(value) == VariantType::String;
    const bool isGuarded = isText && formulas == CsvFormulas::Guard && looksLikeFormula(text, locale);
    return isGuarded ? u'\'' + text : text;
}

std::optional<QByteArray> csvOf(const ExportTable &table, const ExportSettings &settings)
{
    const QChar separator = listSeparator(settings.locale);
    const qint64 rows = table.rows.size();
    Pace pace(settings.mayGoOn, wholeWork(rows));
    QVariantList titles;
    for (const ExportColumn &column : table.columns)
        titles << column.title;
    QByteArray bytes = byteOrderMark + lineOf(titles, separator, settings);
    for (qint64 row = 0; row < rows; ++row) {
        if (!pace.goesOn(rows * readingARow + row * writingARow))
            return std::nullopt;
        bytes += lineOf(table.rows.at(row), separator, settings);
    }
    if (!table.totals.isEmpty())
        bytes += lineOf(table.totals, separator, settings);
    return bytes;
}

} // namespace kor
