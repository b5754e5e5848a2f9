// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/export.h>

#include <QtCore/QMetaType>

#include <compare>

namespace kor {

//! An amount with exactly four decimals, held as a count of ten-thousandths: 0.1 + 0.2 is 0.3.
//!
//! From -922 337 203 685 477.5808 to 922 337 203 685 477.5807. What leaves that range raises error 6.
class Currency
{
public:
    constexpr Currency() = default;

    //! The amount of so many ten-thousandths.
    [[nodiscard]] static constexpr Currency fromTenThousandths(qint64 units) { return Currency(units); }
    //! Rounded to four decimals as the number is written with 15 digits, halves away from zero.
    [[nodiscard]] static KORDAOUC_RUNTIME_EXPORT Currency fromDouble(double value);

    //! The amount as a count of ten-thousandths: exact.
    [[nodiscard]] constexpr qint64 tenThousandths() const { return m_units; }
    //! The nearest Double; beyond 2^53 ten-thousandths the last digits are lost.
    [[nodiscard]] double toDouble() const { return static_cast<double>(m_units) / 10000.0; }

    //! By the amount, exactly.
    auto operator<=>(const Currency &) const = default;
    //! The exact sum. Error 6 beyond the range.
    [[nodiscard]] KORDAOUC_RUNTIME_EXPORT Currency operator+(Currency other) const;
    //! The exact difference. Error 6 beyond the range.
    [[nodiscard]] KORDAOUC_RUNTIME_EXPORT Currency operator-(Currency other) const;

private:
    explicit constexpr Currency(qint64 units) : m_units(units) {}

    qint64 m_units = 0;
};

} // namespace kor

Q_DECLARE_METATYPE(kor::Currency)
