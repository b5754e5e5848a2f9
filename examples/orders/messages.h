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

//! What becomes of unsaved changes when the clerk goes on to something else.
enum class Changes { Save, Discard, Keep };
//! Asks the clerk; Escape keeps them where they are.
[[nodiscard]] Changes askAboutChanges(QWidget *parent, const QString &title);

//! Asks before all that was typed since the last saving is dropped.
[[nodiscard]] bool mayDropChanges(QWidget *parent, const QString &title);

//! Says what went wrong, and more about it below.
void warn(QWidget *parent, const QString &title, const QString &text, const QString &more = {});

} // namespace orders
