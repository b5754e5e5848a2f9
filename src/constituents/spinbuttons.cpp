// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/spinbuttons.h"

#include "constituents/errorguard.h"

#include <QtCore/QEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QToolButton>

namespace kor {

SpinButtons::SpinButtons(QWidget *parent)
    : QWidget(parent),
      m_up(addArrow(Qt::UpArrow, QStringLiteral("cmdUp"), 1)),
      m_down(addArrow(Qt::DownArrow, QStringLiteral("cmdDown"), -1))
{
    m_up->setAccessibleName(QStringLiteral("Zwiększ"));
    m_down->setAccessibleName(QStringLiteral("Zmniejsz"));
    greyEnds();
}

QToolButton *SpinButtons::addArrow(Qt::ArrowType arrow, const QString &name, int steps)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRepeat(true);
    // Not on the release, as a click would: each press and each repetition is a step.
    connect(button, &QToolButton::pressed, this, [this, steps] { guarded(this, [&] { step(steps); }); });
    return button;
}

void SpinButtons::setValue(int value)
{
    if (!m_range.contains(value))
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    take(value);
}

void SpinButtons::step(int steps) { take(m_range.stepped(m_value, steps)); }

void SpinButtons::take(int value)
{
    if (value == m_value)
        return;
    m_value = value;
    greyEnds();
    Q_EMIT Change();
}

void SpinButtons::follow(int value)
{
    if (m_range.contains(value))
        m_value = value;
    greyEnds();
}

void SpinButtons::setMin(int min) { setRange({min, m_range.max, m_range.increment}); }

void SpinButtons::setMax(int max) { setRange({m_range.min, max, m_range.increment}); }

void SpinButtons::setIncrement(int increment)
{
    if (increment < 1)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    m_range.increment = increment;
}

void SpinButtons::setRange(const SpinRange &range)
{
    m_range = range;
    follow(m_range.nearest(m_value));
}

void SpinButtons::greyEnds()
{
    m_up->setEnabled(m_range.stepped(m_value, 1) != m_value);
    m_down->setEnabled(m_range.stepped(m_value, -1) != m_value);
}

QSize SpinButtons::sizeHint() const
{
    const int line = fontMetrics().height();
    return {line + line / 4, line + line / 2};
}

bool SpinButtons::event(QEvent *event)
{
    // A message that a handler of Change shows takes the release of the mouse; an arrow left down would go on stepping.
    if (event->type() == QEvent::WindowBlocked) {
        m_up->setDown(false);
        m_down->setDown(false);
    }
    return QWidget::event(event);
}

void SpinButtons::resizeEvent(QResizeEvent *)
{
    const int half = height() / 2;
    m_up->setGeometry(0, 0, width(), half);
    m_down->setGeometry(0, half, width(), height() - half);
}

// A click on a grey arrow, and a drag that leaves the arrows, come here and end here: they are not the form's.
void SpinButtons::mousePressEvent(QMouseEvent *event) { event->accept(); }
void SpinButtons::mouseMoveEvent(QMouseEvent *event) { event->accept(); }
void SpinButtons::mouseReleaseEvent(QMouseEvent *event) { event->accept(); }
void SpinButtons::mouseDoubleClickEvent(QMouseEvent *event) { event->accept(); }

} // namespace kor
