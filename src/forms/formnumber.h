// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QVariant>

namespace kor {

// Numbers in a form file: "." is the decimal point in every country, the last character tells the type (5b Byte,
// 5% Integer, 5 Long, 9007199254740993^ a 64-bit integer, 5! Single, 5# Double, 5@ Currency), and what is written reads
// back as the very same number.

//! A number, or the reason why the token is none.
struct NumberResult {
    QVariant value;
    QString reason;
};

//! The notation of a numeric Variant.
[[nodiscard]] QString writeNumber(const QVariant &number);
[[nodiscard]] NumberResult readNumber(QStringView token);

} // namespace kor
