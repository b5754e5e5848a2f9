// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionFactory>

#include <optional>

class QDesignerFormEditorInterface;

namespace kor {

//! The form designer's own sheet of a control's properties, with three differences.
//!
//! - A value that the control refuses is told to the user, and the old one stays. The control throws, as it does to
//!   every program, but the designer would end by that, with all forms that are open.
//! - Bounds are variants, which the designer has no editor for; here they are numbers.
//! - `UserMode` is no property of a control. What an older form says of it is neither shown nor saved again.
class PropertySheet final : public QObject,
                            public QDesignerPropertySheetExtension,
                            public QDesignerDynamicPropertySheetExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerPropertySheetExtension QDesignerDynamicPropertySheetExtension)

public:
    //! The designer's own sheet must outlive this one.
    PropertySheet(QDesignerFormEditorInterface *core, QObject *control, QObject *ownSheet, QObject *parent);

    void setProperty(int index, const QVariant &value) override;
    bool reset(int index) override;

    [[nodiscard]] QVariant property(int index) const override;
    [[nodiscard]] bool isVisible(int index) const override;
    [[nodiscard]] bool isEnabled(int index) const override;
    [[nodiscard]] bool isChanged(int index) const override;
    [[nodiscard]] bool canAddDynamicProperty(const QString &name) const override;

    // All else is the designer's own.
    [[nodiscard]] int count() const override { return m_sheet->count(); }
    [[nodiscard]] int indexOf(const QString &name) const override { return m_sheet->indexOf(name); }
    [[nodiscard]] QString propertyName(int index) const override { return m_sheet->propertyName(index); }
    [[nodiscard]] QString propertyGroup(int index) const override { return m_sheet->propertyGroup(index); }
    void setPropertyGroup(int index, const QString &group) override { m_sheet->setPropertyGroup(index, group); }
    [[nodiscard]] bool hasReset(int index) const override { return m_sheet->hasReset(index); }
    void setVisible(int index, bool visible) override { m_sheet->setVisible(index, visible); }
    [[nodiscard]] bool isAttribute(int index) const override { return m_sheet->isAttribute(index); }
    void setAttribute(int index, bool attribute) override { m_sheet->setAttribute(index, attribute); }
    void setChanged(int index, bool changed) override { m_sheet->setChanged(index, changed); }

    [[nodiscard]] bool dynamicPropertiesAllowed() const override { return m_dynamic->dynamicPropertiesAllowed(); }
    int addDynamicProperty(const QString &name, const QVariant &value) override
    {
        return m_dynamic->addDynamicProperty(name, value);
    }
    bool removeDynamicProperty(int index) override { return m_dynamic->removeDynamicProperty(index); }
    [[nodiscard]] bool isDynamicProperty(int index) const override { return m_dynamic->isDynamicProperty(index); }

private:
    void refused(int index, const QString &reason);
    void tellRefusals();
    //! The size that the control is saved with.
    [[nodiscard]] QSize sizeOf(const QSize &present) const;

    QDesignerFormEditorInterface *m_core;
    QObject *m_control;
    QDesignerPropertySheetExtension *m_sheet;
    QDesignerDynamicPropertySheetExtension *m_dynamic;
    QStringList m_refusals; //!< since the last message
    //! The size that the form gave the control, and what the control made of it: a list shows whole rows, a drop-down
    //! list is as high as its font. While that holds nobody sized it, and it is saved with what it was given.
    std::optional<QSize> m_given;
    QSize m_taken;
};

//! Gives every control of the library its PropertySheet.
class PropertySheetFactory final : public QExtensionFactory
{
    Q_OBJECT

public:
    //! Makes the designer ask a new factory.
    static void install(QDesignerFormEditorInterface *core);

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    explicit PropertySheetFactory(QDesignerFormEditorInterface *core);

    QDesignerFormEditorInterface *m_core;
    mutable bool m_isAsking = false; //!< for the designer's own sheet, which it gives when this factory has none
};

} // namespace kor
