// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "grid/gridsuite.h"

#include <KorDaoUC/Format>

#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <vector>

using namespace kor;
using namespace kor::test;

namespace {

//! What the cells of one row must hold: name, price as shown, unit, exact price.
struct Line {
    QString name;
    QString price;
    QString unit;
    QString exact;

    [[nodiscard]] QString text() const { return QStringList{name, price, unit, exact}.join(u'|'); }
};

} // namespace

//! Thousands of edits, moves, added and deleted rows against a model of what every cell must hold.
class tst_KorGrid_Random : public GridSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { tearDown(); }
    void everyCellHoldsWhatWasTyped_data();
    void everyCellHoldsWhatWasTyped();

private:
    [[nodiscard]] int below(int bound) { return static_cast<int>(random.bounded(bound)); }
    [[nodiscard]] Line &lineAt(int row) { return lines[static_cast<std::size_t>(row - 1)]; }
    void edit();
    void move();
    void addRow();
    void deleteRows();
    void writeByProgram();

    QRandomGenerator random;
    std::vector<Line> lines;
    QStringList steps;
};

void tst_KorGrid_Random::init()
{
    setUp(520, 300);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Towar"), 1500, 0);
    grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena"), 1500, 1, false, QStringLiteral("#,##0.00"), 0, 0,
                    QString(), QString(), 4);
    grid->AddColumn(QStringLiteral("COMBO"), QStringLiteral("J.m."), 1200, 0, false, QString(), 0, 0,
                    QStringLiteral("LIST s;sztuka|k;karton|p;paleta"));
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Dokładnie"), 0, 0);
    grid->setRows(6);
    lines.assign(5, Line());
    steps.clear();
    click(1, 1);
}

//! Types into the current cell and goes on, or gives up.
void tst_KorGrid_Random::edit()
{
    const int row = grid->Row();
    const int column = grid->Col();
    if (openEditor().isEmpty())
        press(Qt::Key_F2);
    if (openEditor().isEmpty())
        return; // scrolled out
    Line after = lineAt(row);
    if (column == 3) {
        const QString letter = QStringList{QStringLiteral("s"), QStringLiteral("k"), QStringLiteral("p")}.at(below(3));
        type(letter);
        after.unit = letter == u"s"   ? QStringLiteral("sztuka")
                     : letter == u"k" ? QStringLiteral("karton")
                                      : QStringLiteral("paleta");
        steps << QStringLiteral("choose %1").arg(letter);
    } else {
        press(Qt::Key_Home);
        press(Qt::Key_End, Qt::ShiftModifier);
        if (column == 1) {
            after.name = QStringLiteral("towar %1").arg(below(1000));
            type(after.name);
        } else {
            const double value = below(4'000'000) / 100.0 + 0.01;
            after.exact = QString::number(value, 'f', 2).replace(u'.', u',');
            while (after.exact.endsWith(u'0'))
                after.exact.chop(1);
            if (after.exact.endsWith(u','))
                after.exact.chop(1);
            type(after.exact);
            after.price = Format(value, QStringLiteral("#,##0.00"));
        }
        steps << QStringLiteral("type into %1,%2").arg(row).arg(column);
    }
    if (below(5) == 0) {
        press(Qt::Key_Escape);
        steps << QStringLiteral("escape");
        return;
    }
    lineAt(row) = after;
    const std::vector<Qt::Key> ways{Qt::Key_Tab, Qt::Key_Return, Qt::Key_Down, Qt::Key_Up, Qt::Key_F2};
    const Qt::Key way = ways[static_cast<std::size_t>(below(static_cast<int>(ways.size())))];
    press(way);
    steps << QStringLiteral("key %1").arg(way, 0, 16);
    if (!grid->isAncestorOf(QApplication::focusWidget()))
        click(std::max(1, std::min(grid->Rows() - 1, 3)), 1);
    if (grid->Row() == row && grid->Col() == column)
        press(Qt::Key_F2); // Down in the last row leaves nothing: the editor may be open still
}

void tst_KorGrid_Random::move()
{
    static const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> keys{
        {Qt::Key_Tab, Qt::NoModifier},       {Qt::Key_Return, Qt::ShiftModifier}, {Qt::Key_Up, Qt::NoModifier},
        {Qt::Key_Down, Qt::NoModifier},      {Qt::Key_PageDown, Qt::NoModifier},  {Qt::Key_PageUp, Qt::NoModifier},
        {Qt::Key_Home, Qt::ControlModifier}, {Qt::Key_F2, Qt::NoModifier},        {Qt::Key_Escape, Qt::NoModifier}};
    const auto &[key, modifiers] = keys[static_cast<std::size_t>(below(static_cast<int>(keys.size())))];
    press(key, modifiers);
    steps << QStringLiteral("move %1").arg(key, 0, 16);
    if (!grid->isAncestorOf(QApplication::focusWidget()))
        click(1, 1);
}

void tst_KorGrid_Random::addRow()
{
    const int column = below(4);
    grid->AddRow(0, column);
    lines.emplace_back();
    steps << QStringLiteral("AddRow 0,%1").arg(column);
    settle();
}

void tst_KorGrid_Random::deleteRows()
{
    const int first = 1 + below(grid->Rows() - 1);
    const int last = std::min(first + below(4), grid->Rows() - 1);
    grid->DelRow(first, last);
    lines.erase(lines.begin() + first - 1, lines.begin() + last);
    if (lines.empty())
        lines.emplace_back();
    steps << QStringLiteral("DelRow %1,%2").arg(first).arg(last);
    settle();
}

void tst_KorGrid_Random::writeByProgram()
{
    const int row = 1 + below(grid->Rows() - 1);
    if (below(2) == 0) {
        lineAt(row).name = QStringLiteral("program %1").arg(below(1000));
        grid->setTextMatrix(row, 1, lineAt(row).name);
    } else {
        lineAt(row).price = QStringLiteral("7,50");
        lineAt(row).exact = QStringLiteral("7,5");
        grid->setValue(row, 2, 7.5);
    }
    steps << QStringLiteral("write %1").arg(row);
    settle();
}

void tst_KorGrid_Random::everyCellHoldsWhatWasTyped_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 2U, 3U, 20261122U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_KorGrid_Random::everyCellHoldsWhatWasTyped()
{
    QFETCH(quint32, seed);
    random.seed(seed);
    for (int i = 0; i < 500; ++i) {
        const int what = below(20);
        if (what < 9)
            edit();
        else if (what < 14)
            move();
        else if (what < 16)
            addRow();
        else if (what < 18)
            deleteRows();
        else
            writeByProgram();
        QStringList expected;
        QStringList found;
        for (const Line &line : lines)
            expected << line.text();
        for (int row = 1; row < grid->Rows(); ++row)
            found << this->row(row);
        QVERIFY2(found == expected, qPrintable(QStringLiteral("after %1\nexpected %2\nfound    %3")
                                                   .arg(steps.mid(std::max<qsizetype>(0, steps.size() - 8)).join(u' '),
                                                        expected.join(u"; "), found.join(u"; "))));
    }
    QCOMPARE(messages->take(), QStringList());
}

QTEST_MAIN(tst_KorGrid_Random)
#include "tst_korgrid_random.moc"
