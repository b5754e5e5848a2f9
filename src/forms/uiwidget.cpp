// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/uiwidget.h"

#include "forms/formtext.h"
#include "forms/uivalue.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QHash>
#include <QtCore/QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <variant>

namespace kor {

namespace {

constexpr double twipsPerInch = 1440;
constexpr double furthestTwips = 1e6;
constexpr QLatin1String beginWord("Begin");
constexpr QLatin1String endWord("End");
constexpr QLatin1String absentWord("absent");
const QString tabIndexKey = QStringLiteral("TabIndex");

struct Side {
    QLatin1String key;
    int (QRect::*pixels)() const;
    void (QRect::*setPixels)(int);
};
constexpr std::array sides{
    Side{QLatin1String("Left"), &QRect::x, &QRect::moveLeft},
    Side{QLatin1String("Top"), &QRect::y, &QRect::moveTop},
    Side{QLatin1String("Width"), &QRect::width, &QRect::setWidth},
    Side{QLatin1String("Height"), &QRect::height, &QRect::setHeight},
};

const Side *sideOf(const QString &key, const UiKind &kind)
{
    const std::size_t first = kind.isForm ? 2 : 0; // where a form stands is the window system's business
    for (std::size_t side = first; side < sides.size(); ++side) {
        if (key == sides.at(side).key)
            return &sides.at(side);
    }
    return nullptr;
}

bool isNumber(const QVariant &value)
{
    const VariantType type = variantType(value);
    return type >= VariantType::Boolean && type <= VariantType::Currency;
}

//! What the form builder makes of the number; nothing for what it refuses, and for texts.
std::optional<int> pixelsOf(const QVariant &twips, double dotsPerInch)
{
    if (!isNumber(twips))
        return std::nullopt;
    const double count = CDbl(twips);
    if (!(std::abs(count) <= furthestTwips))
        return std::nullopt;
    return qRound(count * dotsPerInch / twipsPerInch);
}

QVariant twipsOf(int pixels, double dotsPerInch) { return qRound(pixels * twipsPerInch / dotsPerInch); }

const UiSetting *settingOf(const UiKind &kind, const QString &key)
{
    const auto found = std::find_if(kind.settings.cbegin(), kind.settings.cend(),
                                    [&key](const UiSetting &setting) { return setting.key == key; });
    return found != kind.settings.cend() && found->type != UiValueType::None ? &*found : nullptr;
}

//! Whether a .ui file can hold the text that a form file keeps for it under this key.
bool isKeepable(const UiKind &kind, const QString &key, const QVariant &value)
{
    if (!key.startsWith(keptPrefix) || value.typeId() != QMetaType::QString)
        return false;
    const QString text = value.toString();
    if (key == QLatin1String("ui.class"))
        return kind.isForm && !text.isEmpty() && isXmlText(text) && text != kind.className;
    const QString family = key.section(u'.', 1, 1);
    const QString name = key.section(u'.', 2);
    const bool isWhole = family == QLatin1String("more") || family == QLatin1String("layout");
    static const QStringList families{QStringLiteral("property"), QStringLiteral("dynamic"),
                                      QStringLiteral("attribute")};
    if (isWhole ? !name.isEmpty() : !(families.contains(family) || (kind.isForm && family == QLatin1String("section"))))
        return false;
    if (!isWhole && (name.isEmpty() || !isXmlText(name)))
        return false;
    const bool isProperty = family == QLatin1String("property") || family == QLatin1String("dynamic");
    if (isProperty && (name == keptLinesProperty || name == QLatin1String("geometry") ||
                       std::any_of(kind.settings.cbegin(), kind.settings.cend(), [&name](const UiSetting &setting) {
                           return setting.type != UiValueType::None && setting.property == name;
                       })))
        return false;
    const auto elements = readUiFragment(text);
    const auto isWidget = [](const UiElement &one) {
        const bool isValue = one.children.size() == 1 && !one.attribute(QLatin1String("name")).isEmpty() &&
                             (one.is(QLatin1String("property")) || one.is(QLatin1String("attribute")));
        return isValue || one.is(QLatin1String("widget")) || one.is(QLatin1String("layout"));
    };
    if (family == QLatin1String("more") && elements && std::any_of(elements->cbegin(), elements->cend(), isWidget))
        return false;
    if (family == QLatin1String("layout") &&
        (!elements || elements->size() != 1 || !elements->front().is(QLatin1String("layout"))))
        return false;
    if (family == QLatin1String("section") && (name == u"widget" || name == u"tabstops" || !elements ||
                                               elements->size() != 1 || elements->front().name.toLower() != name))
        return false;
    return elements && (isWhole ? !elements->empty() : elements->size() == 1) && writeUiFragment(*elements) == text;
}

//! A setting in the place and value that it has when nothing more is known than the widget's own properties.
struct Usual {
    QString key;
    QVariant value;
    int line = 0;
    bool isDefault = false;
    int rank = 0;
};

//! The settings that a widget's properties tell, in the usual order.
class UsualSettings
{
public:
    UsualSettings(const UiWidget &widget, const UiKind &kind, const UiTerms &terms, QList<UiFile::Remark> &remarks)
        : m_widget(widget), m_remarks(remarks)
    {
        for (const UiSetting &setting : kind.settings) {
            if (kind.keysBeforePlace.contains(setting.key))
                addSetting(setting);
        }
        for (const Side &side : sides) {
            if (widget.place && sideOf(side.key, kind))
                add({side.key, twipsOf(((*widget.place).*side.pixels)(), terms.dotsPerInch), widget.line});
            m_ranks.insert(side.key, m_rank++);
        }
        if (widget.isInTabOrder && widget.tabIndex)
            add({tabIndexKey, *widget.tabIndex, widget.line});
        m_ranks.insert(tabIndexKey, m_rank++);
        for (const UiSetting &setting : kind.settings) {
            if (!kind.keysBeforePlace.contains(setting.key))
                addSetting(setting);
        }
        for (const UiWidget::Kept &kept : widget.kept)
            add({kept.key, kept.text, kept.line});
    }

    [[nodiscard]] const QList<Usual> &all() const { return m_all; }
    [[nodiscard]] const Usual *of(const QString &key) const
    {
        const qsizetype place = m_places.value(key, -1);
        return place >= 0 ? &m_all.at(place) : nullptr;
    }
    //! The place of the key in the usual order; beyond all for what nobody knows.
    [[nodiscard]] int rankOf(const QString &key) const { return m_ranks.value(key, std::numeric_limits<int>::max()); }

private:
    void add(Usual usual)
    {
        usual.rank = m_rank++;
        if (!m_places.contains(usual.key))
            m_places.insert(usual.key, m_all.size());
        giveRank(usual.key, usual.rank);
        m_all.append(usual);
    }

    void giveRank(const QString &key, int rank)
    {
        if (!m_ranks.contains(key))
            m_ranks.insert(key, rank);
    }

    void addSetting(const UiSetting &setting)
    {
        const auto found = std::find_if(m_widget.values.cbegin(), m_widget.values.cend(),
                                        [&setting](const UiWidget::Value &one) { return one.key == setting.key; });
        if (found == m_widget.values.cend()) {
            giveRank(setting.key, m_rank++);
            return;
        }
        const UiValueResult result = settingValue(setting, found->element);
        if (result.value)
            add({setting.key, *result.value, found->element.line, isSameInText(*result.value, setting.defaultValue)});
        else if (!m_ranks.contains(setting.key)) // told once, though it be written twice
            m_remarks.append({found->element.line,
                              QStringLiteral("%1 %2, %3: %4")
                                  .arg(m_widget.className, m_widget.name, setting.property, result.reason),
                              UiFile::Fate::Refused});
        giveRank(setting.key, m_rank++);
    }

    const UiWidget &m_widget;
    QList<UiFile::Remark> &m_remarks;
    QList<Usual> m_all;
    QHash<QString, qsizetype> m_places;
    QHash<QString, int> m_ranks;
    int m_rank = 0;
};

//! The name that a widget has in a .ui file: none, when the file can't hold it.
QString xmlName(const QString &name) { return isXmlText(name) ? name : QString(); }

//! A line of what a widget keeps.
struct KeptLine {
    enum class Kind { Begin, Name, Value, Absent } kind = Kind::Name;
    QString key{}; //!< the type, in the line that begins the block
    QVariant value{};
    QString name{};
};

//! The line, or the reason why it is none.
std::variant<KeptLine, QString> keptLine(const QString &text)
{
    LineReader reader(text);
    const std::optional<LineReader::Word> word = reader.readName();
    if (!word)
        return reader.reason();
    KeptLine line{KeptLine::Kind::Name, word->text};
    if (reader.atEnd())
        return line;
    if (reader.take(u'=')) {
        const std::optional<QVariant> value = reader.readValue();
        if (!value)
            return reader.reason();
        line.kind = KeptLine::Kind::Value;
        line.value = *value;
    } else {
        const std::optional<LineReader::Word> next = reader.readName();
        if (!next)
            return reader.reason();
        if (!word->is(beginWord) && !word->is(absentWord))
            return QStringLiteral("'%1' must be followed by '=' and a value").arg(word->text);
        line.kind = word->is(beginWord) ? KeptLine::Kind::Begin : KeptLine::Kind::Absent;
        line.key = next->text;
        if (line.kind == KeptLine::Kind::Absent || !reader.atEnd()) {
            const std::optional<LineReader::Word> last = reader.readName();
            if (!last)
                return reader.reason();
            line.name = last->text;
        }
    }
    return reader.atEnd() ? std::variant<KeptLine, QString>(line)
                          : QStringLiteral("nothing more is expected on this line");
}

QString writeKey(const QString &key)
{
    return key == beginWord || key == endWord || key == absentWord ? writeText(key) : writeName(key);
}

QString writeLine(const QString &key, const QVariant &value)
{
    return writeKey(key) + QStringLiteral(" = ") + writeValue(value);
}

//! Puts the settings of a widget together from its properties and from the lines that it keeps.
class BlockMaker
{
public:
    BlockMaker(const UiWidget &widget, const UiTerms &terms, QList<UiFile::Remark> &remarks, bool isForm)
        : m_widget(widget), m_terms(terms), m_remarks(remarks), m_isForm(isForm)
    {
    }

    FormBlock make()
    {
        FormBlock block;
        block.type = m_isForm ? QStringLiteral("Form") : m_terms.typeOf(m_widget.className);
        block.name = m_widget.name;
        block.line = m_widget.line;
        QList<KeptLine> lines = readLines();
        for (const KeptLine &line : lines)
            begin(line, block);
        const UiKind kind = m_terms.kindOf(block.type, m_isForm);
        const UsualSettings usual(m_widget, kind, m_terms, m_remarks);
        QList<Usual> settings;
        QSet<QString> told;
        for (const KeptLine &line : lines)
            addLine(line, lines, kind, usual, settings, told);
        for (const Usual &one : usual.all()) {
            if (one.isDefault || told.contains(one.key))
                continue;
            const auto behind = std::find_if(settings.cbegin(), settings.cend(),
                                             [&one](const Usual &other) { return other.rank > one.rank; });
            settings.insert(behind, one);
        }
        for (const Usual &one : settings) {
            block.properties.append(one.key, one.value);
            block.propertyLines.append(one.line);
        }
        return block;
    }

private:
    QList<KeptLine> readLines()
    {
        QList<KeptLine> lines;
        for (const QString &text : m_widget.lines) {
            auto line = keptLine(text);
            if (const auto *reason = std::get_if<QString>(&line))
                m_remarks.append(
                    {m_widget.keptLine,
                     QStringLiteral("%1 %2, %3: %4").arg(m_widget.className, m_widget.name, keptLinesProperty, *reason),
                     UiFile::Fate::Refused});
            else
                lines.append(std::get<KeptLine>(line));
        }
        return lines;
    }

    //! A type or name that a .ui file can't hold, unless the widget has another one by now.
    void begin(const KeptLine &line, FormBlock &block) const
    {
        if (line.kind != KeptLine::Kind::Begin)
            return;
        if (!m_isForm && m_terms.kindOf(line.key).className == m_widget.className)
            block.type = line.key;
        if (xmlName(line.name) == m_widget.name)
            block.name = line.name;
    }

    void addLine(const KeptLine &line, const QList<KeptLine> &lines, const UiKind &kind, const UsualSettings &usual,
                 QList<Usual> &settings, QSet<QString> &told) const
    {
        const Usual *found = usual.of(line.key);
        switch (line.kind) {
        case KeptLine::Kind::Begin: return;
        case KeptLine::Kind::Absent:
            if (const Side *side = sideOf(line.key, kind);
                !side || !m_widget.place || line.name != QString::number(((*m_widget.place).*side->pixels)()))
                return; // it was moved
            break;
        case KeptLine::Kind::Name:
            if (found)
                settings.append({line.key, found->value, found->line, false, usual.rankOf(line.key)});
            break;
        case KeptLine::Kind::Value:
            if (isUnchanged(line.key, lines, kind, found))
                settings.append({line.key, line.value, m_widget.keptLine, false, usual.rankOf(line.key)});
            else if (found)
                settings.append({line.key, found->value, found->line, false, usual.rankOf(line.key)});
            break;
        }
        told.insert(line.key);
    }

    //! Whether the widget still has the property that it was given for this line.
    [[nodiscard]] bool isUnchanged(const QString &key, const QList<KeptLine> &lines, const UiKind &kind,
                                   const Usual *found) const
    {
        const auto last = std::find_if(lines.crbegin(), lines.crend(), [&key](const KeptLine &line) {
            return line.key == key && line.kind != KeptLine::Kind::Begin;
        });
        if (last->kind != KeptLine::Kind::Value)
            return found;
        const QVariant &value = last->value;
        if (key == tabIndexKey && !kind.isForm)
            return !m_widget.isInTabOrder;
        if (const Side *side = sideOf(key, kind)) {
            return !m_widget.place || ((*m_widget.place).*side->pixels)() ==
                                          pixelsOf(value, m_terms.dotsPerInch)
                                              .value_or((QRect(QPoint(), kind.defaultSize).*side->pixels)());
        }
        std::optional<QVariant> given;
        if (const UiSetting *setting = settingOf(kind, key)) {
            if (const auto element = uiValue(*setting, value))
                given = settingValue(*setting, *element).value;
        } else if (isKeepable(kind, key, value)) {
            return !found || isSameUiValue(value, found->value); // a line holds what the widget could not be given
        }
        return given && found ? isSameUiValue(*given, found->value) : given.has_value() == (found != nullptr);
    }

    const UiWidget &m_widget;
    const UiTerms &m_terms;
    QList<UiFile::Remark> &m_remarks;
    bool m_isForm;
};

QRect placeOf(const FormBlock &block, const UiKind &kind, double dotsPerInch)
{
    QRect place(QPoint(), kind.defaultSize);
    for (const Side &side : sides) {
        if (!sideOf(side.key, kind) || !block.properties.contains(side.key))
            continue;
        if (const auto pixels = pixelsOf(block.properties.ReadProperty(side.key), dotsPerInch))
            (place.*side.setPixels)(*pixels);
    }
    return place;
}

std::vector<UiWidget::Value> valuesOf(const FormBlock &block, const UiKind &kind)
{
    std::vector<UiWidget::Value> values;
    QSet<QString> done;
    for (const UiSetting &setting : kind.settings) {
        const bool isThere = block.properties.contains(setting.key);
        if (done.contains(setting.key) || (!isThere && !setting.isToldAlways))
            continue;
        done.insert(setting.key);
        const std::optional<UiElement> element =
            uiValue(setting, isThere ? block.properties.ReadProperty(setting.key) : setting.defaultValue);
        if (element && settingValue(setting, *element).value)
            values.push_back({setting.key, *element});
    }
    return values;
}

QList<UiWidget::Kept> keptOf(const FormBlock &block, const UiKind &kind, bool hasLayout)
{
    QList<UiWidget::Kept> kept;
    for (const auto &[key, value] : block.properties.entries()) {
        const bool isAgain = std::any_of(kept.cbegin(), kept.cend(),
                                         [&name = key](const UiWidget::Kept &one) { return one.key == name; });
        const bool isUsed = hasLayout || key != QLatin1String("ui.layout");
        if (!isAgain && isUsed && isKeepable(kind, key, block.properties.ReadProperty(key)))
            kept.append({key, block.properties.ReadProperty(key).toString()});
    }
    return kept;
}

QList<QVariant> valuesUnder(const PropertyBag &bag, const QString &key)
{
    QList<QVariant> values;
    for (const auto &[name, value] : bag.entries()) {
        if (name == key)
            values.append(value);
    }
    return values;
}

bool isSameInText(const PropertyBag &left, const PropertyBag &right)
{
    return std::equal(left.entries().cbegin(), left.entries().cend(), right.entries().cbegin(), right.entries().cend(),
                      [](const PropertyBag::Entry &one, const PropertyBag::Entry &other) {
                          return one.first == other.first && kor::isSameInText(one.second, other.second);
                      });
}

bool isSame(const FormBlock &left, const FormBlock &right)
{
    return left.type == right.type && left.name == right.name && isSameInText(left.properties, right.properties);
}

//! The lines that the widget needs so that it is the block again: those that its properties do not tell, or, where
//! their order is not the usual one either, all.
QStringList linesFor(const FormBlock &block, const FormBlock &told, const UiWidget &widget, const UiKind &kind,
                     bool isOrdered)
{
    QStringList lines;
    if (told.type != block.type || told.name != block.name)
        lines << QStringLiteral("Begin ") + writeName(block.type) +
                     (block.name.isEmpty() ? QString() : u' ' + writeName(block.name));
    for (const Side &side : sides) {
        if (widget.place && sideOf(side.key, kind) && !block.properties.contains(side.key))
            lines << QStringLiteral("absent %1 \"%2\"").arg(side.key).arg(((*widget.place).*side.pixels)());
    }
    for (const auto &[key, value] : block.properties.entries()) {
        const QList<QVariant> here = valuesUnder(block.properties, key);
        const QList<QVariant> there = valuesUnder(told.properties, key);
        const bool isTold =
            std::equal(here.cbegin(), here.cend(), there.cbegin(), there.cend(),
                       [](const QVariant &one, const QVariant &other) { return kor::isSameInText(one, other); });
        if (!isTold)
            lines << writeLine(key, value);
        else if (!isOrdered)
            lines << writeKey(key);
    }
    return lines;
}

} // namespace

UiKind UiTerms::kindOf(const QString &type, bool isForm) const
{
    if (const UiKind *known = kinds.ofType(type); known && known->isForm == isForm)
        return *known;
    UiKind kind;
    kind.type = type;
    kind.className = QStringLiteral("QWidget");
    kind.defaultSize = QSize(100, 30); // the toolkit's own
    if (type.startsWith(keptPrefix)) {
        const QString name = type.sliced(keptPrefix.size());
        const bool isClass =
            !name.isEmpty() && !name.front().isDigit() && std::all_of(name.cbegin(), name.cend(), [](QChar character) {
                return character.isLetterOrNumber() || character == u'_' || character == u':';
            });
        if (isClass && !kinds.ofClass(name))
            kind.className = name;
    }
    return kind;
}

QString UiTerms::typeOf(const QString &className) const
{
    const UiKind *known = kinds.ofClass(className);
    return known ? known->type : keptPrefix + className;
}

UiWidget toUiWidget(const FormBlock &block, const UiKind &kind, const UiTerms &terms, const UiSurroundings &around)
{
    UiWidget widget;
    widget.className = kind.className;
    widget.name = xmlName(block.name);
    if (!around.isInLayout)
        widget.place = placeOf(block, kind, terms.dotsPerInch);
    widget.values = valuesOf(block, kind);
    widget.kept = keptOf(block, kind, around.hasLayout);
    widget.isInTabOrder = around.isInTabOrder;
    widget.tabIndex = around.tabIndex;
    QList<UiFile::Remark> remarks;
    FormBlock told = toBlock(widget, terms, remarks, kind.isForm);
    PropertyBag saved;
    for (const auto &[key, value] : told.properties.entries())
        saved.append(key, asDesignerSaves(value));
    told.properties = saved;
    if (isSame(told, block))
        return widget;
    widget.lines = linesFor(block, told, widget, kind, true);
    if (!isSame(toBlock(widget, terms, remarks, kind.isForm), block))
        widget.lines = linesFor(block, told, widget, kind, false);
    return widget;
}

FormBlock toBlock(const UiWidget &widget, const UiTerms &terms, QList<UiFile::Remark> &remarks, bool isForm)
{
    return BlockMaker(widget, terms, remarks, isForm).make();
}

QList<UiFile::Remark> uiRemarks(const FormBlock &block, const UiKind &kind)
{
    QList<UiFile::Remark> remarks;
    const QString who = block.name.isEmpty() ? block.type : block.type + u' ' + block.name;
    const auto say = [&](int line, const QString &text) { remarks.append({line, who + text}); };
    if (!kind.isForm && kind.settings.isEmpty() && kind.className == u"QWidget" && block.type != u"ui.QWidget")
        say(block.line, QStringLiteral(": the class is not known here; the designer shows an empty widget"));
    if (!isXmlText(block.name))
        say(block.line, QStringLiteral(": a .ui file can't hold the name"));
    QSet<QString> done;
    for (int place = block.properties.count() - 1; place >= 0; --place) {
        const QString key = block.properties.keyAt(place);
        const QVariant value = block.properties.valueAt(place);
        const int line = block.propertyLines.value(place, block.line);
        const QString at = QStringLiteral(", ") + key + QStringLiteral(": ");
        if (done.contains(key)) {
            if (!kor::isSameInText(value, block.properties.ReadProperty(key)))
                say(line, at + QStringLiteral("the key stands once more, and a .ui file tells the last value only"));
            continue;
        }
        done.insert(key);
        if (sideOf(key, kind) || key == tabIndexKey || isKeepable(kind, key, value))
            continue;
        const UiSetting *setting = settingOf(kind, key);
        const std::optional<UiElement> element = setting ? uiValue(*setting, value) : std::nullopt;
        if (!setting)
            say(line, at + QStringLiteral("there is no such property; a .ui file makes nothing of it"));
        else if (!element || !settingValue(*setting, *element).value)
            say(line, at + QStringLiteral("a .ui file can't tell the value to the control"));
        else if (setting->type == UiValueType::Font && !isSameUiValue(*settingValue(*setting, *element).value, value))
            say(line, at + QStringLiteral("a .ui file tells whole points and the four styles of a font only"));
    }
    std::reverse(remarks.begin(), remarks.end());
    return remarks;
}

std::optional<int> tabIndexOf(const PropertyBag &settings)
{
    const QVariant value = settings.ReadProperty(tabIndexKey);
    if (!isNumber(value))
        return std::nullopt;
    try {
        return CLng(value);
    } catch (const RunTimeError &) {
        return std::nullopt;
    }
}

std::optional<int> tabIndexInLines(const UiWidget &widget)
{
    PropertyBag settings;
    for (const QString &text : widget.lines) {
        const auto line = keptLine(text);
        const auto *read = std::get_if<KeptLine>(&line);
        if (read && read->kind == KeptLine::Kind::Value && read->key == tabIndexKey)
            settings.append(read->key, read->value);
    }
    return tabIndexOf(settings);
}

} // namespace kor
