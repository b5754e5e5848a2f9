// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT

// The least a host has to do: one control on a window, its settings, and one of its events.
#include <KorDaoUC/KorNumber>

#include <QtCore/QDebug>
#include <QtWidgets/QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    KorNumber price;
    price.setMaskPicture(QStringLiteral("#,##0.00"));
    price.setMaxValue(1000);
    price.setCheckRange(true);
    price.setValue(249.5);
    QObject::connect(&price, &KorNumber::Change, [&price] { qDebug() << price.Value(); });
    price.show();
    return QApplication::exec();
}
