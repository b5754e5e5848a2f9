// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace kor {

class MultiLineTextBox;

//! The pop-up form in which a multi-line text is edited.
//!
//! Its control sets the three properties, loads it once, and then only shows and hides it.
class frmText final : public QWidget
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
    //! Hides the form and says so.
    void dismiss();

Q_SIGNALS:
    //! The user has closed the form, or the window system has.
    void Closed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keyDown(int &code, int &shift);
    void dismissSoon();

    float m_parentWidth = 0;
    float m_windowHeight = 0;
    QPointer<QObject> m_control;
    QPointer<QWidget> m_field;
    MultiLineTextBox *m_text;
    bool m_isClosing = false;
};

} // namespace kor
