// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/readingprogress.h"

#include <QtCore/QFileInfo>

namespace korform {

namespace {

constexpr int patience = 500; // milliseconds before anything is shown
constexpr int whole = 1000;   // steps of the bar

QString textOf(const QString &table, qint64 done, qint64 all)
{
    return QStringLiteral("%1: %2 of %3 rows are read").arg(table).arg(done).arg(all);
}

} // namespace

ReadingProgress::ReadingProgress(const QString &fileName)
    : m_dialog(textOf(QFileInfo(fileName).fileName(), 0, 0), QStringLiteral("Stop"), 0, whole)
{
    m_dialog.setWindowTitle(QFileInfo(fileName).fileName());
    m_dialog.setWindowModality(Qt::ApplicationModal);
    m_dialog.setMinimumDuration(patience);
    m_dialog.setAttribute(Qt::WA_QuitOnClose, false); // the form comes after it
    // Its own key for this works only while the window system has given it the keyboard.
    QObject::connect(&m_dialog, &QDialog::rejected, &m_dialog, &QProgressDialog::cancel);
}

bool ReadingProgress::goesOn(const QString &table, qint64 done, qint64 all)
{
    m_dialog.setLabelText(textOf(table, done, all));
    m_dialog.setValue(static_cast<int>(done * whole / (all + 1)));
    return !m_dialog.wasCanceled();
}

} // namespace korform
