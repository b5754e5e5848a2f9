// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "arrowicon.h"

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

namespace orders {

namespace {

class ArrowEngine final : public QIconEngine
{
public:
    explicit ArrowEngine(Arrow arrow) : m_arrow(arrow) {}

    //! Asks for colour and direction each time, so that it follows both.
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const bool isForward = m_arrow == Arrow::Next || m_arrow == Arrow::Last;
        const bool pointsRight = isForward == (QApplication::layoutDirection() == Qt::LeftToRight);
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QApplication::palette().brush(group, QPalette::ButtonText));
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 16.0, rect.height() / 16.0);
        if (!pointsRight) {
            painter->translate(16, 0);
            painter->scale(-1, 1);
        }
        for (const double left : {2.0, 7.0})
            painter->drawPolygon(QPolygonF{{left, 3}, {left + 5, 8}, {left, 13}});
        if (m_arrow == Arrow::First || m_arrow == Arrow::Last)
            painter->drawRect(QRectF(12, 3, 2, 10));
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    [[nodiscard]] QIconEngine *clone() const override { return new ArrowEngine(*this); }

private:
    Arrow m_arrow;
};

} // namespace

QIcon arrowIcon(Arrow arrow) { return QIcon(new ArrowEngine(arrow)); }

} // namespace orders
