// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "date/frmmonth.h"

#include "constituents/errorguard.h"
#include "constituents/keycodes.h"
#include "constituents/monthview.h"
#include "constituents/popupplace.h"
#include "date/placement.h"

#include <KorDaoUC/format.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QVariant>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QVBoxLayout>

#include <utility>

namespace kor {

namespace {
bool isHandedBack = false;
}

frmMonth::frmMonth(const Locale &locale, QWidget *control)
    : PopupForm(control), m_locale(locale), m_view(new MonthView(locale, this))
{
    setObjectName(QStringLiteral("frmMonth"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setAccessibleName(QStringLiteral("Kalendarz"));
    m_view->setObjectName(QStringLiteral("viewMonth"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint); // no larger than the screen, however large the letters
    layout->addWidget(m_view);
    setFocusProxy(m_view);

    connect(m_view, &MonthView::SelChange, this, [this] { guarded(this, [&] { writeDay(); }); });
    connect(m_view, &MonthView::DblClick, this, [this] { guarded(this, [&] { handBack(); }); });
    connect(m_view, &MonthView::KeyDown, this, [this](int &code, int &) { keyDown(code); });
}

QObject *frmMonth::viewMonthObject() const { return m_view; }

bool frmMonth::takeHandedBack() { return std::exchange(isHandedBack, false); }

void frmMonth::showBesideControl()
{
    setLayoutDirection(parentWidget()->layoutDirection()); // which windows don't take from where they come
    ensurePolished();
    adjustSize();
    const QRect room = controlScreen().availableGeometry();
    setGeometry(ontoScreen(QRect(placePopup(room, controlPlace(), size()), size()), room));
    show();
    m_view->setFocus(Qt::PopupFocusReason);
}

bool frmMonth::isFieldLocked() const
{
    const QVariant locked = m_field ? m_field->property("Locked") : QVariant();
    return locked.typeId() == QMetaType::Bool && locked.value<bool>();
}

void frmMonth::writeDay()
{
    // A field that has gone away, and one without the property, leave the calendar as it is.
    if (!m_field || m_field->metaObject()->indexOfProperty("Text") < 0 || isFieldLocked())
        return;
    m_field->setProperty("Text", Format(m_view->Value(), m_mask, m_locale));
}

void frmMonth::handBack()
{
    const QPointer<frmMonth> self = this;
    if (!isFieldLocked()) { // a day that was only looked at is not handed back
        writeDay();
        isHandedBack = true;
    }
    if (self)
        dismiss();
}

void frmMonth::keyDown(int &code)
{
    switch (code) {
    case Key::Enter:
    case Key::Space:
        code = Key::None;
        handBack();
        break;
    case Key::Escape:
    case Key::Tab:
    case Key::F4:
        code = Key::None;
        dismiss();
        break;
    default: break;
    }
}

void frmMonth::keyPressEvent(QKeyEvent *event)
{
    // What came up from the year above the days, while that is being typed, is not meant for the days.
    guarded(this, [&] {
        int code = keyCode(*event);
        if (!m_view->isAncestorOf(focusWidget()) || focusWidget()->inherits("QTableView"))
            QCoreApplication::sendEvent(m_view, event);
        else if (code != Key::Enter && code != Key::Space)
            keyDown(code);
    });
    event->accept();
}

void frmMonth::mousePressEvent(QMouseEvent *event)
{
    // The press beside the window closes it and then goes to whatever it hit; on the button it has done its work.
    const auto hits = [event](const QWidget *widget) {
        return widget && widget->rect().contains(widget->mapFromGlobal(event->globalPosition().toPoint()));
    };
    setAttribute(Qt::WA_NoMouseReplay, hits(m_opener));
    PopupForm::mousePressEvent(event);
}

} // namespace kor
