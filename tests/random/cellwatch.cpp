// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "random/cellwatch.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/Locale>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/Variant>

#include <QtCore/QDate>
#include <QtCore/QDebug>
#include <QtWidgets/QAbstractItemView>

#include <algorithm>
#include <cmath>

namespace kor::test {

namespace {

// The columns that furnish() gives a grid.
enum Column { Name = 1, Price, Unit, Due, Store, Remark, Fixed, ExactPrice, UnitKey };

constexpr int mostRowsSeen = 40;

bool isGrid(const QObject *control) { return control->inherits("KorGrid"); }
bool isSheet(const QObject *control) { return control->inherits("KorParam"); }

constexpr int sheetNames = 1;
constexpr int sheetValues = 2;

bool isValueColumn(int column) { return column == ExactPrice || column == UnitKey; }

QString withPlainBreaks(QString text) { return text.replace(u"\r\n"_qs, u"\n"_qs).replace(u'\r', u'\n'); }

QString textIn(const QWidget *editor)
{
    const QVariant plain = editor->property("plainText");
    return withPlainBreaks((plain.isValid() ? plain : editor->property("Text")).value<QString>());
}

bool isOfNumbers(const QWidget *editor) { return editor->inherits("KorNumber"); }
bool isOfLists(const QWidget *editor) { return editor->inherits("KorCombo"); }
bool isOfDates(const QWidget *editor) { return editor->inherits("KorDate"); }

bool hasKey(const QWidget *list, const QVariant &key)
{
    return qobject_cast<const KorCombo *>(list)->Exists(key).toBool();
}

std::optional<double> number(const QString &text)
{
    const Locale &locale = Locale::systemDefault();
    return IsNumeric(text, locale) ? std::optional(CDbl(text, locale)) : std::nullopt;
}

//! Whether two texts say the same number, as far as two decimals show it.
bool isSameNumber(const QString &one, const QString &other)
{
    const auto first = number(one);
    const auto second = number(other);
    return first && second && std::abs(*first - *second) <= 0.0051 + 1e-9 * std::abs(*first);
}

} // namespace

bool CellWatch::isFor(const UserControl *control) { return isGrid(control) || isSheet(control); }

void CellWatch::furnish(UserControl *control)
{
    if (isGrid(control))
        furnishGrid(*qobject_cast<KorGrid *>(control));
    else
        furnishSheet(*qobject_cast<KorParam *>(control));
}

void CellWatch::furnishSheet(KorParam &sheet)
{
    sheet.AddParam(u"Nazwa"_qs, u"n"_qs, u"TEXT"_qs, u"magazyn"_qs);
    sheet.AddParam(u"Kwota"_qs, u"k"_qs, u"NUMBER"_qs, 12.5);
    sheet.AddParam(u"Od dnia"_qs, u"d"_qs, u"DATE"_qs, QDate(2024, 3, 5));
    sheet.AddParam(u"Jednostka"_qs, u"j"_qs, u"COMBO"_qs, 2, {}, 0, {}, u"SELECT k, n FROM t"_qs, u"(bez)"_qs);
    sheet.AddParam(u"Odbiorca"_qs, u"o"_qs, u"CLICK"_qs, 7, {}, 0, {}, {}, {}, 0, 0, u"Kowalski"_qs);
    sheet.AddParam(u"Uwaga"_qs, u"u"_qs, u"NOTE"_qs); // which has no editor
}

void CellWatch::furnishGrid(KorGrid &columns)
{
    auto *const grid = &columns;
    const QString none;
    grid->AddColumn(u"TEXT"_qs, u"Towar"_qs, 1500, 0);
    grid->AddColumn(u"NUMBER"_qs, u"Cena"_qs, 1200, 1, false, u"#,##0.00"_qs, 0, 0, none, none, ExactPrice);
    grid->AddColumn(u"COMBO"_qs, u"J.m."_qs, 1000, 0, false, none, 0, 0, u"SELECT k, n FROM t"_qs, none, UnitKey);
    grid->AddColumn(u"DATE"_qs, u"Termin"_qs, 1300, 2);
    grid->AddColumn(u"CLICK"_qs, u"Magazyn"_qs, 1200, 0);
    grid->AddColumn(u"TEXT"_qs, u"Uwagi"_qs, 1200, 0, false, none, 0, 30, none, none, 0, true);
    grid->AddColumn(u"NUMBER"_qs, u"Lp."_qs, 600, 1, true);
    grid->AddColumn(u"TEXT"_qs, none, 0, 0);
    grid->AddColumn(u"TEXT"_qs, none, 0, 0);
    grid->setRows(6);
    for (int row = 1; row < grid->Rows(); ++row)
        grid->setTextControl(row, Fixed, QString::number(row));
    grid->setTextControl(2, Due, u"w maju"_qs);   // which is no date
    grid->setTextControl(3, Unit, u"kopa"_qs);    // which the list does not have
    grid->setTextControl(4, Price, u"1234,5"_qs); // which the editor writes otherwise
}

QList<const QWidget *> CellWatch::openEditors() const
{
    QList<const QWidget *> editors;
    const auto *surface = m_control->findChild<QAbstractScrollArea *>(u"grid"_qs);
    for (const QWidget *child : surface->viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isHidden())
            editors << child;
    }
    return editors;
}

QString CellWatch::textOf(Cell cell) const
{
    QString text;
    if (isGrid(m_control)) {
        QMetaObject::invokeMethod(m_control, "TextMatrix", Q_RETURN_ARG(QString, text), Q_ARG(int, cell.first),
                                  Q_ARG(int, cell.second));
    } else {
        const QAbstractItemModel *model = m_control->findChild<QAbstractItemView *>(u"grid"_qs)->model();
        text = model->index(cell.first - 1, cell.second - 1).data().value<QString>();
    }
    return withPlainBreaks(text);
}

CellWatch::Look CellWatch::look() const
{
    Look look;
    look.rows = m_control->property("Rows").value<int>();
    look.columns = m_control->property("Cols").value<int>();
    look.current = {m_control->property("Row").value<int>(), m_control->property("Col").value<int>()};
    if (isSheet(m_control)) {
        look.columns = sheetValues + 1;
        look.current.second = sheetValues;
    }
    if (const auto editors = openEditors(); editors.size() == 1)
        look.editor = {editors.front(), look.current, textIn(editors.front())};
    const int columns = std::min<int>(look.columns, UnitKey + 1);
    const int first = isSheet(m_control) ? 1 : 0; // the titles are none of its cells
    for (int row = first; row < std::min(look.rows, mostRowsSeen); ++row) {
        for (int column = first; column < columns; ++column)
            look.cells.insert({row, column}, textOf({row, column}));
    }
    return look;
}

void CellWatch::remember() { m_before = look(); }

QString CellWatch::lookAt(const StepTaken &step, bool hasOwnColumns) const
{
    if (openEditors().size() > 1)
        return u"two editors are open"_qs;
    const Look now = look();
    const auto isInside = [](int place, int count) { return place >= 0 && place < std::max(count, 2); };
    if (!isInside(now.current.first, now.rows) || !isInside(now.current.second, now.columns))
        return QStringLiteral("the current cell %1,%2 lies outside of %3 x %4")
            .arg(now.current.first)
            .arg(now.current.second)
            .arg(now.rows)
            .arg(now.columns);
    if (!step.isUsersAlone)
        return {};
    if (now.rows != m_before.rows || now.columns != m_before.columns)
        return u"the user changed the number of rows or columns"_qs;
    for (const QString &found :
         {lookAtEditor(now, step), lookAtLeft(now, step), lookAtCells(now, step, hasOwnColumns)}) {
        if (!found.isEmpty())
            return found;
    }
    return {};
}

//! An editor that the user changes has its cell with it. One that was only opened may show what the cell does not: a
//! number without its format, nothing in place of what is no value.
QString CellWatch::lookAtEditor(const Look &now, const StepTaken &) const
{
    const Editor &editor = now.editor;
    if (!editor.widget)
        return {};
    const QString cell = textOf(editor.cell);
    const bool isSame =
        cell == editor.text || editor.text.contains(u'#') ||
        (isOfNumbers(editor.widget) && (isSameNumber(cell, editor.text) || (cell.isEmpty() && !number(editor.text))));
    const bool isOpenedNow = m_before.editor.widget != editor.widget || m_before.editor.cell != editor.cell;
    // A sheet's editor is filled by the value: a program may have set another one than the shown text says. A list that
    // failed, on its way or at once, when it was opened or by F5 in it, shows its null entry for the value that it did
    // not get to, and its cell keeps what it has.
    const bool mayDiffer = isSheet(m_control);
    const bool hasFailed =
        mayDiffer && isOfLists(editor.widget) && !hasKey(editor.widget, m_control->property("ParValue"));
    const bool isAsOpened = editor.text.isEmpty() || (isOpenedNow ? mayDiffer : m_before.editor.text == editor.text);
    if (!isSame && !isAsOpened && !hasFailed)
        return QStringLiteral("the editor shows \"%1\" over a cell that holds \"%2\"").arg(editor.text, cell);
    return isAsOpened || hasFailed || !isSheet(m_control) ? QString() : lookAtParameter(editor);
}

//! What the program reads of the current parameter is what its open editor holds.
QString CellWatch::lookAtParameter(const Editor &editor) const
{
    const QString text = withPlainBreaks(m_control->property("ParText").value<QString>());
    const QVariant held = editor.widget->property("Value");
    const QVariant value = m_control->property("ParValue");
    const bool isSameValue = isSameSetting(value, held.isValid() ? held : QVariant(editor.text));
    return text == textOf(editor.cell) && isSameValue
               ? QString()
               : QStringLiteral("the editor holds \"%1\" %2, the parameter \"%3\" %4")
                     .arg(editor.text, QDebug::toString(held), text, QDebug::toString(value));
}

//! What an editor showed when the user went on is in its cell, unless a message came, or Escape was pressed.
QString CellWatch::lookAtLeft(const Look &now, const StepTaken &step) const
{
    const Editor &left = m_before.editor;
    const bool isLeft = left.widget && (now.editor.widget != left.widget || now.editor.cell != left.cell);
    if (!isLeft || !step.isOne || !step.mayLeave || step.givesBack || step.hasMessage || left.text.isEmpty())
        return {};
    const QString kept = textOf(left.cell);
    if (isOfLists(left.widget) && m_before.cells.value(left.cell) != left.text)
        return {}; // only looked at: the list did not have the name
    bool isKept = kept == left.text || left.text.contains(u'#');
    if (isOfNumbers(left.widget))
        isKept = isKept || !number(left.text) || isSameNumber(kept, left.text);
    else if (isOfDates(left.widget))
        isKept = isKept || !kept.isEmpty();
    return isKept ? QString()
                  : QStringLiteral("\"%1\" was left in the cell %2,%3, which holds \"%4\"")
                        .arg(left.text)
                        .arg(left.cell.first)
                        .arg(left.cell.second)
                        .arg(kept);
}

//! The user changes what he is in, and with it the value beside it; nothing else, and nothing that is locked.
QString CellWatch::lookAtCells(const Look &now, const StepTaken &step, bool hasOwnColumns) const
{
    for (auto cell = m_before.cells.cbegin(); cell != m_before.cells.cend(); ++cell) {
        const auto [row, column] = cell.key();
        if (now.cells.value(cell.key()) == cell.value())
            continue;
        const QString change = QStringLiteral("%1,%2: \"%3\" -> \"%4\"")
                                   .arg(row)
                                   .arg(column)
                                   .arg(cell.value(), now.cells.value(cell.key()));
        const int held = isSheet(m_control) ? sheetNames : Fixed;
        if (row == 0 || column == 0 || (hasOwnColumns && column == held))
            return u"the user changed a locked cell, "_qs + change;
        const bool isEdited =
            cell.key() == m_before.current || cell.key() == now.current || cell.key() == m_before.editor.cell;
        const bool isBeside = isGrid(m_control) && (!hasOwnColumns || isValueColumn(column)) &&
                              (row == m_before.current.first || row == now.current.first);
        if (step.isOne && !isEdited && !isBeside)
            return u"the user changed a cell that he was not in, "_qs + change;
    }
    return {};
}

} // namespace kor::test
