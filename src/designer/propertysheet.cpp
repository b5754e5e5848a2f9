// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/propertysheet.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/usercontrol.h>

#include <QtCore/QScopedValueRollback>
#include <QtCore/QTimer>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QExtensionManager>
#include <QtWidgets/QMessageBox>

#include <utility>

namespace kor {

namespace {

bool isUserMode(const QString &property) { return property == QLatin1String("UserMode"); }

bool isPlace(const QString &property) { return property == QLatin1String("geometry"); }

QSize givenSize(const QObject *control) { return static_cast<const UserControl *>(control)->givenSize(); }

bool isBound(const QString &property)
{
    return property == QLatin1String("MinValue") || property == QLatin1String("MaxValue");
}

} // namespace

PropertySheet::PropertySheet(QDesignerFormEditorInterface *core, QObject *control, QObject *ownSheet, QObject *parent)
    : QObject(parent),
      m_core(core),
      m_control(control),
      m_sheet(qobject_cast<QDesignerPropertySheetExtension *>(ownSheet)),
      m_dynamic(qobject_cast<QDesignerDynamicPropertySheetExtension *>(ownSheet))
{
}

void PropertySheet::setProperty(int index, const QVariant &value)
{
    // The designer moves a control with the size that it sees, which may be less than the control was given.
    const bool isResized = !m_given || givenSize(m_control) != m_taken ||
                           value.toRect().size() != static_cast<QWidget *>(m_control)->size();
    try {
        m_sheet->setProperty(index, value);
    } catch (const RunTimeError &error) {
        refused(index, error.description());
    }
    if (isPlace(propertyName(index))) {
        if (isResized)
            m_given = value.toRect().size();
        m_taken = givenSize(m_control);
    }
}

bool PropertySheet::reset(int index)
{
    try {
        return m_sheet->reset(index);
    } catch (const RunTimeError &error) {
        refused(index, error.description());
        return false;
    }
}

QVariant PropertySheet::property(int index) const
{
    const QVariant value = m_sheet->property(index);
    if (isPlace(propertyName(index)))
        return QRect(value.toRect().topLeft(), sizeOf(value.toRect().size()));
    return isBound(propertyName(index)) ? CDbl(value) : value;
}

QSize PropertySheet::sizeOf(const QSize &present) const
{
    const QSize given = givenSize(m_control);
    if (m_given && given == m_taken)
        return *m_given;
    return given.height() > 0 ? given : present;
}

bool PropertySheet::isVisible(int index) const
{
    const QString name = propertyName(index);
    return isBound(name) || (!isUserMode(name) && m_sheet->isVisible(index));
}

bool PropertySheet::isEnabled(int index) const { return isBound(propertyName(index)) || m_sheet->isEnabled(index); }

bool PropertySheet::isChanged(int index) const { return m_sheet->isChanged(index) && !isUserMode(propertyName(index)); }

bool PropertySheet::canAddDynamicProperty(const QString &name) const
{
    return !isUserMode(name) && m_dynamic->canAddDynamicProperty(name);
}

void PropertySheet::refused(int index, const QString &reason)
{
    // Later, since the designer is in the middle of its work, and may have more to set while it loads a form.
    if (m_refusals.isEmpty())
        QTimer::singleShot(0, this, [this] { tellRefusals(); });
    const QString name = propertyName(index);
    m_refusals << QStringLiteral("%1.%2: %3").arg(m_control->objectName(), name, reason);
    QTimer::singleShot(0, this, [this, index, name] {
        auto *editor = m_core->propertyEditor();
        if (editor && editor->object() == m_control)
            editor->setPropertyValue(name, property(index), isChanged(index)); // it shows the refused one
    });
}

void PropertySheet::tellRefusals()
{
    auto *message = new QMessageBox(QMessageBox::Warning, QStringLiteral("KorDaoUC"),
                                    std::exchange(m_refusals, {}).join(u'\n'), QMessageBox::Ok, m_core->topLevel());
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->open();
}

PropertySheetFactory::PropertySheetFactory(QDesignerFormEditorInterface *core)
    : QExtensionFactory(core->extensionManager()), m_core(core)
{
}

void PropertySheetFactory::install(QDesignerFormEditorInterface *core)
{
    auto *factory = new PropertySheetFactory(core);
    for (const char *iid : {qobject_interface_iid<QDesignerPropertySheetExtension *>(),
                            qobject_interface_iid<QDesignerDynamicPropertySheetExtension *>()})
        core->extensionManager()->registerExtensions(factory, QString::fromLatin1(iid));
}

QObject *PropertySheetFactory::createExtension(QObject *object, const QString &iid, QObject *parent) const
{
    if (m_isAsking || !qobject_cast<UserControl *>(object))
        return nullptr;
    const QScopedValueRollback asking(m_isAsking, true);
    QObject *ownSheet = extensionManager()->extension(object, iid);
    if (!ownSheet)
        return nullptr;
    auto *sheet = new PropertySheet(m_core, object, ownSheet, parent);
    connect(object, &QObject::destroyed, sheet, &QObject::deleteLater);
    return sheet;
}

} // namespace kor
