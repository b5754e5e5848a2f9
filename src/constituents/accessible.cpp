// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/accessiblecombobox.h"
#include "constituents/accessiblelist.h"
#include "constituents/accessiblemonth.h"
#include "constituents/accessibletext.h"
#include "constituents/combobox.h"
#include "constituents/flexgrid/accessiblegrid.h"
#include "constituents/flexgrid/flexgrid.h"
#include "constituents/listbox.h"
#include "constituents/monthview.h"
#include "constituents/multilinetextbox.h"
#include "constituents/popupform.h"
#include "constituents/textbox.h"

#include <QtWidgets/QTableView>

// The one place that knows which constituent is told of by which interface.

namespace kor {

namespace {

QAccessibleInterface *make(const QString &, QObject *object)
{
    if (auto *text = qobject_cast<TextBox *>(object))
        return new AccessibleTextBox(text);
    if (auto *text = qobject_cast<MultiLineTextBox *>(object))
        return new AccessibleMultiLine(text);
    if (auto *combo = qobject_cast<ComboBox *>(object))
        return new AccessibleComboBox(combo);
    if (auto *list = qobject_cast<ListBox *>(object))
        return new AccessibleList(list);
    if (auto *grid = qobject_cast<FlexGrid *>(object))
        return new AccessibleGrid(grid);
    if (auto *popup = qobject_cast<PopupForm *>(object))
        return new AccessibleField(popup, QAccessible::Dialog);
    auto *days = qobject_cast<QTableView *>(object);
    auto *month = days ? qobject_cast<MonthView *>(days->parent()) : nullptr;
    return month ? new AccessibleMonth(month, days) : nullptr;
}

} // namespace

// Asked each time: the toolkit forgets it with the application object, of which tests may make several.
void makeConstituentsAccessible() { QAccessible::installFactory(make); }

} // namespace kor
