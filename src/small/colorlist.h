// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <array>
#include <optional>

namespace kor {

//! The colours by name, and one more for whatever the colour dialog gave last. Colours are 32 bits, &H00BBGGRR.
class ColorList
{
public:
    static constexpr int count = 18;
    //! "(domyślny)". Kept: almost black, and no system colour; saved forms tell it from black by this
    static constexpr int defaultColor = 0x000001;
    static constexpr int initialEntry = 13; //!< "Jasnoczerwony"
    static constexpr int otherEntry = 17;   //!< "Inny kolor..."

    [[nodiscard]] static QStringList names();
    [[nodiscard]] int color(int entry) const;
    //! The first entry of exactly this colour.
    [[nodiscard]] std::optional<int> entryOf(int color) const;
    //! Keeps a colour as the one of the last entry.
    void setOther(int color) { m_other = color; }

private:
    int m_other = 0;
};

} // namespace kor
