// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/uiform.h"
#include "forms/uitaborder.h"

#include <QtCore/QSet>

#include <algorithm>
#include <array>

namespace kor {

namespace {

using namespace UiKeys;

//! The parts of a .ui file in their order; `widget` stands behind `class`.
constexpr std::array sectionsBefore{"author", "comment", "exportmacro", "class"};
constexpr std::array sectionsBehind{"layoutdefault", "layoutfunction", "pixmapfunction", "customwidgets",
                                    "tabstops",      "images",         "includes",       "resources",
                                    "connections",   "designerdata",   "slots",          "buttongroups"};

UiElement element(QLatin1String name, std::vector<UiElement> children) { return {name, {}, {}, std::move(children)}; }

UiElement property(const QString &name, UiElement value)
{
    return {QStringLiteral("property"), {{QStringLiteral("name"), name}}, {}, {std::move(value)}};
}

UiElement dynamicProperty(const QString &name, UiElement value)
{
    UiElement made = property(name, std::move(value));
    made.attributes.emplaceBack(QStringLiteral("stdset"), QStringLiteral("0"));
    return made;
}

UiElement rectElement(const QRect &place)
{
    const auto part = [](const char *name, int number) {
        return textElement(QLatin1String(name), QString::number(number));
    };
    return element(QLatin1String("rect"), {part("x", place.x()), part("y", place.y()), part("width", place.width()),
                                           part("height", place.height())});
}

//! A block on its way into a .ui file.
struct Part {
    const FormBlock *block = nullptr;
    UiKind kind;
    std::vector<Part> children{};
    UiSurroundings around{};
    QString buddy{};
};

Part partOf(const FormBlock &block, const UiTerms &terms, bool isForm)
{
    Part part{&block, terms.kindOf(block.type, isForm)};
    for (const FormBlock &child : block.children)
        part.children.push_back(partOf(child, terms, false));
    return part;
}

//! All parts inside, as they stand in the file.
void listParts(Part &part, QList<Part *> &all)
{
    for (Part &child : part.children) {
        all.append(&child);
        listParts(child, all);
    }
}

UiStop stopOf(const Part &part)
{
    const PropertyBag &settings = part.block->properties;
    const QVariant caption = settings.ReadProperty(QStringLiteral("Caption"));
    UiStop stop;
    stop.name = isXmlText(part.block->name) ? part.block->name : QString();
    stop.tabIndex = tabIndexOf(settings);
    const bool isForeign = part.kind.settings.isEmpty() && part.kind.className != u"QWidget";
    stop.takesFocus = part.kind.takesFocus || (isForeign && stop.tabIndex);
    stop.leadsToNext = part.kind.leadsToNext && caption.typeId() == QMetaType::QString &&
                       caption.toString().contains(u'&') && !settings.contains(buddyKey);
    return stop;
}

//! Puts the names of the tab stops and buddies on the parts; the names for the list.
QStringList orderParts(const QList<Part *> &parts)
{
    QList<UiStop> stops;
    for (const Part *part : parts)
        stops.append(stopOf(*part));
    const QStringList tabStops = tabStopsOf(stops);
    const QStringList buddies = buddiesOf(stops);
    for (qsizetype place = 0; place < stops.size(); ++place)
        stops[place].buddy = buddies.at(place);
    const QList<std::optional<int>> told = toldTabIndexes(stops, tabStops);
    const bool isReadable = std::all_of(parts.cbegin(), parts.cend(), [](const Part *part) {
        const PropertyBag &settings = part->block->properties;
        return tabIndexOf(settings).has_value() == settings.contains(QStringLiteral("TabIndex"));
    });
    const bool isTold =
        isReadable && std::equal(stops.cbegin(), stops.cend(), told.cbegin(), told.cend(),
                                 [](const UiStop &stop, std::optional<int> index) { return stop.tabIndex == index; });
    for (qsizetype place = 0; place < stops.size(); ++place) {
        Part &part = *parts.at(place);
        part.buddy = buddies.at(place);
        part.around.isInTabOrder = isTold;
        if (isTold)
            part.around.tabIndex = told.at(place);
    }
    return tabStops;
}

//! The layout that a form file keeps for the block, with the names of the widgets in it.
std::optional<UiElement> layoutOf(const FormBlock &block)
{
    const QVariant text = block.properties.ReadProperty(layoutKey);
    if (text.typeId() != QMetaType::QString)
        return std::nullopt;
    auto elements = readUiFragment(text.toString());
    return elements && elements->size() == 1 ? std::optional(std::move(elements->front())) : std::nullopt;
}

void listNames(const UiElement &layout, QStringList &names)
{
    for (const UiElement &child : layout.children) {
        if (child.is(QLatin1String("widget")))
            names << child.attribute(QLatin1String("name"));
        else
            listNames(child, names);
    }
}

//! Where the controls of the layout begin among the children; nothing, when they are others than they were, or stand in
//! another order: then each is placed by itself.
std::optional<std::size_t> placeOfLayout(const QStringList &names, const std::vector<Part> &children)
{
    if (names.isEmpty())
        return children.size();
    QStringList there;
    for (const Part &child : children)
        there << child.block->name;
    const qsizetype first = there.indexOf(names.first());
    const bool isClear = std::all_of(names.cbegin(), names.cend(), [&there](const QString &name) {
        return !name.isEmpty() && isXmlText(name) && there.count(name) == 1;
    });
    if (first < 0 || !isClear || there.mid(first, names.size()) != names)
        return std::nullopt;
    return static_cast<std::size_t>(first);
}

//! Puts the widgets into their layout again, in its order.
void fillLayout(UiElement &layout, std::vector<UiElement> &widgets, std::size_t &next)
{
    for (UiElement &child : layout.children) {
        if (child.is(QLatin1String("widget")))
            child = std::move(widgets.at(next++));
        else
            fillLayout(child, widgets, next);
    }
}

//! Makes the elements of a .ui file from the parts of a form.
class UiMaker
{
public:
    UiMaker(const UiTerms &terms, QList<UiFile::Remark> &remarks) : m_terms(terms), m_remarks(remarks) {}

    UiElement make(Part &part)
    {
        m_remarks += uiRemarks(*part.block, part.kind);
        if (!part.kind.header.isEmpty())
            m_used.insert(part.kind.className);
        std::optional<UiElement> layout = layoutOf(*part.block);
        QStringList names;
        if (layout)
            listNames(*layout, names);
        const std::optional<std::size_t> first = layout ? placeOfLayout(names, part.children) : std::nullopt;
        part.around.hasLayout = first.has_value();
        if (layout && !first) {
            m_remarks.append({part.block->line,
                              part.block->type + u' ' + part.block->name +
                                  QStringLiteral(": the layout holds other controls than the block by now; each is "
                                                 "placed by itself"),
                              UiFile::Fate::Kept});
            layout.reset();
        }
        const UiWidget widget = toUiWidget(*part.block, part.kind, m_terms, part.around);
        UiElement made{QStringLiteral("widget"),
                       {{QStringLiteral("class"), classOf(widget)}, {QStringLiteral("name"), widget.name}}};
        addProperties(made, part, widget);
        if (!isKept(widget, layoutKey))
            layout.reset();
        addChildren(made, part, std::move(layout), first.value_or(0), static_cast<std::size_t>(names.size()));
        return made;
    }

    [[nodiscard]] bool isUsed(const QString &className) const { return m_used.contains(className); }

private:
    static bool isKept(const UiWidget &widget, QLatin1String key)
    {
        return std::any_of(widget.kept.cbegin(), widget.kept.cend(),
                           [key](const UiWidget::Kept &kept) { return kept.key == key; });
    }

    static QString classOf(const UiWidget &widget)
    {
        const auto found = std::find_if(widget.kept.cbegin(), widget.kept.cend(),
                                        [](const UiWidget::Kept &kept) { return kept.key == classKey; });
        return found != widget.kept.cend() ? found->text : widget.className;
    }

    void addProperties(UiElement &made, const Part &part, const UiWidget &widget) const
    {
        const auto addKept = [&](QLatin1String prefix, const char *tag, bool isDynamic) {
            for (const UiWidget::Kept &kept : widget.kept) {
                if (!kept.key.startsWith(prefix))
                    continue;
                UiElement added = property(kept.key.sliced(prefix.size()), readUiFragment(kept.text)->front());
                added.name = QLatin1String(tag);
                if (isDynamic)
                    added.attributes.emplaceBack(QStringLiteral("stdset"), QStringLiteral("0"));
                made.children.push_back(std::move(added));
            }
        };
        if (widget.place)
            made.children.push_back(property(QStringLiteral("geometry"), rectElement(*widget.place)));
        for (const UiWidget::Value &value : widget.values) {
            const auto setting = std::find_if(part.kind.settings.cbegin(), part.kind.settings.cend(),
                                              [&value](const UiSetting &one) { return one.key == value.key; });
            made.children.push_back(property(setting->property, value.element));
        }
        addKept(propertyKey, "property", false);
        if (!part.buddy.isEmpty())
            made.children.push_back(
                property(QStringLiteral("buddy"), textElement(QLatin1String("cstring"), part.buddy)));
        addKept(dynamicKey, "property", true);
        if (part.kind.isForm && m_terms.dotsPerInch != usualDots)
            made.children.push_back(dynamicProperty(
                dotsProperty, textElement(QLatin1String("double"), QString::number(m_terms.dotsPerInch))));
        if (!widget.lines.isEmpty()) {
            UiElement list{QStringLiteral("stringlist"), {{QStringLiteral("notr"), QStringLiteral("true")}}};
            for (const QString &line : widget.lines)
                list.children.push_back(textElement(QLatin1String("string"), line));
            made.children.push_back(dynamicProperty(keptLinesProperty, std::move(list)));
        }
        addKept(attributeKey, "attribute", false);
        for (const UiWidget::Kept &kept : widget.kept) {
            if (kept.key != moreKey)
                continue;
            const auto more = readUiFragment(kept.text);
            made.children.insert(made.children.end(), more->cbegin(), more->cend());
        }
    }

    //! Adds the widgets inside, `count` of them from the first one on in the layout.
    void addChildren(UiElement &made, Part &part, std::optional<UiElement> layout, std::size_t first, std::size_t count)
    {
        std::vector<UiElement> inLayout;
        for (std::size_t place = 0; place <= part.children.size(); ++place) {
            const bool isInLayout = layout && place >= first && place < first + count;
            if (layout && place == first + count) {
                std::size_t next = 0;
                fillLayout(*layout, inLayout, next);
                made.children.push_back(std::move(*layout));
                layout.reset();
            }
            if (place == part.children.size())
                break;
            part.children[place].around.isInLayout = isInLayout;
            UiElement widget = this->make(part.children[place]);
            (isInLayout ? inLayout : made.children).push_back(std::move(widget));
        }
    }

    const UiTerms &m_terms;
    QList<UiFile::Remark> &m_remarks;
    QSet<QString> m_used;
};

UiElement customWidget(const UiKind &kind)
{
    UiElement header = textElement(QLatin1String("header"), kind.header);
    header.attributes.emplaceBack(QStringLiteral("location"), QStringLiteral("global"));
    return element(QLatin1String("customwidget"),
                   {textElement(QLatin1String("class"), kind.className),
                    textElement(QLatin1String("extends"), QStringLiteral("QWidget")), std::move(header)});
}

//! The section of the file that the form keeps under this name, if it does.
std::optional<UiElement> keptSection(const FormBlock &form, const char *name)
{
    const QVariant text = form.properties.ReadProperty(sectionKey + QLatin1String(name));
    if (text.typeId() != QMetaType::QString)
        return std::nullopt;
    auto elements = readUiFragment(text.toString());
    return elements && elements->size() == 1 && elements->front().is(QLatin1String(name))
               ? std::optional(std::move(elements->front()))
               : std::nullopt;
}

//! The names of the sections that the form keeps and that no version of the form designer has yet.
QStringList otherSections(const FormBlock &form)
{
    QStringList names;
    for (const auto &entry : form.properties.entries()) {
        if (!entry.first.startsWith(sectionKey))
            continue;
        const QString name = entry.first.sliced(sectionKey.size());
        const auto is = [&name](const char *known) { return name == QLatin1String(known); };
        if (name != u"ui" && !names.contains(name) && std::none_of(sectionsBefore.begin(), sectionsBefore.end(), is) &&
            std::none_of(sectionsBehind.begin(), sectionsBehind.end(), is))
            names << name;
    }
    return names;
}

std::optional<UiElement> sectionOf(const FormBlock &form, const char *name, const UiMaker &maker, const UiKinds &kinds,
                                   const QStringList &tabStops)
{
    const QLatin1String wanted(name);
    std::optional<UiElement> section = keptSection(form, name);
    const auto needed = [&]() -> UiElement & { return section ? *section : section.emplace(element(wanted, {})); };
    if (wanted == QLatin1String("class") && !section)
        section = textElement(wanted, uiClassName(isXmlText(form.name) ? form.name : QString()));
    if (wanted == QLatin1String("resources") || wanted == QLatin1String("connections"))
        (void)needed();
    if (wanted == QLatin1String("tabstops")) {
        for (const QString &stop : tabStops)
            needed().children.push_back(textElement(QLatin1String("tabstop"), stop));
    }
    if (wanted == QLatin1String("customwidgets")) {
        std::vector<UiElement> own;
        for (const UiKind &kind : kinds.all()) {
            if (maker.isUsed(kind.className))
                own.push_back(customWidget(kind));
        }
        if (!own.empty())
            needed().children.insert(needed().children.begin(), own.begin(), own.end());
    }
    return section;
}

} // namespace

QString uiClassName(const QString &form)
{
    QString result;
    for (const QChar character : form)
        result += character.unicode() < 128 && character.isLetterOrNumber() ? character : QChar(u'_');
    if (result.isEmpty() || result.front().isDigit())
        result.prepend(UiKeys::formName);
    return result;
}

UiFile::Text uiFromForm(const FormBlock &form, const UiKinds &kinds, const UiFile::Options &options)
{
    if (form.type != formName)
        return {std::nullopt, {form.line, QStringLiteral("a form is a block of the class Form")}, {}};
    const UiTerms terms{kinds, options.dotsPerInch};
    UiFile::Text result;
    Part root = partOf(form, terms, true);
    QList<Part *> parts;
    listParts(root, parts);
    const QStringList tabStops = orderParts(parts);
    UiMaker maker(terms, result.remarks);
    UiElement window = maker.make(root);

    UiElement file = keptSection(form, "ui").value_or(element(QLatin1String("ui"), {}));
    if (!file.hasAttribute(QLatin1String("version")))
        file.attributes.prepend({QStringLiteral("version"), QStringLiteral("4.0")});
    const auto add = [&](const char *name) {
        if (auto section = sectionOf(form, name, maker, kinds, tabStops))
            file.children.push_back(std::move(*section));
    };
    for (const char *name : sectionsBefore)
        add(name);
    file.children.push_back(std::move(window));
    for (const char *name : sectionsBehind)
        add(name);
    for (const QString &name : otherSections(form)) {
        if (auto section = keptSection(form, name.toLatin1()))
            file.children.push_back(std::move(*section));
    }
    result.ui = writeUiXml(file);
    return result;
}

} // namespace kor
