// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/fieldframe.h"

#include "constituents/enumcheck.h"

#include <KorDaoUC/runtimeerror.h>

#include <QtCore/QEvent>
#include <QtGui/QRegion>
#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>

namespace kor {

FieldFrame::FieldFrame(QWidget *parent) : QWidget(parent) {}

void FieldFrame::setField(QWidget *field)
{
    m_field = field;
    field->installEventFilter(this);
}

void FieldFrame::setBorderStyle(BorderStyleType style)
{
    requireMember(style);
    m_border = style;
    update();
}

void FieldFrame::setAppearance(AppearanceType appearance)
{
    requireMember(appearance);
    m_appearance = appearance;
    update();
}

int FieldFrame::borderWidth() const
{
    if (m_border == BorderStyleType::None)
        return 0;
    return m_appearance == AppearanceType::Flat ? 1 : style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
}

QRect FieldFrame::inside() const
{
    const int width = borderWidth();
    return rect().adjusted(width, width, -width, -width);
}

bool FieldFrame::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::PaletteChange:
    case QEvent::ReadOnlyChange: update(); break;
    default: break;
    }
    return QWidget::eventFilter(watched, event);
}

void FieldFrame::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionFrame panel;
    panel.initFrom(this);
    if (m_field) {
        panel.palette = m_field->palette();
        panel.state.setFlag(QStyle::State_HasFocus, m_field->hasFocus());
    }
    const bool isSunken = m_border == BorderStyleType::FixedSingle && m_appearance == AppearanceType::A3D;
    panel.lineWidth = isSunken ? borderWidth() : 0;
    panel.state.setFlag(QStyle::State_Sunken, isSunken);
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, panel);
    if (m_border == BorderStyleType::FixedSingle && m_appearance == AppearanceType::Flat) {
        // Filled edges, not lines, which would fall between the pixels of a screen that is scaled by a fraction.
        const QColor edge = panel.palette.color(QPalette::Dark);
        const QRegion inner(rect().adjusted(1, 1, -1, -1));
        for (const QRect &side : QRegion(rect()) - inner)
            painter.fillRect(side, edge);
    }
}

} // namespace kor
