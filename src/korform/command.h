// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace korform {

//! How a command ends; scripts ask for it.
enum ExitCode {
    Done = 0,
    Imperfect = 1, //!< convert: something was lost; check: there are faults
    NotDone = 2,   //!< wrong arguments, or a file that can't be read, understood or written
};

//! What the arguments say, whichever command they are for.
struct Arguments {
    QStringList files{};
    QString database{};
    QString picture{};
    QStringList classes{}; //!< that the program adds to form files
    double dotsPerInch = 96;
    bool isStrict = false;
    bool isQuiet = false;
};

[[nodiscard]] int convert(const Arguments &arguments);
[[nodiscard]] int check(const Arguments &arguments);
[[nodiscard]] int show(const Arguments &arguments);

//! Says something of a line of a file, as compilers do: FILE:LINE: WHAT: TEXT. A line of 0 means the file as a whole.
void say(const QString &file, int line, const char *what, const QString &text);

} // namespace korform
