// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class QWidget;

namespace orders {

//! Asks with the answers in words, the first of which is the default and the last one also that of the Escape key; the
//! place of the answer.
[[nodiscard]] int ask(QWidget *parent, const QString &title, const QString &text, const QStringList &answers);

//! Says what went wrong, and more about it below.
void warn(QWidget *parent, const QString &title, const QString &text, const QString &more = {});

} // namespace orders
