// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "forms/uiform.h"
#include "forms/uitaborder.h"

#include <QtCore/QSet>

#include <algorithm>

namespace kor {

namespace {

using namespace UiKeys;

//! A widget on its way into a form file.
struct Item {
    UiWidget widget;
    UiKind kind;
    const UiElement *element = nullptr;
    std::vector<Item> children{};
};

QString described(const UiWidget &widget) { return widget.className + u' ' + widget.name; }

//! Reads the widgets of a .ui file, each with what its block can hold and what it keeps.
class UiReader
{
public:
    UiReader(const UiTerms &terms, const UiFile::Options &options, QList<UiFile::Remark> &remarks)
        : m_terms(terms), m_options(options), m_remarks(remarks)
    {
    }

    Item read(const UiElement &from, bool isForm, bool isInLayout)
    {
        Item item;
        item.element = &from;
        UiWidget &widget = item.widget;
        widget.className = from.attribute(QLatin1String("class"));
        widget.name = from.attribute(QLatin1String("name"));
        widget.line = from.line;
        item.kind = isForm ? m_terms.kindOf(formName, true) : m_terms.kindOf(m_terms.typeOf(widget.className));
        if (isForm && widget.className != item.kind.className) {
            keep(widget, {classKey, widget.className, from.line},
                 QStringLiteral("a form file knows plain windows only"));
            widget.className = item.kind.className;
        }
        std::vector<UiElement> more;
        for (const UiElement &child : from.children)
            addPart(item, child, more);
        if (!more.empty())
            keep(widget, {moreKey, writeUiFragment(more), more.front().line}, notKnown);
        if (isInLayout && !widget.place && m_options.placeInLayout)
            widget.place = m_options.placeInLayout(widget.name);
        remarkOnNewValues(item);
        const bool isKept = std::any_of(widget.lines.cbegin(), widget.lines.cend(),
                                        [](const QString &line) { return line.startsWith(QLatin1String("Begin ")); });
        if (!isForm && !isKept && item.kind.settings.isEmpty())
            remark(from.line, described(widget) + QStringLiteral(": form files have no such control; it is kept, but "
                                                                 "only programs that add the kind can open the form"));
        return item;
    }

private:
    inline static const QString notKnown = QStringLiteral("form files make nothing of it; it is kept");

    void remark(int line, const QString &text, UiFile::Fate fate = UiFile::Fate::Kept)
    {
        m_remarks.append({line, text, fate});
    }

    void keep(UiWidget &widget, const UiWidget::Kept &kept, const QString &reason)
    {
        const bool isAgain = std::any_of(widget.kept.cbegin(), widget.kept.cend(),
                                         [&kept](const UiWidget::Kept &one) { return one.key == kept.key; });
        if (!isAgain)
            widget.kept.append(kept);
        remark(kept.line,
               described(widget) + QStringLiteral(", ") + kept.key.sliced(keptPrefix.size()) + QStringLiteral(": ") +
                   (isAgain ? QStringLiteral("stands twice; this one is not kept") : reason),
               isAgain ? UiFile::Fate::Lost : UiFile::Fate::Kept);
    }

    void addPart(Item &item, const UiElement &child, std::vector<UiElement> &more)
    {
        const QString name = child.attribute(QLatin1String("name"));
        const bool isValue = child.children.size() == 1 && !name.isEmpty();
        if (child.is(QLatin1String("widget")))
            item.children.push_back(read(child, false, false));
        else if (child.is(QLatin1String("layout")))
            addLayout(item, child);
        else if (child.is(QLatin1String("property")) && isValue)
            addProperty(item, name, child);
        else if (child.is(QLatin1String("attribute")) && isValue)
            keep(item.widget, {attributeKey + name, writeUiFragment(child.children), child.line}, notKnown);
        else
            more.push_back(child);
    }

    void addProperty(Item &item, const QString &name, const UiElement &from)
    {
        const UiElement &value = from.children.front();
        UiWidget &widget = item.widget;
        if (name == QLatin1String("geometry") && value.is(QLatin1String("rect"))) {
            widget.place = rectOf(value);
        } else if (name == keptLinesProperty && value.is(QLatin1String("stringlist"))) {
            widget.keptLine = from.line;
            for (const UiElement &line : value.children)
                widget.lines << line.text;
        } else if (name == dotsProperty && item.kind.isForm) {
            return; // was asked before
        } else if (const UiSetting *setting = settingOf(item.kind, name)) {
            remarkOnTranslation(widget, *setting, value);
            UiElement told = value;
            told.line = from.line;
            std::erase_if(widget.values, // the last one counts
                          [setting](const UiWidget::Value &one) { return one.key == setting->key; });
            widget.values.push_back({setting->key, std::move(told)});
        } else if (name == QLatin1String("buddy") && item.kind.leadsToNext) {
            return; // belongs to the order of Tab
        } else {
            const bool isDynamic = from.attribute(QLatin1String("stdset")) == u"0";
            keep(widget, {(isDynamic ? dynamicKey : propertyKey) + name, writeUiFragment(from.children), from.line},
                 notKnown);
        }
    }

    //! A control has its own names for some of the toolkit's properties.
    static const UiSetting *settingOf(const UiKind &kind, const QString &property)
    {
        const auto is = [&property, &kind](const UiSetting &one) {
            if (one.type == UiValueType::None)
                return false;
            const bool isToolkits = property == u"enabled" || property == u"font";
            return one.property == property ||
                   (isToolkits && !kind.header.isEmpty() && one.property.compare(property, Qt::CaseInsensitive) == 0);
        };
        const auto found = std::find_if(kind.settings.cbegin(), kind.settings.cend(), is);
        return found != kind.settings.cend() ? &*found : nullptr;
    }

    static QRect rectOf(const UiElement &rect)
    {
        const auto part = [&rect](const char *name) {
            const UiElement *found = rect.child(QLatin1String(name));
            return found ? found->text.trimmed().toInt() : 0;
        };
        return {part("x"), part("y"), part("width"), part("height")};
    }

    void addLayout(Item &item, const UiElement &layout)
    {
        UiElement frame = layout;
        takeWidgets(item, layout, frame);
        keep(item.widget, {layoutKey, writeUiFragment({frame}), layout.line},
             QStringLiteral("form files place each control by itself; the layout is kept"));
    }

    //! Reads the widgets of a layout, and leaves their names in it.
    void takeWidgets(Item &item, const UiElement &layout, UiElement &frame)
    {
        for (std::size_t place = 0; place < layout.children.size(); ++place) {
            const UiElement &child = layout.children[place];
            if (child.is(QLatin1String("widget"))) {
                frame.children[place] = {QStringLiteral("widget"),
                                         {{QStringLiteral("name"), child.attribute(QLatin1String("name"))}}};
                item.children.push_back(read(child, false, true));
            } else {
                takeWidgets(item, child, frame.children[place]);
            }
        }
    }

    void remarkOnTranslation(const UiWidget &widget, const UiSetting &setting, const UiElement &value)
    {
        for (const char *attribute : {"comment", "extracomment", "id"}) {
            if (!value.attribute(QLatin1String(attribute)).isEmpty())
                remark(value.line,
                       described(widget) + QStringLiteral(", ") + setting.property +
                           QStringLiteral(": what is said to translators is not kept"),
                       UiFile::Fate::Lost);
        }
    }

    //! What a new control shows is told nowhere; one of a form file shows its default.
    void remarkOnNewValues(const Item &item)
    {
        const auto isTold = [&item](const QString &key) {
            return std::any_of(item.widget.values.cbegin(), item.widget.values.cend(),
                               [&key](const UiWidget::Value &value) { return value.key == key; });
        };
        for (const UiSetting &setting : item.kind.settings) {
            if (setting.isToldAlways && !isTold(setting.key) && !isTold(QStringLiteral("Value")))
                remark(item.widget.line,
                       described(item.widget) + QStringLiteral(", ") + setting.property +
                           QStringLiteral(": what a new control shows can't be said in a form file, where it is empty"),
                       UiFile::Fate::Lost);
        }
    }

    const UiTerms &m_terms;
    const UiFile::Options &m_options;
    QList<UiFile::Remark> &m_remarks;
};

void listItems(Item &item, QList<Item *> &all)
{
    for (Item &child : item.children) {
        all.append(&child);
        listItems(child, all);
    }
}

QString buddyOf(const Item &item)
{
    for (const UiElement &child : item.element->children) {
        if (child.is(QLatin1String("property")) && child.attribute(QLatin1String("name")) == u"buddy" &&
            !child.children.empty())
            return child.children.front().text.trimmed();
    }
    return {};
}

UiStop stopOf(const Item &item)
{
    const auto caption =
        std::find_if(item.widget.values.cbegin(), item.widget.values.cend(),
                     [](const UiWidget::Value &value) { return value.key == QLatin1String("Caption"); });
    UiStop stop;
    stop.name = item.widget.name;
    stop.tabIndex = tabIndexInLines(item.widget);
    const bool isForeign = item.kind.settings.isEmpty() && item.kind.className != u"QWidget";
    stop.takesFocus = item.kind.takesFocus || (isForeign && stop.tabIndex);
    stop.leadsToNext =
        item.kind.leadsToNext && caption != item.widget.values.cend() && caption->element.text.contains(u'&');
    if (item.kind.leadsToNext)
        stop.buddy = buddyOf(item);
    return stop;
}

//! The order of Tab that a form file's numbers give.
struct TabOrder {
    bool isTold = false; //!< by the list and the buddies; else the widgets' own lines hold
    QList<std::optional<int>> indexes{};
    QStringList buddies{}; //!< to which the numbers lead
};

TabOrder tabOrderOf(QList<UiStop> stops, const QStringList &tabStops)
{
    QStringList wanted;
    for (const UiStop &stop : stops)
        wanted << stop.buddy;
    const bool isNumbered = std::any_of(stops.cbegin(), stops.cend(), [](const UiStop &stop) { return stop.tabIndex; });
    TabOrder order;
    if (isNumbered && tabStopsOf(stops) == tabStops && buddiesOf(stops) == wanted) {
        order.buddies = wanted;
        return order;
    }
    order.indexes = toldTabIndexes(stops, tabStops);
    order.isTold = isNumbered || order.indexes.count(std::nullopt) < order.indexes.size();
    for (qsizetype place = 0; place < stops.size(); ++place)
        stops[place].tabIndex = order.indexes.at(place);
    order.buddies = buddiesOf(stops);
    return order;
}

//! Numbers the controls by the list of tab stops and by the buddies, unless their own lines say the same. A buddy that
//! no number can tell is kept, and then its label is one without a letter.
void orderItems(const QList<Item *> &items, const QStringList &tabStops, QList<UiFile::Remark> &remarks)
{
    QList<UiStop> stops;
    QSet<QString> takers;
    for (const Item *item : items) {
        stops.append(stopOf(*item));
        if (stops.constLast().takesFocus)
            takers.insert(stops.constLast().name);
    }
    // The list says it of widgets that nobody knows, unless it means another one of the same name.
    for (qsizetype place = 0; place < stops.size(); ++place) {
        UiStop &stop = stops[place];
        stop.takesFocus = stop.takesFocus || (items.at(place)->kind.settings.isEmpty() &&
                                              tabStops.contains(stop.name) && !takers.contains(stop.name));
    }
    const auto keep = [&](qsizetype place) {
        UiWidget &widget = items.at(place)->widget;
        UiStop &stop = stops[place];
        widget.kept.append(
            {buddyKey, writeUiFragment({textElement(QLatin1String("cstring"), stop.buddy)}), widget.line});
        remarks.append({widget.line,
                        described(widget) + QStringLiteral(": a label of a form file leads to the next control by the "
                                                           "letter behind \"&\" only; its buddy is kept"),
                        UiFile::Fate::Kept});
        stop.leadsToNext = false;
        stop.buddy.clear();
    };
    for (qsizetype place = 0; place < stops.size(); ++place) {
        const UiStop &label = stops.at(place);
        const bool canLead =
            label.leadsToNext && std::any_of(stops.cbegin(), stops.cend(), [&label](const UiStop &stop) {
                return stop.takesFocus && stop.name == label.buddy;
            });
        if (!label.buddy.isEmpty() && !canLead)
            keep(place);
    }
    TabOrder order = tabOrderOf(stops, tabStops);
    for (bool isSettled = false; !isSettled; order = tabOrderOf(stops, tabStops)) {
        isSettled = true;
        for (qsizetype place = 0; place < stops.size(); ++place) {
            if (stops.at(place).buddy.isEmpty() || order.buddies.at(place) == stops.at(place).buddy)
                continue;
            keep(place);
            isSettled = false;
        }
    }
    for (qsizetype place = 0; place < stops.size(); ++place) {
        UiWidget &widget = items.at(place)->widget;
        widget.isInTabOrder = order.isTold;
        if (order.isTold)
            widget.tabIndex = order.indexes.at(place);
        if (order.buddies.at(place) != stops.at(place).buddy)
            remarks.append(
                {widget.line,
                 described(widget) + QStringLiteral(": in a form file the label leads to %1, here to nothing")
                                         .arg(order.buddies.at(place)),
                 UiFile::Fate::Lost});
    }
}

FormBlock blockOf(const Item &item, const UiTerms &terms, QList<UiFile::Remark> &remarks, bool isForm)
{
    FormBlock block = toBlock(item.widget, terms, remarks, isForm);
    for (const Item &child : item.children)
        block.children.push_back(blockOf(child, terms, remarks, false));
    return block;
}

//! Keeps the sections of the file with the form, but those that are told by its controls.
void keepSections(const UiElement &root, Item &form, const UiTerms &terms, QList<UiFile::Remark> &remarks)
{
    QList<UiWidget::Kept> &kept = form.widget.kept;
    const auto keep = [&](const QString &name, const UiElement &element, const char *what) {
        kept.append({sectionKey + name, writeUiFragment({element}), element.line});
        if (what)
            remarks.append({element.line, QStringLiteral("<%1>: %2").arg(name, QLatin1String(what))});
    };
    for (const UiElement &section : root.children) {
        const QString name = section.name.toLower();
        if (name == u"widget" || name == u"tabstops")
            continue;
        if (name == u"class") {
            if (section.text != uiClassName(form.widget.name))
                keep(name, section, nullptr);
        } else if (name == u"customwidgets") {
            UiElement foreign = section;
            std::erase_if(foreign.children, [&terms](const UiElement &one) {
                const UiElement *type = one.child(QLatin1String("class"));
                const UiKind *kind = type ? terms.kinds.ofClass(type->text.trimmed()) : nullptr;
                return kind && !kind->header.isEmpty();
            });
            if (!foreign.children.empty())
                keep(name, foreign, "form files know no other classes; it is kept");
        } else if (!section.children.empty() || !section.attributes.isEmpty() || !section.text.trimmed().isEmpty()) {
            keep(name, section, "form files make nothing of it; it is kept");
        }
    }
    UiElement own{root.name, root.attributes};
    own.attributes.removeIf([](const auto &one) { return one.first == u"version" && one.second == u"4.0"; });
    if (!own.attributes.isEmpty())
        keep(QStringLiteral("ui"), own, nullptr);
}

double dotsOf(const UiElement &form, double usual)
{
    for (const UiElement &child : form.children) {
        if (child.attribute(QLatin1String("name")) == dotsProperty && !child.children.empty()) {
            const double dots = child.children.front().text.trimmed().toDouble();
            return dots >= 1 ? dots : usual;
        }
    }
    return usual;
}

} // namespace

UiFile::Form formFromUi(QByteArrayView text, const UiKinds &kinds, const UiFile::Options &options)
{
    const UiXmlResult xml = readUiXml(text);
    if (!xml.root)
        return {std::nullopt, xml.error, {}};
    const UiElement *window = xml.root->child(QLatin1String("widget"));
    if (!xml.root->is(QLatin1String("ui")) || !window)
        return {std::nullopt, {xml.root->line, QStringLiteral("this is no form of the form designer")}, {}};

    const UiTerms terms{kinds, dotsOf(*window, options.dotsPerInch)};
    UiFile::Form result;
    for (const int line : xml.comments)
        result.remarks.append({line, QStringLiteral("the comment is not kept"), UiFile::Fate::Lost});
    Item root = UiReader(terms, options, result.remarks).read(*window, true, false);
    QList<Item *> items;
    listItems(root, items);
    QStringList tabStops;
    if (const UiElement *list = xml.root->child(QLatin1String("tabstops"))) {
        for (const UiElement &stop : list->children)
            tabStops << stop.text.trimmed();
    }
    orderItems(items, tabStops, result.remarks);
    keepSections(*xml.root, root, terms, result.remarks);
    result.form = blockOf(root, terms, result.remarks, true);
    std::stable_sort(result.remarks.begin(), result.remarks.end(),
                     [](const UiFile::Remark &left, const UiFile::Remark &right) { return left.line < right.line; });
    return result;
}

} // namespace kor
