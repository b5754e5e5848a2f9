// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/listbox.h"
#include "frame/settings.h"
#include "lists/dictionaryrules.h"

#include <KorDaoUC/korlist.h>

using namespace kor;

class Q_DECL_HIDDEN KorList::Private
{
public:
    static const SettingsTable<KorList> settings;
};

const SettingsTable<KorList> KorList::Private::settings = {
    SettingsTable<KorList>::Row::whileReading([](KorList &c) { c.loadNoEntries(); }),
    {"BackColor", &KorList::BackColor, &KorList::setBackColor, WindowBackground},
    {"ForeColor", &KorList::ForeColor, &KorList::setForeColor, WindowText},
    {"Enabled", &KorList::Enabled, &KorList::setEnabled, true},
    {"HelpText", &KorList::HelpText, &KorList::setHelpText, QString()},
    fontSetting<KorList>(),
    {"SQL", &KorList::SQL, &KorList::setSQL, QString()},
    {"Slownik", &KorList::Slownik, &KorList::setSlownik, QString()},
    {"CanBeNull", &KorList::CanBeNull, &KorList::setCanBeNull, false},
    {"NullString", &KorList::NullString, &KorList::setNullString, initialNullString()},
    SettingsTable<KorList>::Row::whileReading([](KorList &c) { c.loadNullEntry(); }),
    // Kept: old forms hold it twice
    {"BackColor", &KorList::BackColor, &KorList::setBackColor, WindowBackground},
    {"Appearance", &KorList::Appearance, &KorList::setAppearance, integer(1)},
    {"BorderStyle", &KorList::BorderStyle, &KorList::setBorderStyle, integer(0)},
    {"BlockUpDown", &KorList::BlockUpDown, &KorList::setBlockUpDown, false},
    {"BlockClick", &KorList::BlockClick, &KorList::setBlockClick, false},
    {"ToolTipText", &KorList::ToolTipText, &KorList::setToolTipText, QString()},
};

KorList::KorList(QWidget *parent) : ListControl(parent, listRules)
{
    auto *box = new ListBox(this);
    box->setObjectName(QStringLiteral("Lista"));
    setListBox(box);
    connect(box, &ListBox::DblClick, this, &KorList::DblClick);
    connect(box, &ListBox::MouseDown, this, &KorList::MouseDown);
    connect(box, &ListBox::MouseUp, this, &KorList::MouseUp);
    initProperties();
}

KorList::~KorList() = default;

void KorList::readProperties(const PropertyBag &bag) { Private::settings.read(*this, bag); }
void KorList::writeProperties(PropertyBag &bag) const { Private::settings.write(*this, bag); }
QList<SavedSetting> KorList::savedSettings() const { return Private::settings.listed(*this); }
