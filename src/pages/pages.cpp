// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/pages.h"

#include "pages/appearancepage.h"
#include "pages/columnpage.h"
#include "pages/databasepage.h"
#include "pages/tablepage.h"

namespace kor {

namespace {

using Kind = FieldKind;

// clang-format off
const PageTable &number()
{
    static const PageTable table{
        "pagKorNumber",
        QStringLiteral("Liczba"),
        {
            {Kind::CheckBit, "chkCheckRange", "CheckRange",  QStringLiteral("Sprawdzaj zakres liczby")},
            {Kind::Text,     "txtMaska",      "MaskPicture", QStringLiteral("Maska"), "lblMaska"},
            {Kind::Text,     "txtMinValue",   "MinValue",    QStringLiteral("Wartość minimalna"), "lblMinValue"},
            {Kind::Text,     "txtMaxValue",   "MaxValue",    QStringLiteral("Wartość maksymalna"), "lblMaxValue"},
        },
        {"CheckRange", "MaskPicture", "MinValue", "MaxValue"},
        {"CheckRange", "MaskPicture", "MinValue", "MaxValue"},
    };
    return table;
}

const PageTable &combo()
{
    static const PageTable table{
        "pagKorCombo",
        QStringLiteral("Słownik"),
        {
            {Kind::Text,       "txtToolTipText", "ToolTipText", QStringLiteral("Podpowiedź"), "lblToolTipText"},
            {Kind::CheckTruth, "chkCanBeNull",   "CanBeNull",   QStringLiteral("Dopuść wartość pustą")},
            {Kind::Text,       "txtNullString",  "NullString",  QStringLiteral("Tekst wartości pustej"), "lblNullString"},
            {Kind::Text,       "txtSlownik",     "Slownik",     QStringLiteral("Słownik"), "lblSlownik"},
            {Kind::Text,       "txtSQL",         "SQL",         QStringLiteral("Komenda SQL"), "lblSQL"},
        },
        {"ToolTipText", "SQL", "Slownik", "NullString", "CanBeNull"},
        // Kept: the first control gets all of it twice, in two orders; what listens to it counts on both
        {"ToolTipText", "CanBeNull", "Slownik", "NullString", "SQL"},
        {"SQL", "ToolTipText", "Slownik", "NullString", "CanBeNull"},
    };
    return table;
}
// clang-format on

} // namespace

PropertyPage *makeNumberPage(QWidget *parent) { return new TablePage(number(), parent); }
PropertyPage *makeComboPage(QWidget *parent) { return new TablePage(combo(), parent); }
PropertyPage *makeDatabasePage(QWidget *parent) { return new DatabasePage(parent); }
PropertyPage *makeColumnPage(QWidget *parent) { return new ColumnPage(parent); }
PropertyPage *makeAppearancePage(QWidget *parent) { return new AppearancePage(parent); }

} // namespace kor
