// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/descriptions.h"

#include <algorithm>
#include <array>

namespace kor {

namespace {

struct Row {
    const char *control;
    const char16_t *toolTip;
    const char16_t *help;
    QSize size;
};

// clang-format off
constexpr std::array rows{
    Row{"KorNumber", u"Liczba",
        u"Pole liczby z filtrem klawiszy, maską wyświetlania i zakresem. Puste pole to Null.", {120, 24}},
    Row{"KorDate", u"Data",
        u"Pole daty, którą można wpisać skrótem lub wybrać w kalendarzu (F4). Puste pole to Null.", {120, 24}},
    Row{"KorCombo", u"Lista rozwijana",
        u"Jedna pozycja słownika. Użytkownik widzi nazwy, program klucze; źródłem jest SELECT albo LIST.", {160, 24}},
    Row{"KorClick", u"Pole z przyciskiem",
        u"Tekst, którego wartość podaje program: przycisk, F4, Alt+Strzałka w lewo lub w dół.", {160, 24}},
    Row{"KorList", u"Lista",
        u"Jedna pozycja słownika na otwartej liście. Źródłem jest SELECT albo LIST.", {160, 100}},
    Row{"KorListCheck", u"Lista z polami wyboru",
        u"Zbiór pozycji słownika zaznaczanych na liście.", {160, 100}},
    Row{"KorColor", u"Kolor",
        u"Kolor z listy nazw albo dowolny inny z okna wyboru koloru (F6).", {200, 24}},
    Row{"KorUpDown", u"Liczba ze strzałkami",
        u"Liczba całkowita z zakresu, zmieniana strzałkami lub wpisywana.", {100, 24}},
    Row{"KorParam", u"Arkusz parametrów",
        u"Nazwane parametry, każdy ze swoim typem i edytowany w swoim wierszu.", {320, 160}},
    Row{"KorMultiText", u"Tekst wielowierszowy",
        u"Pole tekstu z większym oknem edycji nad polem lub pod nim.", {200, 24}},
    Row{"KorGrid", u"Tabela",
        u"Tabela o kolumnach z typem: tekst, liczba, data, lista, pole z przyciskiem; edytowana w miejscu.", {400, 200}},
};
// clang-format on

} // namespace

Description descriptionOf(const QString &control)
{
    const auto *row =
        std::find_if(rows.begin(), rows.end(), [&](const Row &one) { return control == QLatin1String(one.control); });
    if (row == rows.end())
        return {control, {}, {120, 24}};
    return {QString::fromUtf16(row->toolTip), QString::fromUtf16(row->help), row->size};
}

} // namespace kor
