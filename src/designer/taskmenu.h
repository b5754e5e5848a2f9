// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

class QDesignerFormEditorInterface;

namespace kor {

class UserControl;

//! "Właściwości..." in the menu of a control that is being designed: opens the property pages of all controls that are
//! selected with it. A double click on the control does the same.
class TaskMenu final : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    TaskMenu(QDesignerFormEditorInterface *core, UserControl *control, QObject *parent);

    [[nodiscard]] QAction *preferredEditAction() const override { return m_open; }
    [[nodiscard]] QList<QAction *> taskActions() const override { return {m_open}; }

private:
    void openPages();
    //! The controls that are selected together with this one, which comes first.
    [[nodiscard]] QObjectList selected() const;

    QDesignerFormEditorInterface *m_core;
    UserControl *m_control;
    QAction *m_open;
};

//! Gives every control of the library its TaskMenu.
class TaskMenuFactory final : public QExtensionFactory
{
    Q_OBJECT

public:
    //! Makes the designer ask a new factory.
    static void install(QDesignerFormEditorInterface *core);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    explicit TaskMenuFactory(QDesignerFormEditorInterface *core);

    QDesignerFormEditorInterface *m_core;
};

} // namespace kor
