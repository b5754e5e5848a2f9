// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QProgressDialog>

namespace orders {

//! Says how far a long work is, from half a second on, and lets the clerk stop it by Escape.
class Progress
{
public:
    Progress(QWidget *parent, const QString &title, const QString &text);
    ~Progress() { end(); }
    Q_DISABLE_COPY_MOVE(Progress)

    //! So much of so much is done; false when it is to be stopped.
    [[nodiscard]] bool goesOn(qint64 done, qint64 all);
    //! Gives the keyboard back, unless the clerk has taken it to another window.
    void end();

private:
    QProgressDialog m_dialog;
    bool m_hasKeyboard = false; //!< or had it last
};

} // namespace orders
