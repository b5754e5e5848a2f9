// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/spinrange.h"

#include <QtWidgets/QWidget>

class QToolButton;

namespace kor {

//! Two arrows, one above the other, that hold a whole number within a range and step it.
//!
//! They take no focus, repeat while they are held, stop at the ends of the range, and are grey there.
class SpinButtons final : public QWidget
{
    Q_OBJECT

public:
    explicit SpinButtons(QWidget *parent);

    [[nodiscard]] int Value() const { return m_value; }
    //! Error 380 for a value outside the range; the old one then stays.
    void setValue(int value);
    [[nodiscard]] int Min() const { return m_range.min; }
    //! A value outside the new range becomes the bound next to it, without Change.
    void setMin(int min);
    [[nodiscard]] int Max() const { return m_range.max; }
    void setMax(int max);
    [[nodiscard]] int Increment() const { return m_range.increment; }
    //! Error 380 below 1.
    void setIncrement(int increment);
    [[nodiscard]] const SpinRange &range() const { return m_range; }

    //! Takes the value of the text beside the arrows, which needs no writing then. One outside the range is ignored.
    void follow(int value);
    //! Steps as the arrows do: upwards for positive numbers.
    void step(int steps);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    //! The value was stepped or set to another one, and the text beside the arrows is to show it.
    void Change();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] QToolButton *addArrow(Qt::ArrowType arrow, const QString &name, int steps);
    void take(int value);
    void setRange(const SpinRange &range);
    void greyEnds();

    SpinRange m_range;
    int m_value = 0;
    QToolButton *m_up;
    QToolButton *m_down;
};

} // namespace kor
