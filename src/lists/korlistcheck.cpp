// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/checklistbox.h"
#include "frame/settings.h"
#include "lists/checkedset.h"
#include "lists/dictionaryrules.h"
#include "lists/keytext.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/korlistcheck.h>
#include <KorDaoUC/locale.h>
#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>

#include <utility>
#include <vector>

using namespace kor;

class Q_DECL_HIDDEN KorListCheck::Private
{
public:
    explicit Private(KorListCheck *control) : q(control), box(new CheckListBox(control)) {}

    void check(std::vector<bool> checks);
    //! A set of the checked entries, each by what the function says of its place.
    template <class PartOf>
    [[nodiscard]] QString joinChecked(PartOf partOf) const;
    //! Whether checks are raised as ItemCheck: not when the host blocks it, nor when a handler of an ItemCheck that
    //! Refresh() raises has called it again.
    [[nodiscard]] bool isTelling() const { return !q->BlockClick() && puttingBack <= 1; }

    KorListCheck *q;
    CheckListBox *box;
    KeyText keyText{Locale::systemDefault()};
    QString separator;
    QString valueChecked; //!< the set that was read or written last, which is what is saved
    QString textChecked;
    int refreshing = 0;  //!< how many calls of Refresh() are under way, each called by what the last one has called
    int puttingBack = 0; //!< how many of them put the checks back
    QString toPutBack;   //!< what they all put back

    static const SettingsTable<KorListCheck> settings;
};

const SettingsTable<KorListCheck> KorListCheck::Private::settings = {
    SettingsTable<KorListCheck>::Row::whileReading([](KorListCheck &c) { c.loadNoEntries(); }),
    {"BackColor", &KorListCheck::BackColor, &KorListCheck::setBackColor, WindowBackground},
    {"ForeColor", &KorListCheck::ForeColor, &KorListCheck::setForeColor, WindowText},
    {"Enabled", &KorListCheck::Enabled, &KorListCheck::setEnabled, true},
    {"HelpText", &KorListCheck::HelpText, &KorListCheck::setHelpText, QString()},
    fontSetting<KorListCheck>(),
    {"SQL", &KorListCheck::SQL, &KorListCheck::setSQL, QString()},
    {"Slownik", &KorListCheck::Slownik, &KorListCheck::setSlownik, QString()},
    {"CanBeNull", &KorListCheck::CanBeNull, &KorListCheck::setCanBeNull, false},
    {"NullString", &KorListCheck::NullString, &KorListCheck::setNullString, initialNullString()},
    SettingsTable<KorListCheck>::Row::whileReading([](KorListCheck &c) { c.loadNullEntry(); }),
    // Kept: old forms hold it twice
    {"BackColor", &KorListCheck::BackColor, &KorListCheck::setBackColor, WindowBackground},
    {"Appearance", &KorListCheck::Appearance, &KorListCheck::setAppearance, integer(1)},
    {"BorderStyle", &KorListCheck::BorderStyle, &KorListCheck::setBorderStyle, integer(0)},
    {"BlockUpDown", &KorListCheck::BlockUpDown, &KorListCheck::setBlockUpDown, false},
    {"ToolTipText", &KorListCheck::ToolTipText, &KorListCheck::setToolTipText, QString()},
    {"BlockClick", &KorListCheck::BlockClick, &KorListCheck::setBlockClick, false},
    // Kept: the sets are saved as they were last read or written, and loading them checks nothing, for want of entries
    {"ValueChecked", [](const KorListCheck &c) { return c.d->valueChecked; },
     [](KorListCheck &c, const QVariant &v) { c.d->valueChecked = CStr(v); }, QString()},
    // Kept: old forms may hold the key, which never was the database
    {"Database", [](const KorListCheck &) { return integer(0); }, [](KorListCheck &, const QVariant &) {}, integer(0)},
    {"Separator", &KorListCheck::Separator, &KorListCheck::setSavedSeparator, QStringLiteral(";")},
    {"TextChecked", [](const KorListCheck &c) { return c.d->textChecked; },
     [](KorListCheck &c, const QVariant &v) { c.d->textChecked = CStr(v); }, QString()},
};

KorListCheck::KorListCheck(QWidget *parent) : ListControl(parent, checkListRules), d(std::make_unique<Private>(this))
{
    d->box->setObjectName(QStringLiteral("CheckList"));
    setListBox(d->box);
    connect(d->box, &CheckListBox::ItemCheck, this, [this](int &item) {
        if (d->isTelling())
            Q_EMIT ItemCheck(item);
    });
    connect(d->box, &ListBox::DblClick, this, &KorListCheck::DblClick);
    connect(d->box, &ListBox::MouseDown, this, &KorListCheck::MouseDown);
    connect(d->box, &ListBox::MouseMove, this, &KorListCheck::MouseMove);
    connect(d->box, &ListBox::MouseUp, this, &KorListCheck::MouseUp);
    initProperties();
}

KorListCheck::~KorListCheck() = default;

void KorListCheck::initProperties()
{
    ListControl::initProperties();
    Private::settings.toDefault(*this, "Separator", d->separator);
    Private::settings.toDefault(*this, "ValueChecked", d->valueChecked);
    Private::settings.toDefault(*this, "TextChecked", d->textChecked);
}

void KorListCheck::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorListCheck::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorListCheck::savedSettings() const { return Private::settings.listed(*this); }

// --- value and text

QString KorListCheck::ValueChecked() const
{
    d->valueChecked = d->joinChecked([this](int place) { return d->keyText.of(keyAt(place)); });
    return d->valueChecked;
}

void KorListCheck::setValueChecked(const QString &keys)
{
    if (HasValues()) {
        const QPointer<KorListCheck> self = this;
        const CheckedSet set(keys, d->separator);
        std::vector<bool> checks(static_cast<std::size_t>(ListCount()));
        for (std::size_t i = 0; i < checks.size() && !set.isEmpty(); ++i)
            checks[i] = set.contains(d->keyText.of(keyAt(static_cast<int>(i))));
        d->check(std::move(checks));
        if (!self)
            return;
        d->valueChecked = set.text();
    }
    propertyChanged("ValueChecked");
}

QString KorListCheck::TextChecked() const
{
    d->textChecked = d->joinChecked([this](int place) { return d->box->List(place); });
    return d->textChecked;
}

bool KorListCheck::Selected() const { return ListIndex() >= 0 && d->box->Selected(ListIndex()); }

void KorListCheck::setSelected(bool checked)
{
    const QPointer<KorListCheck> self = this;
    d->box->setSelected(ListIndex(), checked);
    if (self)
        propertyChanged("Selected");
}

void KorListCheck::CheckAll(bool checked)
{
    d->check(std::vector<bool>(static_cast<std::size_t>(ListCount()), checked));
}

int KorListCheck::SelCount() const { return d->box->SelCount(); }

void KorListCheck::Private::check(std::vector<bool> checks)
{
    // Raising an event for each of thousands of checks takes longer than checking them.
    if (isTelling() && q->isSignalConnected(QMetaMethod::fromSignal(&KorListCheck::ItemCheck)))
        box->setSelected(checks);
    else
        box->setSelectedSilently(std::move(checks));
}

template <class PartOf>
QString KorListCheck::Private::joinChecked(PartOf partOf) const
{
    QString set;
    const int count = box->SelCount() > 0 ? box->ListCount() : 0;
    for (int i = 0; i < count; ++i) {
        if (box->Selected(i))
            set.append(partOf(i)).append(separator);
    }
    return set;
}

// --- filling

void KorListCheck::Refresh()
{
    const QPointer<KorListCheck> self = this;
    if (canReload()) {
        const QString checked = d->refreshing > 0 ? d->toPutBack : ValueChecked();
        d->toPutBack = checked;
        ++d->refreshing;
        const auto done = qScopeGuard([self] {
            if (self)
                --self->d->refreshing;
        });
        if (!reload())
            return;
        putBack(checked);
    }
    if (self)
        Q_EMIT Refreshed();
}

// A handler of ItemCheck that refreshes is called by what it has called. To it, too, all checks come back, those that
// were still waiting included; but it is not told again, or there would be no end.
void KorListCheck::putBack(const QString &checked)
{
    const QPointer<KorListCheck> self = this;
    ++d->puttingBack;
    const auto done = qScopeGuard([self] {
        if (self)
            --self->d->puttingBack;
    });
    setValueChecked(checked);
}

// --- properties

QString KorListCheck::Separator() const { return d->separator; }

void KorListCheck::setSeparator(const QString &separator)
{
    if (UserMode())
        throw RunTimeError(ErrorNumber::SetNotSupportedAtRunTime);
    setSavedSeparator(separator);
}

void KorListCheck::setSavedSeparator(const QString &separator)
{
    d->separator = separator;
    propertyChanged("Separator");
}
