// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <memory>

class QDesignerFormEditorInterface;
class QDesignerFormWindowInterface;
class QDesignerPropertySheetExtension;

namespace kor::test {

//! A form with one control, "field".
[[nodiscard]] QString formOf(const QString &control, const QString &properties = {});

//! The engine of the form designer, with the plugin in its folder, and a form in it.
class DesignerStage
{
protected:
    DesignerStage();
    ~DesignerStage();

    void startDesigner();
    void endDesigner();
    void newForm();
    void closeForm();
    //! Loads a form and selects its control.
    void open(const QString &form);
    [[nodiscard]] QWidget *control() const;
    [[nodiscard]] QDesignerPropertySheetExtension *sheet() const;
    //! The form, loaded by a program that runs.
    [[nodiscard]] static std::unique_ptr<QWidget> run(const QString &form);
    //! The text of the message that is up, which is then closed.
    [[nodiscard]] static QString message();

    std::unique_ptr<QWidget> m_window;
    QDesignerFormEditorInterface *m_core = nullptr;
    QDesignerFormWindowInterface *m_form = nullptr;
};

} // namespace kor::test
