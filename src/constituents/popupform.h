// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QFrame>

namespace kor {

//! A window that pops up from a control and never outstays it: when the control is hidden or disabled, itself or with
//! its form, the window closes. A press beside it closes it too.
class PopupForm : public QFrame
{
    Q_OBJECT

public:
    explicit PopupForm(QWidget *control);

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
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void closeAbove();

    bool m_isClosing = false;
};

} // namespace kor
