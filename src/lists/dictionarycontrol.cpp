// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/entrybox.h"
#include "constituents/keycodes.h"
#include "database/source.h"
#include "lists/databasereference.h"
#include "lists/dictionary.h"
#include "lists/dictionaryloader.h"
#include "lists/dictionaryrules.h"
#include "lists/dictionarysource.h"

#include <KorDaoUC/dictionarycontrol.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QLoggingCategory>
#include <QtCore/QPointer>

#include <algorithm>
#include <utility>

Q_LOGGING_CATEGORY(listsLog, "kordaouc.lists")

namespace kor {

class Q_DECL_HIDDEN DictionaryControl::Private
{
public:
    Private(DictionaryControl *control, const DictionaryRules &ownRules) : q(control), rules(ownRules) {}

    void select(int found);
    void clicked();
    void restore(const QVariant &before);
    [[nodiscard]] bool fill();
    [[nodiscard]] bool fillFromDatabase();
    void warn(const QString &text) const;
    void add(DictionaryRows rows);

    DictionaryControl *q;
    DictionaryRules rules;
    EntryBox *box = nullptr;
    Locale locale = Locale::systemDefault();
    Dictionary dictionary{rules.equality, locale}; //!< key i belongs to entry i of the box
    DatabaseReference database;
    QString sql;
    QString slownik;
    QString nullString;
    bool canBeNull = false;
    bool dirty = false;
    QVariant toRestore;       //!< what was selected before the list was emptied for rows that are still under way
    int clearings = 0;        //!< how often the list was emptied; rows asked for before the last time are out of date
    bool isRestoring = false; //!< Refresh() selects again what was selected
    bool blockClick = false;
    bool blockUpDown = false;
    std::function<void()> refreshedBy;
};

DictionaryControl::DictionaryControl(QWidget *parent, const DictionaryRules &rules)
    : UserControl(parent), d(std::make_unique<Private>(this, rules))
{
}

DictionaryControl::~DictionaryControl()
{
    // The box outlives this by a moment, and losing the focus in it may have something to report.
    disconnect(mainConstituent(), nullptr, this, nullptr);
}

void DictionaryControl::setEntryBox(EntryBox *box)
{
    d->box = box;
    setMainConstituent(dynamic_cast<QWidget *>(box));
}

void DictionaryControl::initProperties()
{
    d->nullString = initialNullString();
    d->dirty = false;
    d->blockUpDown = false;
    d->blockClick = false;
}

void DictionaryControl::loadNoEntries() { Clear(); }

void DictionaryControl::loadNullEntry()
{
    if (d->canBeNull)
        AddEntry(null(), d->nullString);
    d->dirty = false;
}

// --- value and text

int DictionaryControl::ListIndex() const { return d->box->ListIndex(); }

void DictionaryControl::setListIndex(int index)
{
    const QPointer<DictionaryControl> self = this;
    d->box->setListIndex(index);
    if (self && d->rules.indexReport == IndexReport::Reported)
        propertyChanged("ListIndex");
}

QVariant DictionaryControl::Value() const { return keyAt(ListIndex()); }

void DictionaryControl::setValue(const QVariant &key)
{
    if (HasValues())
        d->select(d->dictionary.indexOf(key));
}

QString DictionaryControl::Text() const { return d->box->List(ListIndex()); }

void DictionaryControl::setText(const QString &name)
{
    if (HasValues())
        d->select(d->box->indexOf(name));
}

void DictionaryControl::Private::select(int found)
{
    const QPointer<DictionaryControl> self = q;
    box->setListIndex(std::max(found, 0));
    if (self && found == 0)
        clicked(); // Kept: hosts count on a click for the first entry, even where it was selected before
}

void DictionaryControl::boxClicked() { d->clicked(); }

void DictionaryControl::Private::clicked()
{
    if (isRestoring)
        return;
    dirty = true;
    if (!blockClick)
        q->raiseClick();
}

bool DictionaryControl::DataChanged() const { return d->dirty; }
void DictionaryControl::setDataChanged(bool changed) { d->dirty = changed; }

// --- keyboard

void DictionaryControl::boxKeyDown(int &code, int &shift)
{
    if (code == Key::F5) {
        code = Key::None;
        if (const auto refresh = d->refreshedBy)
            refresh();
        else
            Refresh();
        return;
    }
    if (d->rules.blockedArrows == BlockedArrows::WithholdTheEvent) {
        if (!d->blockUpDown || !isUpOrDown(code))
            raiseKeyDown(code, shift);
        return;
    }
    const QPointer<DictionaryControl> self = this;
    raiseKeyDown(code, shift);
    if (self && d->blockUpDown && isRowKey(code, shift))
        code = Key::None;
}

// --- entries

void DictionaryControl::AddEntry(const QVariant &wartosc, const QString &nazwa)
{
    d->dictionary.append(wartosc);
    d->box->AddItem(nazwa);
}

void DictionaryControl::Private::add(DictionaryRows rows)
{
    dictionary.append(std::move(rows.keys));
    box->AddItems(std::move(rows.names));
}

void DictionaryControl::Clear()
{
    ++d->clearings;
    d->toRestore.clear();
    d->dictionary.clear();
    d->box->Clear();
}

QVariant DictionaryControl::Exists(const QVariant &val) const { return d->dictionary.contains(val); }
bool DictionaryControl::HasValues() const { return !d->dictionary.isEmpty(); }
int DictionaryControl::ListCount() const { return d->box->ListCount(); }
const QVariant &DictionaryControl::keyAt(int place) const { return d->dictionary.key(place); }

void DictionaryControl::Refresh()
{
    const QPointer<DictionaryControl> self = this;
    if (canReload() && !reload())
        return;
    if (self)
        raiseRefreshed();
}

void DictionaryControl::setRefreshedBy(std::function<void()> refresh) { d->refreshedBy = std::move(refresh); }

bool DictionaryControl::canReload() const
{
    const SourceKind kind = sourceKind(d->sql);
    if (kind == SourceKind::Other && sourceKind(QStringView(d->sql).trimmed()) != SourceKind::Other)
        d->warn(QStringLiteral("SQL begins with a blank, so it loads nothing: ") + statementExcerpt(d->sql));
    // While a form is designed, its controls leave databases alone.
    return (d->database.get() && UserMode()) || kind == SourceKind::List;
}

bool DictionaryControl::reload()
{
    const QPointer<DictionaryControl> self = this;
    const QVariant before = ListIndex() >= 0 ? Value() : d->toRestore;
    Clear();
    d->toRestore = before;
    if (d->canBeNull)
        AddEntry(null(), d->nullString);
    if (!d->fill())
        return false;

    d->toRestore.clear();
    if (ListIndex() < 0) // nobody has selected anything while the database was waited for
        d->restore(before);
    if (self)
        update();
    return self;
}

void DictionaryControl::Private::restore(const QVariant &before)
{
    isRestoring = true;
    q->setValue(before);
    isRestoring = false;
    dirty = false;
    if (dictionary.isDifferent(q->Value(), before))
        clicked();
}

//! Whether all entries are there; if not, the control itself may be gone.
bool DictionaryControl::Private::fill()
{
    switch (sourceKind(sql)) {
    case SourceKind::Select: return fillFromDatabase();
    case SourceKind::List: add(parseInlineList(sql)); return true;
    case SourceKind::Other: break;
    }
    return true;
}

// A host's own database may run an event loop while it waits, in which anything happens to the control: it is deleted,
// cleared, given another source or refreshed again. What came later holds, and the rows asked for before are dropped.
bool DictionaryControl::Private::fillFromDatabase()
{
    const QPointer<DictionaryControl> self = q;
    const int asked = clearings;
    const auto source = database.share();
    const QString statement = sql;
    const Locale language = locale;
    DictionaryLoad load = loadDictionary(*source, statement, language);
    if (!self)
        return false;
    if (load.outcome == LoadOutcome::Failed)
        warn(QStringLiteral("Refresh ended early: ") + load.failure);
    if (clearings != asked)
        return false;
    add(std::move(load.rows));
    if (load.outcome != LoadOutcome::Loaded)
        toRestore.clear();
    return load.outcome == LoadOutcome::Loaded;
}

void DictionaryControl::Private::warn(const QString &text) const
{
    const QString name = q->objectName().isEmpty() ? QString() : u' ' + q->objectName();
    qCWarning(listsLog, "%s%ls: %ls", q->metaObject()->className(), qUtf16Printable(name), qUtf16Printable(text));
}

// --- properties

void DictionaryControl::setdatabase(Database *database) { d->database.set(database); }
void DictionaryControl::setdatabase(QObject *database) { d->database.setObject(database); }
void DictionaryControl::setdatabase(const QString &connectionName) { d->database.setConnection(connectionName); }

QString DictionaryControl::SQL() const { return d->sql; }

void DictionaryControl::setSQL(const QString &source)
{
    d->sql = source;
    propertyChanged("SQL");
}

QString DictionaryControl::Slownik() const { return d->slownik; }

void DictionaryControl::setSlownik(const QString &name)
{
    d->slownik = name;
    propertyChanged("Slownik");
}

bool DictionaryControl::CanBeNull() const { return d->canBeNull; }

void DictionaryControl::setCanBeNull(bool canBeNull)
{
    d->canBeNull = canBeNull;
    propertyChanged("CanBeNull");
}

QString DictionaryControl::NullString() const { return d->nullString; }

void DictionaryControl::setNullString(const QString &name)
{
    d->nullString = name;
    propertyChanged("NullString");
}

bool DictionaryControl::BlockClick() const { return d->blockClick; }

void DictionaryControl::setBlockClick(bool block)
{
    d->blockClick = block;
    propertyChanged("BlockClick");
}

bool DictionaryControl::BlockUpDown() const { return d->blockUpDown; }

void DictionaryControl::setBlockUpDown(bool block)
{
    d->blockUpDown = block;
    propertyChanged("BlockUpDown");
}

} // namespace kor
