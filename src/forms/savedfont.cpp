// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/savedfont.h"

#include <KorDaoUC/formfile.h>

#include <QtCore/QMetaType>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kor {

namespace {

// The toolkit's description: family, size in points, in pixels, style hint, weight, slant, underline, strike-out, fixed
// pitch, raw mode, capitals, two kinds of spacing, stretch, strategy. A plain font has these after its family and size.
struct Style {
    QLatin1String word;
    int place;
    QLatin1String off;
    QLatin1String on;
};

constexpr int fieldCount = 16;
constexpr std::array styles{
    Style{QLatin1String("Bold"), 4, QLatin1String("400"), QLatin1String("700")},
    Style{QLatin1String("Italic"), 5, QLatin1String("0"), QLatin1String("1")},
    Style{QLatin1String("Underline"), 6, QLatin1String("0"), QLatin1String("1")},
    Style{QLatin1String("Strikeout"), 7, QLatin1String("0"), QLatin1String("1")},
};

QStringList plainFont(const QString &family, const QString &size)
{
    QStringList fields = QStringLiteral(",,-1,5,400,0,0,0,0,0,0,0,0,0,0,1").split(u',');
    fields[0] = family;
    fields[1] = size;
    return fields;
}

//! A size as the toolkit writes it, so that what is read is written again the same: 10, 8.25, not 010 or 1e1.
bool isSize(const QString &word)
{
    const QByteArray digits = word.toLatin1();
    double size = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), size, std::chars_format::fixed);
    return error == std::errc() && end == digits.end() && size > 0 && std::isfinite(size) &&
           QString::number(size) == word;
}

} // namespace

std::optional<FontWords> fontWords(const QVariant &value)
{
    QString description;
    if (value.typeId() == qMetaTypeId<SavedFont>())
        description = value.value<SavedFont>().description;
    else if (value.typeId() == QMetaType::QFont)
        description = value.toString();
    else
        return std::nullopt;

    const QStringList fields = description.split(u',');
    if (fields.size() != fieldCount || !isSize(fields.at(1)))
        return FontWords{description, {}};
    QStringList words{fields.at(1)};
    QStringList plain = plainFont(fields.at(0), fields.at(1));
    for (const Style &style : styles) {
        if (fields.at(style.place) != style.on)
            continue;
        words << style.word;
        plain[style.place] = style.on;
    }
    return plain == fields ? FontWords{fields.at(0), words} : FontWords{description, {}};
}

std::optional<QVariant> fontFromWords(const FontWords &words)
{
    QString description = words.family;
    if (!words.words.isEmpty()) {
        if (words.family.contains(u',') || !isSize(words.words.first()))
            return std::nullopt;
        QStringList fields = plainFont(words.family, words.words.first());
        for (const QString &word : words.words.sliced(1)) {
            const auto style =
                std::find_if(styles.begin(), styles.end(), [&word](const Style &known) { return word == known.word; });
            if (style == styles.end())
                return std::nullopt;
            fields[style->place] = style->on;
        }
        description = fields.join(u',');
    }
    if (!QMetaType::isRegistered(QMetaType::QFont))
        return QVariant::fromValue(SavedFont{description});
    QVariant value(description);
    if (!value.convert(QMetaType(QMetaType::QFont)))
        return std::nullopt;
    return value;
}

} // namespace kor
