// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtWidgets/QWidget>

#include <vector>

namespace kor {

//! Places widgets on a form or frame by their distance from its left edge, and from its right edge where texts run
//! from right to left: then the form is mirrored, as the insides of its controls are. Follows the frame's width and
//! direction; part of the frame.
class FormMirror final : public QObject
{
public:
    explicit FormMirror(QWidget *frame);

    //! Moves and sizes a widget of the frame, and keeps it in its place from now on.
    void place(QWidget *widget, const QRect &place);
    //! Where the widget stands, counted from the edge at which lines begin.
    [[nodiscard]] QPoint position(const QWidget &widget) const;

    [[nodiscard]] bool eventFilter(QObject *watched, QEvent *event) override;

private:
    //! How far the frame reached, and whether it was mirrored, when its widgets were placed.
    struct Measure {
        int width = 0;
        bool isMirrored = false;
        //! A place counted from the one edge as counted from the other; the same in both directions.
        [[nodiscard]] int turned(int left, int extent) const { return isMirrored ? width - left - extent : left; }
        friend bool operator==(const Measure &, const Measure &) = default;
    };

    void follow();

    QWidget *m_frame;
    Measure m_measure;
    std::vector<QPointer<QWidget>> m_widgets;
};

} // namespace kor
