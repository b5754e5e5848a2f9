// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QPushButton>

namespace kor {

//! The small button at the end of a field that opens a chooser. Shows its text or, without one, a drawn sign that
//! follows the theme.
//!
//! Enter presses it while it has the focus, and it never becomes the default button of a dialog around the field. A
//! disabled button swallows its clicks, so that they don't reach the form.
class CommandButton final : public QPushButton
{
    Q_OBJECT

public:
    enum class Sign { Dots, Arrow };

    CommandButton(Sign sign, QWidget *parent);

    //! The width that suits a field of this height: square for one line, no wider for a taller field, and wide enough
    //! for the text.
    [[nodiscard]] int widthBeside(int height) const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void Click();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void paintDots(QPainter &painter) const;

    Sign m_sign;
};

} // namespace kor
