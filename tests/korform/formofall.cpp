// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT

// Writes a form file with all controls, to be compiled by uic.
#include "korform/formofall.h"

#include <QtWidgets/QApplication>

#include <cstdio>

int main(int count, char **arguments)
{
    QApplication application(count, arguments);
    const auto error = kor::FormFile::save(kor::test::formOfAllControls(), application.arguments().value(1));
    if (error)
        std::fprintf(stderr, "formofall: %s\n", qPrintable(error->reason));
    return error ? 1 : 0;
}
