// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/frmtext.h"

#include "constituents/errorguard.h"
#include "constituents/keycodes.h"
#include "constituents/multilinetextbox.h"
#include "constituents/twips.h"
#include "small/multitextrules.h"

#include <QtGui/QFocusEvent>
#include <QtGui/QMouseEvent>

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
    : QWidget(control, Qt::Popup), m_field(field), m_text(new MultiLineTextBox(this))
{
    setObjectName(QStringLiteral("frmText"));
    setAccessibleName(QStringLiteral("Edytor tekstu"));
    m_text->setObjectName(QStringLiteral("txtMulti"));
    setFocusProxy(m_text);
    setAttribute(Qt::WA_NoMouseReplay); // the click that closes the form does not open it again
    connect(m_text, &MultiLineTextBox::KeyDown, this, &frmText::keyDown);
    control->installEventFilter(this);
    field->installEventFilter(this);
}

void frmText::load()
{
    // A window without height could not be shown at all.
    resize(std::max(1, toPixelsX(this, m_parentWidth)), std::max(1, toPixelsY(this, m_windowHeight)));
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

void frmText::dismiss()
{
    const QPointer<frmText> self = this;
    m_isClosing = true;
    hide();
    if (!self)
        return;
    m_isClosing = false;
    Q_EMIT Closed();
}

void frmText::dismissSoon()
{
    // Not in the middle of the toolkit's own work, which a host's handler could pull the ground from under.
    QMetaObject::invokeMethod(
        this,
        [this] {
            guarded(this, [this] {
                if (isVisible())
                    dismiss();
            });
        },
        Qt::QueuedConnection);
}

// --- what the program does meanwhile

bool frmText::eventFilter(QObject *watched, QEvent *event)
{
    const bool isControlHidden = event->type() == QEvent::Hide && watched == parent();
    const bool isFieldEntered = event->type() == QEvent::FocusIn && watched == m_field;
    if (isVisible() && (isControlHidden || (isFieldEntered && isMove(*static_cast<QFocusEvent *>(event)))))
        dismissSoon();
    return QWidget::eventFilter(watched, event);
}

void frmText::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // Disabled with its control, it would hold keyboard and mouse and take no key or click that could close it.
    if (event->type() == QEvent::EnabledChange && !isEnabled() && isVisible())
        dismissSoon();
}

// --- what the user does

void frmText::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (!rect().contains(event->position().toPoint()))
        guarded(this, [this] { dismiss(); });
}

void frmText::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_isClosing || event->spontaneous())
        return;
    QMetaObject::invokeMethod(
        this, [this] { guarded(this, [this] { Q_EMIT Closed(); }); }, Qt::QueuedConnection);
}

} // namespace kor
