// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/spinbuttons.h"

#include "constituents/errorguard.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QToolButton>

namespace kor {

SpinButtons::SpinButtons(QWidget *parent)
    : QWidget(parent),
      m_up(addArrow(Qt::UpArrow, QStringLiteral("cmdUp"), 1)),
      m_down(addArrow(Qt::DownArrow, QStringLiteral("cmdDown"), -1))
{
    greyEnds();
}

QToolButton *SpinButtons::addArrow(Qt::ArrowType arrow, const QString &name, int steps)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRepeat(true);
    connect(button, &QToolButton::clicked, this, [this, steps] { guarded(this, [&] { step(steps); }); });
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

void SpinButtons::resizeEvent(QResizeEvent *)
{
    const int half = height() / 2;
    m_up->setGeometry(0, 0, width(), half);
    m_down->setGeometry(0, half, width(), height() - half);
}

// A click on a grey arrow comes here, and ends here: it is not the form's.
void SpinButtons::mousePressEvent(QMouseEvent *event) { event->accept(); }
void SpinButtons::mouseReleaseEvent(QMouseEvent *event) { event->accept(); }
void SpinButtons::mouseDoubleClickEvent(QMouseEvent *event) { event->accept(); }

} // namespace kor
