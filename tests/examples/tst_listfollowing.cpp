// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/listdesk.h"
#include "examples/orderfiles.h"

#include <KorDaoUC/KorCombo>

#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>

using namespace orders;
using namespace orders::test;

//! The open list of orders while they are saved, here and on other desks.
class tst_ListFollowing : public ListDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        openList();
    }
    void cleanup() { end(); }

    void f5ReadsAnewAndKeepsThePlace();
    void aSavedOrderIsChangedInItsRow();
    void aNewOrderComes();
    void anOrderThatNoLongerFitsGoes();
    void aDeletedOrderGoes();
    void anOrderThatIsGoneIsSaidWhenItIsOpened();
    void aRenamedCustomerIsRenamedInTheRows();
    void ordersComeAndGoWithTheNameOfTheirCustomer();
    void ordersComeAndGoWithTheGroupOfTheirCustomer();
    void theFilterNamesItsCustomerAnew_data();
    void theFilterNamesItsCustomerAnew();
    void whatIsChosenForTheNextListStaysChosen();
    void escapeStopsALongReading();
    void theOrderCanBeSavedDuringALongReading();

private:
    //! Gives the customer of an order another name, or another group, by keys alone.
    void changeCustomerOf(const QString &number, const QString &name, const QString &group = {})
    {
        bringUp(*m_list);
        press(Qt::Key_F7);
        goTo(number);
        press(Qt::Key_Enter);
        QTRY_VERIFY(m_window->isActiveWindow());
        kor::test::settle();
        inNextDialog([&](QWidget &) {
            press(Qt::Key_Return); // from the search to the name
            type(name);
            if (!group.isEmpty()) {
                press(Qt::Key_Tab);
                type(group);
            }
            press(Qt::Key_S, Qt::ControlModifier);
            m_seen = column(ListColumn::Customer); // at once, while the customers are still open
            press(Qt::Key_Escape);
        });
        press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(m_clerk->heard(), QString());
    }
    [[nodiscard]] QString customerOf(const QString &number) const
    {
        return column(ListColumn::Customer).value(column(ListColumn::Number).indexOf(number));
    }
    [[nodiscard]] qint64 ordersOfSameCustomer(const QString &number) const
    {
        return rows(file(), QStringLiteral("SELECT count(*) FROM orders WHERE customer_id = "
                                           "(SELECT customer_id FROM orders WHERE number = '%1')")
                                .arg(number))
            .first()
            .first()
            .toLongLong();
    }
    void addMany(int count) const
    {
        change(file(), {QStringLiteral("WITH RECURSIVE i (x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM i WHERE x < %1) "
                                       "INSERT INTO orders (number, customer_id, order_date, total) SELECT "
                                       "printf('ZAM/2030/%06d', x), x % 240 + 1, '2026-11-20', x FROM i")
                            .arg(count)});
    }
    //! Does something as soon as a long work is told of.
    void underProgress(const std::function<void(QProgressDialog &)> &work)
    {
        auto *look = new QTimer(m_list);
        connect(look, &QTimer::timeout, look, [this, look, work] {
            for (auto *progress : m_list->findChildren<QProgressDialog *>()) {
                if (!progress->isVisible())
                    continue;
                look->stop();
                look->deleteLater();
                work(*progress);
                return;
            }
        });
        look->start(5);
    }

    QStringList m_seen;
};

void tst_ListFollowing::f5ReadsAnewAndKeepsThePlace()
{
    for (int row = 0; row < 40; ++row)
        press(Qt::Key_Down);
    const QString number = current(ListColumn::Number);
    change(file(), {QStringLiteral("DELETE FROM orders WHERE number = '%1'").arg(cell(1, ListColumn::Number)),
                    QStringLiteral("UPDATE orders SET remarks = 'inne' WHERE number = '%1'").arg(number)});
    press(Qt::Key_F5);
    QCOMPARE(grid()->Rows(), 1000);
    QCOMPARE(current(ListColumn::Number), number);
    QCOMPARE(current(ListColumn::Remarks), QStringLiteral("inne"));
    QVERIFY(view()->viewport()->rect().contains(view()->visualRect(view()->currentIndex())));
}

void tst_ListFollowing::aSavedOrderIsChangedInItsRow()
{
    goTo(QStringLiteral("ZAM/2025/0500"));
    const int row = grid()->Row();
    const QString before = sums();
    press(Qt::Key_Enter);
    QTRY_VERIFY(m_window->isActiveWindow());
    focus("numTotal");
    type(QStringLiteral("98765,43"));
    press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!m_window->isWindowModified());
    QCOMPARE(cell(row, ListColumn::Number), QStringLiteral("ZAM/2025/0500"));
    QCOMPARE(cell(row, ListColumn::Total), grouped("98 765,43"));
    QVERIFY(sums() != before);
}

void tst_ListFollowing::aNewOrderComes()
{
    bringUp(*m_window);
    press(Qt::Key_N, Qt::ControlModifier);
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(grid()->Rows(), 1002);
    QCOMPARE(cell(1, ListColumn::Number), m_window->form().order().number);
    QVERIFY(sums().startsWith(QStringLiteral("Zamówień: 1\u00A0001 z 1\u00A0001,")));
}

void tst_ListFollowing::anOrderThatNoLongerFitsGoes()
{
    enter("numLeast", QStringLiteral("9000"));
    press(Qt::Key_Enter);
    const int rows = grid()->Rows();
    const QString number = current(ListColumn::Number);
    const QString next = cell(2, ListColumn::Number);
    press(Qt::Key_Enter);
    QTRY_VERIFY(m_window->isActiveWindow());
    focus("numAdvance");
    press(Qt::Key_Delete);
    focus("numTotal");
    type(QStringLiteral("8999,99"));
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_clerk->heard(), QString());
    QCOMPARE(grid()->Rows(), rows - 1);
    QVERIFY(!column(ListColumn::Number).contains(number));
    QCOMPARE(cell(1, ListColumn::Number), next);
    QCOMPARE(cell(1, ListColumn::Place), QStringLiteral("1"));
}

void tst_ListFollowing::aDeletedOrderGoes()
{
    goTo(QStringLiteral("ZAM/2025/0500"));
    press(Qt::Key_Enter);
    QTRY_VERIFY(m_window->isActiveWindow());
    m_clerk->willPress({Qt::Key_U});
    press(Qt::Key_D, Qt::ControlModifier);
    QVERIFY(!column(ListColumn::Number).contains(QStringLiteral("ZAM/2025/0500")));
    QCOMPARE(grid()->Rows(), 1000);
}

void tst_ListFollowing::anOrderThatIsGoneIsSaidWhenItIsOpened()
{
    const QString number = current(ListColumn::Number);
    change(file(), {QStringLiteral("DELETE FROM orders WHERE number = '%1'").arg(number)});
    press(Qt::Key_Enter);
    QCOMPARE(m_clerk->heard(), QStringLiteral("Zamówienie zostało tymczasem usunięte."));
    QCOMPARE(grid()->Rows(), 1000);
    QVERIFY(!column(ListColumn::Number).contains(number));
}

void tst_ListFollowing::aRenamedCustomerIsRenamedInTheRows()
{
    const QString number = QStringLiteral("ZAM/2025/0500");
    const QStringList numbers = column(ListColumn::Number);
    const QString before = customerOf(number);
    const auto orders = ordersOfSameCustomer(number);
    QVERIFY(orders > 1);
    QCOMPARE(column(ListColumn::Customer).count(before), orders);
    changeCustomerOf(number, QStringLiteral("Żółw i Spółka"));
    QCOMPARE(m_seen.count(QStringLiteral("Żółw i Spółka")), orders);
    QVERIFY(!m_seen.contains(before));
    QCOMPARE(column(ListColumn::Number), numbers); // nothing moved
    QCOMPARE(current(ListColumn::Number), number);
}

void tst_ListFollowing::ordersComeAndGoWithTheNameOfTheirCustomer()
{
    const QString number = QStringLiteral("ZAM/2025/0500");
    const auto orders = int(ordersOfSameCustomer(number));
    enter("txtText", QStringLiteral("ZAM/2025/0500"));
    press(Qt::Key_Enter);
    QCOMPARE(grid()->Rows(), 2);
    changeCustomerOf(number, QStringLiteral("Po zam/2025/0500"));
    QCOMPARE(grid()->Rows(), orders + 1);
    QCOMPARE(column(ListColumn::Place).last(), QString::number(orders));
    QVERIFY2(sums().startsWith(QStringLiteral("Zamówień: %1 z 1\u00A0000,").arg(orders)), qPrintable(sums()));
    changeCustomerOf(number, QStringLiteral("Inny"));
    QCOMPARE(column(ListColumn::Number), QStringList{number});
    QCOMPARE(customerOf(number), QStringLiteral("Inny"));
    QCOMPARE(cell(1, ListColumn::Place), QStringLiteral("1"));
}

void tst_ListFollowing::ordersComeAndGoWithTheGroupOfTheirCustomer()
{
    enter("cmbGroup", QStringLiteral("War"));
    press(Qt::Key_Enter);
    const int shown = grid()->Rows();
    const QString number = cell(1, ListColumn::Number);
    const auto orders = int(ordersOfSameCustomer(number));
    changeCustomerOf(number, customerOf(number), QStringLiteral("f"));
    QCOMPARE(grid()->Rows(), shown - orders);
    QVERIFY(!column(ListColumn::Number).contains(number));
}

void tst_ListFollowing::theFilterNamesItsCustomerAnew_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("while the list is open") << true;
    QTest::newRow("while it is closed") << false;
}

void tst_ListFollowing::theFilterNamesItsCustomerAnew()
{
    QFETCH(const bool, isOpen);
    const auto *customers = m_list->findChild<KorCombo *>(QStringLiteral("cmbCustomer"));
    enter("cmbCustomer", QStringLiteral("Firma Handlowa E"));
    press(Qt::Key_Enter);
    const QVariant chosen = customers->Value();
    const QString number = current(ListColumn::Number);
    press(Qt::Key_Enter); // opens the order
    QTRY_VERIFY(m_window->isActiveWindow());
    kor::test::settle();
    if (!isOpen)
        m_list->close();
    inNextDialog([&](QWidget &) {
        press(Qt::Key_Return);
        type(QStringLiteral("Inna nazwa"));
        press(Qt::Key_S, Qt::ControlModifier);
        press(Qt::Key_Escape);
    });
    press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(m_window->isActiveWindow());
    kor::test::settle();
    QCOMPARE(customers->Text(), QStringLiteral("Inna nazwa"));
    QCOMPARE(customers->Value(), chosen);
    openList();
    QCOMPARE(customerOf(number), QStringLiteral("Inna nazwa"));
}

void tst_ListFollowing::whatIsChosenForTheNextListStaysChosen()
{
    enter("cmbCustomer", QStringLiteral("Pasieka"));
    const auto *customers = m_list->findChild<KorCombo *>(QStringLiteral("cmbCustomer"));
    const QVariant chosen = customers->Value();
    enter("txtText", QStringLiteral("wąska"));
    changeCustomerOf(QStringLiteral("ZAM/2025/0500"), QStringLiteral("Inny"));
    QCOMPARE(customers->Value(), chosen);
    QCOMPARE(m_list->findChild<QLineEdit *>(QStringLiteral("txtText"))->text(), QStringLiteral("wąska"));
    QCOMPARE(grid()->Rows(), 1001); // nobody has asked for it yet
}

void tst_ListFollowing::escapeStopsALongReading()
{
    enter("txtText", QStringLiteral("takiego nie ma"));
    addMany(400000);
    bool isStopped = false;
    underProgress([&](QProgressDialog &progress) {
        QTest::keyClick(&progress, Qt::Key_Escape);
        isStopped = true;
    });
    press(Qt::Key_Enter);
    QTRY_VERIFY(isStopped);
    QCOMPARE(grid()->Rows(), 1001);
    QCOMPARE(said(), QStringLiteral("Przerwano; lista pozostaje taka, jaka była."));
    QVERIFY(m_list->isVisible());
}

void tst_ListFollowing::theOrderCanBeSavedDuringALongReading()
{
    enter("txtText", QStringLiteral("ZAM/2025/0001"));
    addMany(400000);
    bool isSaved = false;
    underProgress([&](QProgressDialog &) {
        number("numTotal")->setValue(7654.32);
        part<QPushButton>("cmdSave")->click();
        isSaved = !m_window->isWindowModified();
    });
    press(Qt::Key_Enter);
    QTRY_VERIFY(isSaved);
    QCOMPARE(grid()->Rows(), 2);
    QCOMPARE(cell(1, ListColumn::Total), grouped("7 654,32"));
}

QTEST_MAIN(tst_ListFollowing)
#include "tst_listfollowing.moc"
