// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QProgressDialog>

namespace korform {

//! Says how far the reading of a database is, from half a second on, and lets the user stop it by Escape.
class ReadingProgress
{
public:
    explicit ReadingProgress(const QString &fileName);

    //! So many rows of so many are read; false when it is to be stopped.
    [[nodiscard]] bool goesOn(const QString &table, qint64 done, qint64 all);

private:
    QProgressDialog m_dialog;
};

} // namespace korform
