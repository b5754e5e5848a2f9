// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/columnpage.h"

#include "pages/latebound.h"

#include <KorDaoUC/convert.h>

#include <QtWidgets/QGroupBox>

#include <cmath>
#include <limits>

namespace kor {

namespace {

const char indexField[] = "txtIndex";
const char typeField[] = "cmbType";
const char comboFrame[] = "fraCombo";
const char numberFrame[] = "fraNumber";
enum ColumnType { ComboColumn = 1, NumberColumn = 2 }; // their places in the list

const PageTable &columns()
{
    using Kind = FieldKind;
    const auto silently = FieldRow::Marks::No;
    // clang-format off
    static const PageTable table{
        "pagKorGrid2",
        QStringLiteral("Columns"),
        {
            {Kind::Text,        indexField,     nullptr,        QStringLiteral("Nr kolumny"), "labIndex"},
            {Kind::SideButton,  "cmdPrev",      nullptr,        QStringLiteral("Poprzednia kolumna"), nullptr, {QStringLiteral("<")}},
            {Kind::SideButton,  "cmdNext",      nullptr,        QStringLiteral("Następna kolumna"), nullptr, {QStringLiteral(">")}},
            {Kind::Text,        "txtTitle",     "Title",        QStringLiteral("Tytuł"), "labTitle"},
            {Kind::List,        typeField,      "Type",         QStringLiteral("Typ"), "labType",
             {QStringLiteral("Text Box"), QStringLiteral("KorCombo"), QStringLiteral("KorNumber"),
              QStringLiteral("KorData"), QStringLiteral("Check Box"), QStringLiteral("AutoIncrement")}},
            {Kind::Text,        "txtWidth",     "Width",        QStringLiteral("Szerokość"), "labWidth"},
            {Kind::List,        "cmbAlign",     "Align",        QStringLiteral("Wyrównanie"), "labAlign",
             {QStringLiteral("General"), QStringLiteral("Left"), QStringLiteral("Right"), QStringLiteral("Center")}},
            {Kind::CheckNumber, "cbLocked",     "Locked",       QStringLiteral("Blokada edycji (indeks)")},
            {Kind::Text,        "txtSQL",       "CmbSQL",       QStringLiteral("Komenda SQL"), "Label3", {}, FieldRow::Marks::Yes, comboFrame},
            // Kept: edits of these four are saved together with another one only; programs rely on a page that stays unchanged
            {Kind::CheckNumber, "cbNull",       "CmbNull",      QStringLiteral("Dopuść wart. puste"), nullptr, {}, silently, comboFrame},
            {Kind::Text,        "txtNullValue", "CmbNullValue", QStringLiteral("Wartość pusta"), "Label2", {}, silently, comboFrame},
            {Kind::Text,        "txtSlownik",   "CmbSlownik",   QStringLiteral("Słownik"), "Label1", {}, silently, comboFrame},
            {Kind::CheckNumber, "cbNumCheck",   "NumCheck",     QStringLiteral("Sprawdzaj zakres liczby"), nullptr, {}, silently, numberFrame},
            {Kind::Text,        "txtNumMin",    "NumMin",       QStringLiteral("Wartość minimalna"), "lblNumMin", {}, FieldRow::Marks::Yes, numberFrame},
            {Kind::Text,        "txtNumMax",    "NumMax",       QStringLiteral("Wartość maksymalna"), "lblNumMax", {}, FieldRow::Marks::Yes, numberFrame},
            {Kind::Text,        "txtNumMask",   "NumMask",      QStringLiteral("Format liczby"), "lblNumMask", {}, FieldRow::Marks::Yes, numberFrame},
        },
        {"Title", "Type", "Width", "Align", "CmbSQL", "CmbNull", "CmbNullValue", "CmbSlownik", "NumCheck", "Locked",
         "NumMin", "NumMax", "NumMask"},
        // Kept: Locked is saved twice; grids count on both
        {"Title", "Type", "Width", "Align", "Locked", "CmbSQL", "CmbNull", "CmbNullValue", "CmbSlownik", "NumCheck",
         "Locked", "NumMin", "NumMax", "NumMask"},
        {},
        {{comboFrame, QStringLiteral("KorCombo Właściwości")}, {numberFrame, QStringLiteral("KorNumber - Właściwości")}},
    };
    // clang-format on
    return table;
}

} // namespace

ColumnPage::ColumnPage(QWidget *parent) : TablePage(columns(), parent)
{
    silently([this] { field(indexField).show(1); });
    showFrames();
    onClick("cmdPrev", [this] {
        if (firstControl() && number() > 1)
            step(-1);
    });
    onClick("cmdNext", [this] {
        if (firstControl() && number() < CLng(readMember(*firstControl(), "ColCount")) - 1)
            step(1);
    });
}

int ColumnPage::number() const
{
    const auto number = leadingNumber(CStr(field(indexField).value()));
    return number && std::abs(*number) < std::numeric_limits<int>::max() ? CLng(*number) : 0;
}

// Kept: the number that stands in the field now, though it may have been typed after the fields were filled: what is
// shown is then saved as another column's
bool ColumnPage::takeColumn()
{
    QObject *control = firstControl();
    if (!control)
        return false;
    m_column = number();
    return m_column >= 1 && m_column < CLng(readMember(*control, "ColCount"));
}

void ColumnPage::readControls()
{
    const QPointer<ColumnPage> self = this;
    if (takeColumn() && self)
        TablePage::readControls();
}

void ColumnPage::writeControls()
{
    const QPointer<ColumnPage> self = this;
    if (takeColumn() && self)
        TablePage::writeControls();
}

QVariant ColumnPage::read(QObject &control, const char *key)
{
    return callMember(control, "ReadColProperty(int,QString)", Q_ARG(int, m_column),
                      Q_ARG(QString, QString::fromLatin1(key)));
}

void ColumnPage::write(QObject &control, const char *key, const QVariant &value)
{
    change(control, [&] {
        callMember(control, "SaveColProperty(int,QString,QVariant)", Q_ARG(int, m_column),
                   Q_ARG(QString, QString::fromLatin1(key)), Q_ARG(QVariant, value));
    });
}

void ColumnPage::edited(const FieldRow &row)
{
    if (row.name == typeField)
        showFrames();
    TablePage::edited(row);
}

void ColumnPage::step(int by)
{
    const QPointer<ColumnPage> self = this;
    const int next = number() + by;
    ApplyChanges();
    if (!self)
        return;
    silently([&] { field(indexField).show(next); });
    SelectionChanged();
}

void ColumnPage::showFrames()
{
    const int type = CLng(field(typeField).value());
    findChild<QGroupBox *>(QString::fromLatin1(comboFrame))->setVisible(type == ComboColumn);
    findChild<QGroupBox *>(QString::fromLatin1(numberFrame))->setVisible(type == NumberColumn);
}

} // namespace kor
