// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QFrame>

QT_BEGIN_NAMESPACE
class QScreen;
QT_END_NAMESPACE

namespace kor {

//! A window that pops up from a control and never outstays it: when the control is hidden or disabled, itself or with
//! its form, the window closes. A press beside it closes it too.
class PopupForm : public QFrame
{
    Q_OBJECT

public:
    explicit PopupForm(QWidget *control);

    //! Where the control is on the desktop.
    [[nodiscard]] QRect controlPlace() const;
    //! The screen that shows the middle of the control; of one that is beside all of them, the screen of its window.
    [[nodiscard]] const QScreen &controlScreen() const;
    //! Hides the window and says so.
    void dismiss();

Q_SIGNALS:
    //! The window has been closed: by the user, the program, or the window system.
    void Closed();

protected:
    //! Closes the window when the toolkit has ended what it is at: a host's handler could pull the ground from under
    //! it.
    void dismissSoon();

    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void closeAbove();

    bool m_isClosing = false;
};

} // namespace kor
