// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/maskoutput.h"

#include <QtCore/QStringView>

#include <vector>

namespace kor {

//! A mask for texts, compiled: @ & < > ! and a second section for what is empty or Null.
class TextMask
{
public:
    [[nodiscard]] static TextMask fromPicture(QStringView picture);

    void write(QStringView text, MaskOutput &out) const;
    //! For Null: only a second section gives a text.
    void writeNull(MaskOutput &out) const;

private:
    enum class Part : quint8 { Literal, CharacterOrBlank, CharacterOrNothing };
    enum class LetterCase : quint8 { Kept, Lower, Upper };
    struct Item {
        Part part;
        char16_t literal;
    };
    struct Section {
        std::vector<Item> items;
        qsizetype places = 0;
        LetterCase letterCase = LetterCase::Kept;
        bool fromLeft = false;

        [[nodiscard]] static Section fromPicture(QStringView picture);
        void write(QStringView text, MaskOutput &out) const;
    };

    std::vector<Section> m_sections;
};

} // namespace kor
