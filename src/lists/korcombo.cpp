// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/combobox.h"
#include "constituents/keycodes.h"
#include "frame/settings.h"
#include "lists/dictionaryrules.h"

#include <KorDaoUC/korcombo.h>

using namespace kor;

class Q_DECL_HIDDEN KorCombo::Private
{
public:
    explicit Private(KorCombo *control) : box(new ComboBox(control)) {}

    ComboBox *box;

    static const SettingsTable<KorCombo> settings;
};

const SettingsTable<KorCombo> KorCombo::Private::settings = {
    SettingsTable<KorCombo>::Row::whileReading([](KorCombo &c) { c.loadNoEntries(); }),
    {"BackColor", &KorCombo::BackColor, &KorCombo::setBackColor, WindowBackground},
    {"ForeColor", &KorCombo::ForeColor, &KorCombo::setForeColor, WindowText},
    {"Enabled", &KorCombo::Enabled, &KorCombo::setEnabled, true},
    // Kept: forms hold the tool tip under its old key too, which the newer one overrules
    {"HelpText", &KorCombo::ToolTipText, &KorCombo::setToolTipText, QString()},
    fontSetting<KorCombo>(),
    {"SQL", &KorCombo::SQL, &KorCombo::setSQL, QString()},
    {"Slownik", &KorCombo::Slownik, &KorCombo::setSlownik, QString()},
    {"CanBeNull", &KorCombo::CanBeNull, &KorCombo::setCanBeNull, false},
    {"NullString", &KorCombo::NullString, &KorCombo::setNullString, initialNullString()},
    SettingsTable<KorCombo>::Row::whileReading([](KorCombo &c) { c.loadNullEntry(); }),
    {"ToolTipText", &KorCombo::ToolTipText, &KorCombo::setToolTipText, QString()},
    // Kept: read twice
    {"Enabled", &KorCombo::Enabled, &KorCombo::setEnabled, true, SettingUse::ReadOnly},
    {"BlockUpDown", &KorCombo::BlockUpDown, &KorCombo::setBlockUpDown, false},
    {"BlockClick", &KorCombo::BlockClick, &KorCombo::setBlockClick, false},
};

KorCombo::KorCombo(QWidget *parent) : DictionaryControl(parent, comboRules), d(std::make_unique<Private>(this))
{
    d->box->setObjectName(QStringLiteral("cmbCombo"));
    setEntryBox(d->box);

    connect(d->box, &ComboBox::Click, this, &KorCombo::boxClicked);
    connect(d->box, &ComboBox::KeyDown, this, [this](int &code, int &shift) {
        if (code == Key::F5 || !d->box->isDropped())
            boxKeyDown(code, shift);
    });
    connect(d->box, &ComboBox::heightChanged, this, [this] { layoutConstituents(); });
    initProperties();
    layoutConstituents();
}

KorCombo::~KorCombo() = default;

void KorCombo::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorCombo::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorCombo::savedSettings() const { return Private::settings.listed(*this); }

// --- layout

void KorCombo::layoutConstituents()
{
    const int height = d->box->sizeHint().height();
    setFixedHeight(height);
    d->box->setGeometry(0, 0, width(), height);
}

QSize KorCombo::givenSize() const { return {width(), 0}; }

// --- properties

QString KorCombo::ToolTipText() const { return d->box->toolTip(); }
void KorCombo::setToolTipText(const QString &text) { delegate("ToolTipText", d->box, &QWidget::setToolTip, text); }
