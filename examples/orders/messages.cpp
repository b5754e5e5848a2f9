// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "messages.h"

#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace orders {

int ask(QWidget *parent, const QString &title, const QString &text, const QStringList &answers)
{
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::NoButton, parent);
    QList<QAbstractButton *> buttons;
    for (const QString &answer : answers)
        buttons << box.addButton(answer, QMessageBox::ActionRole);
    box.setDefaultButton(static_cast<QPushButton *>(buttons.first()));
    box.setEscapeButton(buttons.last());
    box.exec();
    parent->activateWindow(); // not every window system does so by itself
    return static_cast<int>(buttons.indexOf(box.clickedButton()));
}

Changes askAboutChanges(QWidget *parent, const QString &title)
{
    const int answer = ask(parent, title, QStringLiteral("Zapisać zmiany?"),
                           {QStringLiteral("&Zapisz"), QStringLiteral("&Nie zapisuj"), QStringLiteral("&Anuluj")});
    return answer == 0 ? Changes::Save : answer == 1 ? Changes::Discard : Changes::Keep;
}

bool mayDropChanges(QWidget *parent, const QString &title)
{
    return ask(parent, title, QStringLiteral("Cofnąć wszystkie zmiany od ostatniego zapisu?"),
               {QStringLiteral("&Cofnij zmiany"), QStringLiteral("&Anuluj")}) == 0;
}

void warn(QWidget *parent, const QString &title, const QString &text, const QString &more)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(more);
    box.exec();
    parent->activateWindow();
}

} // namespace orders
