// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>
#include <KorDaoUC/locale.h>

#include <QtCore/QVariant>

#include <compare>
#include <optional>

namespace kor {

//! How texts are compared: by code unit, or as a dictionary would, without regard to case.
enum class TextComparison { Binary, Text };

//! Compares two Variants. Nothing when either is Null. Empty counts as 0 beside a number and as "" beside a text; a
//! number is always less than a text; texts are compared by code unit or, with Text, without regard to case.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT std::optional<std::partial_ordering>
compare(const QVariant &left, const QVariant &right, TextComparison mode = TextComparison::Binary);

//! The equality by which the lists find a key: a text and a number are unequal always ("1" is not 1). Null equals
//! nothing, Empty equals 0 and "". Texts are compared exactly.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT bool strictlyEqual(const QVariant &left, const QVariant &right);

//! The equality by which the drop-down list finds a key: as strictlyEqual(), but a text and a number are compared as
//! numbers when the text is numeric in the locale ("1" equals 1) and are unequal otherwise. Raises nothing.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT bool looselyEqual(const QVariant &left, const QVariant &right,
                                                        const Locale &locale = Locale::systemDefault());
//! Which operand of a comparison is a variable of a declared type; the other one is a Variant.
enum class Declared { Left, Right, Both };

//! compare() for declared variables, where a text beside a number is not simply the greater one: a declared number
//! reads the Variant's text as a number (error 13 when it is none), a declared text turns the Variant's number into
//! text.
[[nodiscard]] KORDAOUC_RUNTIME_EXPORT std::optional<std::partial_ordering>
compareDeclared(const QVariant &left, const QVariant &right, Declared declared,
                TextComparison mode = TextComparison::Binary, const Locale &locale = Locale::systemDefault());

} // namespace kor
