// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "export/sheetformat.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

namespace kor {

namespace {

const QString general = QStringLiteral("General");
constexpr int longestName = 31;

QString quoted(const QString &text) { return text.isEmpty() ? text : u'"' + text + u'"'; }

//! "#,##0.00 "zł"": what stands around the number is the locale's.
QString currencyFormat(const Locale &locale)
{
    const auto around = [&locale](QString pattern) {
        // The sign stands for itself only after the number's place is found: it may have an n of its own.
        const QString mark = QStringLiteral("\x01");
        pattern.replace(locale.currencySymbol, mark);
        const qsizetype place = pattern.indexOf(u'n');
        const auto literal = [&](QString text) { return quoted(text.replace(mark, locale.currencySymbol)); };
        return literal(pattern.left(place)) + QStringLiteral("#,##0.00") + literal(pattern.mid(place + 1));
    };
    return around(locale.currencyPositive) + u';' + around(locale.currencyNegative);
}

//! The picture behind a name; the name itself where there is none.
QString pictureOf(const QString &mask, const Locale &locale)
{
    const QString name = mask.toLower();
    static const QHash<QString, QString> pictures{
        {QStringLiteral("general number"), QString()},
        {QStringLiteral("fixed"), QStringLiteral("0.00")},
        {QStringLiteral("standard"), QStringLiteral("#,##0.00")},
        {QStringLiteral("percent"), QStringLiteral("0.00%")},
        {QStringLiteral("scientific"), QStringLiteral("0.00E+00")},
    };
    const auto choice = [](const QString &yes, const QString &no) {
        return quoted(yes) + u';' + quoted(yes) + u';' + quoted(no);
    };
    if (name == u"currency")
        return currencyFormat(locale);
    if (name == u"yes/no")
        return choice(locale.yesText, locale.noText);
    if (name == u"true/false")
        return choice(locale.trueText, locale.falseText);
    if (name == u"on/off")
        return choice(locale.onText, locale.offText);
    return pictures.value(name, mask);
}

//! The sections of a picture, its literal characters quoted as sheets want them.
QStringList sectionsOf(const QString &picture)
{
    QStringList sections{QString()};
    for (qsizetype at = 0; at < picture.size(); ++at) {
        const QChar sign = picture.at(at);
        QString &section = sections.last();
        if (sign == u';') {
            sections << QString();
        } else if (sign == u'"') {
            const qsizetype end = picture.indexOf(u'"', at + 1);
            const QString text = picture.mid(at + 1, end < 0 ? -1 : end - at - 1);
            section += quoted(text);
            at = end < 0 ? picture.size() : end;
        } else if (sign == u'\\') {
            if (++at < picture.size())
                section += QStringLiteral("\\") + picture.at(at);
        } else if ((sign == u'E' || sign == u'e') && at + 1 < picture.size() &&
                   (picture.at(at + 1) == u'+' || picture.at(at + 1) == u'-')) {
            section += u'E';
            section += picture.at(++at);
        } else if (QStringLiteral("0#,.%").contains(sign)) {
            section += sign;
        } else {
            section += u'\\';
            section += sign;
        }
    }
    return sections;
}

bool writesNumbers(const QString &picture)
{
    const bool isOfTexts =
        picture.contains(u'@') || picture.contains(u'&') || picture.startsWith(u'<') || picture.startsWith(u'>');
    const bool hasDigits = picture.contains(u'0') || picture.contains(u'#') || picture.contains(u'"');
    return hasDigits && !isOfTexts;
}

} // namespace

QString sheetFormatOfNumbers(const QString &mask, const Locale &locale)
{
    const QString picture = pictureOf(mask, locale);
    if (!writesNumbers(picture))
        return general;
    constexpr int negative = 1;
    constexpr int most = 3; // sheets have a fourth one for texts, masks for Null
    QStringList sections = sectionsOf(picture).mid(0, most);
    // An empty section hides the number in a sheet; in a mask the first one stands in for it.
    for (int at = 1; at < sections.size(); ++at) {
        if (sections.at(at).isEmpty())
            sections[at] = (at == negative ? QStringLiteral("-") : QString()) + sections.first();
    }
    return sections.join(u';');
}

QString sheetFormatOfDates(const Locale &locale, bool hasTime)
{
    QString format;
    for (const QChar sign : locale.shortDatePattern.toLower()) {
        if (sign.isLetter() || sign == u' ')
            format += sign;
        else
            format += QStringLiteral("\\") + sign;
    }
    return hasTime ? format + QStringLiteral(" hh:mm:ss") : format;
}

QString sheetName(const QString &wanted)
{
    QString name;
    for (const QChar sign : wanted)
        name += QStringLiteral("[]:*?/\\").contains(sign) || sign < u' ' ? QChar(u' ') : sign;
    name = name.simplified().left(longestName);
    while (name.startsWith(u'\''))
        name.remove(0, 1);
    while (name.endsWith(u'\'') || (!name.isEmpty() && name.back().isHighSurrogate()))
        name.chop(1);
    return name.trimmed();
}

} // namespace kor
