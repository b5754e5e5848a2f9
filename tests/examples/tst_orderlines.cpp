// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "examples/orderfiles.h"
#include "orders/searchdialog.h"

#include <KorDaoUC/KorGrid>
#include <KorDaoUC/Variant>

#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeWidget>

using namespace orders::test;
using orders::Order;
using orders::OrderLine;
using orders::OrderStore;

namespace {

enum Cell { Number, Product, Name, Quantity, Unit, Price, Delivery, Amount };

QString plain(QString text) { return text.replace(u'\u00A0', u' '); }

} // namespace

//! The lines of an order in the hands of a clerk who leaves the mouse alone.
class tst_OrderLines : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void threeLinesAreEnteredByKeyboardAlone()
    {
        press(Qt::Key_N, Qt::ControlModifier);
        press(Qt::Key_J, Qt::AltModifier);
        QCOMPARE(place(), QStringLiteral("1,1"));
        type(QStringLiteral("t0335")); // the product comes with its symbol
        press(Qt::Key_Tab);
        press(Qt::Key_Tab); // past the name
        type(QStringLiteral("4"));
        press(Qt::Key_Return);
        press(Qt::Key_Return); // past the unit
        type(QStringLiteral("135.5"));
        press(Qt::Key_Tab);
        type(QStringLiteral("011226"));

        press(Qt::Key_F7);
        QCOMPARE(place(), QStringLiteral("2,1"));
        type(QStringLiteral("szpadel"));
        const QStringList found = choose({}, Qt::Key_Return);
        QCOMPARE(place(), QStringLiteral("2,3"));
        QVERIFY2(found.value(1).contains(QStringLiteral("Szpadel")), qPrintable(found.join(u' ')));
        type(QStringLiteral("2,5"));

        press(Qt::Key_F7);
        press(Qt::Key_Tab); // no product at all
        type(QStringLiteral("Cięcie na wymiar, "));
        press(Qt::Key_Return, Qt::ControlModifier);
        type(QStringLiteral("wg rysunku klienta"));
        press(Qt::Key_Tab);
        press(Qt::Key_Tab); // no quantity
        type(QStringLiteral("kp"));
        press(Qt::Key_Tab);
        type(QStringLiteral("80"));
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY2(m_clerk->heard().isEmpty(), qPrintable(m_clerk->heard()));
        QVERIFY(!m_window->isWindowModified());

        restart();
        press(Qt::Key_End, Qt::AltModifier);
        QCOMPARE(cells(1), QStringLiteral("1|T0335|Gaśnica proszkowa 4 kg|4,00|szt.|135,50|01.12.2026|542,00"));
        QCOMPARE(cells(2), QStringLiteral("2|%1|%2|2,50|%3|%4||%5")
                               .arg(found.at(0), found.at(1), found.at(2), QString(found.at(3)).chopped(3),
                                    plain(text(2, Amount))));
        QCOMPARE(cells(3), QStringLiteral("3||Cięcie na wymiar, \nwg rysunku klienta||kpl.|80,00||"));
        QCOMPARE(grid()->Rows(), 4);
        const Order saved = m_store->order(m_store->ids().last()).value();
        QCOMPARE(saved.lines.size(), 3);
        QVERIFY(saved.lines.at(0) ==
                (OrderLine{1, 335, QStringLiteral("Gaśnica proszkowa 4 kg"), 4.0, 1, 13550, 23, QDate(2026, 12, 1)}));
        QVERIFY(saved.lines.at(1).product.has_value());
        QCOMPARE(saved.lines.at(1).quantity, std::optional(2.5));
        QVERIFY(saved.lines.at(2) ==
                (OrderLine{3, std::nullopt, QStringLiteral("Cięcie na wymiar, \nwg rysunku klienta"), std::nullopt, 6,
                           8000, std::nullopt, std::nullopt}));
    }

    void tabLeadsIntoTheLinesAndOut()
    {
        focus("clrLabel");
        for (int presses = 0; presses < 3 && !isInGrid(); ++presses)
            press(Qt::Key_Tab);
        QCOMPARE(place(), QStringLiteral("1,1"));
        const int lines = grid()->Rows() - 1;
        for (int presses = 1; presses < 6 * lines; ++presses) {
            press(Qt::Key_Tab);
            QVERIFY2(isInGrid(), qPrintable(QString::number(presses)));
        }
        QCOMPARE(place(), QStringLiteral("%1,6").arg(lines));
        press(Qt::Key_Tab);
        QVERIFY(!isInGrid());
        QVERIFY(qobject_cast<QPushButton *>(QApplication::focusWidget()));
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(place(), QStringLiteral("%1,6").arg(lines)); // where the clerk was
        press(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(place(), QStringLiteral("1,1"));
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(focusName(), QStringLiteral("clrLabel"));
        QVERIFY(!m_window->isWindowModified()); // looking changes nothing
        QVERIFY(m_window->form().order() == m_store->order(1));
    }

    void sumsFollowTheLines()
    {
        press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(sums(), QStringLiteral("|"));
        enter(1, Quantity, QStringLiteral("100"));
        QCOMPARE(sums(), QStringLiteral("100,00|"));
        enter(1, Price, QStringLiteral("123456,79"));
        QCOMPARE(sums(), QStringLiteral("100,00|12 345 679,00")); // to the grosz
        QCOMPARE(plain(text(1, Amount)), QStringLiteral("12 345 679,00"));
        press(Qt::Key_F7);
        enter(2, Quantity, QStringLiteral("0,5"));
        enter(2, Price, QStringLiteral("0,02"));
        QCOMPARE(sums(), QStringLiteral("100,50|12 345 679,01"));
        enter(1, Quantity, QString());
        QCOMPARE(sums(), QStringLiteral("0,50|0,01"));
        QCOMPARE(text(1, Amount), QString());
    }

    void everyKeystrokeCountsAsAChange_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::newRow("half a symbol") << int(Product) << "T0";
        QTest::newRow("one letter of a name") << int(Name) << "x";
        QTest::newRow("the sign of a number") << int(Quantity) << "7";
        QTest::newRow("a price") << int(Price) << "8";
        QTest::newRow("half a date") << int(Delivery) << "01";
        QTest::newRow("a unit") << int(Unit) << "l";
    }
    void everyKeystrokeCountsAsAChange()
    {
        QFETCH(const int, column);
        QFETCH(const QString, typed);
        goTo(1, column);
        QVERIFY(!m_window->isWindowModified());
        type(typed);
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_Escape);
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->form().order() == m_store->order(1));
    }

    void closingWithAnOpenEditorAsksAndSaves_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a number") << int(Quantity) << "12,5"
                                  << "12,50";
        QTest::newRow("a price") << int(Price) << "7"
                                 << "7,00";
        QTest::newRow("a date") << int(Delivery) << "011226"
                                << "01.12.2026";
        QTest::newRow("a name") << int(Name) << " bis"
                                << " bis";
        QTest::newRow("a symbol") << int(Product) << "T0002"
                                  << "T0002";
    }
    void closingWithAnOpenEditorAsksAndSaves()
    {
        QFETCH(const int, column);
        QFETCH(const QString, typed);
        QFETCH(const QString, shown);
        goTo(1, column);
        type(typed);
        m_clerk->willPress({Qt::Key_A, Qt::Key_Z});
        QVERIFY(!m_window->close());
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(place(), QStringLiteral("1,%1").arg(column)); // and types on
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_window->close());
        QCOMPARE(m_clerk->heard(), QStringLiteral("Zapisać zmiany?|Zapisać zmiany?"));
        restart();
        QVERIFY2(text(1, column).endsWith(shown), qPrintable(text(1, column)));
    }

    void aRefusedValueKeepsTheLine_data()
    {
        QTest::addColumn<QKeyCombination>("keys");
        QTest::newRow("another line") << QKeyCombination(Qt::Key_F7);
        QTest::newRow("saving") << (Qt::CTRL | Qt::Key_S);
        QTest::newRow("the next cell") << QKeyCombination(Qt::Key_Tab);
        QTest::newRow("the field of a letter") << (Qt::ALT | Qt::Key_R);
    }
    void aRefusedValueKeepsTheLine()
    {
        QFETCH(const QKeyCombination, keys);
        goTo(1, Delivery);
        const QString before = cells(1);
        type(QStringLiteral("9999"));
        m_clerk->willPress({Qt::Key_Return});
        press(keys.key(), keys.keyboardModifiers());
        QTRY_VERIFY(m_window->isActiveWindow());
        QTRY_COMPARE(place(), QStringLiteral("1,6"));
        QVERIFY2(!m_clerk->heard().isEmpty() && !m_clerk->heard().contains(u'|'), qPrintable(m_clerk->heard()));
        QCOMPARE(grid()->Rows() - 1, m_store->order(1)->lines.size());
        QVERIFY(m_window->isWindowModified());
        press(Qt::Key_Escape); // always gets out
        QCOMPARE(cells(1), before);
        QVERIFY(!m_window->isWindowModified());
    }

    void whatMakesNoLineIsNotSaved_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("words");
        // clang-format off
        QTest::newRow("a symbol that is none")     << int(Product)  << "T99X"    << "Pozycja 2: nie ma towaru o takim symbolu.";
        QTest::newRow("nothing of something")      << int(Quantity) << "0"       << "Pozycja 2: ilość musi być większa od zera.";
        QTest::newRow("less than nothing")         << int(Quantity) << "-2"      << "Pozycja 2: ilość musi być większa od zera.";
        QTest::newRow("money back")                << int(Price)    << "-0,01"   << "Pozycja 2: cena nie może być ujemna.";
        QTest::newRow("delivered before ordered")  << int(Delivery) << "01.01.2024" << "Pozycja 2: dostawa nie może być wcześniejsza niż zamówienie.";
        // clang-format on
    }
    void whatMakesNoLineIsNotSaved()
    {
        QFETCH(const int, column);
        QFETCH(const QString, typed);
        QFETCH(const QString, words);
        const Order before = m_store->order(6).value();
        QVERIFY(before.lines.size() > 1);
        for (int order = 1; order < 6; ++order)
            press(Qt::Key_PageDown, Qt::ControlModifier);
        enter(2, column, typed);
        focus("numTotal");
        m_clerk->willPress({Qt::Key_Return});
        press(Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(m_clerk->heard(), words);
        QCOMPARE(place(), QStringLiteral("2,%1").arg(column)); // to mend it there
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_store->order(6) == before);
    }

    void whatWasNotEnteredStaysSo()
    {
        change(file(), {QStringLiteral("UPDATE order_lines SET product_id = NULL, name = NULL, quantity = NULL, "
                                       "unit_id = NULL, net_price = NULL, vat = NULL, delivery_date = NULL "
                                       "WHERE order_id = 1 AND line = 1")});
        restart();
        QCOMPARE(cells(1), QStringLiteral("1|||||||"));
        goTo(1, Product);
        for (int cell = 0; cell < 6; ++cell)
            press(Qt::Key_Tab);
        QVERIFY(!m_window->isWindowModified());
        focus("txtRemarks");
        type(QStringLiteral("nowe"));
        const QList<OrderLine> lines = m_store->order(1)->lines;
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(m_store->order(1)->lines == lines);
    }

    void everyCellCanBeEmptied()
    {
        change(file(), {QStringLiteral("UPDATE order_lines SET delivery_date = '2027-01-04' WHERE order_id = 1")});
        restart();
        for (const Cell cell : {Product, Name, Quantity, Price, Delivery})
            enter(1, cell, QString());
        goTo(1, Unit);
        press(Qt::Key_Home); // the empty entry
        QCOMPARE(cells(1), QStringLiteral("1|||||||"));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        const auto row = rows(file(), QStringLiteral("SELECT product_id, name, quantity, unit_id, net_price, "
                                                     "delivery_date FROM order_lines WHERE order_id = 1 AND line = 1"));
        for (const QVariant &value : row.first())
            QVERIFY(value.isNull());
        restart();
        QCOMPARE(cells(1), QStringLiteral("1|||||||"));
    }

    void whatACellRoundsIsNotSavedRounded()
    {
        change(file(), {QStringLiteral("UPDATE order_lines SET quantity = 1.23456789 WHERE order_id = 1")});
        restart();
        QCOMPARE(text(1, Quantity), QStringLiteral("1,23"));
        goTo(1, Quantity);
        press(Qt::Key_Tab);
        enter(1, Price, QStringLiteral("99"));
        press(Qt::Key_S, Qt::ControlModifier);
        const OrderLine saved = m_store->order(1)->lines.first();
        QCOMPARE(saved.netPrice, std::optional<qint64>(9900));
        QCOMPARE(saved.quantity, std::optional(1.23456789));
    }

    void anotherProductComesWithItsOwnNameAndPrice()
    {
        goTo(1, Product);
        const QString before = cells(1);
        const QString quantity = text(1, Quantity);
        enter(1, Name, QStringLiteral("po naszemu"));
        enter(1, Price, QStringLiteral("1"));
        const QString agreed = cells(1);
        QVERIFY(agreed != before);
        goTo(1, Product);
        type(QStringLiteral("T0335"));
        QCOMPARE(text(1, Name), QStringLiteral("Gaśnica proszkowa 4 kg"));
        QCOMPARE(text(1, Price), QStringLiteral("135,69"));
        QCOMPARE(text(1, Quantity), quantity);
        press(Qt::Key_Escape); // and what was agreed is back
        QCOMPARE(cells(1), agreed);
        const QString own = text(1, Product);
        press(Qt::Key_F2);
        type(QStringLiteral("x"));
        press(Qt::Key_Backspace);
        QCOMPARE(text(1, Product), own);
        QCOMPARE(cells(1), agreed);
    }

    void theChooserGivenUpChangesNothing()
    {
        goTo(1, Product);
        const QString before = cells(1);
        choose(QStringLiteral("szpa"), Qt::Key_Escape);
        QCOMPARE(cells(1), before);
        QCOMPARE(place(), QStringLiteral("1,1"));
        QVERIFY(!m_window->isWindowModified());
    }

    void aLostDatabaseIsAMessageOfTheChooser()
    {
        goTo(1, Product);
        const QString before = cells(1);
        m_clerk->willPress({Qt::Key_Return});
        choose({}, Qt::Key_Return, [this] {
            QSqlDatabase connection = m_store->connection();
            connection.close();
        });
        QVERIFY2(m_clerk->heard().contains(QStringLiteral("Odczytanie towarów")), qPrintable(m_clerk->heard()));
        QCOMPARE(cells(1), before);
        QCOMPARE(place(), QStringLiteral("1,1"));
        QVERIFY(!m_window->isWindowModified());
    }

    void choosingTheSameProductKeepsWhatWasAgreed()
    {
        enter(1, Name, QStringLiteral("po naszemu"));
        goTo(1, Product);
        const QString symbol = text(1, Product);
        const QStringList chosen = choose(symbol, Qt::Key_Return);
        QCOMPARE(chosen.value(0), symbol);
        QCOMPARE(text(1, Name), QStringLiteral("po naszemu"));
    }

    void deletingALineAsks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("isGone");
        QTest::newRow("delete") << int(Qt::Key_U) << true;
        QTest::newRow("cancel") << int(Qt::Key_A) << false;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << false;
    }
    void deletingALineAsks()
    {
        QFETCH(const int, answer);
        QFETCH(const bool, isGone);
        for (int order = 1; order < 6; ++order)
            press(Qt::Key_PageDown, Qt::ControlModifier);
        const Order before = m_store->order(6).value();
        goTo(1, Price);
        const QString first = cells(1);
        const QString second = cells(2);
        m_clerk->willPress({answer});
        press(Qt::Key_F8);
        QTRY_VERIFY(m_window->isActiveWindow());
        QVERIFY2(m_clerk->heard().startsWith(QStringLiteral("Usunąć pozycję?\n1. T0")), qPrintable(m_clerk->heard()));
        QCOMPARE(cells(1), isGone ? second : first);
        QCOMPARE(m_window->isWindowModified(), isGone);
        QCOMPARE(place(), QStringLiteral("1,5")); // in the line that took its place
        QCOMPARE(focusName(), QStringLiteral("KorNum"));
        press(Qt::Key_S, Qt::ControlModifier);
        QList<OrderLine> expected = before.lines;
        if (isGone)
            expected.removeFirst(); // the others keep their numbers
        QVERIFY(m_store->order(6)->lines == expected);
    }

    void theLastLineLeavesABlankRow()
    {
        press(Qt::Key_N, Qt::ControlModifier);
        enter(1, Quantity, QStringLiteral("1"));
        QCOMPARE(text(1, Number), QStringLiteral("1"));
        m_clerk->willPress({Qt::Key_U});
        press(Qt::Key_F8);
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(cells(1), QStringLiteral("|||||||"));
        QVERIFY(!m_window->isWindowModified());
        press(Qt::Key_F8); // nothing to ask about
        QCOMPARE(m_clerk->heard().count(u'|'), 0);
    }

    void blankRowsAreNoLines()
    {
        const int lines = int(m_store->order(1)->lines.size());
        press(Qt::Key_F7);
        QCOMPARE(grid()->Rows() - 1, lines + 1);
        press(Qt::Key_F7); // there is one already
        QCOMPARE(grid()->Rows() - 1, lines + 1);
        QVERIFY(!m_window->isWindowModified());
        type(QStringLiteral("T0001"));
        press(Qt::Key_F7);
        QCOMPARE(text(lines + 2, Number), QString::number(lines + 2));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_store->order(1)->lines.size(), lines + 1);
        QCOMPARE(m_store->order(1)->lines.last().product, std::optional<qint64>(1));
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(isInGrid());
    }

    void deletingNeedsTheKeyboardInTheLines()
    {
        focus("numTotal");
        press(Qt::Key_F8);
        QVERIFY(m_clerk->heard().isEmpty());
        QCOMPARE(m_window->form().order().lines, m_store->order(1)->lines);
    }

    void manyLinesStayInSight()
    {
        press(Qt::Key_N, Qt::ControlModifier);
        for (int line = 1; line <= 30; ++line) {
            press(Qt::Key_F7);
            QCOMPARE(place(), QStringLiteral("%1,1").arg(line));
            type(QStringLiteral("T%1").arg(line, 4, 10, QLatin1Char('0')));
            press(Qt::Key_Tab);
            press(Qt::Key_Tab);
            type(QString::number(line));
        }
        const auto *view = grid()->findChild<QTableView *>(QStringLiteral("grid"));
        QVERIFY(view->viewport()->rect().contains(view->visualRect(view->currentIndex())));
        QVERIFY(view->indexAt(QPoint(5, 5)).row() < 28); // those before are seen, too
        press(Qt::Key_S, Qt::ControlModifier);
        const QList<OrderLine> saved = m_store->order(m_store->ids().last())->lines;
        QCOMPARE(saved.size(), 30);
        for (int line = 1; line <= 30; ++line) {
            QCOMPARE(saved.at(line - 1).product, std::optional<qint64>(line));
            QCOMPARE(saved.at(line - 1).quantity, std::optional<double>(line));
            QCOMPARE(saved.at(line - 1).number, line);
        }
    }

    void keysMoveAmongTheOrdersFromACell()
    {
        goTo(1, Price);
        for (int order = 2; order < 20; ++order) {
            press(Qt::Key_PageDown, Qt::ControlModifier);
            QCOMPARE(position(), QStringLiteral("%1 z 1000").arg(order));
            QVERIFY(!m_window->isWindowModified());
            QCOMPARE(focusName(), QStringLiteral("KorNum"));
            QVERIFY(m_window->form().order() == m_store->order(order));
        }
    }

    void undoBringsTheSavedLinesBack()
    {
        enter(1, Quantity, QStringLiteral("77"));
        press(Qt::Key_F7);
        type(QStringLiteral("T0001"));
        QVERIFY(m_window->isWindowModified());
        m_clerk->willPress({Qt::Key_C});
        press(Qt::Key_R, Qt::ControlModifier);
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->form().order() == m_store->order(1));
        QVERIFY(isInGrid());
    }

    void aDeletedOrderIsSavedAnewWithItsLines()
    {
        enter(1, Quantity, QStringLiteral("77"));
        const QList<OrderLine> lines = m_window->form().order().lines;
        change(file(), {QStringLiteral("PRAGMA foreign_keys = ON"), QStringLiteral("DELETE FROM orders WHERE id = 1")});
        m_clerk->willPress({Qt::Key_Z});
        press(Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(m_window->isActiveWindow());
        QVERIFY(m_store->order(m_store->ids().last())->lines == lines);
    }

private:
    [[nodiscard]] KorGrid *grid() const { return part<KorGrid>("grdLines"); }
    [[nodiscard]] QString text(int row, int column) const { return grid()->TextMatrix(row, column); }
    [[nodiscard]] QString cells(int row) const
    {
        QStringList texts;
        for (int column = Number; column <= Amount; ++column)
            texts << plain(text(row, column));
        return texts.join(u'|');
    }
    [[nodiscard]] QString sums() const
    {
        return plain(number("numLinesQuantity")->Text() + u'|' + number("numLinesNet")->Text());
    }
    [[nodiscard]] bool isInGrid() const { return grid()->isAncestorOf(QApplication::focusWidget()); }
    //! The current cell, if the keyboard is in it.
    [[nodiscard]] QString place() const
    {
        return isInGrid() ? QStringLiteral("%1,%2").arg(grid()->Row()).arg(grid()->Col()) : focusName();
    }

    //! By the keys that any clerk has.
    void goTo(int row, int column)
    {
        press(Qt::Key_J, Qt::AltModifier);
        press(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(place(), QStringLiteral("1,1"));
        for (int steps = 1; steps < (row - 1) * 6 + column; ++steps)
            press(Qt::Key_Tab);
        QCOMPARE(place(), QStringLiteral("%1,%2").arg(row).arg(column));
    }

    //! Puts a text in place of a cell's and goes on to the next cell.
    void enter(int row, int column, const QString &typed)
    {
        goTo(row, column);
        press(Qt::Key_F2); // out of the editor: what is typed now replaces
        press(Qt::Key_Delete);
        type(typed);
        press(Qt::Key_F2);
    }

    //! Opens the window of products, types there, leaves it by a key, and gives the texts of the product it stood on.
    QStringList choose(const QString &typed, Qt::Key key, const std::function<void()> &meanwhile = {})
    {
        QStringList texts;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<orders::SearchDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow())
                return;
            watch.stop();
            QTest::keyClicks(dialog->focusWidget(), typed);
            const auto *list = dialog->findChild<QTreeWidget *>();
            for (int column = 0; list->currentItem() && column < list->columnCount(); ++column)
                texts << plain(list->currentItem()->text(column));
            if (meanwhile)
                meanwhile();
            QTest::keyClick(dialog->focusWidget(), key);
            if (dialog->isVisible())
                dialog->reject(); // nothing was there to be chosen
        });
        watch.start(5);
        press(Qt::Key_F4);
        [&] { QTRY_VERIFY(m_window->isActiveWindow()); }();
        kor::test::settle();
        return texts;
    }
};

QTEST_MAIN(tst_OrderLines)
#include "tst_orderlines.moc"
