// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "constituents/dropliststyle.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

namespace kor {

QStyle *DropListStyle::ofApplication()
{
    // One for each style that the application ever has, because its fields are many; they end with the application.
    static QHash<QString, QPointer<DropListStyle>> styles;
    const QString name = QApplication::style()->name();
    QPointer<DropListStyle> &style = styles[name];
    if (!style) {
        if (QStyle *base = QStyleFactory::create(name)) {
            style = new DropListStyle(base);
            style->setParent(qApp);
        }
    }
    return style;
}

int DropListStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                             QStyleHintReturn *returnData) const
{
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returnData);
}

} // namespace kor
