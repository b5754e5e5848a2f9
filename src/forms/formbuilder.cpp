// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/twips.h"
#include "forms/formitems.h"
#include "forms/formmirror.h"
#include "forms/formplace.h"
#include "forms/settingsmerge.h"
#include "frame/settings.h"

#include <KorDaoUC/controlregistry.h>
#include <KorDaoUC/convert.h>
#include <KorDaoUC/formbuilder.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/usercontrol.h>

#include <QtCore/QHash>
#include <QtCore/QLoggingCategory>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace kor {

namespace {

Q_LOGGING_CATEGORY(formsLog, "kordaouc.forms", QtInfoMsg)

constexpr QLatin1String libraryPrefix("KorDaoUC.");
constexpr QLatin1String formType("Form");
const QString noForm = QStringLiteral(": a form is a block of the class Form");
constexpr QLatin1String keptForDesigner("ui.");
const QString tabIndexKey = QStringLiteral("TabIndex");

FormItemKind controlKind(const QString &type)
{
    return {
        [type](QWidget *parent) -> QWidget * { return ControlRegistry::create(type, parent); },
        [](QWidget &widget, const PropertyBag &settings) {
            static_cast<UserControl &>(widget).readProperties(settings);
        },
        [](const QWidget &widget, PropertyBag &settings) {
            static_cast<const UserControl &>(widget).writeProperties(settings);
        },
    };
}

QStringList keysOf(const UserControl &control)
{
    QStringList keys;
    for (const SavedSetting &setting : control.savedSettings())
        keys.append(setting.key);
    return keys;
}

//! A block and the widget that was made of it.
struct Item {
    QPointer<QWidget> widget;
    FormItemKind kind;
    FormBlock block; //!< as loaded, without the blocks inside it
    FormPlace place;
    PropertyBag taken; //!< what the widget wrote right after loading
    std::vector<Item> children;
    int tabIndex = 0;

    [[nodiscard]] PropertyBag present() const
    {
        PropertyBag settings;
        place.write(*widget, settings);
        kind.write(*widget, settings);
        return settings;
    }
};

FormBlock blockOf(const Item &item)
{
    FormBlock block = item.block;
    block.properties = mergeSettings(item.block.properties, item.taken, item.present());
    for (const Item &child : item.children) {
        if (child.widget)
            block.children.push_back(blockOf(child));
    }
    return block;
}

QString classAndName(const FormBlock &block)
{
    return block.name.isEmpty() ? block.type : block.type + u' ' + block.name;
}

QString written(const FormFault &fault)
{
    return fault.line > 0 ? QStringLiteral("line %1: ").arg(fault.line) + fault.reason : fault.reason;
}

FormFault fault(const FormBlock &block, const QString &reason) { return {block.line, classAndName(block) + reason}; }

FormFault faultOfSetting(const FormBlock &block, int setting, const QString &reason)
{
    return {block.propertyLines.value(setting, block.line),
            classAndName(block) + QStringLiteral(", ") + block.properties.keyAt(setting) + reason};
}

//! An error of a setting, or of the block as a whole when no key is told. Of a repeated key the last one counts.
FormFault refusal(const FormBlock &block, const RunTimeError &error)
{
    const QString reason = QStringLiteral(": error ") + QString::fromUtf8(error.what());
    const auto *refused = dynamic_cast<const RefusedSetting *>(&error);
    if (!refused)
        return fault(block, reason);
    for (int setting = block.properties.count() - 1; setting >= 0; --setting) {
        if (block.properties.keyAt(setting) == refused->key())
            return faultOfSetting(block, setting, reason);
    }
    return fault(block, QStringLiteral(", ") + refused->key() + reason);
}

//! Finds controls that findChild() can't tell apart.
void findRepeatedNames(const FormBlock &block, QHash<QString, int> &lines, QList<FormFault> &warnings)
{
    for (const FormBlock &child : block.children) {
        const auto first = lines.constFind(child.name);
        if (first == lines.cend())
            lines.insert(child.name, child.line);
        else if (!child.name.isEmpty())
            warnings.append(fault(
                child, QStringLiteral(": there is a control of this name ") +
                           (*first > 0 ? QStringLiteral("at line %1").arg(*first) : QStringLiteral("before it"))));
        findRepeatedNames(child, lines, warnings);
    }
}

//! The block without the settings of a key.
FormBlock without(const FormBlock &block, const QString &key)
{
    FormBlock rest = block;
    rest.properties = PropertyBag();
    rest.propertyLines.clear();
    for (int setting = 0; setting < block.properties.count(); ++setting) {
        if (block.properties.keyAt(setting) == key)
            continue;
        rest.properties.append(block.properties.keyAt(setting), block.properties.valueAt(setting));
        rest.propertyLines.append(block.propertyLines.value(setting, block.line));
    }
    return rest;
}

//! The place of a control in the order of Tab: behind all others, when the file gives it none.
int tabIndexOf(const PropertyBag &settings)
{
    int index = std::numeric_limits<int>::max();
    if (settings.contains(tabIndexKey))
        takeSetting(tabIndexKey, [&] { index = CLng(settings.ReadProperty(tabIndexKey)); });
    return index;
}

//! The items in the order of Tab: by TabIndex, those without one behind the others as they stand in the file.
class TabOrder
{
public:
    void add(const Item &item)
    {
        m_stops.push_back({item.tabIndex, item.widget});
        for (const Item &child : item.children)
            add(child);
    }

    void apply()
    {
        std::stable_sort(m_stops.begin(), m_stops.end(),
                         [](const Stop &left, const Stop &right) { return left.index < right.index; });
        QWidget *next = nullptr;
        bool isNamed = false;
        for (auto stop = m_stops.rbegin(); stop != m_stops.rend(); ++stop) {
            if (auto *label = qobject_cast<QLabel *>(stop->widget)) {
                // The last label before a field is its name to screen readers, with or without a letter for the key.
                const bool isName = next && !isNamed && label->parentWidget() == next->parentWidget() &&
                                    !qobject_cast<QAbstractButton *>(next);
                if (isName || label->text().contains(u'&'))
                    label->setBuddy(next);
                isNamed = true;
            } else if (stop->widget->focusPolicy() & Qt::TabFocus) {
                if (next)
                    QWidget::setTabOrder(stop->widget, next);
                next = stop->widget;
                isNamed = false;
            }
        }
    }

private:
    struct Stop {
        int index;
        QWidget *widget;
    };
    std::vector<Stop> m_stops;
};

//! A window while controls are put on it: unless finished, it is afterwards as it was.
class Construction
{
public:
    explicit Construction(QWidget *window)
        : m_window(window),
          m_title(window->windowTitle()),
          m_font(window->testAttribute(Qt::WA_SetFont) ? window->font() : QFont()),
          m_size(window->size())
    {
    }
    ~Construction()
    {
        if (m_finished)
            return;
        qDeleteAll(m_topLevel);
        m_window->setWindowTitle(m_title);
        m_window->setFont(m_font);
        m_window->resize(m_size);
    }
    Q_DISABLE_COPY_MOVE(Construction)

    void add(QObject *part)
    {
        if (part->parent() == m_window)
            m_topLevel.push_back(part);
    }
    void finish() { m_finished = true; }

private:
    QWidget *m_window;
    QString m_title;
    QFont m_font;
    QSize m_size;
    std::vector<QObject *> m_topLevel;
    bool m_finished = false;
};

} // namespace

class Q_DECL_HIDDEN FormBuilder::Private
{
public:
    [[nodiscard]] std::optional<FormItemKind> kindOf(const QString &type) const;
    [[nodiscard]] bool isKnown(const QString &type) const;
    void findUnknownClasses(const FormBlock &block, QList<FormFault> &faults) const;
    //! The keys that a block of this type may have; nothing when nobody can tell.
    [[nodiscard]] std::optional<QSet<QString>> keysOfType(const QString &type) const;
    void findUnknownKeys(const FormBlock &block, QHash<QString, std::optional<QSet<QString>>> &known,
                         QList<FormFault> &warnings) const;
    [[nodiscard]] QList<FormFault> warnings(const FormBlock &form) const;
    void findRefusals(const FormBlock &block, QList<FormFault> &faults) const;
    //! Where the parts of one block go.
    struct Surface {
        QWidget *parent;
        FormMirror *mirror;
        Resolution resolution;
    };
    Item make(const FormBlock &block, const Surface &surface, Construction &construction);
    void makeChildren(Item &item, const FormBlock &block, Construction &construction);

    QHash<QString, FormItemKind> kinds = readyMadeItems();
    mutable QHash<QString, FormItemKind> controlKinds; //!< those of the library that were asked for
    std::optional<Item> form;
    const FormBlock *current = nullptr;   //!< the block that is being made, for messages
    QHash<QString, QStringList> madeKeys; //!< of the controls made so far, by their type
};

FormBuilder::FormBuilder() : d(std::make_unique<Private>()) {}
FormBuilder::~FormBuilder() = default;

void FormBuilder::addKind(const QString &type, FormItemKind kind) { d->kinds.insert(type, std::move(kind)); }

std::optional<FormItemKind> FormBuilder::Private::kindOf(const QString &type) const
{
    if (const auto kind = kinds.constFind(type); kind != kinds.cend())
        return *kind;
    if (const auto kind = controlKinds.constFind(type); kind != controlKinds.cend())
        return *kind;
    if (type.startsWith(libraryPrefix) && ControlRegistry::names().contains(type.sliced(libraryPrefix.size())))
        return *controlKinds.insert(type, controlKind(type));
    return std::nullopt;
}

bool FormBuilder::Private::isKnown(const QString &type) const
{
    return kinds.contains(type) || controlKinds.contains(type) || kindOf(type);
}

void FormBuilder::Private::findUnknownClasses(const FormBlock &block, QList<FormFault> &faults) const
{
    for (const FormBlock &child : block.children) {
        if (!isKnown(child.type))
            faults.append(fault(child, QStringLiteral(": the class %1 is not known").arg(child.type)));
        findUnknownClasses(child, faults);
    }
}

std::optional<QSet<QString>> FormBuilder::Private::keysOfType(const QString &type) const
{
    const bool isForm = type == formType;
    QStringList keys;
    if (isForm)
        keys = formKeys();
    else if (const auto kind = kinds.constFind(type); kind != kinds.cend())
        keys = kind->keys;
    else if (const auto made = madeKeys.constFind(type); made != madeKeys.cend())
        keys = *made;
    else
        keys = keysOf(*std::unique_ptr<UserControl>(ControlRegistry::create(type, nullptr)));
    if (keys.isEmpty())
        return std::nullopt;
    keys += FormPlace::keys(isForm ? FormPlace::Extent::SizeOnly : FormPlace::Extent::PlaceAndSize);
    if (!isForm)
        keys += tabIndexKey;
    return QSet<QString>(keys.cbegin(), keys.cend());
}

void FormBuilder::Private::findUnknownKeys(const FormBlock &block, QHash<QString, std::optional<QSet<QString>>> &known,
                                           QList<FormFault> &warnings) const
{
    auto keys = known.constFind(block.type);
    if (keys == known.cend())
        keys = known.insert(block.type, keysOfType(block.type));
    for (int setting = 0; *keys && setting < block.properties.count(); ++setting) {
        const QString &key = block.properties.keyAt(setting);
        if (!(*keys)->contains(key) && !key.startsWith(keptForDesigner))
            warnings.append(faultOfSetting(block, setting, QStringLiteral(": the key is not known")));
    }
    for (const FormBlock &child : block.children) {
        if (isKnown(child.type))
            findUnknownKeys(child, known, warnings);
    }
}

QList<FormFault> FormBuilder::Private::warnings(const FormBlock &block) const
{
    QList<FormFault> all;
    QHash<QString, int> lines;
    findRepeatedNames(block, lines, all);
    QHash<QString, std::optional<QSet<QString>>> keys;
    findUnknownKeys(block, keys, all);
    for (FormFault &warning : all)
        warning.isWarning = true;
    return all;
}

//! Tries the settings of a block, again without each one that was refused.
void FormBuilder::Private::findRefusals(const FormBlock &block, QList<FormFault> &faults) const
{
    const bool isForm = block.type == formType;
    const std::optional<FormItemKind> kind = isForm ? FormItemKind{{}, readForm, writeForm} : kindOf(block.type);
    FormBlock tried = block;
    while (kind) {
        try {
            (void)FormPlace(tried.properties, isForm ? FormPlace::Extent::SizeOnly : FormPlace::Extent::PlaceAndSize);
            if (!isForm)
                (void)tabIndexOf(tried.properties);
            const std::unique_ptr<QWidget> widget(isForm ? new QWidget : kind->create(nullptr));
            if (!widget)
                throw RunTimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("the control could not be made"));
            kind->read(*widget, tried.properties);
            break;
        } catch (const RunTimeError &error) {
            faults.append(refusal(tried, error));
            const auto *refused = dynamic_cast<const RefusedSetting *>(&error);
            if (!refused || !tried.properties.contains(refused->key()))
                break;
            tried = without(tried, refused->key());
        }
    }
    for (const FormBlock &child : block.children)
        findRefusals(child, faults);
}

Item FormBuilder::Private::make(const FormBlock &block, const Surface &surface, Construction &construction)
{
    current = &block;
    FormItemKind kind = *kindOf(block.type);
    FormPlace place(block.properties, FormPlace::Extent::PlaceAndSize);
    QWidget *widget = kind.create(surface.parent);
    if (!widget)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("the control could not be made"));
    construction.add(widget);
    widget->setObjectName(block.name);
    Item item{widget, std::move(kind), {block.type, block.name, block.properties, {}}, place, {}, {}};
    item.tabIndex = tabIndexOf(block.properties);
    if (const auto *control = qobject_cast<const UserControl *>(widget); control && !madeKeys.contains(block.type))
        madeKeys.insert(block.type, keysOf(*control));
    item.kind.read(*widget, block.properties);
    item.place.apply(*widget, *surface.mirror, surface.resolution);
    makeChildren(item, block, construction);
    if (surface.parent->isVisible() || widget->testAttribute(Qt::WA_WState_ExplicitShowHide))
        widget->show(); // else it comes with its window
    return item;
}

void FormBuilder::Private::makeChildren(Item &item, const FormBlock &block, Construction &construction)
{
    item.taken = item.present();
    if (block.children.empty())
        return;
    auto *mirror = new FormMirror(item.widget);
    construction.add(mirror);
    const Surface surface{item.widget, mirror, Resolution(item.widget)};
    for (const FormBlock &child : block.children)
        item.children.push_back(make(child, surface, construction));
}

std::optional<QString> FormBuilder::build(const FormBlock &form, QWidget *window)
{
    if (form.type != formType)
        return written(fault(form, noForm));
    QList<FormFault> unknown;
    d->findUnknownClasses(form, unknown);
    if (!unknown.isEmpty())
        return written(unknown.first());

    Construction construction(window);
    try {
        d->current = &form;
        Item item{window,
                  {{}, readForm, writeForm},
                  {form.type, form.name, form.properties, {}},
                  FormPlace(form.properties, FormPlace::Extent::SizeOnly),
                  {},
                  {}};
        readForm(*window, form.properties);
        item.place.applyToForm(*window);
        d->makeChildren(item, form, construction);
        TabOrder order;
        for (const Item &child : item.children)
            order.add(child);
        order.apply();
        d->form = std::move(item);
    } catch (const RunTimeError &error) {
        return written(refusal(*d->current, error));
    }
    construction.finish();
    for (const FormFault &warning : d->warnings(form))
        qCWarning(formsLog).noquote() << written(warning);
    return std::nullopt;
}

QList<FormFault> FormBuilder::check(const FormBlock &form) const
{
    if (form.type != formType)
        return {fault(form, noForm)};
    QList<FormFault> all;
    d->findUnknownClasses(form, all);
    d->findRefusals(form, all);
    all += d->warnings(form);
    std::stable_sort(all.begin(), all.end(),
                     [](const FormFault &left, const FormFault &right) { return left.line < right.line; });
    return all;
}

FormBlock FormBuilder::toBlock() const { return d->form && d->form->widget ? blockOf(*d->form) : FormBlock(); }

} // namespace kor
