// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace kor {

//! A length or a position in twips (1440 per inch), the unit of everything that hosts see. A type of its own, so that
//! twips and pixels cannot be added up by mistake; the functions below are the only way from one to the other.
class Twips
{
public:
    constexpr Twips() = default;
    constexpr explicit Twips(double count) : m_count(count) {}

    [[nodiscard]] constexpr double count() const { return m_count; }
    //! Whole twips, as properties have them; halves go away from zero.
    [[nodiscard]] constexpr int rounded() const
    {
        return static_cast<int>(m_count < 0 ? m_count - 0.5 : m_count + 0.5);
    }

    [[nodiscard]] constexpr bool operator==(const Twips &) const = default;
    [[nodiscard]] constexpr bool operator<(Twips other) const { return m_count < other.m_count; }
    [[nodiscard]] constexpr bool operator>(Twips other) const { return other < *this; }
    [[nodiscard]] constexpr bool operator<=(Twips other) const { return m_count <= other.m_count; }
    [[nodiscard]] constexpr bool operator>=(Twips other) const { return other <= *this; }
    [[nodiscard]] constexpr Twips operator-() const { return Twips(-m_count); }
    constexpr Twips &operator+=(Twips other) { return *this = Twips(m_count + other.m_count); }
    constexpr Twips &operator-=(Twips other) { return *this = Twips(m_count - other.m_count); }
    [[nodiscard]] friend constexpr Twips operator+(Twips one, Twips other) { return one += other; }
    [[nodiscard]] friend constexpr Twips operator-(Twips one, Twips other) { return one -= other; }
    [[nodiscard]] friend constexpr Twips operator*(Twips length, double times) { return Twips(length.m_count * times); }
    [[nodiscard]] friend constexpr Twips operator*(double times, Twips length) { return length * times; }

private:
    double m_count = 0;
};

//! The logical resolution of the screen that a widget is on. Whoever has many lengths for one place asks once: a window
//! that was never shown looks for its screen each time.
class Resolution
{
public:
    explicit Resolution(const QWidget *widget);

    [[nodiscard]] Twips toTwipsX(double pixels) const;
    [[nodiscard]] Twips toTwipsY(double pixels) const;
    [[nodiscard]] int toPixelsX(Twips length) const;
    [[nodiscard]] int toPixelsY(Twips length) const;

private:
    int m_dotsX;
    int m_dotsY;
};

//! Twips from and to pixels of the logical resolution of the screen that the widget is on: the one place that knows.
[[nodiscard]] Twips toTwipsX(const QWidget *widget, double pixels);
[[nodiscard]] Twips toTwipsY(const QWidget *widget, double pixels);
[[nodiscard]] int toPixelsX(const QWidget *widget, Twips length);
[[nodiscard]] int toPixelsY(const QWidget *widget, Twips length);

} // namespace kor
