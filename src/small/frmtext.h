// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/popupform.h"

#include <QtCore/QPointer>

namespace kor {

class MultiLineTextBox;

//! The pop-up form in which a multi-line text is edited.
//!
//! Its control sets the three properties, loads it once, and then only shows and hides it.
class frmText final : public PopupForm
{
    Q_OBJECT
    //! The width and the height of the form, in twips.
    Q_PROPERTY(float ParentWidth MEMBER m_parentWidth)
    Q_PROPERTY(float WindowHeight MEMBER m_windowHeight)
    //! The control to hand the text back to, by its property `Text`.
    Q_PROPERTY(QObject *ParentControl READ ParentControl WRITE setParentControl)

public:
    //! The field of the control is where the text came from; when it gets the focus, the form closes.
    frmText(QWidget *control, QWidget *field);

    [[nodiscard]] QObject *ParentControl() const { return m_control; }
    void setParentControl(QObject *control) { m_control = control; }
    [[nodiscard]] MultiLineTextBox *txtMulti() const { return m_text; }

    //! Takes its size from the properties.
    void load();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keyDown(int &code, int &shift);

    float m_parentWidth = 0;
    float m_windowHeight = 0;
    QPointer<QObject> m_control;
    QPointer<QWidget> m_field;
    MultiLineTextBox *m_text;
};

} // namespace kor
