// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/taskmenu.h"

#include "designer/formwriter.h"

#include <KorDaoUC/propertypagedialog.h>
#include <KorDaoUC/usercontrol.h>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QExtensionManager>
#include <QtGui/QAction>

#include <memory>

namespace kor {

TaskMenu::TaskMenu(QDesignerFormEditorInterface *core, UserControl *control, QObject *parent)
    : QObject(parent), m_core(core), m_control(control), m_open(new QAction(QStringLiteral("Właściwości..."), this))
{
    connect(m_open, &QAction::triggered, this, &TaskMenu::openPages);
}

QObjectList TaskMenu::selected() const
{
    QObjectList all{m_control};
    const QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(m_control);
    const QDesignerFormWindowCursorInterface *cursor = form ? form->cursor() : nullptr;
    if (!cursor || !cursor->isWidgetSelected(m_control))
        return all;
    for (int i = 0; i < cursor->selectedWidgetCount(); ++i) {
        auto *control = qobject_cast<UserControl *>(cursor->selectedWidget(i));
        if (control && control != m_control)
            all << control;
    }
    return all;
}

void TaskMenu::openPages()
{
    auto *dialog = new PropertyPageDialog(selected(), m_core->topLevel());
    const auto writer = std::make_shared<FormWriter>(m_core);
    dialog->setWriter(writer.get());
    connect(dialog, &QObject::destroyed, m_core, [writer] {}); // which keeps it that long
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->show();
}

TaskMenuFactory::TaskMenuFactory(QDesignerFormEditorInterface *core)
    : QExtensionFactory(core->extensionManager()), m_core(core)
{
}

void TaskMenuFactory::install(QDesignerFormEditorInterface *core)
{
    core->extensionManager()->registerExtensions(
        new TaskMenuFactory(core), QString::fromLatin1(qobject_interface_iid<QDesignerTaskMenuExtension *>()));
}

QObject *TaskMenuFactory::createExtension(QObject *object, const QString &, QObject *parent) const
{
    auto *control = qobject_cast<UserControl *>(object);
    return control ? new TaskMenu(m_core, control, parent) : nullptr;
}

} // namespace kor
