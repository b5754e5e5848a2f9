// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/enumcheck.h"
#include "constituents/listbox.h"

#include <KorDaoUC/listcontrol.h>
#include <KorDaoUC/runtimeerror.h>

namespace kor {

class Q_DECL_HIDDEN ListControl::Private
{
public:
    ListBox *box = nullptr;
    BorderStyleType borderStyle = BorderStyleType::None;
    QString toolTipText;
    int givenHeight = 0;
    int wholeHeight = 0; //!< of the given one, what whole entries take
};

ListControl::ListControl(QWidget *parent, const DictionaryRules &rules)
    : DictionaryControl(parent, rules), d(std::make_unique<Private>())
{
}

ListControl::~ListControl() = default;

void ListControl::setListBox(ListBox *box)
{
    d->box = box;
    setEntryBox(box);
    connect(box, &ListBox::Click, this, &ListControl::boxClicked);
    connect(box, &ListBox::KeyDown, this, &ListControl::boxKeyDown);
    connect(box, &ListBox::heightChanged, this, [this] {
        updateGeometry();
        layoutConstituents();
    });
}

void ListControl::initProperties()
{
    DictionaryControl::initProperties();
    d->borderStyle = BorderStyleType::None;
    d->toolTipText.clear();
}

// --- layout

void ListControl::layoutConstituents()
{
    // Another font or frame starts again from the height that the form gave, or the list would lose entries with each.
    d->givenHeight = givenSize().height();
    d->wholeHeight = d->box->heightOfWholeRows(d->givenHeight);
    d->box->setGeometry(0, 0, width(), d->wholeHeight);
    resize(width(), d->wholeHeight);
}

// Also while the list is hidden and has not been laid out anew.
QSize ListControl::givenSize() const { return {width(), height() != d->wholeHeight ? height() : d->givenHeight}; }

// --- properties

AppearanceType ListControl::Appearance() const { return d->box->Appearance(); }

void ListControl::setAppearance(AppearanceType appearance)
{
    delegate("Appearance", d->box, &ListBox::setAppearance, appearance);
}

BorderStyleType ListControl::BorderStyle() const { return d->borderStyle; }

void ListControl::setBorderStyle(BorderStyleType style)
{
    requireMember(style);
    d->borderStyle = style;
    propertyChanged("BorderStyle");
}

int ListControl::hWnd() const { return mainWindowHandle(); }

QString ListControl::ToolTipText() const { return d->toolTipText; }

void ListControl::setToolTipText(const QString &text)
{
    d->toolTipText = text;
    propertyChanged("ToolTipText");
}

QString ListControl::HelpText() const { return d->box->toolTip(); }
void ListControl::setHelpText(const QString &text) { d->box->setToolTip(text); }

} // namespace kor
