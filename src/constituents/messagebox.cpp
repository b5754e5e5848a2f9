// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/messagebox.h"

#include <QtCore/QPointer>
#include <QtWidgets/QMessageBox>

namespace kor {

void exclaim(QWidget *parent, const QString &text, const QString &title, const QString &more)
{
    // On the heap and watched: the host may close the form, and with it the message, while it is up.
    QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, parent ? parent->window() : nullptr);
    box->setTextFormat(Qt::PlainText);
    if (!more.isEmpty()) {
        box->setInformativeText(more);
        box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    box->exec();
    delete box;
}

} // namespace kor
