// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/KorNumber>

#include <QtWidgets/QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    KorNumber price;
    price.resize(200, 26);
    price.setValue(12.345);
    return price.Value().toDouble() == 12.35 && kor::ControlRegistry::names().contains(QStringLiteral("KorNumber")) ? 0
                                                                                                                    : 1;
}
