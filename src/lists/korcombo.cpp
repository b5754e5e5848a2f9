// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/combobox.h"
#include "constituents/keycodes.h"
#include "frame/settings.h"
#include "lists/databasereference.h"
#include "lists/dictionary.h"
#include "lists/dictionaryloader.h"
#include "lists/dictionarysource.h"

#include <KorDaoUC/korcombo.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QLoggingCategory>
#include <QtCore/QPointer>

#include <algorithm>

using namespace kor;

Q_LOGGING_CATEGORY(comboLog, "kordaouc.lists", QtInfoMsg)

class KorCombo::Private
{
public:
    explicit Private(KorCombo *control) : q(control), box(new ComboBox(control)) {}

    void clicked();
    void keyDown(int &code, int &shift);
    void select(int found);
    void addNullEntry();
    void add(const DictionaryRows &rows);
    [[nodiscard]] bool reload(SourceKind kind);
    [[nodiscard]] bool fill(SourceKind kind);

    KorCombo *q;
    ComboBox *box;
    Locale locale = Locale::systemDefault();
    Dictionary dictionary{KeyEquality::Loose, locale}; //!< key i belongs to entry i of the box
    DatabaseReference database;
    QString sql;
    QString slownik;
    QString nullString;
    bool canBeNull = false;
    bool dirty = false;
    bool isRestoring = false; //!< Refresh() selects again what was selected
    bool blockClick = false;
    bool blockUpDown = false;

    static const SettingsTable<KorCombo> settings;
};

const SettingsTable<KorCombo> KorCombo::Private::settings = {
    SettingsTable<KorCombo>::Row::whileReading([](KorCombo &c) { c.Clear(); }),
    {"BackColor", &KorCombo::BackColor, &KorCombo::setBackColor, WindowBackground},
    {"ForeColor", &KorCombo::ForeColor, &KorCombo::setForeColor, WindowText},
    {"Enabled", &KorCombo::Enabled, &KorCombo::setEnabled, true},
    // Kept: forms hold the tool tip under its old key too, which the newer one overrules
    {"HelpText", &KorCombo::ToolTipText, &KorCombo::setToolTipText, QString()},
    fontSetting<KorCombo>(),
    {"SQL", &KorCombo::SQL, &KorCombo::setSQL, QString()},
    {"Slownik", &KorCombo::Slownik, &KorCombo::setSlownik, QString()},
    {"CanBeNull", &KorCombo::CanBeNull, &KorCombo::setCanBeNull, false},
    {"NullString", &KorCombo::NullString, &KorCombo::setNullString, QStringLiteral("...")},
    SettingsTable<KorCombo>::Row::whileReading([](KorCombo &c) {
        if (c.d->canBeNull)
            c.d->addNullEntry();
        c.d->dirty = false;
    }),
    {"ToolTipText", &KorCombo::ToolTipText, &KorCombo::setToolTipText, QString()},
    // Kept: read twice
    {"Enabled", &KorCombo::Enabled, &KorCombo::setEnabled, true, SettingUse::ReadOnly},
    {"BlockUpDown", &KorCombo::BlockUpDown, &KorCombo::setBlockUpDown, false},
    {"BlockClick", &KorCombo::BlockClick, &KorCombo::setBlockClick, false},
};

KorCombo::KorCombo(QWidget *parent) : UserControl(parent), d(std::make_unique<Private>(this))
{
    d->box->setObjectName(QStringLiteral("cmbCombo"));
    setMainConstituent(d->box);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(d->box, &ComboBox::Click, this, [this] { d->clicked(); });
    connect(d->box, &ComboBox::KeyDown, this, [this](int &code, int &shift) { d->keyDown(code, shift); });
    connect(d->box, &ComboBox::heightChanged, this, [this] { layoutConstituents(); });
    initProperties();
    layoutConstituents();
}

KorCombo::~KorCombo() = default;

void KorCombo::initProperties()
{
    d->nullString = QStringLiteral("...");
    d->dirty = false;
    d->blockUpDown = false;
    d->blockClick = false;
}

void KorCombo::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorCombo::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }

void KorCombo::layoutConstituents()
{
    const int height = d->box->sizeHint().height();
    setFixedHeight(height);
    d->box->setGeometry(0, 0, width(), height);
}

// --- entries

void KorCombo::AddEntry(const QVariant &wartosc, const QString &nazwa)
{
    d->dictionary.append(wartosc);
    d->box->AddItem(nazwa);
}

void KorCombo::Private::addNullEntry() { q->AddEntry(null(), nullString); }

void KorCombo::Private::add(const DictionaryRows &rows)
{
    dictionary.append(rows.keys);
    box->AddItems(rows.names);
}

void KorCombo::Clear()
{
    d->dictionary.clear();
    d->box->Clear();
}

QVariant KorCombo::Exists(const QVariant &val) const { return d->dictionary.contains(val); }
bool KorCombo::HasValues() const { return !d->dictionary.isEmpty(); }
int KorCombo::ListCount() const { return d->box->ListCount(); }

void KorCombo::Refresh()
{
    const QPointer<KorCombo> self = this;
    const SourceKind kind = sourceKind(d->sql);
    if (d->database.get() || kind == SourceKind::List) {
        if (!d->reload(kind) || !self)
            return;
    }
    Q_EMIT Refreshed();
}

//! Fills the list anew and selects the same key again. False when the filling came to an early end.
bool KorCombo::Private::reload(SourceKind kind)
{
    const QPointer<KorCombo> self = q;
    const QVariant before = box->ListIndex() >= 0 ? q->Value() : QVariant();
    q->Clear();
    if (canBeNull)
        addNullEntry();
    if (!fill(kind))
        return false;

    isRestoring = true;
    q->setValue(before);
    isRestoring = false;
    dirty = false;
    if (dictionary.isDifferent(q->Value(), before))
        clicked();
    if (self)
        q->update();
    return true;
}

bool KorCombo::Private::fill(SourceKind kind)
{
    if (kind == SourceKind::List)
        add(parseInlineList(sql));
    if (kind != SourceKind::Select)
        return true;
    const DictionaryLoad load = loadDictionary(*database.get(), sql, locale);
    if (load.outcome == LoadOutcome::Failed)
        qCDebug(comboLog, "Refresh ended early: %ls", qUtf16Printable(load.failure));
    add(load.rows);
    return load.outcome == LoadOutcome::Loaded;
}

// --- selection

int KorCombo::ListIndex() const { return d->box->ListIndex(); }
void KorCombo::setListIndex(int index) { d->box->setListIndex(index); }

QVariant KorCombo::Value() const { return d->dictionary.key(d->box->ListIndex()); }

void KorCombo::setValue(const QVariant &key)
{
    if (HasValues())
        d->select(d->dictionary.indexOf(key));
}

QString KorCombo::Text() const { return d->box->List(d->box->ListIndex()); }

void KorCombo::setText(const QString &name)
{
    if (HasValues())
        d->select(d->box->indexOf(name));
}

void KorCombo::Private::select(int found)
{
    const QPointer<KorCombo> self = q;
    box->setListIndex(std::max(found, 0));
    if (self && found == 0)
        clicked(); // Kept: hosts count on a click for the first entry, even where it was selected before
}

void KorCombo::Private::clicked()
{
    if (isRestoring)
        return;
    dirty = true;
    if (!blockClick)
        Q_EMIT q->Click();
}

// --- keyboard

void KorCombo::Private::keyDown(int &code, int &shift)
{
    if (code == Key::F5) {
        code = Key::None;
        q->Refresh();
        return;
    }
    if (box->isDropped())
        return;
    const QPointer<KorCombo> self = q;
    Q_EMIT q->KeyDown(code, shift);
    if (!self)
        return;
    const bool isMove = code == Key::Up || code == Key::Down;
    if (blockUpDown && isMove && (shift == ShiftState::None || shift == ShiftState::Ctrl))
        code = Key::None;
}

// --- settings

void KorCombo::setdatabase(Database *database) { d->database.set(database); }
void KorCombo::setdatabase(QObject *database) { d->database.setObject(database); }
void KorCombo::setdatabase(const QString &connectionName) { d->database.setConnection(connectionName); }

QString KorCombo::SQL() const { return d->sql; }

void KorCombo::setSQL(const QString &source)
{
    d->sql = source;
    propertyChanged("SQL");
}

QString KorCombo::Slownik() const { return d->slownik; }

void KorCombo::setSlownik(const QString &name)
{
    d->slownik = name;
    propertyChanged("Slownik");
}

bool KorCombo::CanBeNull() const { return d->canBeNull; }

void KorCombo::setCanBeNull(bool canBeNull)
{
    d->canBeNull = canBeNull;
    propertyChanged("CanBeNull");
}

QString KorCombo::NullString() const { return d->nullString; }

void KorCombo::setNullString(const QString &name)
{
    d->nullString = name;
    propertyChanged("NullString");
}

bool KorCombo::DataChanged() const { return d->dirty; }
void KorCombo::setDataChanged(bool changed) { d->dirty = changed; }
bool KorCombo::BlockClick() const { return d->blockClick; }

void KorCombo::setBlockClick(bool block)
{
    d->blockClick = block;
    propertyChanged("BlockClick");
}

bool KorCombo::BlockUpDown() const { return d->blockUpDown; }

void KorCombo::setBlockUpDown(bool block)
{
    d->blockUpDown = block;
    propertyChanged("BlockUpDown");
}

QString KorCombo::ToolTipText() const { return d->box->toolTip(); }

void KorCombo::setToolTipText(const QString &text)
{
    d->box->setToolTip(text);
    propertyChanged("ToolTipText");
}
