// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/commandbutton.h"
#include "constituents/fieldframe.h"
#include "constituents/fieldlayout.h"
#include "constituents/textbox.h"

namespace kor {

//! A text box and the button at its end, inside one border: what a date field, a click field and a
//! multi-line field are made of.
struct ButtonField {
    ButtonField(CommandButton::Sign sign, QWidget *control)
        : frame(new FieldFrame(control)), box(new TextBox(frame)), button(new CommandButton(sign, frame))
    {
        frame->setObjectName(QStringLiteral("picBack"));
        frame->setField(box);
        box->setBorderStyle(BorderStyleType::None); // the border is drawn around box and button together
    }

    void layout(const QWidget &control) const
    {
        frame->setGeometry(control.rect());
        const QRect inside = frame->inside();
        const auto place = layoutField(inside, button->widthBeside(inside.height()), control.layoutDirection());
        box->setGeometry(place.field);
        button->setGeometry(place.end);
    }

    [[nodiscard]] QSize sizeHint() const { return around(box->sizeHint()); }
    [[nodiscard]] QSize minimumSizeHint() const { return around(box->minimumSizeHint()); }

    FieldFrame *frame;
    TextBox *box;
    CommandButton *button;

private:
    [[nodiscard]] QSize around(const QSize &size) const
    {
        const int border = 2 * frame->borderWidth();
        return size + QSize(button->widthBeside(size.height()) + border, border);
    }
};

} // namespace kor
