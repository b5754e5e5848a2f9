// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/uivalue.h"

#include "forms/formtext.h"
#include "forms/savedfont.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace kor {

namespace {

constexpr QLatin1String alignRight("Qt::AlignRight|Qt::AlignTrailing|Qt::AlignVCenter");
constexpr QLatin1String alignCenter("Qt::AlignCenter");
constexpr QLatin1String alignLeft("Qt::AlignLeading|Qt::AlignLeft|Qt::AlignVCenter");
constexpr std::array alignments{alignLeft, alignRight, alignCenter};
constexpr int boldFrom = 600;

//! A number, whatever its type; nothing for what is none, a text with digits included.
std::optional<double> numberOf(const QVariant &value)
{
    switch (variantType(value)) {
    case VariantType::Boolean:
    case VariantType::Byte:
    case VariantType::Integer:
    case VariantType::Long:
    case VariantType::LongLong:
    case VariantType::Single:
    case VariantType::Double:
    case VariantType::Currency: return CDbl(value);
    default: return std::nullopt;
    }
}

std::optional<int> wholeOf(const QVariant &value)
{
    if (!numberOf(value))
        return std::nullopt;
    try {
        return CLng(value);
    } catch (const RunTimeError &) {
        return std::nullopt;
    }
}

std::optional<UiElement> numberElement(double number)
{
    if (!std::isfinite(number))
        return std::nullopt;
    return textElement(QLatin1String("double"), QString::number(number, 'g', QLocale::FloatingPointShortest));
}

UiElement wholeElement(int number) { return textElement(QLatin1String("number"), QString::number(number)); }

UiElement booleanElement(bool value)
{
    return textElement(QLatin1String("bool"), value ? QStringLiteral("true") : QStringLiteral("false"));
}

//! The toolkit's loader leaves out a text that is nothing but these.
bool isBlank(QStringView text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar character) { return QStringView(u" \t\r\n").contains(character); });
}

std::optional<UiElement> stringElement(const UiSetting &setting, const QString &text)
{
    if (!isXmlText(text) || (!text.isEmpty() && isBlank(text)))
        return std::nullopt;
    UiElement element = textElement(QLatin1String("string"), text);
    if (!setting.isTranslated)
        element.attributes.emplaceBack(QStringLiteral("notr"), QStringLiteral("true"));
    return element;
}

void addParts(UiElement &element, std::initializer_list<std::pair<const char *, int>> parts)
{
    for (const auto &[name, number] : parts)
        element.children.push_back(textElement(QLatin1String(name), QString::number(number)));
}

//! In the order in which the designer saves them.
void addTime(UiElement &element, QTime time)
{
    addParts(element, {{"hour", time.hour()}, {"minute", time.minute()}, {"second", time.second()}});
}

void addDate(UiElement &element, QDate date)
{
    addParts(element, {{"year", date.year()}, {"month", date.month()}, {"day", date.day()}});
}

UiElement dateElement(const QVariant &value)
{
    if (value.typeId() == QMetaType::QDate) {
        UiElement element{QStringLiteral("date")};
        addDate(element, value.toDate());
        return element;
    }
    UiElement element{QStringLiteral("datetime")};
    addTime(element, value.toTime());
    addDate(element, value.toDate());
    return element;
}

std::optional<UiElement> anyElement(const UiSetting &setting, const QVariant &value)
{
    switch (variantType(value)) {
    case VariantType::Boolean: return booleanElement(value.toBool());
    case VariantType::Byte:
    case VariantType::Integer:
    case VariantType::Long: return wholeElement(CLng(value));
    case VariantType::LongLong: return textElement(QLatin1String("longlong"), QString::number(value.toLongLong()));
    case VariantType::Single:
    case VariantType::Double:
    case VariantType::Currency: return numberElement(CDbl(value));
    case VariantType::Date: return dateElement(value);
    case VariantType::String: return stringElement(setting, value.toString());
    default: return std::nullopt;
    }
}

//! What a .ui file knows of a font: whole points, and no spacing.
std::optional<UiElement> fontElement(const QVariant &value)
{
    const std::optional<FontWords> words = fontWords(value);
    if (!words)
        return std::nullopt;
    QString family = words->family;
    QString size = words->words.value(0);
    const auto has = [&words](QLatin1String word) { return words->words.contains(word); };
    std::array<bool, 4> styles{has(QLatin1String("Bold")), has(QLatin1String("Italic")),
                               has(QLatin1String("Underline")), has(QLatin1String("Strikeout"))};
    if (words->words.isEmpty()) { // the toolkit's description: family, size, ..., weight, italic, underline, strike-out
        const QStringList fields = family.split(u',');
        family = fields.value(0);
        size = fields.value(1);
        styles = {fields.value(4).toInt() >= boldFrom, fields.value(5) == u'1', fields.value(6) == u'1',
                  fields.value(7) == u'1'};
    }
    const int points = qRound(size.toDouble());
    if (!isXmlText(family) || family.trimmed().isEmpty() || points < 1)
        return std::nullopt;
    UiElement element{QStringLiteral("font")};
    element.children.push_back(textElement(QLatin1String("family"), family));
    element.children.push_back(textElement(QLatin1String("pointsize"), QString::number(points)));
    constexpr std::array names{"bold", "italic", "underline", "strikeout"};
    for (std::size_t style = 0; style < names.size(); ++style) {
        if (styles.at(style))
            element.children.push_back(textElement(QLatin1String(names.at(style)), QStringLiteral("true")));
    }
    return element;
}

UiValueResult refused(const UiElement &element, const char *wanted)
{
    return {std::nullopt, QStringLiteral("<%1> holds no %2").arg(element.name, QLatin1String(wanted))};
}

bool isTrue(const UiElement *element) { return element && element->text.trimmed() == u"true"; }

UiValueResult fontOf(const UiElement &element)
{
    const UiElement *family = element.child(QLatin1String("family"));
    const UiElement *size = element.child(QLatin1String("pointsize"));
    if (!family || !size)
        return {std::nullopt, QStringLiteral("a form file holds fonts with their family and size only")};
    FontWords words{family->text, {size->text.trimmed()}};
    const UiElement *weight = element.child(QLatin1String("weight"));
    if (isTrue(element.child(QLatin1String("bold"))) || (weight && weight->text.toInt() >= 75)) // of 99
        words.words << QStringLiteral("Bold");
    for (const char *style : {"italic", "underline", "strikeout"}) {
        if (isTrue(element.child(QLatin1String(style))))
            words.words << QString::fromLatin1(style).replace(0, 1, QChar::fromLatin1(style[0]).toUpper());
    }
    const std::optional<QVariant> font = fontFromWords(words);
    return font ? UiValueResult{font, {}} : refused(element, "font");
}

//! The number in a part of a date; 0 where there is none, which no month or day is.
int part(const UiElement &element, const char *name)
{
    const UiElement *found = element.child(QLatin1String(name));
    return found ? found->text.trimmed().toInt() : 0;
}

std::optional<QVariant> dateOf(const UiElement &element)
{
    const QDate date(part(element, "year"), part(element, "month"), part(element, "day"));
    const QTime time(part(element, "hour"), part(element, "minute"), part(element, "second"));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return time == QTime(0, 0) ? QVariant(date) : QVariant(QDateTime(date, time, Qt::UTC));
}

QString stringOf(const UiElement &element) { return isBlank(element.text) ? QString() : element.text; }

std::optional<int> wholeIn(const UiElement &element)
{
    bool isNumber = false;
    const qlonglong number = element.text.trimmed().toLongLong(&isNumber);
    // A colour may stand there without a sign.
    if (!isNumber || number < std::numeric_limits<int>::min() || number > std::numeric_limits<uint>::max())
        return std::nullopt;
    return static_cast<int>(static_cast<uint>(number));
}

std::optional<double> numberIn(const UiElement &element)
{
    bool isNumber = false;
    const double number = element.text.trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<QVariant> booleanIn(const UiElement &element)
{
    const QString word = element.text.trimmed();
    if (word != u"true" && word != u"false")
        return std::nullopt;
    return word == u"true";
}

bool isWhole(const UiElement &element)
{
    return element.is(QLatin1String("number")) || element.is(QLatin1String("uint")) ||
           element.is(QLatin1String("longlong")) || element.is(QLatin1String("ulonglong"));
}

bool isNumber(const UiElement &element)
{
    return isWhole(element) || element.is(QLatin1String("double")) || element.is(QLatin1String("float"));
}

bool isText(const UiElement &element)
{
    return element.is(QLatin1String("string")) || element.is(QLatin1String("cstring"));
}

std::optional<QVariant> anyIn(const UiElement &element)
{
    if (element.is(QLatin1String("bool")))
        return booleanIn(element);
    if (isText(element))
        return stringOf(element);
    if (element.is(QLatin1String("date")) || element.is(QLatin1String("datetime")))
        return dateOf(element);
    if (isWhole(element)) {
        bool isRead = false;
        const qlonglong number = element.text.trimmed().toLongLong(&isRead);
        return isRead ? std::optional(normalized(number)) : std::nullopt;
    }
    const std::optional<double> number = isNumber(element) ? numberIn(element) : std::nullopt;
    return number ? std::optional(QVariant(*number)) : std::nullopt;
}

std::optional<QVariant> memberIn(const UiSetting &setting, const UiElement &element)
{
    if (isWhole(element)) {
        const std::optional<int> number = wholeIn(element);
        return number ? std::optional(QVariant::fromValue(static_cast<short>(*number))) : std::nullopt;
    }
    const QString name = element.text.trimmed().section(QStringLiteral("::"), -1);
    const auto member =
        std::find_if(setting.members.cbegin(), setting.members.cend(), [&name](const std::pair<QString, int> &one) {
            return one.first.section(QStringLiteral("::"), -1) == name;
        });
    if (member == setting.members.cend() || !element.is(QLatin1String("enum")))
        return std::nullopt;
    return QVariant::fromValue(static_cast<short>(member->second));
}

//! Only what a form file's label can be: left, right or centred, and in the middle of its height.
std::optional<QVariant> alignmentIn(const UiElement &element)
{
    QStringList words = element.text.trimmed().split(u'|');
    const auto take = [&words](const char *word) { return words.removeAll(QLatin1String(word)) > 0; };
    const bool isCentred = take("Qt::AlignCenter");
    const bool isMiddle = take("Qt::AlignVCenter") || isCentred;
    const bool isAcross = take("Qt::AlignHCenter") || isCentred;
    const bool isRight = static_cast<int>(take("Qt::AlignRight")) + static_cast<int>(take("Qt::AlignTrailing")) > 0;
    const bool isLeft = static_cast<int>(take("Qt::AlignLeft")) + static_cast<int>(take("Qt::AlignLeading")) > 0;
    if (!words.isEmpty() || !isMiddle || (isAcross && (isLeft || isRight)) || (isLeft && isRight))
        return std::nullopt;
    return QVariant::fromValue(static_cast<short>(isAcross ? 2 : isRight ? 1 : 0));
}

//! A whole number in the type in which the setting is saved.
QVariant wholeAs(const QVariant &defaultValue, int number)
{
    const auto narrow = static_cast<short>(number);
    return defaultValue.typeId() == QMetaType::Short && narrow == number ? QVariant::fromValue(narrow) : number;
}

UiValueResult result(const std::optional<QVariant> &value, const UiElement &element, const char *wanted)
{
    return value ? UiValueResult{value, {}} : refused(element, wanted);
}

QString withLineFeeds(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

} // namespace

std::optional<UiElement> uiValue(const UiSetting &setting, const QVariant &value)
{
    switch (setting.type) {
    case UiValueType::None: return std::nullopt;
    case UiValueType::Boolean: {
        const std::optional<double> number = numberOf(value);
        return number ? std::optional(booleanElement(*number != 0)) : std::nullopt;
    }
    case UiValueType::Whole: {
        const std::optional<int> number = wholeOf(value);
        return number ? std::optional(wholeElement(*number)) : std::nullopt;
    }
    case UiValueType::Enumeration: {
        const std::optional<int> number = wholeOf(value);
        const auto member =
            std::find_if(setting.members.cbegin(), setting.members.cend(),
                         [&number](const std::pair<QString, int> &one) { return number && one.second == *number; });
        if (member == setting.members.cend())
            return std::nullopt;
        return textElement(QLatin1String("enum"), member->first);
    }
    case UiValueType::Alignment: {
        const int place = wholeOf(value).value_or(-1);
        if (place < 0 || place >= static_cast<int>(alignments.size()))
            return std::nullopt;
        return textElement(QLatin1String("set"), alignments.at(static_cast<std::size_t>(place)));
    }
    case UiValueType::Text:
        if (value.typeId() != QMetaType::QString)
            return std::nullopt;
        return stringElement(setting, value.toString());
    case UiValueType::Number: {
        const std::optional<double> number = numberOf(value);
        return number ? numberElement(*number) : std::nullopt;
    }
    case UiValueType::Any: return anyElement(setting, value);
    case UiValueType::Font: return fontElement(value);
    }
    return std::nullopt;
}

UiValueResult settingValue(const UiSetting &setting, const UiElement &element)
{
    switch (setting.type) {
    case UiValueType::Boolean:
        return result(element.is(QLatin1String("bool")) ? booleanIn(element) : std::nullopt, element, "Boolean");
    case UiValueType::Whole: {
        const std::optional<int> number = isWhole(element) ? wholeIn(element) : std::nullopt;
        return number ? UiValueResult{wholeAs(setting.defaultValue, *number), {}} : refused(element, "whole number");
    }
    case UiValueType::Enumeration: return result(memberIn(setting, element), element, "member of the enumeration");
    case UiValueType::Alignment:
        return result(element.is(QLatin1String("set")) ? alignmentIn(element) : std::nullopt, element,
                      "alignment that a form file knows");
    case UiValueType::Text:
        return result(isText(element) ? std::optional(QVariant(stringOf(element))) : std::nullopt, element, "text");
    case UiValueType::Number: {
        const std::optional<double> number = isNumber(element) ? numberIn(element) : std::nullopt;
        if (!number || std::abs(*number) > std::numeric_limits<float>::max())
            return refused(element, "number in the range of a Single");
        return {QVariant(static_cast<float>(*number)), {}};
    }
    case UiValueType::Any: return result(anyIn(element), element, "value that a form file knows");
    case UiValueType::Font: return element.is(QLatin1String("font")) ? fontOf(element) : refused(element, "font");
    case UiValueType::None: break;
    }
    return refused(element, "setting");
}

QVariant asDesignerSaves(const QVariant &value)
{
    constexpr int decimals = 15;
    const auto saved = [](double number) { return QString::number(number, 'f', decimals).toDouble(); };
    switch (value.typeId()) {
    case QMetaType::Double: return saved(CDbl(value));
    case QMetaType::Float: return static_cast<float>(saved(CDbl(value)));
    case QMetaType::QString: return withLineFeeds(value.toString());
    default: return value;
    }
}

bool isSameUiValue(const QVariant &left, const QVariant &right)
{
    return isSameInText(asDesignerSaves(left), asDesignerSaves(right));
}

bool isSameInText(const QVariant &left, const QVariant &right)
{
    if (left.typeId() == QMetaType::QString && right.typeId() == QMetaType::QString)
        return left.toString() == right.toString();
    return writeValue(left) == writeValue(right);
}

} // namespace kor
