// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtDesigner/QDesignerFormEditorPluginInterface>

namespace kor {

//! What the form designer alone needs: its forms are designed, not run, it can't bear the errors that controls raise
//! for values they refuse, and it opens their property pages.
//!
//! A module of its own, so that programs which create the controls by name need no part of the designer.
class EditorPlugin final : public QObject, public QDesignerFormEditorPluginInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.Designer.QDesignerFormEditorPluginInterface")
    Q_INTERFACES(QDesignerFormEditorPluginInterface)

public:
    [[nodiscard]] bool isInitialized() const override { return m_core; }
    void initialize(QDesignerFormEditorInterface *core) override;
    [[nodiscard]] QAction *action() const override { return nullptr; }
    [[nodiscard]] QDesignerFormEditorInterface *core() const override { return m_core; }

    //! Lets a control in a preview have the keys that are commands of the designer too, such as F4.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QDesignerFormEditorInterface *m_core = nullptr;
};

} // namespace kor
