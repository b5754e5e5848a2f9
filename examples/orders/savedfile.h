// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <system_error>

class QWidget;

namespace orders {

//! Where the clerk wants a file saved; "" when nowhere. The name that is offered ends as the first filter says; a name
//! without an ending gets that of the filter which was chosen, before it is asked whether a file of that name may go.
[[nodiscard]] QString askForFile(QWidget *parent, const QString &title, const QString &name,
                                 const QStringList &filters);

//! The folder in which files are offered from now on; "", and one that is not there, is that of documents.
void offerFilesIn(const QString &folder);

//! Which folder the clerk chooses, beginning in one; "" for none.
[[nodiscard]] QString askForFolder(QWidget *parent, const QString &title, const QString &folder);

//! Writes a file all or nothing. False when that failed, which the clerk has been told by then.
bool saveFile(QWidget *parent, const QString &title, const QString &fileName, QByteArrayView bytes);

//! Says that a file could not be written, and why, in the clerk's words where there are any.
void warnOfFile(QWidget *parent, const QString &title, const QString &fileName, std::error_code error,
                const QString &reason);

} // namespace orders
