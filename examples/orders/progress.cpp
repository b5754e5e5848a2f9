// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "progress.h"

#include <utility>

namespace orders {

namespace {

constexpr int patience = 500; // milliseconds before anything is said
constexpr int whole = 1000;   // steps of the progress bar

} // namespace

Progress::Progress(QWidget *parent, const QString &title, const QString &text)
    : m_dialog(text, QStringLiteral("Przerwij"), 0, whole, parent)
{
    m_dialog.setWindowTitle(title);
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(patience);
    // Its own key for this works only while the window system has given it the keyboard.
    QObject::connect(&m_dialog, &QDialog::rejected, &m_dialog, &QProgressDialog::cancel);
}

bool Progress::goesOn(qint64 done, qint64 all)
{
    const auto look = [this] {
        if (m_dialog.isVisible())
            m_hasKeyboard = m_dialog.isActiveWindow();
    };
    look();
    m_dialog.setValue(static_cast<int>(done * whole / (all + 1)));
    look();
    return !m_dialog.wasCanceled();
}

void Progress::end()
{
    m_dialog.reset();
    if (std::exchange(m_hasKeyboard, false))
        m_dialog.parentWidget()->window()->activateWindow(); // not every window system does so by itself
}

} // namespace orders
