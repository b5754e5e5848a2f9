// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "evaluation.h"

#include <KorDaoUC/Compare>
#include <KorDaoUC/Convert>
#include <KorDaoUC/Date>
#include <KorDaoUC/Format>
#include <KorDaoUC/Like>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/Variant>

#include <QtCore/QDateTime>
#include <QtCore/QMap>

#include <functional>

namespace {

kor::Locale localeOf(const QString &name)
{
    const qsizetype slash = name.indexOf(u'/');
    const QString code = slash < 0 ? name : name.first(slash);
    kor::Locale locale = code == QStringLiteral("0x0415") ? kor::Locale::polish() : kor::Locale::english();
    if (slash >= 0) {
        locale.shortDatePattern = name.sliced(slash + 1);
        for (const QChar c : locale.shortDatePattern) {
            if (!c.isLetter()) {
                locale.dateSeparator = c;
                break;
            }
        }
    }
    return locale;
}

//! The value that a vector's type and text stand for.
QVariant valueOf(const QString &type, const QString &text)
{
    static const kor::Locale plain = kor::Locale::english();
    if (type == QStringLiteral("Empty"))
        return {};
    if (type == QStringLiteral("Null"))
        return kor::null();
    if (type == QStringLiteral("Boolean"))
        return text == QStringLiteral("True");
    if (type == QStringLiteral("Byte"))
        return QVariant::fromValue(static_cast<uchar>(text.toInt()));
    if (type == QStringLiteral("Integer"))
        return QVariant::fromValue(text.toShort());
    if (type == QStringLiteral("Long"))
        return text.toInt();
    if (type == QStringLiteral("Single"))
        return text.toFloat();
    if (type == QStringLiteral("Double"))
        return text.toDouble();
    if (type == QStringLiteral("Currency"))
        return QVariant::fromValue(kor::CCur(text, plain));
    if (type == QStringLiteral("Date")) {
        const QDate date = QDate::fromString(text.first(10), Qt::ISODate);
        const QTime time = QTime::fromString(text.mid(11), Qt::ISODate);
        return time == QTime(0, 0) ? QVariant(date) : QVariant(QDateTime(date, time, Qt::UTC));
    }
    return text;
}

QString textOf(bool truth) { return truth ? QStringLiteral("True") : QStringLiteral("False"); }

QString digitsOf(double number) { return QString::number(number, 'g', 15); }
QString digitsOf(float number) { return QString::number(static_cast<double>(number), 'g', 8); }

QString isoDateTime(const QVariant &date)
{
    const QDateTime moment =
        date.typeId() == QMetaType::QDate ? QDateTime(date.toDate(), QTime(0, 0), Qt::UTC) : date.toDateTime();
    return moment.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
}

QString isoDate(QDate date) { return date.toString(QStringLiteral("yyyy-MM-dd")); }

//! "mode:Type:value", where the mode tells which operands are declared or how Variants compare their texts.
QString orderText(const QVariant &left, const QString &argument, const kor::Locale &locale)
{
    const qsizetype first = argument.indexOf(u':');
    const qsizetype second = argument.indexOf(u':', first + 1);
    const QString mode = argument.first(first);
    const QVariant right = valueOf(argument.sliced(first + 1, second - first - 1), argument.sliced(second + 1));
    std::optional<std::partial_ordering> order;
    if (mode == QStringLiteral("left-typed"))
        order = kor::compareDeclared(left, right, kor::Declared::Left, kor::TextComparison::Binary, locale);
    else if (mode == QStringLiteral("right-typed"))
        order = kor::compareDeclared(left, right, kor::Declared::Right, kor::TextComparison::Binary, locale);
    else if (mode == QStringLiteral("both-typed"))
        order = kor::compareDeclared(left, right, kor::Declared::Both, kor::TextComparison::Binary, locale);
    else
        order = kor::compare(left, right,
                             mode.endsWith(QStringLiteral("text")) ? kor::TextComparison::Text
                                                                   : kor::TextComparison::Binary);
    if (!order)
        return QStringLiteral("Null");
    return std::is_lt(*order) ? QStringLiteral("LT") : std::is_gt(*order) ? QStringLiteral("GT") : QStringLiteral("EQ");
}

struct Call {
    const Vector &vector;
    QVariant value;
    kor::Locale locale;
};

using Function = std::function<QString(const Call &)>;

QString dateSerialText(const Call &call)
{
    const QStringList parts = call.vector.input.split(u';');
    return isoDate(kor::DateSerial(parts[0].toInt(), parts[1].toInt(), parts[2].toInt()));
}

const QMap<QString, Function> &functions()
{
    static const QMap<QString, Function> table = {
        {QStringLiteral("CBool"), [](const Call &c) { return textOf(kor::CBool(c.value, c.locale)); }},
        {QStringLiteral("CCur"),
         [](const Call &c) {
             return kor::CStr(QVariant::fromValue(kor::CCur(c.value, c.locale)), kor::Locale::english());
         }},
        {QStringLiteral("CDate"), [](const Call &c) { return isoDateTime(kor::CDate(c.value, c.locale)); }},
        {QStringLiteral("CDbl"), [](const Call &c) { return digitsOf(kor::CDbl(c.value, c.locale)); }},
        {QStringLiteral("CInt"), [](const Call &c) { return QString::number(kor::CInt(c.value, c.locale)); }},
        {QStringLiteral("CLng"), [](const Call &c) { return QString::number(kor::CLng(c.value, c.locale)); }},
        {QStringLiteral("CSng"), [](const Call &c) { return digitsOf(kor::CSng(c.value, c.locale)); }},
        {QStringLiteral("CStr"), [](const Call &c) { return kor::CStr(c.value, c.locale); }},
        {QStringLiteral("DateSerial"), dateSerialText},
        {QStringLiteral("DateValue"), [](const Call &c) { return isoDate(kor::DateValue(c.value, c.locale)); }},
        {QStringLiteral("Format"), [](const Call &c) { return kor::Format(c.value, c.vector.argument, c.locale); }},
        {QStringLiteral("IsDate"), [](const Call &c) { return textOf(kor::IsDate(c.value, c.locale)); }},
        {QStringLiteral("IsNumeric"), [](const Call &c) { return textOf(kor::IsNumeric(c.value, c.locale)); }},
        {QStringLiteral("Like"),
         [](const Call &c) {
             const bool byDictionary = c.vector.type == QStringLiteral("String/Text");
             return textOf(kor::Like(c.vector.input, c.vector.argument,
                                     byDictionary ? kor::TextComparison::Text : kor::TextComparison::Binary));
         }},
        {QStringLiteral("Val"), [](const Call &c) { return digitsOf(kor::Val(c.vector.input)); }},
        {QStringLiteral("compare"), [](const Call &c) { return orderText(c.value, c.vector.argument, c.locale); }},
    };
    return table;
}

QString functionName(const QString &fileName, const QString &argument)
{
    if (fileName.startsWith(QStringLiteral("format_")))
        return QStringLiteral("Format");
    static const QMap<QString, QString> byFile = {
        {QStringLiteral("val"), QStringLiteral("Val")},
        {QStringLiteral("isnumeric"), QStringLiteral("IsNumeric")},
        {QStringLiteral("cstr"), QStringLiteral("CStr")},
        {QStringLiteral("like"), QStringLiteral("Like")},
        {QStringLiteral("compare"), QStringLiteral("compare")},
    };
    return byFile.value(fileName, argument);
}

//! The expected text in the same form as the function's result.
QString expectedText(const QString &function, const QString &expected)
{
    bool isNumber = false;
    const double number = expected.toDouble(&isNumber);
    if (isNumber && (function == QStringLiteral("CDbl") || function == QStringLiteral("Val")))
        return digitsOf(number);
    if (isNumber && function == QStringLiteral("CSng"))
        return digitsOf(expected.toFloat());
    return expected;
}

} // namespace

Outcome evaluate(const QString &fileName, const Vector &vector)
{
    const QString name = functionName(fileName, vector.argument);
    const auto function = functions().constFind(name);
    if (function == functions().constEnd())
        return {Outcome::Kind::Skipped, name};
    QString got;
    try {
        got = (*function)({vector, valueOf(vector.type, vector.input), localeOf(vector.locale)});
    } catch (const kor::RunTimeError &error) {
        got = QStringLiteral("err%1").arg(error.number());
    }
    const bool same = got == expectedText(name, vector.expected);
    return {same ? Outcome::Kind::Passed : Outcome::Kind::Failed, got};
}
