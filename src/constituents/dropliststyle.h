// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QProxyStyle>

namespace kor {

//! The application's style with drop-down lists that open below their field and scroll.
//!
//! Several styles open them as menus over the field, which have to be laid out from the first entry to the last.
class DropListStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    //! The one for the style that the application has now. Null when that style can't be made a second time, as a
    //! host's own; drop-down lists then open as it wants them.
    [[nodiscard]] static QStyle *ofApplication();

    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                QStyleHintReturn *returnData) const override;

private:
    using QProxyStyle::QProxyStyle;
};

} // namespace kor
