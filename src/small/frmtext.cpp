// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/frmtext.h"

#include "constituents/keycodes.h"
#include "constituents/multilinetextbox.h"
#include "constituents/twips.h"
#include "small/multitextrules.h"

#include <QtGui/QFocusEvent>

#include <algorithm>

namespace kor {

namespace {

//! Whether the focus was moved, and not only given back by the window system or by what had popped up.
bool isMove(const QFocusEvent &event)
{
    return event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason;
}

} // namespace

frmText::frmText(QWidget *control, QWidget *field)
    : PopupForm(control), m_field(field), m_text(new MultiLineTextBox(this))
{
    setObjectName(QStringLiteral("frmText"));
    setAccessibleName(QStringLiteral("Edytor tekstu"));
    m_text->setObjectName(QStringLiteral("txtMulti"));
    setFocusProxy(m_text);
    setAttribute(Qt::WA_NoMouseReplay); // the click that closes the form does not open it again
    connect(m_text, &MultiLineTextBox::KeyDown, this, &frmText::keyDown);
    field->installEventFilter(this);
}

void frmText::load()
{
    // A window without height could not be shown at all.
    resize(std::max(1, toPixelsX(this, Twips(m_parentWidth))), std::max(1, toPixelsY(this, Twips(m_windowHeight))));
}

void frmText::resizeEvent(QResizeEvent *) { m_text->setGeometry(rect()); }

void frmText::keyDown(int &code, int &shift)
{
    const PopupKeyAnswer answer = judgePopupKey(code, shift);
    if (answer == PopupKeyAnswer::Edit)
        return;
    code = Key::None;
    const QPointer<frmText> self = this;
    if (answer == PopupKeyAnswer::HandBack && m_control)
        m_control->setProperty("Text", m_text->Text());
    if (self)
        dismiss();
}

bool frmText::eventFilter(QObject *watched, QEvent *event)
{
    const bool isFieldEntered = watched == m_field && event->type() == QEvent::FocusIn;
    if (isFieldEntered && isVisible() && isMove(*static_cast<QFocusEvent *>(event)))
        dismissSoon();
    return PopupForm::eventFilter(watched, event);
}

} // namespace kor
