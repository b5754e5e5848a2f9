// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/appearancepage.h"

#include "pages/latebound.h"

#include <QtCore/QScopeGuard>
#include <QtWidgets/QFormLayout>

namespace kor {

namespace {

const PageTable &look()
{
    using Kind = FieldKind;
    // clang-format off
    static const PageTable table{
        "pagAppearance",
        QStringLiteral("Wygląd"),
        {
            {Kind::Color, "cmdBackColor",    "BackColor",    QStringLiteral("Kolor tła"), "lblBackColor"},
            {Kind::Color, "cmdBackColorBkg", "BackColorBkg", QStringLiteral("Kolor tła poza wierszami"), "lblBackColorBkg"},
            {Kind::Color, "cmdForeColor",    "ForeColor",    QStringLiteral("Kolor tekstu"), "lblForeColor"},
            {Kind::Font,  "cmdFont",         "Font",         QStringLiteral("Czcionka"), "lblFont"},
            {Kind::List,  "cmbBorderStyle",  "BorderStyle",  QStringLiteral("Ramka"), "lblBorderStyle",
             {QStringLiteral("Brak"), QStringLiteral("Pojedyncza")}},
            {Kind::List,  "cmbAppearance",   "Appearance",   QStringLiteral("Wygląd ramki"), "lblAppearance",
             {QStringLiteral("Płaski"), QStringLiteral("Trójwymiarowy")}},
            {Kind::List,  "cmbAlignment",    "Alignment",    QStringLiteral("Wyrównanie"), "lblAlignment",
             {QStringLiteral("Do lewej"), QStringLiteral("Do prawej"), QStringLiteral("Do środka")}},
            {Kind::List,  "cmbBackStyle",    "BackStyle",    QStringLiteral("Rodzaj tła"), "lblBackStyle",
             {QStringLiteral("Przezroczyste"), QStringLiteral("Kryjące")}},
        },
        {}, // all that a control has
        {},
    };
    // clang-format on
    return table;
}

} // namespace

AppearancePage::AppearancePage(QWidget *parent) : TablePage(look(), parent) {}

void AppearancePage::edited(const FieldRow &row)
{
    m_edited.insert(&row);
    TablePage::edited(row);
}

void AppearancePage::readControls()
{
    const QPointer<AppearancePage> self = this;
    const auto leave = qScopeGuard([&] { // edits are over, even when not all can be read
        if (self)
            m_edited.clear();
    });
    const std::vector<FieldRow> &rows = table().fields;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        QObject *control = firstControl();
        const bool hasIt = control && hasMember(*control, rows[i].member);
        static_cast<QFormLayout *>(layout())->setRowVisible(static_cast<int>(i), hasIt);
        if (hasIt)
            showMember(*control, rows[i]);
        if (!self)
            return;
    }
}

void AppearancePage::writeControls()
{
    std::vector<Writing> all;
    for (QObject *control : SelectedControls()) {
        for (const FieldRow &row : table().fields) {
            if (m_edited.count(&row) != 0 && hasMember(*control, row.member))
                all.push_back(writing(control, row));
        }
    }
    const QPointer<AppearancePage> self = this;
    writeAll(all);
    if (self)
        m_edited.clear();
}

} // namespace kor
