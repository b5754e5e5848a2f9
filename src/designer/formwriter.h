// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/propertypage.h>

#include <QtCore/QHash>
#include <QtCore/QPointer>

#include <memory>

class QDesignerFormEditorInterface;
class QDesignerFormWindowInterface;

namespace kor {

class UserControl;

//! Writes to controls of a form that is being designed, through the designer: the form is changed, one Apply is one
//! step to undo, and a value that is the default is no longer saved.
//!
//! What a control has already is not written, so that an Apply which changes nothing is no step. What a control refuses
//! is raised before the designer hears of it, for the designer bears no errors.
class FormWriter final : public PropertyWriter
{
public:
    explicit FormWriter(QDesignerFormEditorInterface *core);
    ~FormWriter() override;

    void write(QObject &control, const QString &property, const QVariant &value) override;
    //! What a method of the control does is told by the properties that are others afterwards: they are what is saved
    //! and undone.
    void call(QObject &control, const std::function<void()> &deed) override;
    void beginApply() override { ++m_depth; }
    void endApply() noexcept override;

private:
    [[nodiscard]] QVariant defaultOf(const UserControl &control, const char *member);
    void beginStep(QDesignerFormWindowInterface *form);

    QDesignerFormEditorInterface *m_core;
    int m_depth = 0;
    QPointer<QDesignerFormWindowInterface> m_form;        //!< whose step has begun
    QHash<QString, std::shared_ptr<UserControl>> m_fresh; //!< a new control of each kind, for the defaults
};

} // namespace kor
