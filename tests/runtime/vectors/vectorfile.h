// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

//! One fact about a run-time function: for this value, in this locale, it gives that.
struct Vector {
    int line = 0;
    QString locale;
    QString type;
    QString input;
    QString argument;
    QString expected;
    QString trust;
};

struct VectorFile {
    QString name; //!< without folder and suffix: what function the rows are about
    std::vector<Vector> vectors;
    QString error; //!< why the file could not be read, or empty
};

//! Reads a tab-separated file with the header "locale type input arg expected trust". Fields hold \t \n \r \\.
[[nodiscard]] VectorFile readVectorFile(const QString &path);
//! The fields of one line, their escapes undone.
[[nodiscard]] QStringList fieldsOf(const QString &line);
