// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <KorDaoUC/Locale>

#include <QtCore/QByteArrayView>
#include <QtCore/QLocale>
#include <QtCore/QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

//! The fuzzer's bytes, taken piece by piece. Takes zeros when they have run out.
class FuzzInput
{
public:
    FuzzInput(const uint8_t *data, std::size_t size) : m_bytes(reinterpret_cast<const char *>(data), qsizetype(size)) {}

    template <typename Number>
    Number take()
    {
        Number number = {};
        const auto taken = std::min(qsizetype(sizeof(Number)), m_bytes.size());
        std::copy_n(m_bytes.data(), taken, reinterpret_cast<char *>(&number));
        m_bytes = m_bytes.sliced(taken);
        return number;
    }

    //! Up to the next zero byte, or the rest.
    QString takeText()
    {
        const qsizetype end = m_bytes.indexOf('\0');
        const QString text = QString::fromUtf8(end < 0 ? m_bytes : m_bytes.first(end));
        m_bytes = end < 0 ? QByteArrayView() : m_bytes.sliced(end + 1);
        return text;
    }

    kor::Locale takeLocale()
    {
        switch (take<uint8_t>() % 6) {
        case 0: return kor::Locale::english();
        case 1: return kor::Locale::german();
        case 2: {
            kor::Locale locale = kor::Locale::polish();
            locale.shortDatePattern = QStringLiteral("yyyy-MM-dd");
            locale.dateSeparator = u'-';
            return locale;
        }
        case 4: { // the half of the day before the hours
            static const auto korean = kor::Locale::fromQLocale(QLocale(QLocale::Korean));
            return korean;
        }
        case 5: { // halves of the day with points and blanks, a currency that holds the letter n
            static const auto spanish = kor::Locale::fromQLocale(QLocale(QLocale::Spanish, QLocale::UnitedStates));
            kor::Locale locale = spanish;
            locale.currencySymbol = QStringLiteral("den");
            locale.currencyPositive = QStringLiteral("n den");
            locale.currencyNegative = QStringLiteral("-n den");
            return locale;
        }
        default: return kor::Locale::polish();
        }
    }

private:
    QByteArrayView m_bytes;
};

//! Stops the fuzzer with the property that does not hold.
inline void require(bool holds, const char *property, const QString &about = {})
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s (%s)\n", property, qPrintable(about));
    std::abort();
}
