// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "examples/orderfiles.h"
#include "orders/orderlines.h"

#include <KorDaoUC/KorGrid>

#include <QtGui/QClipboard>
#include <QtWidgets/QPushButton>

using namespace orders;
using namespace orders::test;

//! Lines of an order from a spreadsheet and into one, by keyboard.
class tst_OrderPaste : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        press(Qt::Key_N, Qt::ControlModifier);
        press(Qt::Key_J, Qt::AltModifier);
        QCOMPARE(focusName(), QStringLiteral("KorClick"));
    }
    void cleanup() { close(); }

    void linesArePastedFromASpreadsheet();
    void pastingManyLinesIsOneEdit();
    void aProductBringsItsName();
    void whatIsRefusedIsToldFirst_data();
    void whatIsRefusedIsToldFirst();
    void anAmountThatIsAnotherIsTold();
    void pastingOutsideTheLinesSaysWhereToGo();
    void theClipboardsKeysWorkOnTheCellsThemselves();
    void linesAreCopiedIntoAnotherOrder();
    void theClerkTypesOn();

private:
    static void copied(const QString &text) { QGuiApplication::clipboard()->setText(text); }
    void paste() { press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier); }
    [[nodiscard]] KorGrid *grid() const { return part<KorGrid>("grdLines"); }
    [[nodiscard]] QString cells(int row) const
    {
        QStringList texts;
        for (int column = 0; column < 8; ++column)
            texts << grid()->TextMatrix(row, column).replace(QChar(0xa0), u' ');
        return texts.join(u'|');
    }
};

void tst_OrderPaste::linesArePastedFromASpreadsheet()
{
    copied(QStringLiteral("\tŚruba M8\t1 200\tszt.\t0,35\t1.12.2026\r\n\tPodkładka\t50\tszt.\t0.1\r\n"));
    paste();
    QCOMPARE(m_clerk->heard(), QString());
    QCOMPARE(cells(1), QStringLiteral("1||Śruba M8|1 200,00|szt.|0,35|01.12.2026|420,00"));
    QCOMPARE(cells(2), QStringLiteral("2||Podkładka|50,00|szt.|0,10||5,00"));
    const QList<OrderLine> lines = m_window->form().lines().lines();
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0).netPrice, 35);
    QCOMPARE(lines.at(0).quantity, 1200);
    QVERIFY(lines.at(1).unit);
    QVERIFY(m_window->form().isChanged());
}

//! At every edit the desk looks at the whole order, which would take minutes for some thousand lines.
void tst_OrderPaste::pastingManyLinesIsOneEdit()
{
    constexpr int count = 300;
    const QSignalSpy edits(&m_window->form().lines(), &OrderLines::edited);
    copied(QStringLiteral("\tŚruba\t2\n").repeated(count));
    paste();
    QCOMPARE(edits.size(), 1);
    QCOMPARE(cells(count), QStringLiteral("300||Śruba|2,00||||"));
    QCOMPARE(m_window->form().lines().lines().size(), count);
    QVERIFY(part<QPushButton>("cmdSave")->isEnabled());
    QCOMPARE(number("numLinesQuantity")->Text(), QStringLiteral("600,00"));
}

void tst_OrderPaste::aProductBringsItsName()
{
    const auto product = rows(file(), QStringLiteral("SELECT symbol, name FROM products ORDER BY id LIMIT 1")).first();
    copied(product.at(0).toString().toLower());
    paste();
    QCOMPARE(grid()->TextMatrix(1, 2), product.at(1).toString());
    QVERIFY(m_window->form().lines().lines().first().product > 0);
}

void tst_OrderPaste::whatIsRefusedIsToldFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("line");
    QTest::newRow("the others are pasted") << int(Qt::Key_Enter) << QStringLiteral("1||Śruba||||01.12.2026|");
    QTest::newRow("nothing is pasted") << int(Qt::Key_Escape) << QStringLiteral("|||||||");
}

void tst_OrderPaste::whatIsRefusedIsToldFirst()
{
    QFETCH(const int, answer);
    m_clerk->willPress({answer});
    copied(QStringLiteral("\tŚruba\tdużo\twiadro\t\t1.12.2026\t7"));
    paste();
    QCOMPARE(m_clerk->heard(), QStringLiteral("Komórek, których nie da się wkleić: 3\n"
                                              "wiersz 1, Ilość: „dużo” – to nie jest liczba\n"
                                              "wiersz 1, J.m.: „wiadro” – tego nie ma na liście\n"
                                              "wiersz 1, Wartość netto: „7” – tej kolumny nie można zmieniać\n\n"
                                              "Wkleić pozostałe?"));
    QTEST(cells(1), "line");
}

void tst_OrderPaste::anAmountThatIsAnotherIsTold()
{
    copied(QStringLiteral("\tŚruba\t2\tszt.\t1,50\t\t7,00\n\tNit\t2\tszt.\t1,50\t\t3,00"));
    paste();
    QCOMPARE(cells(1), QStringLiteral("1||Śruba|2,00|szt.|1,50||3,00"));
    QCOMPARE(cells(2), QStringLiteral("2||Nit|2,00|szt.|1,50||3,00"));
    QCOMPARE(m_clerk->heard(), QStringLiteral("Komórek, których nie da się wkleić: 1\n"
                                              "wiersz 1, Wartość netto: „7,00” – tej kolumny nie można zmieniać"));
}

void tst_OrderPaste::pastingOutsideTheLinesSaysWhereToGo()
{
    focus("datDelivery");
    copied(QStringLiteral("\tŚruba"));
    paste();
    QCOMPARE(cells(1), QStringLiteral("|||||||"));
    QCOMPARE(date("datDelivery")->Text(), QString());
}

void tst_OrderPaste::theClipboardsKeysWorkOnTheCellsThemselves()
{
    copied(QStringLiteral("\tŚruba\t5"));
    press(Qt::Key_F2); // closes the cell's editor
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(cells(1), QStringLiteral("1||Śruba|5,00||||"));
    press(Qt::Key_F2);
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("\tŚruba\t5,00\t\t\t\t\n"));
}

void tst_OrderPaste::linesAreCopiedIntoAnotherOrder()
{
    copied(QStringLiteral("\tŚruba\t5\tszt.\t1,5\n\tNit\t3\tszt.\t2"));
    paste();
    const QString first = cells(1);
    const QString second = cells(2);
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    m_clerk->willPress({Qt::Key_N}); // does not save
    press(Qt::Key_N, Qt::ControlModifier);
    press(Qt::Key_J, Qt::AltModifier);
    QCOMPARE(cells(1), QStringLiteral("|||||||"));
    paste();
    QCOMPARE(m_clerk->heard(), QStringLiteral("Zapisać zmiany?")); // and nothing of the amounts, which are the same
    QCOMPARE(cells(1), first);
    QCOMPARE(cells(2), second);
}

void tst_OrderPaste::theClerkTypesOn()
{
    copied(QStringLiteral("\tŚruba\t5"));
    paste();
    QCOMPARE(focusName(), QStringLiteral("KorClick"));
    press(Qt::Key_Tab);
    press(Qt::Key_End);
    type(QStringLiteral(" M8"));
    QCOMPARE(grid()->TextMatrix(1, 2), QStringLiteral("Śruba M8"));
}

QTEST_MAIN(tst_OrderPaste)
#include "tst_orderpaste.moc"
