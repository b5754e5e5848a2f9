// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace kor::test {

//! A form that notes what the control on it has let through.
class ListeningForm final : public QWidget
{
public:
    QList<int> keys;
    int presses = 0; //!< and releases, of the mouse

protected:
    void keyPressEvent(QKeyEvent *event) override { keys << event->key(); }
    void mousePressEvent(QMouseEvent *) override { ++presses; }
    void mouseReleaseEvent(QMouseEvent *) override { ++presses; }
    void mouseDoubleClickEvent(QMouseEvent *) override { ++presses; }
};

} // namespace kor::test
