// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/commandbutton.h"

#include "constituents/errorguard.h"
#include "constituents/keyoffer.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

#include <algorithm>

namespace kor {

CommandButton::CommandButton(Sign sign, QWidget *parent) : QPushButton(parent), m_sign(sign)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { guarded(this, [this] { Q_EMIT Click(); }); });
}

int CommandButton::widthBeside(int height) const
{
    const int line = fontMetrics().height();
    const int square = std::min(height, line + line / 2);
    return text().isEmpty() ? square : std::max(square, fontMetrics().horizontalAdvance(text()) + line);
}

QSize CommandButton::sizeHint() const
{
    const int height = QPushButton::sizeHint().height();
    return {widthBeside(height), height};
}

QSize CommandButton::minimumSizeHint() const { return sizeHint(); }

bool CommandButton::event(QEvent *event)
{
    const bool isSwitchedOff = !isEnabled() && parentWidget() && parentWidget()->isEnabled();
    if (isSwitchedOff && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease ||
                          event->type() == QEvent::MouseButtonDblClick)) {
        event->accept();
        return true;
    }
    // The toolkit's button asks for a new layout around it when it is shown first. Its field places it and needs none,
    // and where many fields wait for one, each of them looks through all that waits.
    if (event->type() == QEvent::PolishRequest)
        return QAbstractButton::event(event);
    return QPushButton::event(event);
}

void CommandButton::mousePressEvent(QMouseEvent *event)
{
    onInput(this, event, [&] { QPushButton::mousePressEvent(event); });
    event->accept();
}

void CommandButton::keyPressEvent(QKeyEvent *event)
{
    onInput(this, event, [&] {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QPushButton::keyPressEvent(event);
    });
}

void CommandButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    if (!text().isEmpty())
        return;
    QPainter painter(this);
    if (m_sign == Sign::Dots) {
        paintDots(painter);
        return;
    }
    QStyleOption arrow;
    arrow.initFrom(this);
    const int side = std::min(width(), fontMetrics().height()) * 2 / 3;
    arrow.rect = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, {side, side}, rect());
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
}

void CommandButton::paintDots(QPainter &painter) const
{
    const double step = std::min<double>(width() / 4.0, fontMetrics().height() / 3.0);
    const double radius = std::max(0.9, step / 4.2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().buttonText());
    const QPointF middle = QRectF(rect()).center();
    for (const int place : {-1, 0, 1})
        painter.drawEllipse(middle + QPointF(place * step, 0), radius, radius);
}

} // namespace kor
