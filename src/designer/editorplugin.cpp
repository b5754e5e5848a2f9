// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/editorplugin.h"

#include "designer/propertysheet.h"
#include "designer/taskmenu.h"

#include <KorDaoUC/usercontrol.h>

#include <QtCore/QCoreApplication>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtGui/QKeyEvent>

namespace kor {

namespace {

// The window around the form, of which the form that is saved or previewed knows nothing.
void design(QDesignerFormWindowInterface *window) { UserControl::setUserMode(window, false); }

bool isInRunningControl(const QWidget *place)
{
    while (place && !qobject_cast<const UserControl *>(place))
        place = place->parentWidget();
    return place && static_cast<const UserControl *>(place)->UserMode();
}

} // namespace

void EditorPlugin::initialize(QDesignerFormEditorInterface *core)
{
    m_core = core;
    PropertySheetFactory::install(core);
    TaskMenuFactory::install(core);
    const QDesignerFormWindowManagerInterface *windows = core->formWindowManager();
    for (int i = 0; i < windows->formWindowCount(); ++i)
        design(windows->formWindow(i));
    connect(windows, &QDesignerFormWindowManagerInterface::formWindowAdded, this, &design);
    QCoreApplication::instance()->installEventFilter(this);
}

bool EditorPlugin::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(object, event);
    const auto *place = qobject_cast<QWidget *>(object);
    if (!place || static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape || !isInRunningControl(place))
        return false; // Escape closes the preview
    event->accept();
    return true;
}

} // namespace kor
